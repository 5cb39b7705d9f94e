#include "keyboard/KeyboardLayout.h"

#include "RectGeometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace {

using Action = KeyboardLayout::Action;
using Page = KeyboardLayout::Page;

struct Case {
    std::string name;
    Page page;
    Idiom idiom;
    double width;
    std::string typed; ///< by all keys, in their order
    std::vector<Action> others;
    std::string locale = "en_US";
};

void PrintTo(const Case& one, std::ostream* out) {
    *out << one.name;
}

class KeyboardLayoutTest : public testing::TestWithParam<Case> {
protected:
    [[nodiscard]] static std::vector<KeyboardLayout::Key> keys() {
        return KeyboardLayout::keys(GetParam().page, GetParam().idiom, GetParam().width,
                                    KeyboardLanguage::forLocale(GetParam().locale).front());
    }
};

TEST_P(KeyboardLayoutTest, HasItsKeys) {
    std::string typed;
    std::vector<Action> others;
    for (const auto& key : keys()) {
        if (key.action == Action::Type)
            typed += key.text;
        else
            others.push_back(key.action);
    }
    EXPECT_EQ(typed, GetParam().typed);
    EXPECT_EQ(others, GetParam().others);
}

TEST_P(KeyboardLayoutTest, KeysLieBesideEachOtherOnTheKeyboard) {
    const auto all = keys();
    for (std::size_t index = 0; index < all.size(); ++index) {
        EXPECT_GE(all[index].frame.origin.x, 0) << all[index].text;
        EXPECT_LE(CGRectGetMaxX(all[index].frame), GetParam().width + 0.001) << all[index].text;
        EXPECT_LE(CGRectGetMaxY(all[index].frame), KeyboardLayout::height(GetParam().idiom));
        EXPECT_GT(all[index].frame.size.width, 30) << all[index].text;
        for (std::size_t other = index + 1; other < all.size(); ++other) {
            const auto& left = all[index].frame;
            const auto& right = all[other].frame;
            const auto apart = left.origin.x + left.size.width <= right.origin.x + 0.001 ||
                               left.origin.y + left.size.height <= right.origin.y + 0.001;
            EXPECT_TRUE(apart) << all[index].text << " and " << all[other].text;
        }
    }
}

TEST_P(KeyboardLayoutTest, FillsFourRowsFromSideToSide) {
    std::set<double> rows;
    double right = 0;
    for (const auto& key : keys()) {
        if (key.action != Action::ChangeLanguage)
            rows.insert(key.frame.origin.y);
        right = std::max(right, CGRectGetMaxX(key.frame));
    }
    EXPECT_EQ(rows.size(), 4);
    EXPECT_NEAR(right, GetParam().width, 4);
}

