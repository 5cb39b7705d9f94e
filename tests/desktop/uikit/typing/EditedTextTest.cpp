#include "typing/EditedText.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

using Selecting = EditedText::Selecting;
using Step = EditedText::Step;

/// The text with "|" at the caret and "[" and "]" around what is selected beside it.
std::string shown(const EditedText& text) {
    auto string = text.string();
    const auto [begin, end] = text.selection();
    if (begin == end)
        return string.insert(text.caret(), '|').toStdString();
    string.insert(end, text.caret() == end ? "|]" : "]");
    string.insert(begin, text.caret() == begin ? "[|" : "[");
    return string.toStdString();
}

EditedText textWith(std::string_view string, qsizetype caret) {
    EditedText text;
    text.setString(string);
    text.placeCaret(caret);
    return text;
}

struct Cleaned {
    QString typed;
    std::string kept;
};

TEST(EditedTextTest, KeepsToOneLineOfCharacters) {
    const std::vector<Cleaned> table{
        {"plain", "plain"},
        {"two\nlines", "two lines"},
        {"two\r\nlines", "two lines"},
        {"two\rlines", "two lines"},
        {"a\n\nb", "a  b"},
        {"a\tb\vc\fd", "a b c d"},
        {QString("a") + QChar(0x2028) + "b" + QChar(0x2029) + "c" + QChar(0x85) + "d", "a b c d"},
        {QString("a") + QChar(0) + "b" + QChar(0x1B) + "c" + QChar(0x7F) + "d" + QChar(0x9F), "abcd"},
        {QString("a") + QChar(0xD83D) + "b", "ab"},
        {QString("a") + QChar(0xDE00) + "b", "ab"},
        {QString("a") + QChar(0xDE00) + QChar(0xD83D), "a"},
        {QString("a") + QChar(0xFFFF) + QChar(0xFDD0) + "b", "ab"},
        {QString::fromUtf8("Zürich 東京 😀"), "Zürich 東京 😀"},
        {QString::fromUtf8("שלום"), "שלום"},
        {"", ""},
    };
    for (const auto& [typed, kept] : table) {
        EditedText text;
        text.insert(typed);
        EXPECT_EQ(text.utf8(), kept) << typed.toStdString();
        EXPECT_EQ(text.caret(), text.string().size());
    }
}

struct Deleted {
    std::string text;
    std::string left; ///< when the last character is deleted
};

TEST(EditedTextTest, DeletesCharactersAsAReaderCountsThem) {
    const std::vector<Deleted> table{
        {"ab", "a"},
        {"a", ""},
        {"", ""},
        {"aé", "a"},
        {"ae\u0301", "a"},
        {"a😀", "a"},
        {"a👩‍👩‍👧‍👦", "a"},
        {"a🇩🇪", "a"},
        {"a🇩🇪🇫🇷", "a🇩🇪"},
        {"a👍🏽", "a"},
        {"กำ", ""},
        {"각", ""},
    };
    for (const auto& [string, left] : table) {
        EditedText text;
        text.setString(string);
        text.deleteBackward();
        EXPECT_EQ(text.utf8(), left) << string;
        EXPECT_EQ(text.caret(), text.string().size()) << string;
        EditedText other;
        other.setString(string);
        other.moveCaret(Step::Character, false);
        other.deleteForward();
        EXPECT_EQ(other.utf8(), left) << string;
    }
}

struct Edit {
    std::string name;
    std::function<void(EditedText&)> run;
    std::string result;
};

void PrintTo(const Edit& edit, std::ostream* out) {
    *out << edit.name;
}

class EditedTextEditTest : public testing::TestWithParam<Edit> {};

TEST_P(EditedTextEditTest, LeavesTextAndCaret) {
    auto text = textWith("one two  three", 5); // on|e two: within "two"
    GetParam().run(text);
    EXPECT_EQ(shown(text), GetParam().result);
}

