// A page that the tests have opened by name.

#include "ObjectiveC/Class.h"
#include "UIKit/UIViewController.h"

namespace {

class OpenedPage final : public UIViewController {};

const Class classObject = Class::define<OpenedPage, UIViewController>("OpenedPage");

} // namespace
