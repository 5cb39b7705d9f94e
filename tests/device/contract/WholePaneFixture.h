#pragma once

#include <gtest/gtest.h>

#include <string>

/// A device for the whole pane: with documents of its own, and with the services that end an application.
class WholePaneFixture : public testing::Test {
protected:
    WholePaneFixture();
    ~WholePaneFixture() override;

    /// Of the documents; gone afterwards.
    const std::string folder;
};
