#pragma once

/// Whether the pointers of a class record, as the bundle's principal class has one, authenticate as the
/// Objective-C runtime does it.
[[nodiscard]] bool classRecordIsSound();
