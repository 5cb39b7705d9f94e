#include "UIKit/UIBezierPath.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIBezierPath> frameworkClass("UIBezierPath");

} // namespace

Ref<UIBezierPath> UIBezierPath::bezierPathWithRoundedRect(const CGRect& rect, double cornerRadius) {
    return sendToClass<"+[UIBezierPath bezierPathWithRoundedRect:cornerRadius:]", Ref<UIBezierPath>>(
        rect, cornerRadius);
}
