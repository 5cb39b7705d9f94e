#include "alerts/Complaint.h"

#include "UIKit/UIAlertController.h"

void complain(UIViewController& presenter, const std::string& title, const std::string& problem) {
    const auto alert =
        UIAlertController::alertControllerWithTitle(title, problem, UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle("OK", UIAlertActionStyle::Default, {}));
    presenter.presentViewController(alert, true, {});
}
