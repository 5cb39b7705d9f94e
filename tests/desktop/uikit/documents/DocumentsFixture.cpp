#include "documents/DocumentsFixture.h"

#include <fstream>
#include <iterator>
#include <memory>

DocumentsFixture::DocumentsFixture(const Screen::Options& options, const TestDevice::Settings& settings)
    : Phone(options, settings) {
    show(page);
}

void DocumentsFixture::present(const Ref<UIViewController>& controller) {
    page->presentViewController(controller, true, {});
    settle();
}

DialogStandIn& DocumentsFixture::makeDialog() {
    auto dialog = std::make_unique<DialogStandIn>();
    auto& made = *dialog;
    screen.setFileDialog(std::move(dialog));
    return made;
}

std::string DocumentsFixture::complaint() {
    return kind() == "alert" ? top()->details()->detail : "";
}

std::vector<std::string> DocumentsFixture::labels() {
    std::vector<std::string> labels;
    for (const auto& element : AccessibilityElement::allIn(top()->shownView()))
        labels.push_back(element.label);
    return labels;
}

std::expected<void, std::string> DocumentsFixture::pick(const std::vector<std::string>& hostPaths) {
    auto* const picker = top() != nullptr ? top()->filePicker() : nullptr;
    if (picker == nullptr) {
        ADD_FAILURE() << "nothing waits for files";
        return std::unexpected("");
    }
    auto outcome = picker->pickFiles(hostPaths);
    settle();
    return outcome;
}

void DocumentsFixture::press(std::string_view label) {
    if (top() == nullptr) {
        ADD_FAILURE() << "nothing is presented that could have " << label;
        return;
    }
    for (const auto& element : AccessibilityElement::allIn(top()->shownView())) {
        if (element.label == label) {
            tap(*element.view);
            settle();
            return;
        }
    }
    ADD_FAILURE() << "there is no " << label << " among " << testing::PrintToString(labels());
}

std::string DocumentsFixture::hostFile(const std::string& name, const std::string& content) const {
    const auto path = host.path() + "/" + name;
    std::ofstream(path) << content;
    return path;
}

std::string DocumentsFixture::readHost(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
