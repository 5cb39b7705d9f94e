#include "StandardErrorListener.h"

#include <sys/types.h>

#include <utility>

namespace {

ssize_t write(void* heard, const char* text, std::size_t size) {
    (*static_cast<StandardErrorListener::Heard*>(heard))({text, size});
    return static_cast<ssize_t>(size);
}

} // namespace

StandardErrorListener::StandardErrorListener(Heard heard)
    : heard_(std::move(heard)),
      former_(std::exchange(
          stderr, fopencookie(&heard_, "w", {.read = {}, .write = write, .seek = {}, .close = {}}))) {
    std::setvbuf(stderr, nullptr, _IONBF, 0);
}

StandardErrorListener::~StandardErrorListener() {
    std::fclose(std::exchange(stderr, former_));
}
