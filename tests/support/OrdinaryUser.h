#pragma once

#include <QString>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace tambrelle::test {

/// Within its scope the process has an ordinary user's rights, to whom a folder and all in it belong: the
/// superuser, whom no permission stops, becomes another one for a while.
class OrdinaryUser final {
public:
    explicit OrdinaryUser(const QString& folder) {
        if (::geteuid() != 0)
            return;
        own(folder.toStdString());
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.toStdString()))
            own(entry.path());
        hasChanged = ::seteuid(somebodyElse) == 0;
    }
    ~OrdinaryUser() {
        if (hasChanged && ::seteuid(0) != 0)
            std::abort();
    }

    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where this machine lets the superuser become nobody else.
    [[nodiscard]] static bool isOrdinary() { return ::geteuid() != 0; }

private:
    /// By convention the user without any rights of its own.
    static constexpr uid_t somebodyElse = 65534;

    static void own(const std::filesystem::path& path) {
        if (::lchown(path.c_str(), somebodyElse, static_cast<gid_t>(-1)) != 0)
            throw std::filesystem::filesystem_error("not given away", path,
                                                    std::error_code(errno, std::generic_category()));
    }

    bool hasChanged = false;
};

} // namespace tambrelle::test
