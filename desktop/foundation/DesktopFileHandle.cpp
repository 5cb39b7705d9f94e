#include "DesktopFileHandle.h"

#include "Device.h"
#include "ObjectiveC/Class.h"

#include <fcntl.h>

namespace {

const Class classObject = Class::define<NSFileHandle>("NSFileHandle");

} // namespace

Ref<NSFileHandle> NSFileHandle::fileHandleForWritingAtPath(std::string_view path) {
    auto file = RegularFile::open(Device::current().root(), path, O_WRONLY);
    if (!file)
        return nullptr;
    return make<DesktopFileHandle>(std::move(*file));
}

bool DesktopFileHandle::writeData(const NSData& data) {
    return file_ && file_->write(data.bytes);
}

void DesktopFileHandle::closeFile() {
    file_.reset();
}
