#include "ErrorObject.h"

#include "FrameworkClass.h"
#include "Message.h"

namespace {

const FrameworkClass frameworkClass("NSError", {});

constexpr std::string_view underlyingErrorKey = "NSUnderlyingError";

} // namespace

Ref<NSError> errorOf(id error) {
    if (error == nullptr)
        return NSError::errorWithDomain(NSCocoaErrorDomain, 0);
    const id userInfoObject = send<"-[NSError userInfo]", id>(error);
    auto userInfo = dictionaryOf(userInfoObject).value_or(PropertyList::Dictionary());
    userInfo.insert_or_assign(std::string(NSLocalizedDescriptionKey),
                              send<"-[NSError localizedDescription]", std::string>(error));
    const id underlying = send<"-[NSDictionary objectForKey:]", id>(userInfoObject, underlyingErrorKey);
    return NSError::errorWithDomain(send<"-[NSError domain]", std::string>(error),
                                    send<"-[NSError code]", std::int64_t>(error), std::move(userInfo),
                                    underlying != nullptr ? errorOf(underlying) : nullptr);
}

Result<void> ErrorOut::result(bool succeeded) const {
    if (succeeded)
        return {};
    return failure();
}
