#include "MessageRecord.h"

#include <utility>

namespace {

constinit const MessageRecord* firstRecord = nullptr;

} // namespace

MessageRecord::MessageRecord(const char* text, const char* selectorText, const char* types)
    : text_(text),
      types_(types),
      selector_(sel_registerName(selectorText)),
      next_(std::exchange(firstRecord, this)) {}

const MessageRecord* MessageRecord::first() {
    return firstRecord;
}
