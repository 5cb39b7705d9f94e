#include "DriverFixture.h"

#include "AllCommands.h"
#include "CountedButton.h"

DriverFixture::DriverFixture(const Screen::Options& options) : Phone(options) {
    addAllCommands(commands_, {.application = application_,
                               .touches = finger,
                               .compositor = compositor_,
                               .clock = device.clock(),
                               .log = device.log()});
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
    return addCountedButton(*window, frame, label, presses);
}

Ref<UILabel> DriverFixture::addLabel(const CGRect& frame, const std::string& text, UIView& parent) {
    auto label = make<UILabel>();
    label->setFrame(frame);
    label->setText(text);
    parent.addSubview(label);
    return label;
}
