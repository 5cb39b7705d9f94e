#include "UIKit/UIImage.h"

#include "DesktopImage.h"
#include "screen/Screen.h"

Ref<UIImage> UIImage::imageWithContentsOfFile(std::string_view path) {
    return DesktopImage::withContentsOfFile(path, Screen::current().traits().displayScale);
}
