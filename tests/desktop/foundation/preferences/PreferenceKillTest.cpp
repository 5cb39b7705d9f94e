#include "ChildProgram.h"
#include "Device.h"
#include "TestDevice.h"
#include "preferences/PreferenceFolder.h"
#include "preferences/PreferenceStep.h"

#include <gtest/gtest.h>
#include <plist/plist.h>
#include <sys/wait.h>

#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>

namespace {

/// A domain's keys, each with its value as text or bytes.
using State = std::map<std::string, std::string>;

constexpr std::uint64_t lastStep = 10'000;
constexpr int fewestKills = 300;
constexpr std::uint64_t batch = 5; ///< steps; the writer waits for leave before each multiple

std::string textOf(plist_t node) {
    std::uint64_t size = 0;
    std::uint64_t number = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_UINT:
        plist_get_uint_val(node, &number);
        return std::to_string(number);
    case PLIST_DATA: {
        const char* const bytes = plist_get_data_ptr(node, &size);
        return {bytes, size};
    }
    case PLIST_STRING: {
        const char* const text = plist_get_string_ptr(node, &size);
        return {text, size};
    }
    default:
        return "a value of another kind";
    }
}

State stateOf(plist_t dictionary) {
    State state;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(dictionary, &iterator);
    while (true) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, iterator, &key, &value);
        if (value == nullptr)
            break;
        state[key] = textOf(value);
        std::free(key); // NOLINT(*-no-malloc): libplist's
    }
    std::free(iterator); // NOLINT(*-no-malloc): libplist's
    return state;
}

/// What a domain's file holds; nothing when it is not whole.
std::optional<State> readState(const std::string& hostPath) {
    std::ifstream file(hostPath, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    plist_t node = nullptr;
    plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &node);
    const auto state = PLIST_IS_DICT(node) ? std::optional(stateOf(node)) : std::nullopt;
    plist_free(node);
    return state;
}

State after(State state, const PreferenceStep& step) {
    if (step.removesDomainFirst)
        state.clear();
    state["number"] = std::to_string(step.number);
    state["blob"] = step.blob;
    state["checksum"] = step.checksum;
    if (step.extraValue)
        state[step.extraKey] = *step.extraValue;
    else
        state.erase(step.extraKey);
    return state;
}

/// Files in memory where there are: what a killed process gave to the system is there also without waiting
/// for a disk, and that is what nearly all the time would go to.
std::string parentOfRoot() {
    const std::string inMemory = "/dev/shm/";
    return access(inMemory.c_str(), W_OK) == 0 ? inMemory : testing::TempDir();
}

/// A short time of work, not of rest, so that a kill comes anywhere in a write.
void spinFor(std::chrono::microseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end)
        continue;
}

class PreferenceKillTest : public testing::Test {
protected:
    PreferenceKillTest() { states_.emplace_back(); }

    /// Lets a writer run for a while and kills it. \returns whether it lived until then
    bool runAndKill() {
        ChildProgram writer(PREFERENCE_WRITER,
                            {folder_.path(), std::to_string(lastStep), std::to_string(batch)});
        auto leave = begun_; // up to the last batch that the writer may begin
        for (auto messages = 1 + random_() % 50; messages > 0; --messages) {
            if (!hear(writer)) {
                EXPECT_EQ(writer.wait(), 0) << "the writer ended by itself before its last step";
                return false;
            }
            leave = giveLeave(writer, leave);
        }
        spinFor(std::chrono::microseconds(random_() % 150));
        writer.kill();
        const int status = writer.wait();
        while (hear(writer))
            continue;
        return WIFSIGNALED(status);
    }

    /// Lets the writer go on to the batch after the one it is in. Only while steps are left, so that it is
    /// there to hear of it. \returns the step that the last batch with leave begins with
    [[nodiscard]] std::uint64_t giveLeave(const ChildProgram& writer, std::uint64_t leave) const {
        const auto nextBatch = (begun_ / batch + 1) * batch;
        if (nextBatch <= leave || nextBatch > lastStep)
            return leave;
        writer.sendLine("");
        return nextBatch;
    }

    /// \returns false at the end of what the writer says
    bool hear(ChildProgram& writer) {
        const auto line = writer.readLine();
        if (!line)
            return false;
        const auto number = std::stoull(line->substr(line->find(' ')));
        if (line->starts_with("begin")) {
            begun_ = number;
            if (number == states_.size())
                states_.push_back(after(states_.back(), PreferenceStep(number)));
        } else {
            done_ = number;
        }
        return true;
    }

    /// The file is whole, and is the state that was begun last or the one before it.
    void checkFile() {
        const auto state = readState(folder_.path() + PreferenceFolder::path + "/org.example.killed.plist");
        if (!state && done_ == 0)
            return;
        ASSERT_TRUE(state) << "the file is not whole after step " << begun_;
        const auto number = std::stoull(state->at("number"));
        ASSERT_GE(number, done_) << "a step that was lasting is lost";
        ASSERT_TRUE(number == begun_ || number + 1 == begun_)
            << number << " after " << begun_ << " was begun";
        EXPECT_EQ(state->at("checksum"), PreferenceStep::checksumOf(number, state->at("blob")));
        ASSERT_EQ(*state, states_.at(number));
    }

    /// \returns how many temporaries were left
    [[nodiscard]] int checkFolder() const {
        int temporaries = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(folder_.path() + PreferenceFolder::path)) {
            const auto name = entry.path().filename().string();
            const bool isTemporary = name.starts_with(".preferences-");
            EXPECT_TRUE(isTemporary || name == "org.example.killed.plist") << name;
            temporaries += isTemporary ? 1 : 0;
        }
        EXPECT_LE(temporaries, 1) << "temporaries gather";
        return temporaries;
    }

    const unsigned seed_ = std::random_device()();
    std::mt19937_64 random_{seed_};
    TemporaryFolder folder_{parentOfRoot()};
    std::vector<State> states_; ///< by number
    std::uint64_t begun_ = 0;
    std::uint64_t done_ = 0;
};

} // namespace

TEST_F(PreferenceKillTest, TenThousandWritesUnderKillsLeaveAlwaysTheLastStateOrTheOneBefore) {
    SCOPED_TRACE("seed " + std::to_string(seed_));
    int kills = 0;
    int temporaries = 0;
    const auto start = std::chrono::steady_clock::now();
    while (done_ < lastStep) {
        kills += runAndKill() ? 1 : 0;
        ASSERT_NO_FATAL_FAILURE(checkFile());
        temporaries += checkFolder();
        ASSERT_FALSE(HasFailure());
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    std::printf("seed %u: %d kills, %d of them left a temporary, %.1f s\n", seed_, kills, temporaries,
                time.count());
    EXPECT_GE(kills, fewestKills);
    EXPECT_EQ(begun_, lastStep);
}
