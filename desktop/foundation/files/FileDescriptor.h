#pragma once

#include <unistd.h>

#include <utility>

/// Owns one open file descriptor of the host, or none (-1).
class FileDescriptor {
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}

    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    ~FileDescriptor() { close(); }

    [[nodiscard]] int get() const { return descriptor_; }

    explicit operator bool() const { return descriptor_ >= 0; }

    /// Gives the descriptor away: the caller owes its closing.
    [[nodiscard]] int release() { return std::exchange(descriptor_, -1); }

    void close() {
        if (descriptor_ >= 0)
            ::close(std::exchange(descriptor_, -1));
    }

private:
    int descriptor_ = -1;
};
