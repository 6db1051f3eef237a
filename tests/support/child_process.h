#pragma once

#include <grp.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "platform/file_system.h"

namespace kelvor::test {

/// How a child process ended.
struct ChildEnd {
    std::string report;  // what its action returned
    bool exited = false;
    int signal = 0;  // that killed it
};

/// With root's rights nothing is unreadable or unwritable, so a child can give them up.
enum class Rights { Own, Unprivileged };

namespace detail {

constexpr uid_t kNobody = 65534;

inline bool GiveUpRoot() {
    if (::geteuid() != 0) return true;
    return ::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0;
}

inline void SendAll(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(fd, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

inline std::string ReceiveAll(int fd) {
    std::string text;
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(fd, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return text;
        text.append(buffer, static_cast<std::size_t>(count));
    }
}

}  // namespace detail

/// Runs an action that returns a text in a child process and gives that text. An exception in the child
/// is reported as "exception: " and its reason.
template <typename Action>
ChildEnd RunInChild(const Action& action, Rights rights = Rights::Own) {
    int ends[2];
    if (::pipe(ends) != 0) throw std::runtime_error("no pipe can be made");
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error("no process can be made");
    if (child == 0) {
        ::close(ends[0]);
        std::string report;
        try {
            const bool ready = rights == Rights::Own || detail::GiveUpRoot();
            report = ready ? action() : "exception: rights could not be given up";
        } catch (const std::exception& failure) {
            report = std::string("exception: ") + failure.what();
        }
        detail::SendAll(ends[1], report);
        ::_exit(0);
    }
    ::close(ends[1]);
    ChildEnd end;
    end.report = detail::ReceiveAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    end.exited = WIFEXITED(status);
    end.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return end;
}

/// Makes a folder with all in it readable by everybody; with `writable`, writable too.
inline void OpenToEverybody(const Path& folder, bool writable) {
    using std::filesystem::perms;
    const perms write =
        writable ? perms::owner_write | perms::group_write | perms::others_write : perms::none;
    const perms file = perms::owner_read | perms::group_read | perms::others_read | write;
    const perms directory = file | perms::owner_exec | perms::group_exec | perms::others_exec;
    std::filesystem::permissions(folder, directory);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_symlink()) continue;
        std::filesystem::permissions(entry.path(), entry.is_directory() ? directory : file);
    }
}

/// While it lives, nobody without root's rights can write to a folder or to what is in it.
class WriteProtection {
  public:
    explicit WriteProtection(Path folder) : folder_(std::move(folder)) { OpenToEverybody(folder_, false); }
    WriteProtection(const WriteProtection&) = delete;
    WriteProtection& operator=(const WriteProtection&) = delete;
    ~WriteProtection() { OpenToEverybody(folder_, true); }

  private:
    Path folder_;
};

}  // namespace kelvor::test
