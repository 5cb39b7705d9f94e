#include "UIKit/UIFont.h"

#include "FrameworkClass.h"

namespace {

class SystemFont final : public UIFont {
public:
    [[nodiscard]] double pointSize() const override { return send<"-[UIFont pointSize]", double>(*this); }
};

const FrameworkClassOf<SystemFont> frameworkClass("UIFont");

} // namespace

Ref<UIFont> UIFont::systemFontOfSize(double size) {
    return sendToClass<"+[UIFont systemFontOfSize:]", Ref<UIFont>>(size);
}
