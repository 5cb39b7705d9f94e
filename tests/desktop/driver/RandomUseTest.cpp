// Random use of the whole program. What is done follows from a seed, so that a finding can be had again:
//   CORVEX_RANDOM_USE_SEED=7 desktop_whole_program_test --gtest_filter='*AnySeed*'
// and for as long as one likes, with one seed after the other and each named on standard error as it starts:
//   CORVEX_RANDOM_USE_SECONDS=600 desktop_whole_program_test --gtest_filter='*AnySeed*'

#include "RandomUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>
#include <string>

namespace {

constexpr auto deeds = 600;

std::optional<unsigned> numberIn(const char* variable) {
    const auto* const text = std::getenv(variable);
    return text == nullptr ? std::nullopt : std::optional(static_cast<unsigned>(std::stoul(text)));
}

/// \returns how many commands were given
std::size_t useAtRandom(unsigned seed) {
    WholeProgram program({.idiom = seed % 3 == 0 ? Idiom::Pad : Idiom::Phone,
                          .style = UserInterfaceStyle::Light,
                          .scale = 1,
                          .size = {}});
    RandomUser user(program, seed);
    for (auto deed = 0; deed < deeds && !testing::Test::HasFailure(); ++deed)
        user.act();
    user.finish();
    EXPECT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", " << user.trail();
    EXPECT_GT(user.agreements(), 0U) << "the switch is seen on and off";
    return user.commands();
}

class RandomUseTest : public testing::TestWithParam<unsigned> {};

} // namespace

TEST_P(RandomUseTest, LeavesTheProgramWhole) {
    EXPECT_GT(useAtRandom(GetParam()), deeds / 2U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUseTest, testing::Range(1U, 7U));

TEST(RandomUse, LeavesTheProgramWholeWithAnySeed) {
    const auto start = std::chrono::steady_clock::now();
    const std::chrono::seconds limit(numberIn("CORVEX_RANDOM_USE_SECONDS").value_or(0));
    auto seed = numberIn("CORVEX_RANDOM_USE_SEED").value_or(std::random_device()());
    std::size_t commands = 0;
    do {
        std::cerr << "seed " << seed << ", after " << commands << " commands\n";
        commands += useAtRandom(seed++);
    } while (!HasFailure() && std::chrono::steady_clock::now() - start < limit);
    std::cerr << commands << " commands\n";
}
