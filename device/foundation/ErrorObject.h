#pragma once

#include "Foundation/NSError.h"
#include "Runtime.h"

/// What an error object of the frameworks tells, with the errors underneath it. An operation that failed
/// without one gives an error without content.
[[nodiscard]] Ref<NSError> errorOf(id error);

/// The out-pointer for one call, and what became of it.
class ErrorOut {
public:
    /// To be passed on.
    [[nodiscard]] id* address() { return &error_; }

    /// \param succeeded what the call answered; only that tells whether there is an error
    [[nodiscard]] Result<void> result(bool succeeded) const;

    /// Why the call failed.
    [[nodiscard]] std::unexpected<Ref<NSError>> failure() const { return std::unexpected(errorOf(error_)); }

private:
    id error_ = nullptr;
};
