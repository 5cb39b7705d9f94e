#include "LinearVariable.h"

#include <atomic>

namespace {

std::uint64_t nextNumber() {
    static std::atomic<std::uint64_t> made = 0;
    return made++;
}

} // namespace

LinearVariable::LinearVariable() : number_(nextNumber()) {}
