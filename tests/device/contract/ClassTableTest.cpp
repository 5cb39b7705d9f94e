#include "ObjectiveC/ClassTable.h"

#include "Framework.h"
#include "FrameworkClass.h"
#include "MessageRecord.h"
#include "SignatureTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace {

using Lines = std::vector<std::string>;

/// What code of this program sends, and what classes of the frameworks it lets others override.
std::vector<Signature> sentMessages() {
    std::vector<Signature> messages;
    for (const auto* record = MessageRecord::first(); record != nullptr; record = record->next())
        messages.push_back({std::string(record->text()), record->types()});
    return messages;
}

bool isOurs(const Class& stated) {
    return FrameworkClass::named(stated.name()) == nullptr;
}

/// Every method of the Objective-C classes that the pane is published as.
std::vector<Signature> publishedMethods() {
    std::vector<Signature> methods;
    for (const auto* const stated : ClassTable::shared().all()) {
        if (!isOurs(*stated))
            continue;
        const auto* const name = stated->name().c_str();
        for (const auto* const* selector = selectorsOf(name); *selector != nullptr; ++selector)
            methods.push_back(
                {"-[" + stated->name() + " " + *selector + "]", std::string(typesOf(name, *selector))});
    }
    return methods;
}

std::string contentOf(const std::filesystem::path& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

/// The selectors that the pane's sources have as texts: for messages that are sent by them, and for the
/// targets of actions.
Lines selectorsInSources() {
    static const std::regex place(R"re((?:performSelector|respondsToSelector|addTarget)\([^";]*"([^"]+)")re");
    Lines selectors;
    for (const auto* const folder : {"core", "cells", "pages", "pane", "backup"}) {
        const auto path = std::filesystem::path(SOURCES) / folder;
        if (!std::filesystem::exists(path))
            continue;
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            const auto content = contentOf(entry.path());
            for (std::sregex_iterator found(content.begin(), content.end(), place), end; found != end;
                 ++found)
                selectors.push_back((*found)[1]);
        }
    }
    return selectors;
}

SignatureTable declared() {
    return SignatureTable::fromFile(SIGNATURES);
}

constexpr auto smallTable = "NSObject\n"
                            "    -[NSObject init] @@:\n"
                            "UIView : NSObject\n"
                            "    +[UIView new] @@:\n"
                            "    -[UIView setFrame:] v@:{CGRect={CGPoint=dd}{CGSize=dd}}\n"
                            "    -[UIView setAlpha:] v@:d\n";

} // namespace

TEST(ClassTableTest, EveryMessageIsSentAsTheFrameworksDeclareIt) {
    EXPECT_GT(sentMessages().size(), 150U);
    EXPECT_EQ(declared().mismatches(sentMessages()), Lines());
}

TEST(ClassTableTest, EveryMethodIsPublishedAsDeclared) {
    EXPECT_GT(publishedMethods().size(), 60U);
    EXPECT_EQ(declared().mismatches(publishedMethods()), Lines());
}

TEST(ClassTableTest, EverySelectorOfTheClassTableIsPublished) {
    for (const auto* const stated : ClassTable::shared().all()) {
        if (!isOurs(*stated))
            continue;
        for (const auto& method : stated->methods())
            EXPECT_NE(typesOf(stated->name().c_str(), std::string(method.selector).c_str()), nullptr)
                << stated->name() << " " << method.selector;
    }
}

TEST(ClassTableTest, EverySelectorThatIsSentByItsTextIsDeclared) {
    const auto selectors = selectorsInSources();
    EXPECT_NE(std::ranges::find(selectors, "switchChanged:"), selectors.end());
    EXPECT_NE(std::ranges::find(selectors, "suspend"), selectors.end());
    EXPECT_EQ(declared().undeclared(selectors), Lines());
}