const std::vector<Edit> edits{
    {"insert", [](EditedText& text) { text.insert("X"); }, "one tX|wo  three"},
    {"insertNothing", [](EditedText& text) { text.insert(""); }, "one t|wo  three"},
    {"left", [](EditedText& text) { text.moveCaret(Step::Character, false); }, "one |two  three"},
    {"right", [](EditedText& text) { text.moveCaret(Step::Character, true); }, "one tw|o  three"},
    {"wordLeft", [](EditedText& text) { text.moveCaret(Step::Word, false); }, "one |two  three"},
    {"wordRight", [](EditedText& text) { text.moveCaret(Step::Word, true); }, "one two|  three"},
    {"home", [](EditedText& text) { text.moveCaret(Step::Line, false); }, "|one two  three"},
    {"end", [](EditedText& text) { text.moveCaret(Step::Line, true); }, "one two  three|"},
    {"selectLeft", [](EditedText& text) { text.moveCaret(Step::Character, false, Selecting::Yes); },
     "one [|t]wo  three"},
    {"selectRight", [](EditedText& text) { text.moveCaret(Step::Character, true, Selecting::Yes); },
     "one t[w|]o  three"},
    {"selectToEnd", [](EditedText& text) { text.moveCaret(Step::Line, true, Selecting::Yes); },
     "one t[wo  three|]"},
    {"selectToStart", [](EditedText& text) { text.moveCaret(Step::Line, false, Selecting::Yes); },
     "[|one t]wo  three"},
    {"selectWord", [](EditedText& text) { text.selectWordAt(5); }, "one [two|]  three"},
    {"selectWordAtItsBegin", [](EditedText& text) { text.selectWordAt(4); }, "one [two|]  three"},
    {"selectWordAtItsEnd", [](EditedText& text) { text.selectWordAt(7); }, "one [two|]  three"},
    {"selectLastWord", [](EditedText& text) { text.selectWordAt(14); }, "one two  [three|]"},
    {"selectBeyond", [](EditedText& text) { text.selectWordAt(99); }, "one two  [three|]"},
    {"selectAll", [](EditedText& text) { text.selectAll(); }, "[one two  three|]"},
    {"leaveSelectionLeft",
     [](EditedText& text) {
         text.selectWordAt(5);
         text.moveCaret(Step::Character, false);
     },
     "one |two  three"},
    {"leaveSelectionRight",
     [](EditedText& text) {
         text.selectWordAt(5);
         text.moveCaret(Step::Character, true);
     },
     "one two|  three"},
    {"replaceSelection",
     [](EditedText& text) {
         text.selectWordAt(5);
         text.insert("2");
     },
     "one 2|  three"},
    {"deleteSelection",
     [](EditedText& text) {
         text.selectWordAt(5);
         text.deleteBackward();
     },
     "one |  three"},
    {"deleteSelectionForward",
     [](EditedText& text) {
         text.selectAll();
         text.deleteForward();
     },
     "|"},
    {"deleteWord", [](EditedText& text) { text.deleteBackward(Step::Word); }, "one |wo  three"},
    {"deleteWordForward", [](EditedText& text) { text.deleteForward(Step::Word); }, "one t|  three"},
    {"placeBefore", [](EditedText& text) { text.placeCaret(-3); }, "|one two  three"},
    {"placeBehind", [](EditedText& text) { text.placeCaret(99); }, "one two  three|"},
    {"setString", [](EditedText& text) { text.setString("new"); }, "new|"},
    {"removeAround", [](EditedText& text) { text.removeAround(-2, 3); }, "one|o  three"},
    {"removeTooMuch", [](EditedText& text) { text.removeAround(-99, 200); }, "|"},
    {"compose", [](EditedText& text) { text.compose("ka", 2); }, "one tka|wo  three"},
    {"composeWithCaretInside", [](EditedText& text) { text.compose("ka", 1); }, "one tk|awo  three"},
    {"composeAgain",
     [](EditedText& text) {
         text.compose("k", 1);
         text.compose("kan", 3);
     },
     "one tkan|wo  three"},
    {"composeNoMore",
     [](EditedText& text) {
         text.compose("kan", 3);
         text.compose("", 0);
     },
     "one t|wo  three"},
    {"composeInPlaceOfSelection",
     [](EditedText& text) {
         text.selectWordAt(5);
         text.compose("k", 1);
     },
     "one k|  three"},
    {"commit",
     [](EditedText& text) {
         text.compose("kan", 3);
         text.insert("漢");
     },
     "one t漢|wo  three"},
    {"keepComposed",
     [](EditedText& text) {
         text.compose("kan", 3);
         text.endComposing();
         text.insert("X");
     },
     "one tkanX|wo  three"},
};

INSTANTIATE_TEST_SUITE_P(Edits, EditedTextEditTest, testing::ValuesIn(edits),
                         [](const auto& edit) { return edit.param.name; });

TEST(EditedTextTest, TellsWhatIsComposedUntilItIsSettled) {
    auto text = textWith("ab", 1);
    EXPECT_TRUE(text.composed().isEmpty());
    text.compose("xyz", 3);
    EXPECT_EQ(text.composed(), (EditedText::Range{1, 4}));
    text.placeCaret(0);
    EXPECT_TRUE(text.composed().isEmpty());
    EXPECT_EQ(text.utf8(), "axyzb");
}

TEST(EditedTextTest, PutsTheCaretBetweenCharactersOnly) {
    auto text = textWith("a👍🏽b", 3);
    EXPECT_EQ(text.caret(), 1);
    text.placeCaret(5);
    EXPECT_EQ(text.caret(), 5);
}

TEST(EditedTextTest, KeepsTheCaretBehindWhatJoinsWithTheNextCharacter) {
    auto text = textWith("\u0301b", 0);
    text.insert("e");
    EXPECT_EQ(text.utf8(), "e\u0301b");
    EXPECT_EQ(text.caret(), 2);
}

TEST(EditedTextTest, TurnsTheSelectionRoundItsFixedEnd) {
    auto text = textWith("abcdef", 3);
    text.placeCaret(5, Selecting::Yes);
    EXPECT_EQ(text.selectedText(), "de");
    text.placeCaret(1, Selecting::Yes);
    EXPECT_EQ(text.selectedText(), "bc");
    EXPECT_EQ(shown(text), "a[|bc]def");
}

TEST(EditedTextTest, SelectsNothingInAnEmptyText) {
    EditedText text;
    text.selectAll();
    text.selectWordAt(0);
    text.moveCaret(Step::Word, true, Selecting::Yes);
    text.moveCaret(Step::Word, false, Selecting::Yes);
    EXPECT_TRUE(text.selection().isEmpty());
    EXPECT_EQ(text.caret(), 0);
}

} // namespace
