#pragma once

/// Nothing is known of a view beside its Objective-C object.
class UIViewPeer {};
