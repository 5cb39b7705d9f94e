#include "DriverFixture.h"

#include "ApplicationCommands.h"
#include "CountedButton.h"
#include "EventCommands.h"
#include "InspectionCommands.h"
#include "TextCommands.h"
#include "TimeCommands.h"
#include "TouchCommands.h"
#include "UnavailableCommands.h"

DriverFixture::DriverFixture() {
    screen_.addWindow(window_);
    addApplicationCommands(commands_, application_);
    addInspectionCommands(commands_, application_, compositor_);
    addTouchCommands(commands_, touches_);
    addTimeCommands(commands_, device_.clock());
    addEventCommands(commands_, device_.log());
    addTextCommands(commands_);
    addUnavailableCommands(commands_);
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
