// A page with rows of every kind, as somebody drives it from outside.

#include "Foundation/NSDictionary.h"
#include "WholeProgram.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>

namespace {

constexpr auto entry = "/var/jb/Library/PreferenceLoader/Preferences/Rows.plist";
constexpr auto preferences = "/var/mobile/Library/Preferences/com.example.rows.plist";
constexpr auto picture = "/var/jb/var/mobile/Library/Preferences/com.example.rows/image-IMG";

std::string row(const std::string& cell, const std::string& key, const std::string& more = {}) {
    return "<dict><key>cell</key><string>" + cell + "</string><key>key</key><string>" + key +
           "</string><key>label</key><string>The " + key +
           "</string><key>defaults</key><string>com.example.rows</string>" + more + "</dict>";
}

std::string choices() {
    return "<key>validValues</key><array><integer>1</integer><integer>2</integer></array>"
           "<key>validTitles</key><array><string>One</string><string>Two</string></array>";
}

std::string ofClass(const std::string& name) {
    return "<key>cellClass</key><string>" + name + "</string>";
}

class RowsSessionTest : public testing::Test {
protected:
    RowsSessionTest() {
        program.device().write(
            entry,
            "<plist version=\"1.0\"><dict><key>entry</key><dict><key>cell</key><string>PSLinkCell</string>"
            "<key>label</key><string>Rows</string></dict><key>items</key><array>" +
                row("PSSwitchCell", "switch") + row("PSEditTextCell", "text") +
                row("PSSliderCell", "slider") + row("PSSegmentCell", "segment", choices()) +
                row("PSLinkListCell", "list", choices()) +
                row("PSLinkCell", "color", ofClass("GcColorPickerCell")) +
                row("PSLinkCell", "image", ofClass("GcImagePickerCell")) + "</array></dict></plist>");
        give({"open Rows", "settle"});
    }

    void give(std::initializer_list<std::string> lines) {
        for (const auto& line : lines)
            program.done(line);
    }

    [[nodiscard]] static std::string kept(const std::string& key) {
        const auto values = dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary());
        const auto found = values.find(key);
        return found != values.end() ? found->second.description() : "(none)";
    }

    [[nodiscard]] std::string refusal(const std::string& line) {
        const auto answer = program.ask(line);
        EXPECT_FALSE(answer["ok"].toBool()) << line;
        return answer["error"].toString().toStdString();
    }

    [[nodiscard]] std::size_t presentedCount() {
        return static_cast<std::size_t>(program.done("screen").value("presented").toArray().size());
    }

    WholeProgram program;
};

} // namespace

TEST_F(RowsSessionTest, EveryKindOfRowIsSet) {
    give({"set switch true", "set text \"words\"", "set slider 0.25", "set segment 2", "set list 1",
          "set color \"ff0000ff\""});
    EXPECT_EQ(kept("switch"), "1");
    EXPECT_EQ(kept("text"), "words");
    EXPECT_EQ(kept("slider"), "0.25");
    EXPECT_EQ(kept("segment"), "2");
    EXPECT_EQ(kept("list"), "1");
    EXPECT_EQ(kept("color"), "ff0000ff");
}

TEST_F(RowsSessionTest, RowsAreHandledWithAFinger) {
    give({"tap \"The switch\"", "tap One", "settle", "tap \"The list\"", "settle", "tap Two", "settle",
          "back", "settle", "tap \"The text\"", "type some words", "key return", "settle"});
    EXPECT_EQ(kept("switch"), "1");
    EXPECT_EQ(kept("segment"), "1");
    EXPECT_EQ(kept("list"), "2");
    EXPECT_EQ(kept("text"), "some words");
}

TEST_F(RowsSessionTest, AChoiceIsSetInItsList) {
    give({"tap \"The list\"", "settle", "set Two true"});
    EXPECT_EQ(kept("list"), "2");
    const auto rows = program.done("screen").value("rows").toArray();
    EXPECT_EQ(rows.last().toObject()["value"], true);
    EXPECT_EQ(rows.at(1).toObject()["value"], false);
}

TEST_F(RowsSessionTest, AnImageIsPicked) {
    const TemporaryFolder files;
    const auto file = files.path() + "/a.png";
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(QString::fromStdString(file)));
    EXPECT_EQ(refusal("pick " + file), "no picker is presented");
    give({"tap \"The image\"", "settle", "pick-cancel", "settle"});
    EXPECT_EQ(presentedCount(), 0U);
    give({"tap \"The image\"", "settle"});
    EXPECT_NE(refusal("pick /etc/passwd").find("no image"), std::string::npos);
    give({"settle", "tap OK", "settle", "pick " + file, "settle"});
    EXPECT_EQ(presentedCount(), 0U);
    EXPECT_FALSE(program.device().read(picture).empty());
}
