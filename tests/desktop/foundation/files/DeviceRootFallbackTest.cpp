#include "TestDevice.h"
#include "files/DeviceRoot.h"

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

using Resolution = DeviceRoot::Resolution;

/// From now on the kernel answers openat2 with that error in this process.
void refuseOpenat2(unsigned error) {
    auto program = std::to_array<sock_filter>({
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    });
    const sock_fprog filter{.len = program.size(), .filter = program.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0)
        std::abort();
}

class DeviceRootFallbackTest : public testing::TestWithParam<unsigned> {
protected:
    DeviceRootFallbackTest() { std::ofstream(folder.path() + "/file") << "text"; }

    TemporaryFolder folder;
};

using DeviceRootFallbackDeathTest = DeviceRootFallbackTest;

/// Ends the process with 0 when the root opens its file in the expected way.
[[noreturn]] void exitAfterOpening(const std::expected<DeviceRoot, int>& root, Resolution resolution) {
    const bool isRight = root && root->resolution() == resolution && root->open("/../file", O_RDONLY);
    std::_Exit(isRight ? 0 : 1);
}

} // namespace

TEST_P(DeviceRootFallbackDeathTest, PathsAreResolvedByHandWhereTheKernelRefuses) {
    EXPECT_EXIT(
        {
            refuseOpenat2(GetParam());
            exitAfterOpening(DeviceRoot::open(folder.path()), Resolution::ByHand);
        },
        testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(Errors, DeviceRootFallbackDeathTest, testing::Values(ENOSYS, EPERM, E2BIG));

TEST_F(DeviceRootFallbackDeathTest, ACallIsDoneByHandWhenTheKernelGivesUpOnAChangingTree) {
    EXPECT_EXIT(
        {
            const auto root = DeviceRoot::open(folder.path(), Resolution::Kernel);
            refuseOpenat2(EAGAIN);
            exitAfterOpening(root, Resolution::Kernel);
        },
        testing::ExitedWithCode(0), "");
}
