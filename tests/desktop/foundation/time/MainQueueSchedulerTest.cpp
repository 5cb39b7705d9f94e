#include "time/MainQueueScheduler.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::chrono_literals;

namespace {

class MainQueueSchedulerTest : public testing::Test {
protected:
    void queue(std::chrono::nanoseconds delay, const std::string& name) {
        scheduler.after(delay, [this, name] { ran += name; });
    }

    VirtualClock clock{{0}};
    MainQueueScheduler scheduler{clock};
    std::string ran;
};

} // namespace

TEST_F(MainQueueSchedulerTest, RunsInOrderOfTimeAndThenOfQueueing) {
    queue(2s, "c");
    queue(1s, "a");
    queue(1s, "b");
    scheduler.advance(clock, 2s);
    EXPECT_EQ(ran, "abc");
}

TEST_F(MainQueueSchedulerTest, RunsNothingBeforeItsTime) {
    queue(500ms, "a");
    scheduler.advance(clock, 499ms);
    EXPECT_EQ(ran, "");
    scheduler.advance(clock, 1ms);
    EXPECT_EQ(ran, "a");
}

TEST_F(MainQueueSchedulerTest, ADelayThatIsNotPositiveIsNone) {
    queue(-1s, "a");
    EXPECT_EQ(scheduler.nextDue(), 0ns);
    EXPECT_EQ(scheduler.runDue(), 1U);
    EXPECT_EQ(ran, "a");
}

TEST_F(MainQueueSchedulerTest, ADelayBeyondTheEndOfTimeWaitsThere) {
    clock.moveTo(1s);
    queue(std::chrono::nanoseconds::max(), "never");
    EXPECT_EQ(scheduler.nextDue(), std::chrono::nanoseconds::max());
}

TEST_F(MainQueueSchedulerTest, WhatABlockQueuesForNowRunsInTheNextCall) {
    scheduler.after(0s, [this] {
        ran += "a";
        queue(0s, "b");
    });
    EXPECT_EQ(scheduler.runDue(), 1U);
    EXPECT_EQ(ran, "a");
    EXPECT_EQ(scheduler.runDue(), 1U);
    EXPECT_EQ(ran, "ab");
}

TEST_F(MainQueueSchedulerTest, AdvancingRunsWhatBlocksQueueOnTheWay) {
    scheduler.after(1s, [this] {
        EXPECT_EQ(clock.uptime(), 1s);
        scheduler.after(1s, [this] {
            EXPECT_EQ(clock.uptime(), 2s);
            ran += "b";
        });
    });
    scheduler.advance(clock, 3s);
    EXPECT_EQ(ran, "b");
    EXPECT_EQ(clock.uptime(), 3s);
}

TEST_F(MainQueueSchedulerTest, SettlingMovesTimeOnlyAsFarAsWorkWaits) {
    queue(250ms, "a");
    EXPECT_TRUE(scheduler.settle(clock, 1h));
    EXPECT_EQ(ran, "a");
    EXPECT_EQ(clock.uptime(), 250ms);
}

TEST_F(MainQueueSchedulerTest, SettlingGivesUpOnWorkThatNeverEnds) {
    std::function<void()> again = [&] { scheduler.after(1s, again); };
    again();
    EXPECT_FALSE(scheduler.settle(clock, 10s));
    EXPECT_EQ(clock.uptime(), 10s);
}
