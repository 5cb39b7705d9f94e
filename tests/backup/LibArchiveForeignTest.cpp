#include "LibArchiveFixture.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

/// Archives that go to other programs, and come from them.
class LibArchiveForeignTest : public LibArchiveFixture {
protected:
    /// What a backup holds.
    void putBackup() const {
        put("preferences.plist", "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict/></plist>");
        put("kCustomImage-IMG", std::string(70001, '\x7F'));
        put("kCustomIcon-IMG", "");
    }

    /// What another program makes of the archive, in a folder of the device, when it is told to unpack it
    /// into the folder it is in. In the words "ARCHIVE" stands for it.
    [[nodiscard]] Tree unpackedBy(std::string words) const {
        const std::string folder = "/var/mobile/tmp/by another";
        fs::remove_all(device.hostPath(folder));
        fs::create_directories(device.hostPath(folder));
        runIn(device.hostPath(folder), std::move(words));
        return treeAt(folder);
    }

    /// What comes of an archive that another program makes in the folder to pack.
    [[nodiscard]] Tree unpackedFrom(std::string words) const {
        fs::remove(hostArchive());
        runIn(hostPacked(), std::move(words));
        fs::remove_all(device.hostPath(unpackedPath));
        fs::create_directories(device.hostPath(unpackedPath));
        EXPECT_TRUE(unpack());
        return unpacked();
    }

    void link(const std::string& target, const std::string& name) const {
        fs::create_symlink(target, hostPacked() + "/" + name);
    }

    const std::string longName = std::string(120, 'l') + "/" + std::string(200, 'n');
    const std::string foreignName = "\u00E9 \u4F60\u597D \U0001F600";

private:
    void runIn(const std::string& folder, std::string words) const {
        const std::string placeholder = "ARCHIVE";
        words.replace(words.find(placeholder), placeholder.size(), "'" + hostArchive() + "'");
        outputOf("cd '" + folder + "' && export LC_ALL=C.UTF-8 && " + words);
    }
};

/// Python's own reading and writing of tar files.
constexpr auto pythonUnpacks =
    "python3 -c 'import sys, tarfile; tarfile.open(sys.argv[1], \"r:gz\").extractall()' ARCHIVE";

std::string pythonPacks(const std::string& format) {
    return "python3 -c 'import sys, tarfile; t = tarfile.open(sys.argv[1], \"w:gz\", format=tarfile." +
           format + "_FORMAT); t.add(\".\"); t.close()' ARCHIVE";
}

} // namespace

TEST_F(LibArchiveForeignTest, ABackupIsUnpackedByOthers) {
    putBackup();
    EXPECT_TRUE(pack());
    for (const std::string program : {"tar -xzf ARCHIVE", "bsdtar -xf ARCHIVE", pythonUnpacks})
        EXPECT_EQ(unpackedBy(program), treeAt(packedPath)) << program;
}

TEST_F(LibArchiveForeignTest, LongAndForeignNamesAreUnpackedByOthers) {
    put(std::string(200, 'n'), "1");
    put(foreignName, "2");
    put("two\nlines", "3");
    put(".hidden", "4");
    EXPECT_TRUE(pack());
    for (const std::string program : {"tar -xzf ARCHIVE", "bsdtar -xf ARCHIVE", pythonUnpacks})
        EXPECT_EQ(unpackedBy(program), treeAt(packedPath)) << program;
}

TEST_F(LibArchiveForeignTest, OthersFindTheFactsOfEachEntryInIt) {
    put("a", "hello");
    EXPECT_TRUE(pack());
    EXPECT_EQ(
        outputOf(
            "python3 -c 'import sys, tarfile\n"
            "for e in tarfile.open(sys.argv[1]):\n"
            "    print(e.name, e.size, e.isreg(), oct(e.mode), e.mtime, e.uid, e.gid, [e.uname, e.gname],\n"
            "          e.pax_headers)' '" +
            hostArchive() + "'"),
        "a 5 True 0o644 0 0 0 ['', ''] {}\n");
}

