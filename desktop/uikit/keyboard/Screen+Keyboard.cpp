#include "keyboard/Keyboard.h"
#include "screen/Screen.h"

std::unique_ptr<ScreenKeyboard> Screen::makeKeyboard() {
    return std::make_unique<Keyboard>();
}
