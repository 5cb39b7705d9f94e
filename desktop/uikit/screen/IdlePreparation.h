#pragma once

/// Prepares a little of what comes but once and would take long in a frame: the memory of pictures, then the
/// symbols that are put together, the faces of texts, and the pictures of files that are expected to be
/// shown. For whoever shows pictures, while nothing moves; each time takes a few milliseconds at most. Needs
/// a QGuiApplication; for its thread. \returns whether there was something to be done
bool prepareWhileIdle();
