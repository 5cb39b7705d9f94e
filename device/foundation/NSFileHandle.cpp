#include "Foundation/NSFileHandle.h"

#include "FrameworkClass.h"

namespace {

class SystemFileHandle final : public NSFileHandle {
public:
    // The messages without an error end the process when they fail.

    bool writeData(const NSData& data) override {
        const AutoreleasePool pool;
        return !isClosed_ && send<"-[NSFileHandle writeData:error:]", bool>(*this, PropertyList(data),
                                                                            static_cast<id*>(nullptr));
    }

    void closeFile() override {
        const AutoreleasePool pool;
        if (!isClosed_)
            send<"-[NSFileHandle closeAndReturnError:]", bool>(*this, static_cast<id*>(nullptr));
        isClosed_ = true;
    }

private:
    bool isClosed_ = false;
};

const FrameworkClassOf<SystemFileHandle> frameworkClass("NSFileHandle");

} // namespace

Ref<NSFileHandle> NSFileHandle::fileHandleForWritingAtPath(std::string_view path) {
    const AutoreleasePool pool;
    return sendToClass<"+[NSFileHandle fileHandleForWritingAtPath:]", Ref<NSFileHandle>>(path);
}
