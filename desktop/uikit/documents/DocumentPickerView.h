#pragma once

#include "UIKit/UIButton.h"

#include <functional>

/// What a document picker shows: the pages of folders and, where there is a window that opens dialogs, below
/// them a button for the host's files. Made by the picker's peer.
class DocumentPickerView final : public UIView {
public:
    /// \param browse what the button does; empty for no button
    DocumentPickerView(const Ref<UIView>& pages, std::function<void()> browse);

    // UIView:
    void layoutSubviews() override;

private:
    const Ref<UIView> pages_;
    const Ref<UIView> line_ = make<UIView>();
    Ref<UIButton> button_; ///< empty for none
};
