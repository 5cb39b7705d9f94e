#pragma once

#include "DialogStandIn.h"
#include "Phone.h"
#include "UIKit/UIViewController.h"
#include "accessibility/AccessibilityElement.h"
#include "screen/FilePicker.h"

#include <expected>
#include <string>
#include <string_view>
#include <vector>

/// A page that presents what files are chosen with and shared by, and a folder of the host.
class DocumentsFixture : public Phone {
protected:
    explicit DocumentsFixture(const Screen::Options& options = {}, const TestDevice::Settings& settings = {});

    void present(const Ref<UIViewController>& controller);

    /// Gives the screen a dialog.
    DialogStandIn& makeDialog();

    /// Null while nothing is presented.
    [[nodiscard]] Presented* top() { return screen.presentations().top(); }

    [[nodiscard]] std::string kind() { return top() != nullptr ? std::string(top()->kind()) : ""; }

    /// The message of the alert in front.
    [[nodiscard]] std::string complaint();

    [[nodiscard]] std::vector<std::string> labels();

    /// Touches what has that label in what is in front.
    void press(std::string_view label);

    /// Gives paths of the host to what is in front, which has to wait for some.
    [[nodiscard]] std::expected<void, std::string> pick(const std::vector<std::string>& hostPaths);

    [[nodiscard]] std::string hostFile(const std::string& name, const std::string& content = "host") const;

    [[nodiscard]] static std::string readHost(const std::string& path);

    const Ref<UIViewController> page = make<UIViewController>();
    const TemporaryFolder host;
};
