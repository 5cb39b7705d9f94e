#include "BackupPageFixture.h"

#include "Device.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "LibArchive.h"
#include "RectGeometry.h"
#include "accessibility/AccessibilityElement.h"
#include "controllers/DesktopNavigationItem.h"
#include "system/DarwinNotifications.h"
#include "typing/EditedText.h"
#include "typing/TextInput.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace {

constexpr auto list = R"(<plist version="1.0"><dict><key>title</key><string>Backups</string>
    <key>items</key><array><dict><key>cell</key><string>PSButtonCell</string>
    <key>label</key><string>Create</string><key>id</key><string>createBackup</string>
    <key>action</key><string>createBackup</string></dict></array></dict></plist>)";

Ref<DesktopBarButtonItem> firstOf(const std::vector<Ref<UIBarButtonItem>>& items) {
    return items.empty() ? nullptr : dynamicCast<DesktopBarButtonItem>(items.front());
}

bool canBePressed(const AccessibilityElement& element) {
    return element.role == AccessibilityRole::Button || element.role == AccessibilityRole::TextField;
}

} // namespace

BackupPageFixture::BackupPageFixture(const Screen::Options& options)
    : PanePage("cxBackupRestoreController", "BackupRestore", list, options) {
    page = make<cxBackupRestoreController>();
}

void BackupPageFixture::openAnew() {
    page = make<cxBackupRestoreController>();
    navigation = make<UINavigationController>();
    show();
}

bool BackupPageFixture::isPresenting() const {
    return Screen::current().presentations().top() != nullptr;
}

const Presented& BackupPageFixture::presented() {
    const auto* const top = screen.presentations().top();
    if (top == nullptr)
        throw std::runtime_error("nothing is presented");
    return *top;
}

Presented::Details BackupPageFixture::details() {
    return isPresenting() ? presented().details().value_or(Presented::Details()) : Presented::Details();
}

BackupPageFixture::Message BackupPageFixture::message() {
    return isPresenting() && details().symbol == "info.circle.fill"
               ? Message(presented().title(), details().detail)
               : Message();
}

BackupPageFixture::Names BackupPageFixture::titlesOfItems() {
    Names titles;
    for (const auto& item : details().items)
        titles.push_back(item.title);
    return titles;
}

Ref<DesktopBarButtonItem> BackupPageFixture::leftButton() {
    const auto bar = dynamicCast<DesktopNavigationItem>(details().barItem);
    return bar ? firstOf(bar->leftItems()) : nullptr;
}

Ref<DesktopBarButtonItem> BackupPageFixture::rightButton() {
    const auto bar = dynamicCast<DesktopNavigationItem>(details().barItem);
    return bar ? firstOf(bar->rightItems()) : nullptr;
}

Ref<OBWelcomeController> BackupPageFixture::sheet() const {
    return dynamicCast<OBWelcomeController>(page->presentedViewController());
}

void BackupPageFixture::tapOn(std::string_view label) {
    layOut();
    for (const auto& action : isPresenting() ? presented().actions() : std::vector<Presented::Action>()) {
        if (action.title != label)
            continue;
        tap(CGPoint{CGRectGetMidX(action.frame), CGRectGetMidY(action.frame)});
        settle();
        return;
    }
    const auto elements = AccessibilityElement::allIn(*viewInFront());
    const auto found = std::ranges::find_if(elements, [label](const AccessibilityElement& element) {
        return canBePressed(element) && element.label == label;
    });
    ASSERT_NE(found, elements.end()) << "there is no button " << label;
    scrollIntoView(*found->view);
    layOut();
    tap(*found->view);
    settle();
}

void BackupPageFixture::type(const std::string& text) {
    auto* const input = screen.firstResponder().input();
    ASSERT_NE(input, nullptr) << "nothing takes text";
    input->edit([&text](EditedText& edited) { edited.insert(QString::fromStdString(text)); });
}

void BackupPageFixture::createNamed(const std::string& name) {
    page->createBackup();
    settle();
    tapOn("Create Backup");
    type(name);
    tapOn("Create");
}

void BackupPageFixture::chooseBackup(const std::string& title) {
    page->showBackupList();
    settle();
    tapOn(title);
}

BackupPageFixture::Names BackupPageFixture::namesIn(std::string_view folder) {
    auto names = NSFileManager::defaultManager().contentsOfDirectoryAtPath(folder).value_or(Names());
    std::ranges::sort(names);
    return names;
}

bool BackupPageFixture::exists(std::string_view path) const {
    return std::filesystem::exists(std::filesystem::symlink_status(device.hostPath(path)));
}

BackupPageFixture::Files BackupPageFixture::unpacked(const std::string& archivePath) {
    const std::string folder = "/unpacked";
    auto& manager = NSFileManager::defaultManager();
    EXPECT_TRUE(manager.createDirectoryAtPath(folder, true));
    EXPECT_TRUE(LibArchive::extractArchiveAtPath(archivePath, folder)) << archivePath;
    Files files;
    for (const auto& name : manager.enumeratorAtPath(folder))
        files.emplace(name, device.read(stringByAppendingPathComponent(folder, name)));
    EXPECT_TRUE(manager.removeItemAtPath(folder));
    return files;
}

void BackupPageFixture::pack(const std::string& archivePath, const Files& files) {
    const std::string folder = "/packed";
    auto& manager = NSFileManager::defaultManager();
    EXPECT_TRUE(manager.createDirectoryAtPath(folder, true));
    for (const auto& [name, content] : files)
        device.write(stringByAppendingPathComponent(folder, name), content);
    EXPECT_TRUE(LibArchive::createArchiveAtPath(archivePath, folder)) << archivePath;
    EXPECT_TRUE(manager.removeItemAtPath(folder));
}

void BackupPageFixture::makeBackup(const std::string& name, const Files& files) {
    makeFile(name);
    pack(std::string(backupsFolder) + "/" + name, files); // over the file, which keeps its time
}

void BackupPageFixture::makeFile(const std::string& name) {
    const auto& manager = NSFileManager::defaultManager();
    const auto dateOf = [&manager](const std::string& file) {
        return manager.attributesOfItemAtPath(std::string(backupsFolder) + "/" + file)->fileCreationDate;
    };
    auto others = namesIn(backupsFolder);
    std::erase(others, name);
    const auto isNewest = [&] {
        return std::ranges::all_of(others, [&](const auto& other) { return dateOf(other) < dateOf(name); });
    };
    do { // the file system's clock ticks rarely
        std::filesystem::remove(device.hostPath(std::string(backupsFolder) + "/" + name));
        device.write(std::string(backupsFolder) + "/" + name, "");
    } while (!isNewest());
}

BackupPageFixture::Names BackupPageFixture::notifications() {
    return Device::current().notifications().take();
}
