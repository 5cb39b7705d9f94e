#include "UIKit/UIImage.h"

#include "DesktopBundle.h"
#include "DesktopImage.h"
#include "Foundation/NSString.h"
#include "screen/Screen.h"

Ref<UIImage> UIImage::imageNamed(std::string_view path) {
    return DesktopImage::named(path, Screen::current().traits().displayScale);
}

Ref<UIImage> UIImage::imageNamed(std::string_view name, const NSBundle& inBundle) {
    const auto& folder = dynamic_cast<const DesktopBundle&>(inBundle).path();
    return imageNamed(stringByAppendingPathComponent(folder, name));
}

Ref<UIImage> UIImage::imageWithContentsOfFile(std::string_view path) {
    return DesktopImage::withContentsOfFile(path, Screen::current().traits().displayScale);
}
