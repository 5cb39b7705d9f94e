#pragma once

/// Nothing is known of a view controller beside its Objective-C object.
class UIViewControllerPeer {};
