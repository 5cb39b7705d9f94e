#include "UIKit/UIImage.h"

#include "FrameworkClass.h"

namespace {

class SystemImage final : public UIImage {
public:
    [[nodiscard]] Ref<UIImage> imageWithRenderingMode(UIImageRenderingMode mode) const override {
        return send<"-[UIImage imageWithRenderingMode:]", Ref<UIImage>>(*this, mode);
    }
};

const FrameworkClassOf<SystemImage> frameworkClass("UIImage");

} // namespace

Ref<UIImage> UIImage::systemImageNamed(std::string_view name) {
    return sendToClass<"+[UIImage systemImageNamed:]", Ref<UIImage>>(name);
}

Ref<UIImage> UIImage::imageNamed(std::string_view path) {
    return sendToClass<"+[UIImage imageNamed:]", Ref<UIImage>>(path);
}

Ref<UIImage> UIImage::imageNamed(std::string_view name, const NSBundle& inBundle) {
    const id anyTraits = nullptr;
    return sendToClass<"+[UIImage imageNamed:inBundle:compatibleWithTraitCollection:]", Ref<UIImage>>(
        name, inBundle, anyTraits);
}

Ref<UIImage> UIImage::imageWithContentsOfFile(std::string_view path) {
    return sendToClass<"+[UIImage imageWithContentsOfFile:]", Ref<UIImage>>(path);
}
