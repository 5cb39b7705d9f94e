// Calls what the C++ library of iOS 15 lacks, as code does that is compiled without annotations of
// availability.

#include <cstddef>

extern "C" std::size_t hashMemory(const char* begin,
                                  std::size_t size) __asm("__ZNSt3__113__hash_memoryEPKvm");
extern "C" [[gnu::visibility("default")]] std::size_t hashOf(const char* text, std::size_t size);

std::size_t hashOf(const char* text, std::size_t size) {
    return hashMemory(text, size);
}
