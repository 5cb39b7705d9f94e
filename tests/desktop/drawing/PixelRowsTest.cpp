#include "PixelRows.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

namespace {

enum class Guard : std::uint8_t { Before, After };

/// A row of equal components, next to memory that ends the process when it is touched.
template <class Component>
class GuardedRow {
public:
    GuardedRow(Guard guard, std::size_t size, Component value) {
        auto* const pages = mmap(nullptr, 3 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        EXPECT_NE(pages, MAP_FAILED);
        pages_ = static_cast<std::byte*>(pages);
        auto* const own = pages_ + page;
        EXPECT_EQ(mprotect(own, page, PROT_READ | PROT_WRITE), 0);
        auto* const begin = guard == Guard::Before ? own : own + page - size * sizeof(Component);
        row_ = {reinterpret_cast<Component*>(begin), size};
        std::ranges::fill(row_, value);
    }

    ~GuardedRow() { munmap(pages_, 3 * page); }

    GuardedRow(const GuardedRow&) = delete;
    GuardedRow& operator=(const GuardedRow&) = delete;

    [[nodiscard]] std::span<Component> row() const { return row_; }

    [[nodiscard]] bool isAll(Component value) const {
        return std::ranges::all_of(row_, [value](Component component) { return component == value; });
    }

private:
    static constexpr std::size_t page = 4096;

    std::byte* pages_ = nullptr;
    std::span<Component> row_;
};

using Bytes = GuardedRow<std::uint8_t>;
using Pairs = GuardedRow<std::uint16_t>;

/// Loops over whole vectors and what is left of them, with guards on either side.
class PixelRowsTest : public testing::TestWithParam<std::tuple<Guard, std::size_t>> {
protected:
    [[nodiscard]] Bytes bytes(std::uint8_t value) const { return {guard_, size_, value}; }

    [[nodiscard]] Pairs pairs(std::uint16_t value) const { return {guard_, size_, value}; }

