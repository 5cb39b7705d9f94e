#include "DriverFixture.h"

#include "AllCommands.h"
#include "CountedButton.h"

DriverFixture::DriverFixture() {
    screen_.addWindow(window_);
    addAllCommands(commands_, {.application = application_,
                               .touches = touches_,
                               .compositor = compositor_,
                               .clock = device_.clock(),
                               .log = device_.log()});
}

DriverFixture::~DriverFixture() {
    screen_.removeWindow(*window_);
}

QJsonObject DriverFixture::ask(const std::string& line) const {
    const auto answer = commands_.run(line);
    EXPECT_TRUE(answer) << answer.error();
    return answer.value_or(QJsonObject());
}

std::string DriverFixture::refusalOf(const std::string& line) const {
    const auto answer = commands_.run(line);
    EXPECT_FALSE(answer);
    return answer ? std::string() : answer.error();
}

Ref<UIControl> DriverFixture::addButton(const CGRect& frame, const std::string& label, int& presses) {
    return addCountedButton(*window_, frame, label, presses);
}

Ref<UILabel> DriverFixture::addLabel(const CGRect& frame, const std::string& text, UIView& parent) {
    auto label = make<UILabel>();
    label->setFrame(frame);
    label->setText(text);
    parent.addSubview(label);
    return label;
}
