#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "tests/support/Lack.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tambrelle {
namespace {

using namespace std::chrono_literals;

constexpr int succeeded = 0;
constexpr int failed = 1;
constexpr int notPermitted = 77;

// Only this process, a child made for it, sees what follows: /etc becomes a folder of ours.
bool hideEtcBehind(const std::filesystem::path& folder) {
    const auto user = getuid();
    const auto group = getgid();
    if (unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        std::ofstream{"/proc/self/setgroups"} << "deny";
        std::ofstream{"/proc/self/uid_map"} << "0 " << user << " 1";
        std::ofstream{"/proc/self/gid_map"} << "0 " << group << " 1";
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount(folder.c_str(), "/etc", nullptr, MS_BIND, nullptr) == 0;
}

std::int64_t hourOfUtcNoon() {
    const auto civil =
        GregorianCalendar::components(std::chrono::sys_days{std::chrono::year{2025} / 11 / 15} + 12h);
    return civil ? civil->hour : -1;
}

// Replaces the file as administration tools do: a new link takes the old one's name.
void setLocaltime(const std::string& zone) {
    std::filesystem::create_symlink("/usr/share/zoneinfo/" + zone, "/etc/localtime.new");
    std::filesystem::rename("/etc/localtime.new", "/etc/localtime");
}

bool expectHour(std::int64_t expected, const char* when) {
    const auto hour = hourOfUtcNoon();
    if (hour != expected)
        std::fprintf(stderr, "%s: hour %lld instead of %lld\n", when, static_cast<long long>(hour),
                     static_cast<long long>(expected));
    return hour == expected;
}

int followChangesOfLocaltime(const std::filesystem::path& folder) {
    if (!hideEtcBehind(folder))
        return notPermitted;
    unsetenv("TZ");
    bool all = expectHour(12, "no file");
    setLocaltime("Europe/Paris");
    all &= expectHour(13, "a file appears");
    setLocaltime("Asia/Tokyo");
    all &= expectHour(21, "another file");
    setLocaltime("America/New_York");
    all &= expectHour(7, "another file again");
    std::ofstream{"/etc/garbage"} << "not zone data";
    std::filesystem::rename("/etc/garbage", "/etc/localtime");
    all &= expectHour(12, "a damaged file");
    setLocaltime("Asia/Tokyo");
    all &= expectHour(21, "a good file after a damaged one");
    std::filesystem::remove("/etc/localtime");
    all &= expectHour(12, "the file gone");
    setLocaltime("Europe/Paris");
    all &= expectHour(13, "the file back");
    setenv("TZ", "Asia/Tokyo", 1);
    all &= expectHour(21, "TZ over the file");
    unsetenv("TZ");
    all &= expectHour(13, "TZ gone");
    return all ? succeeded : failed;
}

TEST(SystemZone, CountsAtOnceWhenLocaltimeIsReplaced) {
    std::string pattern = std::filesystem::temp_directory_path() / "tambrelle-etc-XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    const std::filesystem::path folder = pattern;

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        _exit(followChangesOfLocaltime(folder));
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    std::filesystem::remove_all(folder);

    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == notPermitted) {
        ASSERT_TRUE(test::mayLack("mounts of a process's own"));
        GTEST_SKIP();
    }
    EXPECT_EQ(WEXITSTATUS(status), succeeded);
}

} // namespace
} // namespace tambrelle
