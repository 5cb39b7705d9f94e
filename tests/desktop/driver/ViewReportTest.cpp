#include "ViewReport.h"

#include "AffineTransform.h"
#include "DriverFixture.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

class ViewReportTest : public DriverFixture {
protected:
    [[nodiscard]] static QJsonArray reportsOf(const char* name) {
        return viewReports(*NSClassFromString(name));
    }

    /// The texts of labels in the order in which they are told of.
    [[nodiscard]] static std::vector<std::string> textsTold() {
        std::vector<std::string> texts;
        for (const QJsonValue view : reportsOf("UILabel"))
            texts.push_back(view["properties"]["text"].toString().toStdString());
        return texts;
    }
};

using Texts = std::vector<std::string>;

} // namespace

TEST_F(ViewReportTest, GoesFromBackToFrontThroughAllWindows) {
    const auto holder = make<UIView>();
    window->addSubview(holder);
    const auto inner = addLabel(CGRectMake(0, 0, 100, 20), "inner", *holder);
    const auto outer = addLabel(CGRectMake(0, 0, 100, 20), "outer", *window);
    const auto front = make<UIWindow>();
    const auto top = addLabel(CGRectMake(0, 0, 100, 20), "front", *front);
    screen.addWindow(front);
    EXPECT_EQ(textsTold(), (Texts{"inner", "outer", "front"}));
    screen.removeWindow(*front);
    EXPECT_EQ(textsTold(), (Texts{"inner", "outer"}));
}

TEST_F(ViewReportTest, AViewWithinOneOfItsClassIsToldOfTwice) {
    const auto holder = addLabel(CGRectMake(0, 0, 100, 20), "holder", *window);
    const auto inner = addLabel(CGRectMake(0, 0, 100, 20), "inner", *holder);
    EXPECT_EQ(textsTold(), (Texts{"holder", "inner"}));
    const auto subviews = reportsOf("UILabel").at(0)["subviews"].toArray();
    ASSERT_EQ(subviews.size(), 1);
    EXPECT_EQ(subviews[0]["properties"]["text"], "inner");
}

TEST_F(ViewReportTest, PlacesAreThoseOnTheScreen) {
    const auto holder = make<UIView>();
    holder->setFrame(CGRectMake(100, 200, 50, 50));
    window->addSubview(holder);
    const auto label = addLabel(CGRectMake(10, 10, 20, 20), "Text", *holder);
    holder->peer().setTransform(AffineTransform::scale(2));
    const auto report = viewReport(*label);
    EXPECT_EQ(report.value("frame").toArray(), (QJsonArray{10, 10, 20, 20}));
    EXPECT_EQ(report.value("screenFrame").toArray(), (QJsonArray{95, 195, 40, 40}));
}

TEST_F(ViewReportTest, LooksAndStateAreToldOf) {
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 100, 200, 44), "Apply", presses);
    button->setAlpha(0.5);
    button->layer().setCornerRadius(7);
    button->setBackgroundColor(UIColor::colorWithRed(1, 0, 0, 0.5));
    const auto report = viewReport(*button);
    EXPECT_EQ(report.value("class"), "UIControl");
    EXPECT_EQ(report.value("alpha"), 0.5);
    EXPECT_EQ(report.value("hidden"), false);
    EXPECT_EQ(report.value("layer")["cornerRadius"], 7);
    EXPECT_EQ(report.value("layer")["backgroundColor"].toArray(), (QJsonArray{1, 0, 0, 0.5}));
    EXPECT_EQ(report.value("accessibility")["label"], "Apply");
    EXPECT_EQ(report.value("accessibility")["isElement"], true);
    EXPECT_EQ(report.value("properties")["enabled"], true);
    EXPECT_FALSE(report.value("properties").toObject().contains("tag"));
    button->setTag(12);
    EXPECT_EQ(viewReport(*button).value("properties")["tag"], 12);
    static_cast<void>(ask("touch down 100 120"));
    EXPECT_EQ(viewReport(*button).value("properties")["tracking"], true);
}

TEST_F(ViewReportTest, AViewThatIsInNoWindowIsToldOfAlone) {
    const auto label = make<UILabel>();
    label->setText("loose");
    EXPECT_EQ(textsTold(), Texts());
    EXPECT_EQ(viewReport(*label).value("properties")["text"], "loose");
}
