#pragma once

#include "ObjectiveC/NSObject.h"

#include <functional>
#include <string>
#include <utility>

/// An object that writes its end into a journal, for tests that look at the order of things.
class LoggedObject : public NSObject {
public:
    LoggedObject(std::string name, std::string& journal) : name_(std::move(name)), journal_(journal) {}

    ~LoggedObject() override {
        journal_ += "-" + name_;
        if (atEnd)
            atEnd();
    }

    [[nodiscard]] const std::string& name() const { return name_; }

    std::function<void()> atEnd; ///< called by the destructor

private:
    std::string name_;
    std::string& journal_;
};
