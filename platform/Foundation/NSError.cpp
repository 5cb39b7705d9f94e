#include "Foundation/NSError.h"

#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<NSError>("NSError");

} // namespace

Ref<NSError> NSError::errorWithDomain(std::string_view domain, std::int64_t code,
                                      PropertyList::Dictionary userInfo, Ref<NSError> underlyingError) {
    return adopt(new NSError(domain, code, std::move(userInfo), std::move(underlyingError)));
}

NSError::NSError(std::string_view domain, std::int64_t code, PropertyList::Dictionary userInfo,
                 Ref<NSError> underlyingError)
    : domain_(domain),
      code_(code),
      userInfo_(std::move(userInfo)),
      underlyingError_(std::move(underlyingError)) {}

const std::string* NSError::textFor(std::string_view key) const {
    const auto found = userInfo_.find(key);
    return found != userInfo_.end() ? found->second.getIf<std::string>() : nullptr;
}

std::string NSError::localizedDescription() const {
    if (const auto* const text = textFor(NSLocalizedDescriptionKey))
        return *text;
    return "The operation couldn’t be completed. (" + domain_ + " error " + std::to_string(code_) + ".)";
}

std::string NSError::description() const {
    std::string info;
    const auto add = [&info](const std::string& key, const std::string& value) {
        info += (info.empty() ? "" : ", ") + key + "=" + value;
    };
    for (const auto& [key, value] : userInfo_) {
        if (key != NSLocalizedDescriptionKey && key != NSDebugDescriptionErrorKey)
            add(key, value.description());
    }
    if (underlyingError_)
        add("NSUnderlyingError", "{" + underlyingError_->description() + "}");
    const auto* const forLog = textFor(NSDebugDescriptionErrorKey);
    return "Error Domain=" + domain_ + " Code=" + std::to_string(code_) + " \"" +
           (forLog != nullptr ? *forLog : localizedDescription()) + "\"" +
           (info.empty() ? "" : " UserInfo={" + info + "}");
}
