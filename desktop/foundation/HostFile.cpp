#include "HostFile.h"

#include <sys/stat.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>

std::expected<std::string, int> readRegularFile(const FileDescriptor& file, std::size_t maximumSize) {
    struct stat status{};
    if (fstat(file.get(), &status) != 0)
        return std::unexpected(errno);
    if (!S_ISREG(status.st_mode))
        return std::unexpected(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    std::string content;
    while (content.size() <= maximumSize) {
        constexpr std::size_t step = 65536;
        const auto expected = static_cast<std::size_t>(status.st_size);
        const auto used = content.size();
        // Room for one byte more than is expected, to see the end without another round.
        content.resize(std::max(used + step, std::min(expected, maximumSize) + 1));
        const auto size = pread(file.get(), &content[used], content.size() - used, static_cast<off_t>(used));
        if (size < 0 && errno != EINTR)
            return std::unexpected(errno);
        content.resize(used + (size < 0 ? 0 : static_cast<std::size_t>(size)));
        if (size == 0)
            return content;
    }
    return std::unexpected(EFBIG);
}
