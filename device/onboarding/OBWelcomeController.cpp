#include "OnBoardingKit/OBWelcomeController.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<OBWelcomeController, UIViewController> frameworkClass("OBWelcomeController");

} // namespace

OBWelcomeController::OBWelcomeController() = default;

Ref<OBWelcomeController> OBWelcomeController::initWithTitle(std::string_view title,
                                                            const std::optional<std::string>& detailText,
                                                            const Ref<UIImage>& icon) {
    return makeObject<"-[OBWelcomeController initWithTitle:detailText:icon:]", OBWelcomeController>(
        title, detailText, icon);
}

Ref<OBWelcomeController> OBWelcomeController::initWithTitle(std::string_view title,
                                                            const std::optional<std::string>& detailText,
                                                            std::string_view symbolName) {
    return makeObject<"-[OBWelcomeController initWithTitle:detailText:symbolName:]", OBWelcomeController>(
        title, detailText, symbolName);
}

void OBWelcomeController::addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                                       const Ref<UIImage>& image) {
    send<"-[OBWelcomeController addBulletedListItemWithTitle:description:image:]", void>(*this, title,
                                                                                         description, image);
}

void OBWelcomeController::addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                                       const Ref<UIImage>& image,
                                                       const Ref<UIColor>& tintColor) {
    send<"-[OBWelcomeController addBulletedListItemWithTitle:description:image:tintColor:]", void>(
        *this, title, description, image, tintColor);
}

Ref<UIView> OBWelcomeController::bulletedList() const {
    return send<"-[OBWelcomeController bulletedList]", Ref<UIView>>(*this);
}
