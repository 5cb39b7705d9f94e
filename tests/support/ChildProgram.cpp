#include "ChildProgram.h"

#include <sys/wait.h>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace {

struct Pipe {
    Pipe() {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            std::abort();
        readEnd = FileDescriptor(ends[0]);
        writeEnd = FileDescriptor(ends[1]);
    }

    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

pid_t spawn(const std::string& path, const std::vector<std::string>& arguments, int input, int output) {
    std::vector<std::string> texts{path};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t process = -1;
    if (posix_spawn(&process, path.c_str(), &actions, nullptr, pointers.data(), environ) != 0)
        std::abort();
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

ChildProgram::ChildProgram(const std::string& path, const std::vector<std::string>& arguments) {
    Pipe input;
    Pipe output;
    process_ = spawn(path, arguments, input.readEnd.get(), output.writeEnd.get());
    input_ = std::move(input.writeEnd);
    output_ = std::move(output.readEnd);
}

ChildProgram::~ChildProgram() {
    if (process_ > 0) {
        kill();
        wait();
    }
}

void ChildProgram::sendLine(const std::string& line) const {
    const auto text = line + '\n';
    if (write(input_.get(), text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        std::abort();
}

std::optional<std::string> ChildProgram::readLine() {
    while (true) {
        if (const auto end = unread_.find('\n'); end != std::string::npos) {
            auto line = unread_.substr(0, end);
            unread_.erase(0, end + 1);
            return line;
        }
        std::array<char, 512> bytes{};
        const auto size = read(output_.get(), bytes.data(), bytes.size());
        if (size == 0 || (size < 0 && errno != EINTR))
            return std::nullopt;
        unread_.append(bytes.data(), size < 0 ? 0 : static_cast<std::size_t>(size));
    }
}

std::string ChildProgram::ask(const std::string& line) {
    sendLine(line);
    return readLine().value_or("no answer");
}

void ChildProgram::endInput() {
    input_ = FileDescriptor();
}

void ChildProgram::endOutput() {
    output_ = FileDescriptor();
}

void ChildProgram::kill() const {
    ::kill(process_, SIGKILL);
}

int ChildProgram::wait() {
    int status = 0;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR)
        continue;
    process_ = -1;
    return status;
}
