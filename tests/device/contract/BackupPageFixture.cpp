#include "BackupPageFixture.h"

#include "Journal.h"
#include "SystemStandIns.h"

#include <unistd.h>

#include <filesystem>

namespace {

namespace files = std::filesystem;

std::string madeFolder() {
    auto path = files::temp_directory_path() / ("corvex-documents-" + std::to_string(getpid()));
    files::create_directories(path);
    return path;
}

id pageWithDocumentsIn(const std::string& folder) {
    setDocumentsFolder(folder.c_str());
    return newByName("cxBackupRestoreController");
}

} // namespace

BackupPageFixture::BackupPageFixture() : folder(madeFolder()), page(pageWithDocumentsIn(folder)) {
    takeJournal();
}

BackupPageFixture::~BackupPageFixture() {
    runWaitingWork();
    dismissPresented(page); // what is presented may keep the page alive
    objc_release(page);
    forgetSuites();
    setDocumentsFolder(nullptr);
    files::remove_all(folder);
    takeJournal();
}

std::string BackupPageFixture::backup(std::string_view name) const {
    return folder + "/CorvexBackups/" + std::string(name);
}

void BackupPageFixture::save(const char* name) const {
    perform(page, "saveBackupWithName:", text(name));
    perform(page, "dismissMessageController:", rightButtonOf(page));
    takeJournal();
}
