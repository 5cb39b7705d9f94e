#pragma once

#include "screen/HostFileDialog.h"

#include <utility>

/// A dialog of the host that notes what is asked of it, and answers when a test has it answer.
class DialogStandIn final : public HostFileDialog {
public:
    // HostFileDialog:
    void chooseFile(Chosen chosen) override {
        ++filesAsked;
        answer = std::move(chosen);
    }

    void chooseFolder(Chosen chosen) override {
        ++foldersAsked;
        answer = std::move(chosen);
    }

    int filesAsked = 0;
    int foldersAsked = 0;
    Chosen answer;
};
