// What is backed up comes back as it was, whatever it is and whenever it is interrupted.

#include "BackupPageFixture.h"
#include "ExactPropertyList.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "PreferenceKeys.h"
#include "PreferenceStore.h"
#include "RandomPropertyList.h"

#include <sys/wait.h>

#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>
#include <limits>
#include <random>

namespace {

using Dictionary = PropertyList::Dictionary;

class BackupRoundTripTest : public BackupPageFixture {
protected:
    static void storeAll(const Dictionary& values) {
        PreferenceStore::replaceAll(*PreferenceStore::open(), values);
    }

    [[nodiscard]] static Dictionary storedNow() {
        return PreferenceStore::open()->dictionaryRepresentation();
    }

    [[nodiscard]] static std::string image(std::string_view name) {
        return std::string(imageFolder) + "/" + std::string(name);
    }

    /// Control characters, for one, are in no XML; the values of real settings are.
    [[nodiscard]] static PropertyList nextThatXmlHolds(RandomPropertyList& lists) {
        for (;;) {
            auto value = lists.next();
            writeToFileAtomically({{"value", value}}, "/tried.plist");
            const auto read = dictionaryWithContentsOfFile("/tried.plist").value_or(Dictionary());
            if (read.contains("value") && isExactlyEqual(read.at("value"), value))
                return value;
        }
    }

    void backUp() {
        page->saveBackupWithName("round");
        settle();
        ASSERT_EQ(message().first, "Success");
        tapOn("OK");
    }

    void restore() {
        page->restoreBackup("round.tar.gz");
        settle();
        tapOn("Restore");
        ASSERT_EQ(message().first, "Success");
        tapOn("OK");
    }
};

/// The process that does `work` again and again is killed while it is at it.
void killWhileAtIt(int rounds, const std::function<void()>& work) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const auto child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        while (write(ends[1], "r", 1) == 1)
            work();
        _exit(1);
    }
    char round = 0;
    for (auto begun = 0; begun < rounds; ++begun)
        EXPECT_EQ(read(ends[0], &round, 1), 1);
    EXPECT_EQ(kill(child, SIGKILL), 0);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    close(ends[0]);
    close(ends[1]);
}

} // namespace

TEST_F(BackupRoundTripTest, EveryKeyComesBackWithAValueOfEveryType) {
    show();
    const std::vector<PropertyList> values{true,
                                           false,
                                           0,
                                           -1,
                                           std::numeric_limits<std::int64_t>::min(),
                                           std::numeric_limits<std::uint64_t>::max(),
                                           1.5,
                                           -0.1,
                                           "",
                                           "Grüße <&> 🎨\n\t",
                                           NSData::dataWithBytes(std::string("\0\xff\1", 3)),
                                           NSData(),
                                           NSDate{800000000},
                                           PropertyList::Array(),
                                           PropertyList::Array{1, "a", PropertyList::Array{true}},
                                           Dictionary(),
                                           Dictionary{{"a", 1}, {"b", Dictionary{{"c", 1.0}}}}};
    for (std::size_t shift = 0; shift < values.size(); shift += 8) {
        Dictionary before;
        for (std::size_t index = 0; index < PreferenceKeyCatalogue.size(); ++index)
            before.emplace(PreferenceKeyCatalogue.at(index), values[(index + shift) % values.size()]);
        storeAll(before);
        backUp();
        storeAll({{"kEnabled", "something else"}});
        restore();
        EXPECT_TRUE(isExactlyEqual(storedNow(), before));
    }
}

TEST_F(BackupRoundTripTest, RandomValuesAndImagesComeBack) {
    show();
    const auto seed = std::random_device()();
    RandomPropertyList lists(seed);
    std::mt19937 bytes(seed);
    for (auto round = 0; round < 2; ++round) {
        Dictionary given;
        for (const auto key : PreferenceKeyCatalogue)
            given.emplace(key, nextThatXmlHolds(lists));
        storeAll(given);
        const auto before = storedNow();
        Files images;
        for (const auto name : ImageFileSet) {
            std::string content(bytes() % 50'000, '\0');
            for (auto& byte : content)
                byte = static_cast<char>(bytes());
            device.write(image(name), content);
            images.emplace(name, content);
        }
        backUp();
        storeAll({});
        for (const auto name : ImageFileSet)
            device.write(image(name), "other");
        restore();
        EXPECT_TRUE(isExactlyEqual(storedNow(), before)) << "seed " << seed;
        for (const auto& [name, content] : images)
            EXPECT_EQ(device.read(image(name)), content) << "seed " << seed;
    }
}

TEST_F(BackupRoundTripTest, DatesComeBackInWholeSeconds) {
    show();
    storeAll({{"kEnabled", true}, {"blurRadius", NSDate{800'000'000.75}}});
    backUp();
    restore();
    EXPECT_EQ(storedNow().at("blurRadius"), PropertyList(NSDate{800'000'000}));
}

TEST_F(BackupRoundTripTest, WithATextThatNoXmlHoldsTheBackupLacksTheSettings) {
    show();
    storeAll({{"kEnabled", true}, {"kCustomTitle", "a\x01"}});
    backUp();
    EXPECT_EQ(unpacked(std::string(backupsFolder) + "/round.tar.gz"), Files());
}

TEST_F(BackupRoundTripTest, ARestoreThatIsKilledLeavesTheOldSettingsOrTheNew) {
    const Dictionary old{{"kEnabled", true}, {"textColor", std::string(20'000, 'o')}};
    const Dictionary other{{"kCustom", true}, {"textColor", std::string(30'000, 'n')}};
    ASSERT_TRUE(NSFileManager::defaultManager().createDirectoryAtPath("/old", true));
    ASSERT_TRUE(NSFileManager::defaultManager().createDirectoryAtPath("/new", true));
    ASSERT_TRUE(writeToFileAtomically(old, "/old/preferences.plist"));
    ASSERT_TRUE(writeToFileAtomically(other, "/new/preferences.plist"));
    storeAll(old);
    for (auto rounds = 1; rounds <= 8; ++rounds) {
        killWhileAtIt(rounds, [this] {
            page->performRestoreFromFolder("/new");
            page->performRestoreFromFolder("/old");
        });
        const auto left = dictionaryWithContentsOfFile(preferencesFile);
        ASSERT_TRUE(left) << "the file is whole";
        EXPECT_TRUE(*left == old || *left == other);
    }
}

TEST_F(BackupRoundTripTest, ABackupThatIsKilledLeavesTheSettingsAndImagesAlone) {
    const Dictionary settings{{"kEnabled", true}, {"textColor", std::string(20'000, 'o')}};
    storeAll(settings);
    device.write(image("kCustomImage-IMG"), std::string(100'000, 'i'));
    for (auto rounds = 1; rounds <= 5; ++rounds) {
        killWhileAtIt(rounds, [this] { page->saveBackupWithName("killed"); });
        EXPECT_EQ(dictionaryWithContentsOfFile(preferencesFile), settings);
        EXPECT_EQ(device.read(image("kCustomImage-IMG")), std::string(100'000, 'i'));
    }
}
