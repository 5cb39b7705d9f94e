// A class whose record brings its methods: signed one by one, and the list of them too.

#include "ClassRecord.h"
#include "Framework.h"
#include "Message.h"

#include <gtest/gtest.h>

#include <cstdint>

#ifdef __arm64e__
#define SIGNED_FUNCTION __ptrauth(0, 1, 0)
#define SIGNED_METHODS __ptrauth(2, 1, 0xC310)
#else
#define SIGNED_FUNCTION
#define SIGNED_METHODS
#endif

extern "C" {
extern const char emptyCache __asm("__objc_empty_cache");
extern const char rootClass __asm("_OBJC_CLASS_$_NSObject");
extern const char rootMetaclass __asm("_OBJC_METACLASS_$_NSObject");
}

namespace {

using IntegerMethod = std::int64_t (*)(id, SEL);

struct MethodRecord {
    const char* selector;
    const char* types;
    IntegerMethod SIGNED_FUNCTION implementation;
};

struct MethodList {
    std::uint32_t elementSize;
    std::uint32_t count;
    MethodRecord only;
};

/// As `ClassContents`, but for the list's signature.
struct ContentsWithMethods {
    std::uint32_t flags;
    std::uint32_t instanceStart;
    std::uint32_t instanceSize;
    std::uint32_t reserved;
    const void* strongLayout;
    const char* name;
    const MethodList* SIGNED_METHODS methods;
    const void* protocols;
    const void* instanceVariables;
    const void* weakLayout;
    const void* properties;
};

static_assert(sizeof(ContentsWithMethods) == sizeof(ClassContents));

struct RecordWithMethods {
    const void* SIGNED_CLASS_POINTER(0x6AE1) isa;
    const void* SIGNED_CLASS_POINTER(0xB5AB) superclass;
    const void* cache;
    const void* methodTable;
    const ContentsWithMethods* contents;
};

constexpr std::uint32_t metaclassFlag = 1;
constexpr std::uint32_t sizeOfObject = 8;
constexpr std::uint32_t sizeOfClass = 40;

std::int64_t seven(id /*self*/, SEL /*selector*/) {
    return 7;
}

std::int64_t eight(id /*self*/, SEL /*selector*/) {
    return 8;
}

// The lists are not constants: what is signed for its place is written there when the code is loaded.
MethodList methods{.elementSize = sizeof(MethodRecord),
                   .count = 1,
                   .only = {.selector = "seven", .types = "q@:", .implementation = &seven}};
MethodList classMethods{.elementSize = sizeof(MethodRecord),
                        .count = 1,
                        .only = {.selector = "eight", .types = "q@:", .implementation = &eight}};

ContentsWithMethods contents{.flags = 0,
                             .instanceStart = sizeOfObject,
                             .instanceSize = sizeOfObject,
                             .reserved = 0,
                             .strongLayout = nullptr,
                             .name = "RecordedMethods",
                             .methods = &methods,
                             .protocols = nullptr,
                             .instanceVariables = nullptr,
                             .weakLayout = nullptr,
                             .properties = nullptr};
ContentsWithMethods metaclassContents{.flags = metaclassFlag,
                                      .instanceStart = sizeOfClass,
                                      .instanceSize = sizeOfClass,
                                      .reserved = 0,
                                      .strongLayout = nullptr,
                                      .name = "RecordedMethods",
                                      .methods = &classMethods,
                                      .protocols = nullptr,
                                      .instanceVariables = nullptr,
                                      .weakLayout = nullptr,
                                      .properties = nullptr};
RecordWithMethods metaclass{.isa = &rootMetaclass,
                            .superclass = &rootMetaclass,
                            .cache = &emptyCache,
                            .methodTable = nullptr,
                            .contents = &metaclassContents};
RecordWithMethods recorded{.isa = &metaclass,
                           .superclass = &rootClass,
                           .cache = &emptyCache,
                           .methodTable = nullptr,
                           .contents = &contents};

[[gnu::used, gnu::section("__DATA,__objc_classlist,regular,no_dead_strip")]] const void* const classList =
    &recorded;

} // namespace

TEST(RecordedMethodsTest, AnswerForObjectsAndForTheClass) {
    auto* const object = newByName("RecordedMethods");
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(invokeForInteger(object, "seven", nullptr), 7);
    EXPECT_EQ((sendToClass<"+[RecordedMethods eight]", std::int64_t>()), 8);
    objc_release(object);
}
