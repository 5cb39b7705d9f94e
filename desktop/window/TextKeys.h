#pragma once

class Clipboard;
class QKeyEvent;
class TextInput;

/// Does what a key does in a text: types, deletes, moves the caret, selects, cuts, copies and pastes.
/// \returns false when the key does nothing there
[[nodiscard]] bool typeKey(const QKeyEvent& event, TextInput& input, Clipboard& clipboard);
