#include "CountedView.h"
#include "Framework.h"
#include "Instances.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

TEST(BindingDeathTest, AnExceptionEndsTheProgramBeforeItReachesObjectiveC) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto view = make<CountedView>();
    auto* const object = objectOf(*view);
    view->atLayout = [] { throw std::runtime_error("thrown"); };
    const auto swallow = [](auto call) {
        try {
            call();
        } catch (...) {
            std::exit(0);
        }
    };
    EXPECT_DEATH(swallow([object] { layOut(object); }), "thrown");
    EXPECT_DEATH(swallow([object] { invokeWithDouble(object, "setScale:", 2); }), "thrown");
}
