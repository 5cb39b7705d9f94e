#pragma once

#include "Preferences/PSListController.h"

#include <string>

/// The page of an entry that is a plain list of rows. Made by PaneLoader.
class EntryPage final : public PSListController {
public:
    explicit EntryPage(std::string name) : name_(std::move(name)) {}

    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;

private:
    std::string name_; ///< of the entry
};
