#pragma once

#include "UIKit/UIViewController.h"

#include <string>

/// Presents an alert that says why something could not be done, with a button that takes it away.
void complain(UIViewController& presenter, const std::string& title, const std::string& problem);
