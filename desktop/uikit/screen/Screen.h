#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "ObjectiveC/Ref.h"
#include "Traits.h"
#include "screen/HostFileDialog.h"
#include "screen/Presentations.h"
#include "screen/ScreenKeyboard.h"
#include "typing/Clipboard.h"
#include "typing/FirstResponder.h"

#include <memory>
#include <vector>

class UIWindow;
class UIView;

/// The device's display: its size and its windows, the frontmost last. One at a time; made by the host
/// program or by a test, on a device. Main thread only.
class Screen {
public:
    struct Options {
        Idiom idiom = Idiom::Phone;
        UserInterfaceStyle style = UserInterfaceStyle::Light;
        double scale = 3; ///< pixels per point
        CGSize size{};    ///< points; the idiom's own when it is empty
    };

    static constexpr CGSize phoneSize{390, 844};
    static constexpr CGSize padSize{820, 1180};

    explicit Screen(const Options& options);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The screen there is; ends the program with a message when there is none.
    [[nodiscard]] static Screen& current();

    [[nodiscard]] CGRect bounds() const { return {{}, size_}; }

    [[nodiscard]] const Traits& traits() const { return traits_; }

    void setStyle(UserInterfaceStyle style);
    void setSize(CGSize size);
    /// \param scale pixels per point
    void setScale(double scale);
    /// What the device's own edges and the status bar cover.
    [[nodiscard]] UIEdgeInsets safeAreaInsets() const;

    /// Of the device's glass, which is continuous; points.
    [[nodiscard]] double cornerRadius() const;

    [[nodiscard]] const std::vector<Ref<UIWindow>>& windows() const { return windows_; }

    /// In front of the windows of its level.
    void addWindow(const Ref<UIWindow>& window);
    void removeWindow(const UIWindow& window);

    /// How much of the screen the keyboard covers from below; 0 while there is none.
    [[nodiscard]] double keyboardHeight() const { return keyboardHeight_; }

    /// For the keyboard, among the changes that it animates: what is presented moves out of its way.
    void setKeyboardHeight(double height);
    /// Has pages bring the text that is edited out from behind the keyboard.
    void showEditedText() const;

    /// What is presented above the application.
    [[nodiscard]] Presentations& presentations() { return presentations_; }

    /// Who gets what is typed.
    [[nodiscard]] FirstResponder& firstResponder() { return firstResponder_; }

    [[nodiscard]] ScreenKeyboard& keyboard() const { return *keyboard_; }

    [[nodiscard]] Clipboard& clipboard() const { return *clipboard_; }

    /// For a window, in place of the device's own. \pre it is not empty
    void setClipboard(std::unique_ptr<Clipboard> clipboard) { clipboard_ = std::move(clipboard); }

    /// Null where there is no window that could open one.
    [[nodiscard]] HostFileDialog* fileDialog() const { return fileDialog_.get(); }

    void setFileDialog(std::unique_ptr<HostFileDialog> dialog) { fileDialog_ = std::move(dialog); }

    /// Lays out what needs it in all windows before the next picture.
    void layoutIfNeeded();
    /// Has `layoutIfNeeded` called by the main queue.
    void scheduleLayout();

    /// For the end of an application, after which the main queue has forgotten all that waited: has the
    /// layout that is still needed queued anew, and takes the keyboard away.
    void applicationHasEnded();

    /// The frontmost view there that takes touches; null when none does.
    [[nodiscard]] UIView* hitTest(CGPoint point) const;

private:
    [[nodiscard]] static std::unique_ptr<ScreenKeyboard> makeKeyboard();
    void traitsChanged();
    void scheduleKeyboard();

    CGSize size_;
    Traits traits_;
    std::vector<Ref<UIWindow>> windows_;
    Presentations presentations_;
    std::unique_ptr<ScreenKeyboard> keyboard_ = makeKeyboard();
    FirstResponder firstResponder_{[this] { scheduleKeyboard(); }};
    std::unique_ptr<Clipboard> clipboard_ = std::make_unique<Clipboard>();
    std::unique_ptr<HostFileDialog> fileDialog_;
    double keyboardHeight_ = 0;
    bool layoutIsNeeded_ = false;
    bool layoutIsScheduled_ = false;
};
