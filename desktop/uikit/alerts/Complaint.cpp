#include "alerts/Complaint.h"

#include "SystemTexts.h"
#include "UIKit/UIAlertController.h"

void complain(UIViewController& presenter, const std::string& title, const std::string& problem) {
    const auto alert =
        UIAlertController::alertControllerWithTitle(title, problem, UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle(systemText("OK"), UIAlertActionStyle::Default, {}));
    presenter.presentViewController(alert, true, {});
}
