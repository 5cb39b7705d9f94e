#pragma once

/// Publishes the classes of the class table that are not the frameworks' as Objective-C classes: with their
/// own selectors, and with whatever the frameworks' classes before them let them override. May be called
/// again when more code has stated classes. A class that cannot be published is named in the log.
void publishClasses();
