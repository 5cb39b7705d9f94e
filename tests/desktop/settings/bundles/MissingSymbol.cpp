// A bundle that needs what nobody has.

#include "ObjectiveC/Class.h"
#include "UIKit/UIViewController.h"

/// Declared by no header, and defined nowhere.
void promisedByNobody(int page);

namespace {

class UnfinishedPage final : public UIViewController {
public:
    void viewDidLoad() override { promisedByNobody(1); }
};

const Class classObject = Class::define<UnfinishedPage, UIViewController>("unfinishedPage");

} // namespace
