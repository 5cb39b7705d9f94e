#include "SpecifierText.h"

#include <gtest/gtest.h>

namespace {

/// A row with two properties.
class Row final : public PSSpecifier {
public:
    [[nodiscard]] std::optional<PropertyList> propertyForKey(std::string_view key) const override {
        if (key == "label")
            return PropertyList("Blur");
        return key == "height" ? std::optional(PropertyList(120)) : std::nullopt;
    }

    [[nodiscard]] Ref<NSObject> propertyObjectForKey(std::string_view /*key*/) const override { return {}; }

    [[nodiscard]] Ref<NSObject> target() const override { return {}; }
};

} // namespace

TEST(SpecifierTextTest, OnlyATextIsOne) {
    const auto row = make<Row>();
    EXPECT_EQ(textOf(*row, "label"), "Blur");
    EXPECT_EQ(textOf(*row, "height"), std::nullopt);
    EXPECT_EQ(textOf(*row, "absent"), std::nullopt);
}
