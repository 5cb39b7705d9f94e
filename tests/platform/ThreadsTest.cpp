// References from several threads at once.

#include "LoggedObject.h"
#include "ObjectiveC/Ref.h"
#include "ObjectiveC/Weak.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>

namespace {

class ThreadsTest : public testing::Test {
protected:
    Ref<LoggedObject> object(const std::string& name) { return make<LoggedObject>(name, journal); }

    std::string journal;
};

} // namespace

TEST_F(ThreadsTest, CountsRightWithManyThreads) {
    auto shared = object("a");
    {
        const auto copyOften = [shared] {
            for (int round = 0; round < 20000; ++round)
                const auto copy = shared; // NOLINT(*-unnecessary-copy-initialization)
        };
        std::array threads{std::thread(copyOften), std::thread(copyOften), std::thread(copyOften)};
        for (auto& thread : threads)
            thread.join();
    }
    EXPECT_EQ(journal, "");
    shared = nullptr;
    EXPECT_EQ(journal, "-a");
}

TEST_F(ThreadsTest, ReadingWhileTheLastOwnerLeavesOnAnotherThreadGivesTheObjectOrNull) {
    for (int round = 0; round < 200; ++round) {
        auto owner = make<LoggedObject>("a", journal);
        const Weak<LoggedObject> weak(owner);
        std::atomic<bool> begun = false;
        std::thread reader([&] {
            begun = true;
            while (const auto held = weak.strong())
                ASSERT_EQ(held->name(), "a");
        });
        while (!begun)
            std::this_thread::yield();
        owner = nullptr;
        reader.join();
        ASSERT_EQ(weak.strong(), nullptr);
    }
}
