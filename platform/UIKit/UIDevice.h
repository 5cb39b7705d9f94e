#pragma once

#include "ObjectiveC/NSObject.h"

/// The kind of device. The numbers are the platform's.
enum class UIUserInterfaceIdiom : int { Phone = 0, Pad = 1 };

/// The device that the code runs on. Made by the system. It responds to "userInterfaceIdiom".
class UIDevice : public NSObject {
public:
    [[nodiscard]] static Ref<UIDevice> currentDevice();

    [[nodiscard]] virtual UIUserInterfaceIdiom userInterfaceIdiom() const = 0;
};
