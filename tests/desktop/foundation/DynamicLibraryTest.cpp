#include "System/DynamicLibrary.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <utility>

namespace {

using Binding = DynamicLibrary::Binding;

std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

class DynamicLibraryTest : public testing::Test {
protected:
    DynamicLibraryTest() {
        install(FIRST_LIBRARY, "/lib/first");
        install(SECOND_LIBRARY, "/lib/second");
    }

    void install(const std::string& library, std::string_view path) const {
        const std::filesystem::path target = device.hostPath(path);
        std::filesystem::create_directories(target.parent_path());
        std::filesystem::copy_file(library, target);
    }

    /// The number that the library at the path says it has; 0 when there is none.
    [[nodiscard]] static int numberAt(std::string_view path, Binding binding = Binding::Lazy) {
        const auto library = DynamicLibrary::open(path, binding);
        return library ? numberOf(*library) : 0;
    }

    [[nodiscard]] static int numberOf(const DynamicLibrary& library) {
        auto* const number = library.function<int()>("libraryNumber");
        return number != nullptr ? number() : 0;
    }

    [[nodiscard]] DynamicLibrary openCounted(std::string_view path) {
        auto library = DynamicLibrary::open(path, Binding::Immediate);
        if (!library)
            std::abort();
        library->function<void(int*)>("countUnloadingsIn")(&unloadings);
        return std::move(*library);
    }

    TestDevice device;
    int unloadings = 0;
};

} // namespace

TEST_F(DynamicLibraryTest, OpensALibraryByDevicePath) {
    EXPECT_EQ(numberAt("/lib/first"), 1);
    EXPECT_EQ(numberAt("/lib/second", Binding::Immediate), 2);
}

TEST_F(DynamicLibraryTest, FollowsLinksInside) {
    std::filesystem::create_symlink("/lib", device.hostPath("/link"));
    EXPECT_EQ(numberAt("/link/first"), 1);
}

TEST_F(DynamicLibraryTest, LooksForLibrariesByNameInTheJailbreaksFolder) {
    install(SECOND_LIBRARY, "/var/jb/usr/lib/libnamed.dylib");
    EXPECT_EQ(numberAt("@rpath/libnamed.dylib"), 2);
    EXPECT_EQ(numberAt("@rpath/missing.dylib"), 0);
}

TEST_F(DynamicLibraryTest, OtherRelativePathsLeadNowhere) {
    install(FIRST_LIBRARY, "/libc.so.6");
    for (const auto* const path : {"libc.so.6", "lib/first", "./lib/first", "@loader_path/first", ""})
        EXPECT_FALSE(DynamicLibrary::open(path, Binding::Lazy).has_value()) << path;
}

TEST_F(DynamicLibraryTest, LoadsNothingFromOutsideOfTheDevice) {
    std::filesystem::create_symlink(FIRST_LIBRARY, device.hostPath("/lib/escape"));
    EXPECT_FALSE(DynamicLibrary::open("/lib/escape", Binding::Lazy).has_value());
    EXPECT_FALSE(DynamicLibrary::open(FIRST_LIBRARY, Binding::Lazy).has_value());
    EXPECT_FALSE(DynamicLibrary::open(std::string("/../..") + FIRST_LIBRARY, Binding::Lazy).has_value());
}

TEST_F(DynamicLibraryTest, WhatIsNoLibraryIsNotOpenedAndNotLogged) {
    device.write("/text", "This is no library.");
    device.write("/empty", "");
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0644), 0);
    const auto openBefore = openDescriptors();
    static_cast<void>(device.log().take());
    for (const auto* const path : {"/text", "/empty", "/pipe", "/lib", "/missing"})
        EXPECT_FALSE(DynamicLibrary::open(path, Binding::Lazy).has_value()) << path;
    EXPECT_TRUE(device.log().take().empty());
    EXPECT_EQ(openDescriptors(), openBefore);
}

