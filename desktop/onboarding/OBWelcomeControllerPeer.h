#pragma once

#include "OnBoardingKit/OBWelcomeController.h"
#include "WelcomeView.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/SheetContent.h"

/// The desktop's half of a welcome page: its view, which is filled before it is shown. Made with the page.
// NOLINTNEXTLINE(misc-multiple-inheritance): an interface whose answers may be left out
class OBWelcomeControllerPeer final : public UIViewControllerPeer, public SheetContent {
public:
    using Object = OBWelcomeController;

    OBWelcomeControllerPeer();

    [[nodiscard]] WelcomeView& welcomeView() const { return *welcomeView_; }

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;

    // SheetContent:
    [[nodiscard]] std::string sheetTitle() const override;
    [[nodiscard]] std::string sheetDetail() const override;
    [[nodiscard]] std::string sheetSymbol() const override;
    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override;

private:
    Ref<WelcomeView> welcomeView_;
};
