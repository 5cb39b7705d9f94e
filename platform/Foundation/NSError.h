#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/NSObject.h"

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

/// The domains and user-info keys of the platform's own errors.
inline constexpr std::string_view NSCocoaErrorDomain = "NSCocoaErrorDomain";
inline constexpr std::string_view NSPOSIXErrorDomain = "NSPOSIXErrorDomain";
inline constexpr std::string_view NSLocalizedDescriptionKey = "NSLocalizedDescription";
inline constexpr std::string_view NSDebugDescriptionErrorKey = "NSDebugDescription";
inline constexpr std::string_view NSFilePathErrorKey = "NSFilePath";

/// Why an operation failed. Never changes once made.
class NSError final : public NSObject {
public:
    /// \param userInfo what is known besides; the text for the user stands under `NSLocalizedDescriptionKey`,
    /// and the one for the log, if that is another, under `NSDebugDescriptionErrorKey`
    /// \param underlyingError the error that led to this one, or an empty Ref
    [[nodiscard]] static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                                      PropertyList::Dictionary userInfo = {},
                                                      Ref<NSError> underlyingError = nullptr);

    [[nodiscard]] const std::string& domain() const { return domain_; }

    [[nodiscard]] std::int64_t code() const { return code_; }

    /// The text for the user: the user info's, or else one made of domain and code.
    [[nodiscard]] std::string localizedDescription() const;

    /// `Error Domain=NSCocoaErrorDomain Code=4 "“x” couldn’t be removed." UserInfo={...}`
    [[nodiscard]] std::string description() const override;

private:
    NSError(std::string_view domain, std::int64_t code, PropertyList::Dictionary userInfo,
            Ref<NSError> underlyingError);

    /// Null when there is none.
    [[nodiscard]] const std::string* textFor(std::string_view key) const;

    std::string domain_;
    std::int64_t code_;
    PropertyList::Dictionary userInfo_;
    Ref<NSError> underlyingError_;
};

/// The value of an operation that may fail, or why it did.
template <class T>
using Result = std::expected<T, Ref<NSError>>;
