// A bundle as it should be: its principal class is a page. Another class of its own is none, and one is a
// page that refuses to be made.

#include "ObjectiveC/Class.h"
#include "UIKit/UIViewController.h"

namespace {

class StandInPage final : public UIViewController {};

class StandInHelper final : public NSObject {};

class StandInRefusingPage final : public UIViewController {
public:
    bool init() override { return false; }
};

const Class pageClass = Class::define<StandInPage, UIViewController>("standInPage");
const Class helperClass = Class::define<StandInHelper>("standInHelper");
const Class refusingClass = Class::define<StandInRefusingPage, UIViewController>("standInRefusingPage");

} // namespace