    const Guard guard_ = std::get<0>(GetParam());
    const std::size_t size_ = std::get<1>(GetParam());
};

TEST_P(PixelRowsTest, MixesNothingBeyondFineRows) {
    const auto first = pairs(100 * PixelRows::fineSteps);
    const auto second = pairs(200 * PixelRows::fineSteps);
    const auto mixed = bytes(0);
    PixelRows::mix(first.row(), second.row(), PixelRows::fullFineShare / 4, mixed.row());
    EXPECT_TRUE(mixed.isAll(125));
}

TEST_P(PixelRowsTest, MixesNothingBeyondRows) {
    const auto first = bytes(100);
    const auto second = bytes(200);
    const auto mixed = bytes(0);
    PixelRows::mix(std::span<const std::uint8_t>(first.row()), second.row(), PixelRows::fullShare / 4,
                   mixed.row());
    EXPECT_TRUE(mixed.isAll(125));
}

TEST_P(PixelRowsTest, MixesWithNothingBeyondTheNextPixel) {
    const Bytes row(guard_, size_ + PixelRows::pixelSize, 100);
    std::ranges::fill(row.row().last(size_), std::uint8_t{200});
    const auto shares = bytes(PixelRows::fullShare / 4);
    const auto mixed = bytes(0);
    PixelRows::mixWithNext(row.row(), shares.row(), mixed.row());
    EXPECT_EQ(mixed.row().front(), 125);
    EXPECT_EQ(mixed.row().back(), size_ > PixelRows::pixelSize ? 200 : 125);
}

TEST_P(PixelRowsTest, PaintsOverNothingBeyondARow) {
    for (const auto& [opacity, painted] : {std::pair{255, 222}, std::pair{128, 211}}) {
        const auto row = bytes(200);
        const auto over = bytes(100);
        PixelRows::paintOver(row.row(), over.row(), static_cast<std::uint8_t>(opacity));
        EXPECT_TRUE(row.isAll(static_cast<std::uint8_t>(painted)));
    }
}

/// Blocks of 64 pixels that are all clear or all opaque are told from those with one that is neither.
TEST(PixelRows, PaintsOverWhateverARowIsMadeOf) {
    using Pixel = std::array<std::uint8_t, PixelRows::pixelSize>;
    constexpr Pixel clear{0, 0, 0, 0};
    constexpr Pixel half{10, 20, 30, 128};
    constexpr Pixel opaque{40, 50, 60, 255};
    constexpr Pixel before{200, 200, 200, 255};
    constexpr Pixel halfOver{110, 120, 130, 255};
    constexpr std::size_t block = 64;
    std::vector<Pixel> over(6 * block, opaque);
    auto painted = over;
    const auto set = [&](std::size_t place, const Pixel& pixel, const Pixel& then) {
        over[place] = pixel;
        painted[place] = then;
    };
    for (std::size_t place = 0; place < 2 * block; ++place)
        set(place, clear, before);
    set(2 * block - 1, half, halfOver);
    set(3 * block - 1, half, halfOver);
    set(4 * block, clear, before);
    std::vector<Pixel> row(over.size(), before);
    PixelRows::paintOver({row.front().data(), row.size() * PixelRows::pixelSize},
                         {over.front().data(), over.size() * PixelRows::pixelSize}, 255);
    EXPECT_EQ(row, painted);
}

TEST_P(PixelRowsTest, BringsNothingBackBeyondARow) {
    const auto row = bytes(200);
    const auto before = bytes(100);
    const auto mask = bytes(51);
    PixelRows::bringBack(row.row(), before.row(), mask.row());
    EXPECT_TRUE(row.isAll(120));
}

TEST_P(PixelRowsTest, PaintsAColorOverNothingBeyondARow) {
    const auto row = bytes(200);
    const auto color = bytes(50);
    PixelRows::paintColorOver(row.row(), color.row(), 102);
    EXPECT_TRUE(row.isAll(130));
}

TEST_P(PixelRowsTest, AddsNothingBeyondARow) {
    const auto row = bytes(7);
    const auto sums = pairs(1000);
    PixelRows::add(row.row(), sums.row());
    EXPECT_TRUE(sums.isAll(1007));
}

INSTANTIATE_TEST_SUITE_P(Sizes, PixelRowsTest,
                         testing::Combine(testing::Values(Guard::Before, Guard::After),
                                          testing::Values(4U, 60U, 64U, 252U, 256U, 260U, 1500U)));

#ifdef __SANITIZE_ADDRESS__
/// Rows that are a pixel too short, one in each test, where all others are long enough.
class PixelRowsDeathTest : public testing::Test {
protected:
    static constexpr auto size = std::size_t{100} * PixelRows::pixelSize;
    static constexpr auto report = "AddressSanitizer: heap-buffer-overflow";
    using Row = std::vector<std::uint8_t>;
    using Sums = std::vector<std::uint16_t>;

    Row row_ = Row(size);
    Row other_ = Row(size);
    Row shorter_ = Row(size - PixelRows::pixelSize);
    Sums sums_ = Sums(size);
    Sums shorterSums_ = Sums(size - PixelRows::pixelSize);
};

TEST_F(PixelRowsDeathTest, TheAddressSanitizerNoticesARowThatIsTooShort) {
    const std::span<const std::uint8_t> tooShort(shorter_);
    EXPECT_DEATH(PixelRows::mix(shorterSums_, sums_, 1, row_), report);
    EXPECT_DEATH(PixelRows::mix(row_, tooShort, 1, other_), report);
    EXPECT_DEATH(PixelRows::mixWithNext(row_, other_, row_), report);
    EXPECT_DEATH(PixelRows::paintOver(row_, tooShort, 255), report);
    EXPECT_DEATH(PixelRows::bringBack(row_, other_, tooShort), report);
    EXPECT_DEATH(PixelRows::paintColorOver(row_, tooShort, 1), report);
    EXPECT_DEATH(PixelRows::add(row_, shorterSums_), report);
}
#endif

} // namespace