TEST(ClassTableTest, NothingIsDeclaredInVain) {
    auto table = declared();
    EXPECT_EQ(table.undeclared(selectorsInSources()), Lines());
    EXPECT_EQ(table.mismatches(sentMessages()), Lines());
    EXPECT_EQ(table.mismatches(publishedMethods()), Lines());
    EXPECT_EQ(table.unused(), Lines());
}

TEST(ClassTableTest, EveryClassHasItsDeclaredBase) {
    for (const auto* const stated : ClassTable::shared().all()) {
        const auto* const base = stated->superclass();
        EXPECT_EQ(declared().baseOf(stated->name()), base != nullptr ? base->name() : "") << stated->name();
    }
}

TEST(ClassTableTest, TheStandInsAndGnustepDeclareTheSame) {
    auto table = declared();
    std::vector<Signature> methods;
    for (const auto& [message, types] : table.all()) {
        const auto selector = (message.starts_with('+') ? "+" : "") + selectorIn(message);
        const auto* const found = typesOf(classIn(message).c_str(), selector.c_str());
        EXPECT_NE(found, nullptr) << message;
        if (found != nullptr)
            methods.push_back({message, found});
    }
    EXPECT_EQ(table.mismatches(methods), // where GNUstep's encodings of texts have shorter numbers
              (Lines{"-[NSString dataUsingEncoding:allowLossyConversion:] has the types @24@0:8I16C20, but "
                     "is declared "
                     "with @@:QB",
                     "-[NSString initWithBytes:length:encoding:] has the types @36@0:8^rv16Q24I32, but is "
                     "declared with "
                     "@@:r^vQQ"}));
}

TEST(ClassTableTest, AWrongSelectorIsNamed) {
    SignatureTable table(smallTable);
    EXPECT_EQ(table.mismatches({{"-[UIView setFrmae:]", "v@:{CGRect={CGPoint=dd}{CGSize=dd}}"}}),
              Lines{"-[UIView setFrmae:] is not declared"});
    EXPECT_EQ(table.mismatches({{"-[UIView new]", "@@:"}}),
              Lines{"-[UIView new] is not declared, but +[UIView new] is"});
}

TEST(ClassTableTest, AWrongNumberOfArgumentsIsNamed) {
    SignatureTable table(smallTable);
    EXPECT_EQ(table.mismatches({{"-[UIView setAlpha:]", "v@:"}}),
              Lines{"-[UIView setAlpha:] has 0 arguments, but is declared with 1"});
    EXPECT_EQ(table.mismatches({{"-[UIView setFrame:]", "v@:{CGRect={CGPoint=dd}{CGSize=dd}}B"}}),
              Lines{"-[UIView setFrame:] has 2 arguments, but is declared with 1"});
}

TEST(ClassTableTest, AWrongTypeIsNamed) {
    SignatureTable table(smallTable);
    EXPECT_EQ(table.mismatches({{"-[UIView setAlpha:]", "v@:f"}}),
              Lines{"-[UIView setAlpha:] has the types v@:f, but is declared with v@:d"});
}

TEST(ClassTableTest, AnInheritedMethodIsTheBases) {
    SignatureTable table(smallTable);
    EXPECT_EQ(table.mismatches({{"-[UIView init]", "@@:"}}), Lines());
    EXPECT_EQ(table.unused(), (Lines{"+[UIView new]", "-[UIView setAlpha:]", "-[UIView setFrame:]"}));
}

TEST(ClassTableTest, ATextThatIsNoSelectorIsNamed) {
    SignatureTable table(smallTable);
    EXPECT_EQ(table.undeclared({"setAlpha:", "setAlpha"}), Lines{"setAlpha is declared by no class"});
    EXPECT_EQ(table.unused(), (Lines{"+[UIView new]", "-[NSObject init]", "-[UIView setFrame:]"}));
}

TEST(ClassTableTest, ALineThatSaysNothingIsNamed) {
    EXPECT_EQ(SignatureTable("UIView = NSObject\n").mismatches({}),
              Lines{"The table's line is not understood: UIView = NSObject"});
}
