#pragma once

#include "Runtime.h"

/// Publishes the classes of the class table that are not the frameworks' as Objective-C classes: with their
/// own selectors, and with whatever the frameworks' classes before them let them override. May be called
/// again when more code has stated classes. A class that cannot be published is named in the log.
void publishClasses();

/// Does so when the class is sent its first message, before that is answered. It is a class of this program's
/// own records, with the place for the C++ half and without methods: the class of its name in the class table
/// is published as it. There is one.
void publishWithFirstMessageTo(objc_class* principal);
