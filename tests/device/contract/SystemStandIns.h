#pragma once

#include "Runtime.h"

#include <cstddef>
#include <cstdint>

/// Runs what waits on the main queue, and what that queues. \returns how much that was
std::size_t runWaitingWork();

// The types that the device's half knows by name alone.
struct DispatchQueue {};

struct NotificationCenterObject {};

extern "C" {
/// The file that is opened in the place of BackBoardServices; none for null.
void setServicesLibrary(const char* path);
/// The file that tests have for that.
const char* servicesLibrary();

extern DispatchQueue _dispatch_main_q; // NOLINT(*-reserved-identifier): the system's name
void dispatch_async_f(DispatchQueue* queue, void* context, void (*work)(void* context));
std::uint64_t dispatch_time(std::uint64_t base, std::int64_t nanoseconds);
void dispatch_after_f(std::uint64_t when, DispatchQueue* queue, void* context, void (*work)(void* context));
NotificationCenterObject* CFNotificationCenterGetDarwinNotifyCenter();
void CFNotificationCenterPostNotification(NotificationCenterObject* center, id name, const void* object,
                                          const void* userInfo, bool deliverImmediately);
void AudioServicesPlaySystemSound(std::uint32_t sound);
}
