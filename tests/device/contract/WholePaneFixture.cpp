#include "WholePaneFixture.h"

#include "Framework.h"
#include "SystemStandIns.h"

#include <unistd.h>

#include <filesystem>

namespace files = std::filesystem;

WholePaneFixture::WholePaneFixture()
    : folder(files::temp_directory_path() / ("corvex-whole-pane-" + std::to_string(getpid()))) {
    files::create_directories(folder);
    setDocumentsFolder(folder.c_str());
    setServicesLibrary(servicesLibrary());
}

WholePaneFixture::~WholePaneFixture() {
    forgetSuites();
    setServicesLibrary(nullptr);
    setDocumentsFolder(nullptr);
    files::remove_all(folder);
}
