#include "system/LogRecorder.h"

#include "Foundation/NSLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <thread>

using Lines = std::vector<std::string>;

TEST(LogRecorderTest, HearsLinesInTheOrderInWhichTheyWereWritten) {
    LogRecorder recorder;
    NSLog("first");
    NSLog("%@ of %@", std::string("second"), std::string("two"));
    EXPECT_EQ(recorder.take(), (Lines{"first", "second of two"}));
}

TEST(LogRecorderTest, GivesEachLineOnce) {
    LogRecorder recorder;
    NSLog("a");
    EXPECT_EQ(recorder.take(), Lines{"a"});
    EXPECT_EQ(recorder.take(), Lines{});
    NSLog("b");
    EXPECT_EQ(recorder.take(), Lines{"b"});
}

TEST(LogRecorderTest, HearsOnlyWhatIsWrittenWhileItLives) {
    NSLog("before");
    LogRecorder outer;
    NSLog("1");
    {
        LogRecorder inner;
        NSLog("2");
        EXPECT_EQ(inner.take(), Lines{"2"});
    }
    NSLog("3");
    EXPECT_EQ(outer.take(), (Lines{"1", "2", "3"}));
}

TEST(LogRecorderTest, KeepsTheTextAsItWasGiven) {
    using namespace std::string_literals;
    LogRecorder recorder;
    const auto text = "one\ntwo\r\x1B[2J\0three\xFF"s;
    logLine(text);
    EXPECT_EQ(recorder.take(), Lines{text});
}

TEST(LogRecorderTest, HearsEveryThreadWithItsLinesInOrder) {
    constexpr std::array names{"a", "b", "c", "d"};
    constexpr int lineCount = 250;
    LogRecorder first;
    LogRecorder second;
    {
        std::vector<std::jthread> threads;
        threads.reserve(names.size());
        for (const std::string name : names) {
            threads.emplace_back([name] {
                for (int line = 0; line < lineCount; ++line)
                    NSLog("%@%@", name, std::to_string(line));
            });
        }
    }
    const auto lines = first.take();
    EXPECT_EQ(lines, second.take());
    for (const std::string name : names) {
        Lines expected;
        for (int line = 0; line < lineCount; ++line)
            expected.push_back(name + std::to_string(line));
        Lines ofThread;
        std::ranges::copy_if(lines, std::back_inserter(ofThread),
                             [&](auto& line) { return line.starts_with(name); });
        EXPECT_EQ(ofThread, expected);
    }
}
