#include "ClassRecords.h"

#include "CodePointers.h"
#include "Failure.h"
#include "RecordedClasses.h"
#include "Runtime.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace {

struct VariableRecord {
    std::int32_t* offset;
    const char* name;
    const char* types;
    std::uint32_t alignmentLog2;
    std::uint32_t size;
};

struct MethodRecord {
    const char* selector;
    const char* types;
    std::uint64_t implementation;
};

/// A list of records of one kind.
struct List {
    std::uint32_t elementSize;
    std::uint32_t count;

    template <class Record>
    [[nodiscard]] std::span<const Record> records() const {
        if (elementSize != sizeof(Record))
            fail("a class record has a list of a form that is not known");
        return {reinterpret_cast<const Record*>(this + 1), count};
    }
};

struct Contents {
    std::uint32_t flags;
    std::uint32_t start;
    std::uint32_t size;
    std::uint32_t reserved;
    const void* strongLayout;
    const char* name;
    std::uint64_t methods;
    const void* protocols;
    const List* variables;
    const void* weakLayout;
    const void* properties;
};

struct Record {
    std::uint64_t isa;
    std::uint64_t superclass;
    const void* cache;
    const void* table;
    const Contents* contents;
};

constexpr std::uint32_t metaclassFlag = 1;

const void* isaOf(const Record& record) {
    constexpr std::uint16_t diversity = 0x6AE1;
    return reinterpret_cast<const void*>(CodePointers::authenticatedAt(
        record.isa, SigningKey::DA, diversity, "what a class record is an object of"));
}

objc_class* superclassOf(const Record& record) {
    constexpr std::uint16_t diversity = 0xB5AB;
    return reinterpret_cast<objc_class*>(CodePointers::authenticatedAt(
        record.superclass, SigningKey::DA, diversity, "the superclass of a class record"));
}

objc_class* metaclassOf(objc_class* of) {
    return object_getClass(classObject(of));
}

void check(const Record& record, const Record& metaclass) {
    if ((record.contents->flags & metaclassFlag) != 0 || (metaclass.contents->flags & metaclassFlag) == 0)
        fail("a class record does not tell a class from its metaclass: ", record.contents->name);
    if (superclassOf(metaclass) != metaclassOf(superclassOf(record)) ||
        isaOf(metaclass) != metaclassOf(objc_getClass("NSObject")))
        fail("a metaclass does not stand where its class does: ", record.contents->name);
}

void addMethods(objc_class* to, const std::uint64_t& methods) {
    constexpr std::uint16_t diversity = 0xC310;
    const auto* const list = reinterpret_cast<const List*>(
        CodePointers::authenticatedAt(methods, SigningKey::DA, diversity, "the methods of a class record"));
    if (list == nullptr)
        return;
    for (const auto& method : list->records<MethodRecord>()) {
        const auto function = CodePointers::authenticatedAt(method.implementation, SigningKey::IA, 0,
                                                            "the function of a method's record");
        class_addMethod(to, sel_registerName(method.selector), reinterpret_cast<IMP>(function), method.types);
    }
}

std::span<const VariableRecord> variablesOf(const Record& record) {
    const auto* const list = record.contents->variables;
    return list != nullptr ? list->records<VariableRecord>() : std::span<const VariableRecord>();
}

void note(const Record& record, objc_class* made) {
    // NOLINTNEXTLINE(*-const-cast): the runtime's functions take classes so
    RecordedClasses::add(reinterpret_cast<objc_class*>(const_cast<Record*>(&record)), made);
}

void publish(const Record& record) {
    const auto& metaclass = *static_cast<const Record*>(isaOf(record));
    check(record, metaclass);
    auto* const made = objc_allocateClassPair(superclassOf(record), record.contents->name, 0);
    if (made == nullptr)
        return; // as on the device: the class that was there first stays
    for (const auto& variable : variablesOf(record))
        class_addIvar(made, variable.name, variable.size, static_cast<std::uint8_t>(variable.alignmentLog2),
                      variable.types);
    addMethods(made, record.contents->methods);
    addMethods(metaclassOf(made), metaclass.contents->methods);
    objc_registerClassPair(made);
    note(record, made);
    note(metaclass, metaclassOf(made));
    for (const auto& variable : variablesOf(record))
        *variable.offset =
            static_cast<std::int32_t>(ivar_getOffset(class_getInstanceVariable(made, variable.name)));
}

} // namespace

void ClassRecords::publish(const Image& image) {
    for (const auto* const record : std::span(image.classRecords(), image.classRecordCount()))
        ::publish(*static_cast<const Record*>(record));
}
