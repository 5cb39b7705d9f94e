#include "Foundation/NSURL.h"

#include "FrameworkClass.h"

namespace {

class SystemURL final : public NSURL {
public:
    [[nodiscard]] std::string path() const override {
        const AutoreleasePool pool;
        return send<"-[NSURL path]", std::string>(*this);
    }

    [[nodiscard]] std::string lastPathComponent() const override {
        const AutoreleasePool pool;
        return send<"-[NSURL lastPathComponent]", std::string>(*this);
    }

    [[nodiscard]] std::string pathExtension() const override {
        const AutoreleasePool pool;
        return send<"-[NSURL pathExtension]", std::string>(*this);
    }

    [[nodiscard]] bool startAccessingSecurityScopedResource() const override {
        return send<"-[NSURL startAccessingSecurityScopedResource]", bool>(*this);
    }

    void stopAccessingSecurityScopedResource() const override {
        send<"-[NSURL stopAccessingSecurityScopedResource]", void>(*this);
    }
};

const FrameworkClassOf<SystemURL> frameworkClass("NSURL");

} // namespace

Ref<NSURL> NSURL::fileURLWithPath(std::string_view path) {
    const AutoreleasePool pool;
    return sendToClass<"+[NSURL fileURLWithPath:]", Ref<NSURL>>(path);
}

Ref<NSURL> NSURL::URLWithString(std::string_view text) {
    const AutoreleasePool pool;
    return sendToClass<"+[NSURL URLWithString:]", Ref<NSURL>>(text);
}
