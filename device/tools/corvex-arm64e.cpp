// The steps around a link for arm64 that make an arm64e bundle of it, and the check of what came out.

#include "ImageFinisher.h"
#include "LinkMap.h"
#include "MachOFile.h"
#include "ObjectPreparer.h"
#include "Refusal.h"
#include "SlotVerifier.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Paths = std::vector<std::string>;

constexpr auto usage = R"(usage: corvex-arm64e prepare OBJECTS FOLDER
       corvex-arm64e finish LINKED BUNDLE IDENTIFIER
       corvex-arm64e verify OBJECTS BUNDLE MAP

OBJECTS is a file that lists the arm64e objects to be linked, one a line.
prepare  writes them into FOLDER as the linker for arm64 takes them, and their list as FOLDER/objects
finish   makes the arm64e BUNDLE of what the linker made of them, signed without a signer as IDENTIFIER
verify   compares every signed pointer of BUNDLE with what the objects ask for; MAP is the linker's
)";

Paths readList(const std::string& path) {
    std::ifstream file(path);
    Paths paths;
    for (std::string line; std::getline(file, line);)
        paths.push_back(line);
    if (paths.empty())
        throw Refusal(path + ": lists no objects");
    return paths;
}

MachOFile loadObject(const std::string& path) {
    return {FileBytes::load(path), MachOFile::Kind::Object, MachOFile::Subtype::Arm64e};
}

void prepare(const Paths& objects, const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::ofstream list(folder + "/objects");
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const auto path = folder + "/" + ObjectPreparer::fileName(i, objects[i]);
        ObjectPreparer(loadObject(objects[i])).prepared().save(path);
        list << path << '\n';
    }
    list.close();
    if (!list)
        throw Refusal(folder + "/objects: cannot be written");
}

void finish(const std::string& linked, const std::string& bundle, const std::string& identifier) {
    MachOFile image(FileBytes::load(linked), MachOFile::Kind::Bundle, MachOFile::Subtype::Arm64);
    ImageFinisher(std::move(image), identifier).finished().save(bundle);
}

void checkOrder(const LinkMap& map, const Paths& objects) {
    if (map.objects().size() != objects.size())
        throw Refusal("the map has " + std::to_string(map.objects().size()) + " objects, not " +
                      std::to_string(objects.size()));
    for (std::size_t i = 0; i < objects.size(); ++i)
        if (const auto name = ObjectPreparer::fileName(i, objects[i]);
            !map.objects()[i].ends_with("/" + name))
            throw Refusal("the map has the object " + map.objects()[i] + ", where " + name + " was expected");
}

void verify(const Paths& objects, const std::string& bundle, const std::string& mapPath) {
    const MachOFile image(FileBytes::load(bundle), MachOFile::Kind::Bundle, MachOFile::Subtype::Arm64e);
    const LinkMap map(mapPath);
    checkOrder(map, objects);
    SlotVerifier verifier(image, map);
    for (std::size_t i = 0; i < objects.size(); ++i)
        verifier.verify(loadObject(objects[i]), i);
    const auto count = verifier.finish();
    std::cout << bundle << ": " << count.verified << " signed pointers are as the objects ask for, "
              << count.leftOut << " of the objects' are left out\n";
}

bool run(const std::vector<std::string>& arguments) {
    const auto isCall = [&](const char* name, std::size_t count) {
        return arguments.size() == count && arguments[0] == name;
    };
    if (isCall("prepare", 3))
        prepare(readList(arguments[1]), arguments[2]);
    else if (isCall("finish", 4))
        finish(arguments[1], arguments[2], arguments[3]);
    else if (isCall("verify", 4))
        verify(readList(arguments[1]), arguments[2], arguments[3]);
    else
        return false;
    return true;
}

} // namespace

int main(int count, char** arguments) {
    try {
        if (run(std::vector<std::string>(arguments + 1, arguments + count)))
            return EXIT_SUCCESS;
        std::cerr << usage;
    } catch (const std::exception& problem) {
        std::cerr << "corvex-arm64e: " << problem.what() << '\n';
    }
    return EXIT_FAILURE;
}
