#include "Foundation/NSBundle.h"

#include "Foundation/NSString.h"
#include "FrameworkClass.h"

#include <dlfcn.h>

namespace {

class SystemBundle final : public NSBundle {
public:
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, std::optional<std::string> value,
                                                    std::optional<std::string> table) const override {
        const AutoreleasePool pool;
        return send<"-[NSBundle localizedStringForKey:value:table:]", std::string>(*this, key, value, table);
    }
};

const FrameworkClassOf<SystemBundle> frameworkClass("NSBundle");

/// The bundle in the folder of the code that holds something.
id bundleOfCode(const void* address) {
    Dl_info image{};
    dladdr(address, &image);
    return sendToClass<"+[NSBundle bundleWithPath:]", id>(
        stringByDeletingLastPathComponent(image.dli_fname != nullptr ? image.dli_fname : ""));
}

} // namespace

Ref<NSBundle> NSBundle::mainBundle() {
    const AutoreleasePool pool;
    return sendToClass<"+[NSBundle mainBundle]", Ref<NSBundle>>();
}

// The system does not know whose the classes are that are made at run time, as all of the table's are.
Ref<NSBundle> NSBundle::bundleForClass(const Class& stated) {
    const AutoreleasePool pool;
    return instanceAs<NSBundle>(bundleOfCode(&stated));
}
