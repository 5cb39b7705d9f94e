#include "LibArchiveFixture.h"
#include "RecordingLibrary.h"

#include <sys/stat.h>

#include <archive.h>

#include <array>
#include <cstdint>
#include <string>

namespace {

/// What the codec asks of the library, in which order, and which of the answers it minds.
class LibArchiveCallsTest : public LibArchiveFixture {
protected:
    ~LibArchiveCallsTest() override { EXPECT_EQ(library.living(), 0) << "every handle and entry is freed"; }

    static constexpr auto writingBegins = "write_new\n"
                                          "write_add_filter_gzip\n"
                                          "write_set_format_pax_restricted\n"
                                          "write_open_filename backup.tar.gz\n";
    static constexpr auto writingEnds = "write_close\n"
                                        "write_free\n";
    static constexpr auto readingBegins = "read_new\n"
                                          "read_support_filter_gzip\n"
                                          "read_support_format_tar\n"
                                          "read_open_filename backup.tar.gz 10240\n";
    static constexpr auto readingEnds = "read_close\n"
                                        "read_free\n";

    static std::string header(const std::string& name, std::size_t size) {
        return "entry_new\n"
               "entry_set_pathname " +
               name + "\nentry_set_size " + std::to_string(size) +
               "\nentry_set_filetype 32768\n"
               "entry_set_perm 420\n"
               "write_header\n";
    }

    void makeArchive() const { device.write(archivePath, "read by nobody"); }

    RecordingLibrary library;
};

constexpr std::array<std::int64_t, 5> failures = {ARCHIVE_EOF, ARCHIVE_RETRY, ARCHIVE_WARN, ARCHIVE_FAILED,
                                                  ARCHIVE_FATAL};

} // namespace

TEST_F(LibArchiveCallsTest, AFileIsPackedInThisOrder) {
    put("a", "hello");
    EXPECT_TRUE(pack());
    EXPECT_EQ(library.takeCalls(),
              writingBegins + header("a", 5) + "write_data hello\nentry_free\n" + writingEnds);
}

TEST_F(LibArchiveCallsTest, AFolderIsPackedAsItsHeaderAlone) {
    put("d/x", "inside");
    struct stat status{};
    ASSERT_EQ(stat((hostPacked() + "/d").c_str(), &status), 0);
    EXPECT_TRUE(pack());
    EXPECT_EQ(library.takeCalls(), writingBegins + header("d", static_cast<std::size_t>(status.st_size)) +
                                       "entry_free\n" + header("d/x", 6) + "write_data inside\nentry_free\n" +
                                       writingEnds);
}

TEST_F(LibArchiveCallsTest, AnEmptyFolderIsPackedWithoutEntries) {
    EXPECT_TRUE(pack());
    EXPECT_EQ(library.takeCalls(), std::string(writingBegins) + writingEnds);
}

TEST_F(LibArchiveCallsTest, TheResultsOfTheSetUpForWritingAndOfItsEndAreNotExamined) {
    put("a", "hello");
    for (const auto* const function :
         {"write_add_filter_gzip", "write_set_format_pax_restricted", "write_close", "write_free"}) {
        library.answers[function] = {ARCHIVE_FATAL};
        EXPECT_TRUE(pack()) << function;
        EXPECT_TRUE(library.takeCalls().ends_with("write_data hello\nentry_free\nwrite_close\nwrite_free\n"));
    }
}

TEST_F(LibArchiveCallsTest, AnythingButSuccessAtOpeningForWritingIsAnError) {
    put("a", "hello");
    for (const auto result : failures) {
        library.answers["write_open_filename"] = {result};
        expectErrorForWriting(pack());
        EXPECT_EQ(library.takeCalls(), writingBegins + std::string("write_free\n")) << result;
    }
}

TEST_F(LibArchiveCallsTest, AnythingButSuccessOfAHeaderEndsThePackingWithoutAnError) {
    put("a", "hello");
    put("b", "there");
    for (const auto result : failures) {
        library.answers["write_header"] = {result};
        expectFailureWithoutError(pack());
        const auto calls = library.takeCalls();
        EXPECT_TRUE(calls.ends_with("write_header\nentry_free\nwrite_close\nwrite_free\n")) << calls;
        EXPECT_EQ(calls.find("entry_new"), calls.rfind("entry_new")) << "one item was tried";
    }
}

TEST_F(LibArchiveCallsTest, ContentThatIsRefusedEndsThePackingWithoutAnError) {
    put("a", "hello");
    put("b", "there");
    library.answers["write_data"] = {-1};
    expectFailureWithoutError(pack());
    const auto calls = library.takeCalls();
    EXPECT_TRUE(calls.ends_with("\nentry_free\nwrite_close\nwrite_free\n")) << calls;
    EXPECT_EQ(calls.find("write_data"), calls.rfind("write_data"));
}

TEST_F(LibArchiveCallsTest, ARefusalOfTheLastItemIsAFailureToo) {
    put("a", "hello");
    library.answers["write_data"] = {-1};
    expectFailureWithoutError(pack());
}

TEST_F(LibArchiveCallsTest, ContentThatIsTakenInPartCountsAsPacked) {
    put("a", "hello");
    for (const std::int64_t count : {0, 1, 4, 5, ARCHIVE_FATAL}) {
        library.answers["write_data"] = {count};
        EXPECT_TRUE(pack()) << count;
    }
}

TEST_F(LibArchiveCallsTest, AnEmptyFilesContentIsHandedOverToo) {
    put("a", "");
    EXPECT_TRUE(pack());
    EXPECT_EQ(library.takeCalls(), writingBegins + header("a", 0) + "write_data\nentry_free\n" + writingEnds);
}

