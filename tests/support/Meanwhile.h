#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <utility>

/// Does something again and again on a thread of its own, from before its construction returns until the end
/// of the object.
class Meanwhile {
public:
    explicit Meanwhile(std::function<void()> work)
        : work_(std::move(work)),
          thread_([this] { workUntilOver(); }) {
        hasBegun_.wait(false);
    }

    ~Meanwhile() {
        isOver_ = true;
        thread_.join();
    }

    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

private:
    void workUntilOver() {
        while (!isOver_) {
            work_();
            if (!hasBegun_.exchange(true))
                hasBegun_.notify_one();
        }
    }

    std::function<void()> work_;
    std::atomic<bool> isOver_ = false;
    std::atomic<bool> hasBegun_ = false;
    std::thread thread_; // last: it uses the others
};