TEST_F(DynamicLibraryTest, HasTheSymbolsThatItExportsAndNoOthers) {
    const auto library = DynamicLibrary::open("/lib/first", Binding::Lazy);
    ASSERT_TRUE(library.has_value());
    EXPECT_NE(library->symbol("libraryNumber"), nullptr);
    EXPECT_EQ(library->symbol("missing"), nullptr);
    EXPECT_EQ(library->function<int()>("missing"), nullptr);
}

TEST_F(DynamicLibraryTest, ItsSymbolsStayItsOwn) {
    const auto first = DynamicLibrary::open("/lib/first", Binding::Lazy);
    const auto second = DynamicLibrary::open("/lib/second", Binding::Lazy);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(numberOf(*first), 1);
    EXPECT_EQ(numberOf(*second), 2);
}

TEST_F(DynamicLibraryTest, LibrariesOpenedOneAfterTheOtherAreToldApart) {
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(numberAt("/lib/first"), 1);
        EXPECT_EQ(numberAt("/lib/second"), 2);
    }
}

TEST_F(DynamicLibraryTest, LibrariesAreToldApartWhileALibraryThatWasOpenedFirstIsOpenStill) {
    auto first = DynamicLibrary::open("/lib/first", Binding::Lazy);
    const auto again = DynamicLibrary::open("/lib/first", Binding::Lazy);
    ASSERT_TRUE(first && again);
    first->close();
    EXPECT_EQ(numberAt("/lib/second"), 2);
    EXPECT_EQ(numberOf(*again), 1);
}

TEST_F(DynamicLibraryTest, LibrariesAreToldApartFromOneThatStaysLoadedForEver) {
    install(RESIDENT_LIBRARY, "/lib/resident");
    EXPECT_EQ(numberAt("/lib/resident"), 3);
    EXPECT_EQ(numberAt("/lib/first"), 1);
    EXPECT_EQ(numberAt("/lib/second"), 2);
    EXPECT_EQ(numberAt("/lib/resident"), 3);
}

TEST_F(DynamicLibraryTest, AFileThatReplacesALibraryIsAnotherLibrary) {
    const auto before = DynamicLibrary::open("/lib/first", Binding::Lazy);
    ASSERT_TRUE(before.has_value());
    std::filesystem::rename(device.hostPath("/lib/second"), device.hostPath("/lib/first"));
    EXPECT_EQ(numberAt("/lib/first"), 2);
    EXPECT_EQ(numberOf(*before), 1);
}

TEST_F(DynamicLibraryTest, IsUnloadedWhenItIsClosed) {
    const auto openBefore = openDescriptors();
    auto library = openCounted("/lib/first");
    EXPECT_EQ(unloadings, 0);
    library.close();
    EXPECT_EQ(unloadings, 1);
    EXPECT_EQ(library.symbol("libraryNumber"), nullptr);
    library.close();
    EXPECT_EQ(unloadings, 1);
    EXPECT_EQ(openDescriptors(), openBefore);
}

TEST_F(DynamicLibraryTest, IsUnloadedAtTheEndOfTheObject) {
    {
        const auto library = openCounted("/lib/first");
        EXPECT_EQ(unloadings, 0);
    }
    EXPECT_EQ(unloadings, 1);
}

TEST_F(DynamicLibraryTest, StaysLoadedUntilItsLastOwnerClosesIt) {
    const auto openBefore = openDescriptors();
    auto first = openCounted("/lib/first");
    auto second = openCounted("/lib/first");
    first.close();
    EXPECT_EQ(unloadings, 0);
    EXPECT_EQ(numberOf(second), 1);
    EXPECT_EQ(openDescriptors(), openBefore + 1);
    second.close();
    EXPECT_EQ(unloadings, 1);
    EXPECT_EQ(openDescriptors(), openBefore);
}

TEST_F(DynamicLibraryTest, MovesItsOwnership) {
    auto first = openCounted("/lib/first");
    auto moved = std::move(first);
    EXPECT_EQ(numberOf(moved), 1);
    EXPECT_EQ(unloadings, 0);
}
