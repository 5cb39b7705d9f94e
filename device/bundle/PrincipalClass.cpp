// The class that the Preferences framework makes the pane's first page of. It belongs to the bundle from the
// moment the bundle is loaded, without methods; these, and all other classes, come with the first message
// that it is sent. Then all code of the bundle has stated its classes, in whatever order it was loaded.

#include "ClassPublisher.h"
#include "ClassRecord.h"
#include "Foundation/NSLog.h"
#include "Instances.h"

extern "C" {
extern const char emptyCache __asm("__objc_empty_cache");
extern const char rootMetaclass __asm("_OBJC_METACLASS_$_NSObject");
extern const char superclass __asm("_OBJC_CLASS_$_PSListController");
extern const char superMetaclass __asm("_OBJC_METACLASS_$_PSListController");
[[gnu::visibility("default")]] extern ClassRecord principalClass __asm("_OBJC_CLASS_$_cxRootListController");
extern ClassRecord principalMetaclass __asm("_OBJC_METACLASS_$_cxRootListController");
}

namespace {

constexpr auto principalClassName = "cxRootListController";
constexpr std::uint32_t metaclassFlag = 1;
constexpr std::uint32_t withCategoryProperties = 64; // what compilers for iOS 15 say
constexpr std::uint32_t sizeOfAnyObject = 8;
constexpr std::uint32_t sizeOfAnyClass = 40;

std::int32_t instanceVariableOffset = sizeOfAnyObject;

const InstanceVariableList instanceVariables{.elementSize = sizeof(InstanceVariableRecord),
                                             .count = 1,
                                             .only = {.offset = &instanceVariableOffset,
                                                      .name = instanceVariableName,
                                                      .types = "^v",
                                                      .alignmentLog2 = 3,
                                                      .size = sizeof(void*)}};

const ClassContents classContents{.flags = 0,
                                  .instanceStart = sizeOfAnyObject,
                                  .instanceSize = sizeOfAnyObject + sizeof(void*),
                                  .reserved = 0,
                                  .strongLayout = nullptr,
                                  .name = principalClassName,
                                  .methods = nullptr,
                                  .protocols = nullptr,
                                  .instanceVariables = &instanceVariables,
                                  .weakLayout = nullptr,
                                  .properties = nullptr};

const ClassContents metaclassContents{.flags = metaclassFlag,
                                      .instanceStart = sizeOfAnyClass,
                                      .instanceSize = sizeOfAnyClass,
                                      .reserved = 0,
                                      .strongLayout = nullptr,
                                      .name = principalClassName,
                                      .methods = nullptr,
                                      .protocols = nullptr,
                                      .instanceVariables = nullptr,
                                      .weakLayout = nullptr,
                                      .properties = nullptr};

[[gnu::used,
  gnu::section("__DATA,__objc_imageinfo,regular,no_dead_strip")]] const ImageInformation imageInformation{
    .version = 0, .flags = withCategoryProperties};

[[gnu::used, gnu::section("__DATA,__objc_classlist,regular,no_dead_strip")]] const void* const classList =
    &principalClass;

/// What it answers is not in the record: methods there would have to be signed one by one.
[[gnu::constructor]] void awaitFirstMessage() {
    auto* const found = objc_getClass(principalClassName); // which readies it for methods
    if (found == reinterpret_cast<objc_class*>(&principalClass))
        publishWithFirstMessageTo(found);
    else
        NSLog("The class name %@ is taken by other code: the pane cannot be opened.", principalClassName);
}

} // namespace

ClassRecord principalMetaclass{.isa = &rootMetaclass,
                               .superclass = &superMetaclass,
                               .cache = &emptyCache,
                               .methodTable = nullptr,
                               .contents = &metaclassContents};

ClassRecord principalClass{.isa = &principalMetaclass,
                           .superclass = &superclass,
                           .cache = &emptyCache,
                           .methodTable = nullptr,
                           .contents = &classContents};
