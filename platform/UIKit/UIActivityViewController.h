#pragma once

#include "Foundation/NSURL.h"
#include "UIKit/UIViewController.h"

#include <memory>
#include <vector>

/// Offers what can be done with something: the system's own activities alone. Made by
/// `initWithActivityItems`, shown by presenting it: on a phone as a sheet, on a tablet in a popover, which
/// has to be told where it points to. It leaves by itself.
class UIActivityViewController : public UIViewController {
public:
    /// \param items the files
    [[nodiscard]] static Ref<UIActivityViewController>
    initWithActivityItems(const std::vector<Ref<NSURL>>& items);

protected:
    explicit UIActivityViewController(std::unique_ptr<UIViewControllerPeer> peer);
};
