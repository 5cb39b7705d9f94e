#pragma once

#include "ObjectiveC/Method.h"
#include "Runtime.h"

#include <string>

/// The methods of the class table as Objective-C methods.

/// The function that Objective-C calls for the method; null when it has more than four parameters. It finds
/// the method by the receiver and the selector that it is called with. A method "init..." that takes an
/// object and answers whether the receiver is ready is an initialiser, and answers with the receiver as those
/// do.
[[nodiscard]] IMP methodEntry(const Method& method);

/// How Objective-C writes the method's types down.
[[nodiscard]] std::string encodingOfMethod(const Method& method);
