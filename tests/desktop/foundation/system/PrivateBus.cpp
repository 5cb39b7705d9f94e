#include "system/PrivateBus.h"

#include "files/FileDescriptor.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>

namespace {

void writeConfiguration(const std::string& path, const std::string& socket) {
    std::ofstream(path) << "<busconfig><type>session</type><listen>unix:path=" << socket
                        << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                           "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow "
                           "own=\"*\"/></policy></busconfig>";
}

/// Becomes the daemon, which prints its address to the descriptor and ends with the test.
[[noreturn]] void runDaemon(const char* configuration, const char* addressArgument, int addressDescriptor) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    fcntl(addressDescriptor, F_SETFD, 0);
    const int silence = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (silence >= 0 && dup2(silence, STDERR_FILENO) >= 0) // it complains of limits that it may not raise
        execlp("dbus-daemon", "dbus-daemon", "--nofork", configuration, addressArgument, nullptr);
    _exit(127);
}

std::string firstLine(int descriptor) {
    std::string line;
    for (char character = 0; read(descriptor, &character, 1) == 1 && character != '\n';)
        line += character;
    return line;
}

} // namespace

PrivateBus::PrivateBus() {
    const auto configurationFile = folder_.path() + "/configuration";
    writeConfiguration(configurationFile, folder_.path() + "/bus");
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    const auto configuration = "--config-file=" + configurationFile;
    const auto address = "--print-address=" + std::to_string(writeEnd.get());
    process_ = fork();
    if (process_ == 0)
        runDaemon(configuration.c_str(), address.c_str(), writeEnd.get());
    writeEnd.close();
    address_ = firstLine(readEnd.get());
    EXPECT_FALSE(address_.empty()) << "dbus-daemon did not start";
}

PrivateBus::~PrivateBus() {
    kill();
}

void PrivateBus::freeze() const {
    ASSERT_GT(process_, 0);
    ASSERT_EQ(::kill(process_, SIGSTOP), 0);
    ASSERT_EQ(waitpid(process_, nullptr, WUNTRACED), process_); // until it has really stopped
}

void PrivateBus::kill() {
    if (process_ <= 0)
        return;
    EXPECT_EQ(::kill(process_, SIGKILL), 0);
    EXPECT_EQ(waitpid(process_, nullptr, 0), process_);
    process_ = -1;
}
