# LLVM's linker, where it is installed, takes a sixth of the time of GNU's. g++ knows it by its short name alone.
find_program(LLD ld.lld-22)
if(LLD)
    file(REAL_PATH ${LLD} lld)
    cmake_path(GET lld PARENT_PATH folder)
    add_link_options(-fuse-ld=lld -B${folder})
endif()