const std::vector<Case> cases{
    {"phoneLetters",
     Page::Letters,
     Idiom::Phone,
     390,
     "qwertyuiopasdfghjklzxcvbnm ",
     {Action::Shift, Action::Delete, Action::ShowNumbers, Action::Return}},
    {"phoneNumbers",
     Page::Numbers,
     Idiom::Phone,
     390,
     "1234567890-/:;()$&@\".,?!' ",
     {Action::ShowSymbols, Action::Delete, Action::ShowLetters, Action::Return}},
    {"phoneSymbols",
     Page::Symbols,
     Idiom::Phone,
     390,
     "[]{}#%^*+=_\\|~<>€£¥•.,?!' ",
     {Action::ShowNumbers, Action::Delete, Action::ShowLetters, Action::Return}},
    {"padLetters",
     Page::Letters,
     Idiom::Pad,
     820,
     "qwertyuiopasdfghjklzxcvbnm,. ",
     {Action::Delete, Action::Return, Action::Shift, Action::Shift, Action::ShowNumbers,
      Action::ShowNumbers}},
    {"padNumbers",
     Page::Numbers,
     Idiom::Pad,
     820,
     "1234567890@#$&*()'\"%-+=/;:,. ",
     {Action::Delete, Action::Return, Action::ShowSymbols, Action::ShowSymbols, Action::ShowLetters,
      Action::ShowLetters}},
    {"padSymbols",
     Page::Symbols,
     Idiom::Pad,
     1180,
     "1234567890€£¥_^[]{}§|~…\\<>!? ",
     {Action::Delete, Action::Return, Action::ShowNumbers, Action::ShowNumbers, Action::ShowLetters,
      Action::ShowLetters}},
    {"phoneGermanLetters",
     Page::Letters,
     Idiom::Phone,
     390,
     "qwertzuiopüasdfghjklöäyxcvbnm ",
     {Action::Shift, Action::Delete, Action::ShowNumbers, Action::Return},
     "de_DE"},
    {"phoneGermanNumbers",
     Page::Numbers,
     Idiom::Phone,
     390,
     "1234567890-/:;()€&@\".,?!' ",
     {Action::ShowSymbols, Action::Delete, Action::ShowLetters, Action::Return},
     "de_AT"},
    {"phoneGermanSymbols",
     Page::Symbols,
     Idiom::Phone,
     390,
     "[]{}#%^*+=_\\|~<>$£¥•.,?!' ",
     {Action::ShowNumbers, Action::Delete, Action::ShowLetters, Action::Return},
     "de_DE"},
    {"phoneArabicLetters",
     Page::Letters,
     Idiom::Phone,
     390,
     "ضصثقفغعهخحجشسيبلاتنمكطذءؤرىةوزظد ",
     {Action::Delete, Action::ShowNumbers, Action::Return, Action::ChangeLanguage},
     "ar_EG"},
    {"phoneArabicNumbers",
     Page::Numbers,
     Idiom::Phone,
     390,
     "1234567890-/:؛()$&@\".،؟!' ",
     {Action::ShowSymbols, Action::Delete, Action::ShowLetters, Action::Return, Action::ChangeLanguage},
     "ar_EG"},
    {"phoneHebrewLetters",
     Page::Letters,
     Idiom::Phone,
     320,
     "קראטוןםפשדגכעיחלךףזסבהנמצתץ ",
     {Action::Delete, Action::ShowNumbers, Action::Return, Action::ChangeLanguage},
     "he_IL"},
    {"padGermanLetters",
     Page::Letters,
     Idiom::Pad,
     820,
     "qwertzuiopüasdfghjklöäyxcvbnm,. ",
     {Action::Delete, Action::Return, Action::Shift, Action::Shift, Action::ShowNumbers, Action::ShowNumbers},
     "de_DE"},
    {"padArabicLetters",
     Page::Letters,
     Idiom::Pad,
     820,
     "ضصثقفغعهخحجشسيبلاتنمكطذءؤرىةوزظد،. ",
     {Action::Delete, Action::Return, Action::ShowNumbers, Action::ChangeLanguage, Action::ShowNumbers},
     "ar_EG"},
    {"padArabicSymbols",
     Page::Symbols,
     Idiom::Pad,
     820,
     "1234567890€£¥_^[]{}§|~…\\<>!؟ ",
     {Action::Delete, Action::Return, Action::ShowNumbers, Action::ShowNumbers, Action::ShowLetters,
      Action::ChangeLanguage, Action::ShowLetters},
     "ar_EG"},
    {"padHebrewLetters",
     Page::Letters,
     Idiom::Pad,
     820,
     "קראטוןםפשדגכעיחלךףזסבהנמצתץ,. ",
     {Action::Delete, Action::Return, Action::ShowNumbers, Action::ChangeLanguage, Action::ShowNumbers},
     "he_IL"},
    {"padHebrewNumbers",
     Page::Numbers,
     Idiom::Pad,
     820,
     "1234567890@#₪&*()'\"%-+=/;:,. ",
     {Action::Delete, Action::Return, Action::ShowSymbols, Action::ShowSymbols, Action::ShowLetters,
      Action::ChangeLanguage, Action::ShowLetters},
     "he_IL"},
};

INSTANTIATE_TEST_SUITE_P(Pages, KeyboardLayoutTest, testing::ValuesIn(cases),
                         [](const auto& one) { return one.param.name; });

TEST(KeyboardLayoutHeightTest, IsThePlatforms) {
    EXPECT_EQ(KeyboardLayout::height(Idiom::Phone), 336);
    EXPECT_EQ(KeyboardLayout::height(Idiom::Pad), 320);
}

} // namespace
