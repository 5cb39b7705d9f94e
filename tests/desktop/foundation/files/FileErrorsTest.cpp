#include "files/FileErrors.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <ostream>
#include <string>

namespace {

struct Case {
    FileOperation operation;
    int error;
    std::int64_t code;
    std::string text;
};

Ref<NSError> englishError(FileOperation operation, int error, std::string_view path,
                          std::string_view toFolder = {}) {
    return fileError(operation, error, path, toFolder,
                     [](std::string_view text) { return std::string(text); });
}

/// Names the case in lists of tests.
void PrintTo(const Case& example, std::ostream* out) {
    *out << strerrorname_np(example.error);
}

class FileErrorsTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(FileErrorsTest, TellsCodeTextPathAndWhatTheHostSaid) {
    const auto error = englishError(GetParam().operation, GetParam().error, "/from/x", "/to/y");
    EXPECT_EQ(error->domain(), NSCocoaErrorDomain);
    EXPECT_EQ(error->code(), GetParam().code);
    EXPECT_EQ(error->localizedDescription(), GetParam().text);
    const auto told =
        std::string(" UserInfo={NSFilePath=/from/x, NSUnderlyingError={Error Domain=NSPOSIXErrorDomain Code=")
            .append(std::to_string(GetParam().error))
            .append(" \"")
            .append(std::strerror(GetParam().error))
            .append("\"}}");
    EXPECT_TRUE(error->description().ends_with(told)) << error->description();
}

// clang-format off
using enum FileOperation;

INSTANTIATE_TEST_SUITE_P(Read, FileErrorsTest, testing::Values(
    Case{Read, ENOENT, 260, "The file “x” couldn’t be opened because there is no such file."},
    Case{Read, EACCES, 257, "The file “x” couldn’t be opened because you don’t have permission to view it."},
    Case{Read, EPERM, 257, "The file “x” couldn’t be opened because you don’t have permission to view it."},
    Case{Read, ENAMETOOLONG, 258, "The file “x” couldn’t be opened because the file name is invalid."},
    Case{Read, EIO, 256, "The file “x” couldn’t be opened."}));

INSTANTIATE_TEST_SUITE_P(List, FileErrorsTest, testing::Values(
    Case{List, ENOENT, 260, "The folder “x” doesn’t exist."},
    Case{List, EACCES, 257, "The folder “x” couldn’t be opened because you don’t have permission to view it."},
    Case{List, ENAMETOOLONG, 258, "The folder “x” couldn’t be opened because the file name is invalid."},
    Case{List, ENOTDIR, 256, "The file “x” couldn’t be opened."}));

INSTANTIATE_TEST_SUITE_P(CreateDirectory, FileErrorsTest, testing::Values(
    Case{CreateDirectory, ENOENT, 4, "The folder “x” doesn’t exist."},
    Case{CreateDirectory, EACCES, 513, "You don’t have permission to save the file “x” in the folder “y”."},
    Case{CreateDirectory, EEXIST, 516, "The file “x” couldn’t be saved in the folder “y” because a file with the same name already exists."},
    Case{CreateDirectory, ENAMETOOLONG, 514, "The file “x” couldn’t be saved in the folder “y” because the file name is invalid."},
    Case{CreateDirectory, ENOSPC, 640, "The file “x” couldn’t be saved in the folder “y” because there isn’t enough space."},
    Case{CreateDirectory, EDQUOT, 640, "The file “x” couldn’t be saved in the folder “y” because there isn’t enough space."},
    Case{CreateDirectory, EROFS, 642, "The file “x” couldn’t be saved in the folder “y” because the volume is read only."},
    Case{CreateDirectory, ELOOP, 512, "The file “x” couldn’t be saved in the folder “y”."}));

INSTANTIATE_TEST_SUITE_P(Remove, FileErrorsTest, testing::Values(
    Case{Remove, ENOENT, 4, "“x” couldn’t be removed."},
    Case{Remove, EACCES, 513, "“x” couldn’t be removed because you don’t have permission to access it."},
    Case{Remove, EPERM, 513, "“x” couldn’t be removed because you don’t have permission to access it."},
    Case{Remove, ENAMETOOLONG, 514, "“x” couldn’t be removed because the file name is invalid."},
    Case{Remove, EROFS, 642, "“x” couldn’t be removed because the volume is read only."},
    Case{Remove, EBUSY, 512, "“x” couldn’t be removed."}));

INSTANTIATE_TEST_SUITE_P(Copy, FileErrorsTest, testing::Values(
    Case{Copy, ENOENT, 4, "The file “x” doesn’t exist."},
    Case{Copy, EACCES, 513, "“x” couldn’t be copied because you don’t have permission to access “y”."},
    Case{Copy, EEXIST, 516, "“x” couldn’t be copied to “y” because an item with the same name already exists."},
    Case{Copy, ENAMETOOLONG, 514, "“x” couldn’t be copied to “y” because the file name is invalid."},
    Case{Copy, ENOSPC, 640, "“x” couldn’t be copied to “y” because there isn’t enough space."},
    Case{Copy, EDQUOT, 640, "“x” couldn’t be copied to “y” because there isn’t enough space."},
    Case{Copy, EROFS, 642, "“x” couldn’t be copied to “y” because the volume is read only."},
    Case{Copy, EISDIR, 512, "“x” couldn’t be copied to “y”."}));
// clang-format on

TEST(FileErrors, NamesThatLookLikePlaceholdersStayAsTheyAre) {
    EXPECT_EQ(englishError(Copy, EEXIST, "/{y}", "/{x}")->localizedDescription(),
              "“{y}” couldn’t be copied to “{x}” because an item with the same name already exists.");
}

TEST(FileErrors, TheTextForTheUserMayBeInAnotherLanguage) {
    const auto error = fileError(CreateDirectory, EIO, "/a/b", "/c", [](std::string_view text) {
        return text.starts_with("The file “{x}”") ? std::string("{y} hat kein {x}.") : std::string();
    });
    EXPECT_EQ(error->localizedDescription(), "c hat kein b.");
    EXPECT_TRUE(error->description().contains("\"The file “b” couldn’t be saved in the folder “c”.\""));
}

TEST(FileErrors, AThingsNameIsWhatFollowsTheLastSlashOfItsPath) {
    const auto textFor = [](std::string_view path) {
        return englishError(Remove, EBUSY, path)->localizedDescription();
    };
    EXPECT_EQ(textFor("/a/b"), "“b” couldn’t be removed.");
    EXPECT_EQ(textFor("/a/b//"), "“b” couldn’t be removed.");
    EXPECT_EQ(textFor("b"), "“b” couldn’t be removed.");
    EXPECT_EQ(textFor("/"), "“/” couldn’t be removed.");
    EXPECT_EQ(textFor("//"), "“/” couldn’t be removed.");
    EXPECT_EQ(textFor(""), "“” couldn’t be removed.");
}
