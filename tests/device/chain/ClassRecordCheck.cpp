#include "ClassRecordCheck.h"

#include "ClassRecord.h"

namespace {

const ClassContents classContents{.flags = 0,
                                  .instanceStart = 8,
                                  .instanceSize = 8,
                                  .reserved = 0,
                                  .strongLayout = nullptr,
                                  .name = "ChainRecord",
                                  .methods = nullptr,
                                  .protocols = nullptr,
                                  .instanceVariables = nullptr,
                                  .weakLayout = nullptr,
                                  .properties = nullptr};

} // namespace

extern "C" {
extern const char emptyCache __asm("__objc_empty_cache");
extern const char rootClass __asm("_OBJC_CLASS_$_NSObject");
extern const char rootMetaclass __asm("_OBJC_METACLASS_$_NSObject");
extern ClassRecord record __asm("_OBJC_CLASS_$_ChainRecord");
[[gnu::visibility("default")]] ClassRecord record{.isa = &rootMetaclass,
                                                  .superclass = &rootClass,
                                                  .cache = &emptyCache,
                                                  .methodTable = nullptr,
                                                  .contents = &classContents};
}

bool classRecordIsSound() {
    const auto* const isa = static_cast<const char*>(record.isa);
    const auto* const superclass = static_cast<const char*>(record.superclass);
    return record.contents->name[0] == 'C' && isa == &rootMetaclass && superclass == &rootClass &&
           *isa == 0 && *superclass == 0;
}
