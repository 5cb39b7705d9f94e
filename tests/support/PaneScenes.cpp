#include "PaneScenes.h"

#include "AllCommands.h"
#include "DeviceInstaller.h"
#include "RectGeometry.h"
#include "screen/IdlePreparation.h"
#include "views/UIViewPeer.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr auto frameTime = std::chrono::nanoseconds(std::chrono::seconds(1)) / 120;

[[noreturn]] void fail(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(EXIT_FAILURE);
}

/// Before the first screen is there.
void install() {
    if (!DeviceInstaller(DEVICE_TREE).install(Device::current().root()))
        fail("the pane cannot be installed");
}

} // namespace

PaneScenes::PaneScenes(const Screen::Options& screen) : screen_((install(), screen)) {
    addAllCommands(commands_, {.application = driven_,
                               .touches = touches_,
                               .compositor = compositor_,
                               .clock = device_.clock(),
                               .log = device_.log()});
}

void PaneScenes::play() {
    openPane();
    dragSheet();
    dragList();
    pushPage();
    slideRow();
    swipeBack();
    openMenu();
}

void PaneScenes::openPane() {
    command("tap Settings");
    rest();
    begin("pane opens, its sheet comes");
    command("tap Corvex");
    watch();
    end();
}

void PaneScenes::dragSheet() {
    const auto* const sheet = screen_.presentations().top();
    if (sheet == nullptr)
        fail("there is no sheet to be dragged");
    const auto card = sheet->shownView().peer().convertToScreen(sheet->shownView().bounds());
    constexpr auto grip = 16.0;
    const CGPoint from{CGRectGetMidX(card), card.origin.y + grip};
    const CGPoint to{from.x, from.y + card.size.height * 0.6};
    constexpr auto frames = 60;
    begin("sheet dragged");
    touch(TouchPhase::Began, from);
    moveFinger(from, to, frames);
    end();
    begin("sheet leaves");
    touch(TouchPhase::Ended, to);
    watch();
    end();
}

void PaneScenes::dragList() {
    const auto& size = screen_.bounds().size;
    const CGPoint from{size.width / 2 + 3, size.height * 0.85};
    const CGPoint to{from.x, size.height * 0.35};
    constexpr auto frames = 60;
    begin("list dragged");
    touch(TouchPhase::Began, from);
    moveFinger(from, to, frames);
    moveFinger(to, from, frames);
    end();
    constexpr auto flickFrames = 12;
    moveFinger(from, to, flickFrames);
    begin("list glides after a flick");
    touch(TouchPhase::Ended, to);
    watch();
    end();
}

void PaneScenes::pushPage() {
    begin("page pushed");
    command("tap Banner");
    watch();
    end();
}

void PaneScenes::swipeBack() {
    const CGPoint from{screen_.traits().idiom == Idiom::Pad ? screen_.bounds().size.width * 0.4 : 2,
                       screen_.bounds().size.height / 2};
    const CGPoint to{from.x + 300, from.y};
    constexpr auto frames = 60;
    begin("page swiped back");
    touch(TouchPhase::Began, from);
    moveFinger(from, to, frames);
    touch(TouchPhase::Ended, to);
    watch();
    end();
}

void PaneScenes::slideRow() {
    begin("row slides in");
    command("set kCustom true");
    watch();
    end();
}

void PaneScenes::openMenu() {
    begin("menu comes");
    command("tap gear.badge");
    watch();
    end();
    begin("alert comes");
    command("tap \"Reset Settings\"");
    watch();
    end();
    begin("alert leaves");
    command("tap Cancel");
    watch();
    end();
}

void PaneScenes::playOpeningAgain() {
    command("back");
    rest();
    begin("pane opens again");
    command("tap Corvex");
    watch();
    end();
}

void PaneScenes::begin(std::string_view name) {
    sceneBegins(name);
}

void PaneScenes::end() {
    sceneEnds();
    rest();
}

void PaneScenes::rest() {
    device_.settle();
    compositor_.render();
    while (prepareWhileIdle()) {
    }
}

void PaneScenes::command(const std::string& line) {
    if (const auto answer = commands_.run(line); !answer)
        fail(line + ": " + answer.error());
}

void PaneScenes::touch(TouchPhase phase, CGPoint place) {
    touches_.touch(phase, place);
}

void PaneScenes::moveFinger(CGPoint from, CGPoint to, int frames) {
    for (auto index = 1; index <= frames; ++index) {
        const auto part = static_cast<double>(index) / frames;
        touch(TouchPhase::Moved, {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
        nextFrame();
    }
}

void PaneScenes::watch() {
    constexpr auto most = 360;
    constexpr auto stillAtMost = 3;
    auto still = 0;
    frame();
    for (auto count = 0; count < most && still < stillAtMost; ++count) {
        nextFrame();
        const auto moves = compositor_.isAnimating() || !compositor_.lastDamage().isEmpty();
        still = moves ? 0 : still + 1;
    }
}

void PaneScenes::nextFrame() {
    device_.advance(frameTime);
    frame();
}
