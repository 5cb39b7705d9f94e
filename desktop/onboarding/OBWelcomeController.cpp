#include "OnBoardingKit/OBWelcomeController.h"

#include "DesktopImage.h"
#include "OBWelcomeControllerPeer.h"
#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<OBWelcomeController, UIViewController>("OBWelcomeController");

} // namespace

OBWelcomeController::OBWelcomeController() : UIViewController(std::make_unique<OBWelcomeControllerPeer>()) {}

Ref<OBWelcomeController> OBWelcomeController::initWithTitle(std::string_view title,
                                                            const std::optional<std::string>& detailText,
                                                            const Ref<UIImage>& icon) {
    auto page = make<OBWelcomeController>();
    peerOf<OBWelcomeControllerPeer>(*page).welcomeView().setHeaderContent(
        {.title = std::string(title), .detail = detailText.value_or(""), .image = icon});
    return page;
}

Ref<OBWelcomeController> OBWelcomeController::initWithTitle(std::string_view title,
                                                            const std::optional<std::string>& detailText,
                                                            std::string_view symbolName) {
    return initWithTitle(title, detailText, UIImage::systemImageNamed(symbolName));
}

void OBWelcomeController::addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                                       const Ref<UIImage>& image) {
    addBulletedListItemWithTitle(title, description, image, nullptr);
}

void OBWelcomeController::addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                                       const Ref<UIImage>& image,
                                                       const Ref<UIColor>& tintColor) {
    const auto item = make<OBBulletedListItem>(OBBulletedListItem::Content{
        .title = std::string(title), .description = std::string(description), .image = image});
    item->setTintColor(tintColor);
    peerOf<OBWelcomeControllerPeer>(*this).welcomeView().addItem(item);
}

Ref<UIView> OBWelcomeController::bulletedList() const {
    return retain(&peerOf<OBWelcomeControllerPeer>(*this).welcomeView().list());
}
