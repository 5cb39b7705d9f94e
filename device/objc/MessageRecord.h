#pragma once

#include "Runtime.h"

#include <string_view>

/// One message that code of this program sends or answers. All of them stand in one list, which is complete
/// once the program is loaded, so that it can be compared with what the frameworks declare.
class MessageRecord {
public:
    /// The texts are kept, not copied.
    MessageRecord(const char* text, const char* selectorText, const char* types);
    MessageRecord(const MessageRecord&) = delete;
    MessageRecord& operator=(const MessageRecord&) = delete;

    /// The first record; null when there is none.
    [[nodiscard]] static const MessageRecord* first();

    [[nodiscard]] const MessageRecord* next() const { return next_; }

    /// "-[UIView setFrame:]".
    [[nodiscard]] std::string_view text() const { return text_; }

    /// "v@:{CGRect={CGPoint=dd}{CGSize=dd}}".
    [[nodiscard]] const char* types() const { return types_; }

    /// Null until the record has been constructed.
    [[nodiscard]] SEL selector() const { return selector_; }

private:
    const char* text_;
    const char* types_;
    SEL selector_;
    const MessageRecord* next_;
};
