#include "ImportTable.h"

#include "ImportLists.h"
#include "Runtime.h"

#include <dlfcn.h>

#include <array>
#include <map>
#include <string_view>

namespace {

/// What other libraries have as the device's have it: what the functions are given and answer with is the
/// same on both, and the variables hold string objects.
constexpr std::array taken{"NSFileTypeDirectory",
                           "NSFileTypeRegular",
                           "NSFileTypeSymbolicLink",
                           "abort",
                           "archive_entry_filetype",
                           "archive_entry_free",
                           "archive_entry_new",
                           "archive_entry_pathname",
                           "archive_entry_set_filetype",
                           "archive_entry_set_pathname",
                           "archive_entry_set_perm",
                           "archive_entry_set_size",
                           "archive_read_close",
                           "archive_read_data_block",
                           "archive_read_free",
                           "archive_read_new",
                           "archive_read_next_header",
                           "archive_read_open_filename",
                           "archive_read_support_filter_gzip",
                           "archive_read_support_format_tar",
                           "archive_write_add_filter_gzip",
                           "archive_write_close",
                           "archive_write_data",
                           "archive_write_free",
                           "archive_write_header",
                           "archive_write_new",
                           "archive_write_open_filename",
                           "archive_write_set_format_pax_restricted",
                           "bzero",
                           "class_addIvar",
                           "freelocale",
                           "ivar_getOffset",
                           "malloc",
                           "memchr",
                           "memcmp",
                           "memcpy",
                           "memmove",
                           "memset",
                           "objc_registerClassPair",
                           "sel_getName",
                           "sel_registerName",
                           "strcmp",
                           "strlen",
                           "strtod",
                           "uselocale"};

const void* takenSymbol(std::string_view symbol) {
    for (const auto* const name : taken) {
        if (symbol.starts_with('_') && symbol.substr(1) == name)
            return dlsym(RTLD_DEFAULT, name);
    }
    return nullptr;
}

const void* classSymbol(std::string_view symbol) {
    constexpr std::string_view classPrefix = "_OBJC_CLASS_$_";
    constexpr std::string_view metaclassPrefix = "_OBJC_METACLASS_$_";
    if (symbol.starts_with(classPrefix))
        return objc_getClass(symbol.data() + classPrefix.size());
    if (symbol.starts_with(metaclassPrefix))
        return object_getClass(classObject(objc_getClass(symbol.data() + metaclassPrefix.size())));
    return nullptr;
}

std::map<std::string_view, const void*> readLists() {
    std::map<std::string_view, const void*> all;
    for (const auto list : {blockImports(), cLibraryImports(), cxxLibraryImports(), lockImports(),
                            runtimeImports(), stringImports(), systemImports()}) {
        for (const auto& [symbol, address] : list)
            all.emplace(symbol, address);
    }
    return all;
}

std::map<std::string_view, const void*>& known() {
    static auto all = readLists();
    return all;
}

std::vector<std::string>& missing() {
    static std::vector<std::string> symbols;
    return symbols;
}

} // namespace

std::uint64_t ImportTable::address(const char* symbol) {
    const void* found = nullptr;
    if (const auto own = known().find(symbol); own != known().end())
        found = own->second;
    else if (found = takenSymbol(symbol); found == nullptr)
        found = classSymbol(symbol);
    if (found == nullptr)
        missing().emplace_back(symbol);
    return reinterpret_cast<std::uint64_t>(found);
}

const std::vector<std::string>& ImportTable::unknown() {
    return missing();
}

void ImportTable::add(const char* symbol, const void* address) {
    known().emplace(symbol, address);
}
