#include "TestImages.h"

#include "ImageFinisher.h"

#include <utility>

FileBytes TestImages::objectBytes(const std::string& name) {
    return FileBytes::load(std::string(TEST_IMAGES) + "/" + name + ".o");
}

MachOFile TestImages::object(const std::string& name) {
    return {objectBytes(name), MachOFile::Kind::Object, MachOFile::Subtype::Arm64e};
}

MachOFile TestImages::linked(const std::string& name) {
    return parsedImage(FileBytes::load(std::string(TEST_IMAGES) + "/" + name + ".linked"),
                       MachOFile::Subtype::Arm64);
}

MachOFile TestImages::parsedImage(FileBytes bytes, MachOFile::Subtype subtype) {
    return {std::move(bytes), MachOFile::Kind::Bundle, subtype};
}

std::string TestImages::mapPath() {
    return std::string(TEST_IMAGES) + "/SignedPointers.linked.map";
}

MachOFile TestImages::finished() {
    return parsedImage(ImageFinisher(linked("SignedPointers"), "test").finished(),
                       MachOFile::Subtype::Arm64e);
}

std::uint64_t TestImages::field(const MachOFile& file, std::uint32_t command, std::uint64_t field) {
    return file.command(command).offset + field;
}

std::string refusalOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "";
}