TEST_F(LibArchiveCallsTest, AFileIsUnpackedInThisOrder) {
    makeArchive();
    library.items = {{.name = "a", .type = S_IFREG, .blocks = {"hel", "", "lo"}}};
    EXPECT_TRUE(unpack());
    EXPECT_EQ(library.takeCalls(), std::string(readingBegins) +
                                       "read_next_header\n"
                                       "entry_pathname\n"
                                       "entry_filetype\n"
                                       "read_data_block\n"
                                       "read_data_block\n"
                                       "read_data_block\n"
                                       "read_data_block\n"
                                       "read_next_header\n" +
                                       readingEnds);
    EXPECT_EQ(unpacked(), (Tree{{"a", "hello"}})) << "wherever the blocks say that they belong";
}

TEST_F(LibArchiveCallsTest, TheResultsOfTheSetUpForReadingAndOfItsEndAreNotExamined) {
    makeArchive();
    library.items = {{.name = "a", .type = S_IFREG, .blocks = {"hello"}}};
    for (const auto* const function :
         {"read_support_filter_gzip", "read_support_format_tar", "read_close", "read_free"}) {
        library.answers[function] = {ARCHIVE_FATAL};
        EXPECT_TRUE(unpack()) << function;
        EXPECT_TRUE(
            library.takeCalls().ends_with("read_data_block\nread_next_header\nread_close\nread_free\n"));
    }
}

TEST_F(LibArchiveCallsTest, AnythingButSuccessAtOpeningForReadingIsAnError) {
    makeArchive();
    for (const auto result : failures) {
        library.answers["read_open_filename"] = {result};
        expectErrorForReading(unpack());
        EXPECT_EQ(library.takeCalls(), readingBegins + std::string("read_free\n")) << result;
    }
}

TEST_F(LibArchiveCallsTest, WithoutAFileTheLibraryIsNotAskedToOpenOne) {
    expectErrorForReading(unpack());
    EXPECT_EQ(library.takeCalls(),
              "read_new\nread_support_filter_gzip\nread_support_format_tar\nread_free\n");
    expectErrorForWriting(LibArchive::createArchiveAtPath("", packedPath));
    EXPECT_EQ(library.takeCalls(),
              "write_new\nwrite_add_filter_gzip\nwrite_set_format_pax_restricted\nwrite_free\n");
}

TEST_F(LibArchiveCallsTest, AnythingButSuccessOfAHeaderEndsTheUnpacking) {
    makeArchive();
    library.items = {{.name = "a", .type = S_IFREG, .blocks = {"hello"}},
                     {.name = "b", .type = S_IFREG, .blocks = {"there"}}};
    for (const auto result : failures) {
        library.answers["read_next_header"] = {ARCHIVE_OK, result};
        EXPECT_TRUE(unpack()) << result;
        EXPECT_TRUE(
            library.takeCalls().ends_with("read_data_block\nread_next_header\nread_close\nread_free\n"));
        EXPECT_EQ(unpacked(), (Tree{{"a", "hello"}})) << result;
    }
}

TEST_F(LibArchiveCallsTest, AnythingButSuccessOfABlockEndsItsFile) {
    makeArchive();
    library.items = {{.name = "a", .type = S_IFREG, .blocks = {"hel", "lo"}},
                     {.name = "b", .type = S_IFREG, .blocks = {"there"}}};
    for (const auto result : failures) {
        library.answers["read_data_block"] = {ARCHIVE_OK, result};
        EXPECT_TRUE(unpack()) << result;
        EXPECT_EQ(unpacked(), (Tree{{"a", "hel"}, {"b", "there"}})) << result;
    }
}

TEST_F(LibArchiveCallsTest, WithoutAFileTheBlocksAreReadAllTheSame) {
    makeArchive();
    device.write(std::string(unpackedPath) + "/a", "no folder");
    library.items = {{.name = "a/b", .type = S_IFREG, .blocks = {"1", "2"}}};
    EXPECT_TRUE(unpack());
    EXPECT_TRUE(library.takeCalls().ends_with("entry_filetype\n"
                                              "read_data_block\n"
                                              "read_data_block\n"
                                              "read_data_block\n"
                                              "read_next_header\n"
                                              "read_close\n"
                                              "read_free\n"));
}

TEST_F(LibArchiveCallsTest, OfAnEntryThatIsNoFileTheContentIsNotAskedFor) {
    makeArchive();
    for (const auto type : {S_IFDIR, S_IFLNK, S_IFCHR, S_IFBLK, S_IFIFO, S_IFSOCK, 0}) {
        library.items = {{.name = "sub/a", .type = static_cast<unsigned>(type), .blocks = {"content"}}};
        EXPECT_TRUE(unpack());
        EXPECT_FALSE(library.takeCalls().contains("read_data_block")) << type;
        EXPECT_EQ(unpacked(), (Tree{{"sub/", ""}})) << type;
    }
}

TEST_F(LibArchiveCallsTest, AnEntryWithoutANameIsLeftOut) {
    makeArchive();
    library.items = {{.name = nullptr, .type = S_IFREG, .blocks = {"nobody's"}},
                     {.name = "\xFF/a", .type = S_IFREG, .blocks = {"no text's"}},
                     {.name = "b", .type = S_IFREG, .blocks = {"there"}}};
    EXPECT_TRUE(unpack());
    EXPECT_EQ(unpacked(), (Tree{{"b", "there"}}));
}
