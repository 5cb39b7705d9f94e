#pragma once

#include "CommandTable.h"
#include "DrivenShell.h"
#include "Shell.h"
#include "TestDevice.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"

#include <chrono>
#include <string>
#include <string_view>

/// Everything that moves in the pane, one scene after another, in the whole program on a screen of 120 frames
/// a second. Those who measure or look at frames derive from it.
class PaneScenes {
public:
    /// \param screen of the whole program
    explicit PaneScenes(const Screen::Options& screen);
    virtual ~PaneScenes() = default;
    PaneScenes(const PaneScenes&) = delete;
    PaneScenes& operator=(const PaneScenes&) = delete;

    /// All scenes, in their order: each begins where the one before has come to rest. Ends the program with a
    /// message when one cannot be played.
    void play();

    /// After them, the first one once more: without what comes but once, such as the pane's code. \pre a
    /// phone, where the pane leaves the screen
    void playOpeningAgain();

protected:
    /// What follows, up to the next scene, is this one.
    virtual void sceneBegins(std::string_view name) = 0;
    /// The time of the next frame has come.
    virtual void frame() = 0;
    /// What is between scenes is over.
    virtual void sceneEnds() = 0;

    [[nodiscard]] Compositor& compositor() { return compositor_; }

private:
    void openPane();
    void dragSheet();
    void dragList();
    void pushPage();
    void swipeBack();
    void openMenu();
    void slideRow();

    void begin(std::string_view name);
    void end();
    /// What the program does while nothing moves.
    void rest();
    void command(const std::string& line);
    void touch(TouchPhase phase, CGPoint place);
    /// The finger moves by equal steps, one each frame.
    void moveFinger(CGPoint from, CGPoint to, int frames);
    /// The picture that shows at once what was begun, and frames for as long as something moves.
    void watch();
    void nextFrame();

    TestDevice device_;
    Screen screen_;
    Shell shell_;
    DrivenShell driven_{shell_};
    TouchDispatcher touches_;
    Compositor compositor_{screen_};
    CommandTable commands_;
};
