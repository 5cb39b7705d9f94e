#pragma once

#include "RegisteredTest.h"

#include <cstring>

/// As much of GoogleTest as the tests of the binding and the platform use, for code of the device, which has
/// neither exceptions nor streams. A failure names its place and its check; values are not printed. The
/// program that loads the tests has GoogleTest itself run them.
namespace testing {

class Test {
public:
    virtual ~Test() = default;
    virtual void TestBody() = 0;
};

/// Told when it is made; what a test adds to it is left out.
class Failure {
public:
    Failure(const char* file, int line, const char* check) { reportFailure(file, line, check); }

    template <class T>
    const Failure& operator<<(const T& /*added*/) const {
        return *this;
    }
};

/// What a failure becomes where a test is to end.
class Nothing {};

inline void operator|(Nothing /*nothing*/, const Failure& /*failure*/) {}

[[nodiscard]] inline bool sameText(const char* left, const char* right) {
    return left == right || (left != nullptr && right != nullptr && std::strcmp(left, right) == 0);
}

template <class T>
void runTest() {
    T test;
    test.TestBody();
}

} // namespace testing

// NOLINTBEGIN(cppcoreguidelines-macro-usage,bugprone-macro-parentheses): GoogleTest's are macros, of classes
#define CODE_TEST(suite, name, base)                                                                         \
    namespace {                                                                                              \
    class suite##_##name##_Test final : public base {                                                        \
    public:                                                                                                  \
        void TestBody() override;                                                                            \
    };                                                                                                       \
    const RegisteredTest suite##_##name##_registered(#suite, #name,                                          \
                                                     &testing::runTest<suite##_##name##_Test>);              \
    }                                                                                                        \
    void suite##_##name##_Test::TestBody()

#define TEST(suite, name) CODE_TEST(suite, name, testing::Test)
#define TEST_F(suite, name) CODE_TEST(suite, name, suite)

#define CODE_EXPECT(holds, check)                                                                            \
    if (holds)                                                                                               \
        ;                                                                                                    \
    else                                                                                                     \
        testing::Nothing() | testing::Failure(__FILE__, __LINE__, check)
#define CODE_ASSERT(holds, check)                                                                            \
    if (holds)                                                                                               \
        ;                                                                                                    \
    else                                                                                                     \
        return testing::Nothing() | testing::Failure(__FILE__, __LINE__, check)

#define EXPECT_EQ(left, right) CODE_EXPECT((left) == (right), #left " == " #right)
#define EXPECT_NE(left, right) CODE_EXPECT((left) != (right), #left " != " #right)
#define EXPECT_LT(left, right) CODE_EXPECT((left) < (right), #left " < " #right)
#define EXPECT_TRUE(condition) CODE_EXPECT(static_cast<bool>(condition), #condition)
#define EXPECT_FALSE(condition) CODE_EXPECT(!static_cast<bool>(condition), "not " #condition)
#define EXPECT_STREQ(left, right) CODE_EXPECT(testing::sameText(left, right), #left " is " #right)
#define ASSERT_EQ(left, right) CODE_ASSERT((left) == (right), #left " == " #right)
#define ASSERT_NE(left, right) CODE_ASSERT((left) != (right), #left " != " #right)
#define ASSERT_TRUE(condition) CODE_ASSERT(static_cast<bool>(condition), #condition)
#define ASSERT_FALSE(condition) CODE_ASSERT(!static_cast<bool>(condition), "not " #condition)
// NOLINTEND(cppcoreguidelines-macro-usage,bugprone-macro-parentheses)
