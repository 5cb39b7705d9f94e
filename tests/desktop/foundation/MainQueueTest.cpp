#include "Dispatch/MainQueue.h"

#include "DeviceTest.h"

#include <string>

using namespace std::chrono_literals;

namespace {

class MainQueueTest : public DeviceTest {
protected:
    std::string ran;
};

} // namespace

TEST_F(MainQueueTest, RunsABlockOnlyAfterTheFunctionThatQueuedItHasReturned) {
    MainQueue::async([this] { ran += "b"; });
    ran += "a";
    advance(0s);
    EXPECT_EQ(ran, "ab");
}

TEST_F(MainQueueTest, KeepsTheOrderOfBlocksOfOneTime) {
    MainQueue::async([this] { ran += "a"; });
    MainQueue::after(0s, [this] { ran += "b"; });
    MainQueue::after(-1s, [this] { ran += "c"; });
    advance(0s);
    EXPECT_EQ(ran, "abc");
}

TEST_F(MainQueueTest, WaitsForTheDelayToPassOnTheDevicesClock) {
    MainQueue::after(2s, [this] { ran += "b"; });
    MainQueue::after(1s, [this] { ran += "a"; });
    advance(1999ms);
    EXPECT_EQ(ran, "a");
    advance(1ms);
    EXPECT_EQ(ran, "ab");
}

TEST_F(MainQueueTest, ABlockMayQueueMore) {
    MainQueue::async([this] {
        MainQueue::async([this] { ran += "c"; });
        MainQueue::after(1s, [this] { ran += "d"; });
        ran += "a";
    });
    MainQueue::async([this] { ran += "b"; });
    advance(1s);
    EXPECT_EQ(ran, "abcd");
}