TEST_F(LibArchiveForeignTest, ABackupThatOthersHavePackedIsUnpacked) {
    putBackup();
    const auto whole = treeAt(packedPath);
    for (const auto& program :
         {std::string("tar -czf ARCHIVE --format=gnu *"), std::string("tar -czf ARCHIVE --format=oldgnu ."),
          std::string("tar -czf ARCHIVE --format=ustar *"), std::string("tar -czf ARCHIVE --format=pax *"),
          std::string("tar -czf ARCHIVE --format=v7 *"), std::string("bsdtar -czf ARCHIVE *"),
          std::string("bsdtar -czf ARCHIVE --format=ustar ."),
          std::string("bsdtar -czf ARCHIVE --format=pax ."),
          std::string("bsdtar -czf ARCHIVE --format=gnutar ."), pythonPacks("PAX"), pythonPacks("GNU"),
          pythonPacks("USTAR"), std::string("tar -cf ARCHIVE *"), std::string("tar -c * | gzip -9 > ARCHIVE"),
          std::string("tar -c * | gzip -1 > ARCHIVE")})
        EXPECT_EQ(unpackedFrom(program), whole) << program;
}

TEST_F(LibArchiveForeignTest, LongAndForeignNamesOfOthersAreUnpacked) {
    put(longName, "1");
    put(foreignName, "2");
    put("two\nlines", "3");
    const auto whole = treeAt(packedPath);
    for (const auto& program :
         {std::string("tar -czf ARCHIVE --format=gnu *"), std::string("tar -czf ARCHIVE --format=pax *"),
          std::string("bsdtar -czf ARCHIVE *"), pythonPacks("PAX"), pythonPacks("GNU")})
        EXPECT_EQ(unpackedFrom(program), whole) << program;
}

TEST_F(LibArchiveForeignTest, OfAnArchiveOfManyKindsTheFilesAreUnpacked) {
    put("file", "content");
    put("folder/inside", "inside");
    link("file", "soft");
    link("../nowhere", "folder/broken");
    fs::create_hard_link(hostPacked() + "/file", hostPacked() + "/twin");
    fs::create_directory(hostPacked() + "/empty");
    outputOf("mkfifo '" + hostPacked() + "/pipe'");
    for (const auto& program :
         {std::string("tar -czf ARCHIVE --format=gnu file twin soft folder empty pipe"),
          std::string("tar -czf ARCHIVE --format=pax file twin soft folder empty pipe"),
          std::string("bsdtar -czf ARCHIVE --format=ustar file twin soft folder empty pipe")})
        EXPECT_EQ(unpackedFrom(program),
                  (Tree{{"file", "content"}, {"folder/", ""}, {"folder/inside", "inside"}}))
            << program;
}

TEST_F(LibArchiveForeignTest, OfAFileWithHolesTheContentIsUnpackedWithoutThem) {
    outputOf("cd '" + hostPacked() +
             "' && truncate -s 2M holes && printf begin | dd of=holes conv=notrunc status=none && "
             "printf end | dd of=holes bs=1 seek=1048576 conv=notrunc status=none");
    for (const std::string program : {"tar -Sczf ARCHIVE --format=gnu holes",
                                      "tar -Sczf ARCHIVE --format=pax --sparse-version=1.0 holes"}) {
        const auto content = unpackedFrom(program).at("holes");
        EXPECT_TRUE(content.starts_with("begin")) << program;
        EXPECT_LT(content.size(), 100000U) << program;
        EXPECT_TRUE(content.contains("end")) << program;
    }
}

TEST_F(LibArchiveForeignTest, FactsThatNobodyNeedsAreNoHindrance) {
    put("file", "content");
    EXPECT_EQ(unpackedFrom("tar -czf ARCHIVE --format=pax --mtime=@1.5 --owner=somebody:1234 --mode=0 "
                           "--pax-option=comment=nothing,globexthdr.name=g file"),
              (Tree{{"file", "content"}}));
    EXPECT_EQ(unpackedFrom("tar -czf ARCHIVE --format=gnu --label=volume --mtime=@-1 file"),
              (Tree{{"file", "content"}}));
}

TEST_F(LibArchiveForeignTest, OtherCompressionsAreRefused) {
    put("file", "content");
    for (const std::string compression : {"--bzip2", "--xz", "--lzma", "--compress"}) {
        outputOf("cd '" + hostPacked() + "' && bsdtar " + compression + " -cf '" + hostArchive() + "' file");
        expectErrorForReading(unpack());
    }
}

TEST_F(LibArchiveForeignTest, OtherFormatsAreRefused) {
    put("file", "content");
    for (const std::string format : {"zip", "cpio", "ar", "mtree"}) {
        outputOf("cd '" + hostPacked() + "' && bsdtar --format=" + format + " -cf '" + hostArchive() +
                 "' file");
        expectErrorForReading(unpack());
        EXPECT_EQ(unpacked(), Tree()) << format;
    }
}
