#include "endurance/file_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace kelvor::test {

namespace {

constexpr std::size_t kMostFiles = 4096;

struct Watched {
    std::vector<std::string> folders;
    std::array<bool, kMostFiles> open{};  // by descriptor
    int count = 0;
    int failing = FileCalls::kNone;
    int pauses = 0;
    bool failed = false;
};

Watched& State() {
    static Watched state;
    return state;
}

bool IsWatched(const char* path) {
    for (const std::string& folder : State().folders) {
        if (path != nullptr && std::strncmp(path, folder.c_str(), folder.size()) == 0) return true;
    }
    return false;
}

bool IsWatched(int file) {
    return file >= 0 && static_cast<std::size_t>(file) < kMostFiles &&
           State().open[static_cast<std::size_t>(file)];
}

void Note(int file, bool watched) {
    if (file >= 0 && static_cast<std::size_t>(file) < kMostFiles) {
        State().open[static_cast<std::size_t>(file)] = watched;
    }
}

/// Counts a call, and sets `errno` to the reason if it is the one that fails.
bool Fails(bool watched, int reason) {
    Watched& state = State();
    if (!watched || state.pauses > 0) return false;
    if (state.count++ != state.failing) return false;
    state.failed = true;
    errno = reason;
    return true;
}

/// The system's own function behind one of ours.
template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// A disk that is full, where something new comes; a broken one otherwise.
int ReasonOfOpening(int flags) { return (flags & O_CREAT) != 0 ? ENOSPC : EIO; }

template <typename Open>
int OpenNoted(const char* path, int flags, const Open& open) {
    const bool watched = IsWatched(path);
    if (Fails(watched, ReasonOfOpening(flags))) return -1;
    const int file = open();
    Note(file, watched);
    return file;
}

}  // namespace

void FileCalls::Watch(const std::vector<std::string>& folders, int failing) {
    Watched& state = State();
    state.folders = folders;
    state.count = 0;
    state.failing = failing;
    state.failed = false;
}

int FileCalls::Count() { return State().count; }
bool FileCalls::HasFailed() { return State().failed; }
FileCalls::Pause::Pause() { ++State().pauses; }
FileCalls::Pause::~Pause() { --State().pauses; }

}  // namespace kelvor::test

// The calls of the system, under its own names: the dynamic linker takes those of a program before those of a
// library.

using kelvor::test::Fails;
using kelvor::test::IsWatched;
using kelvor::test::Next;
using kelvor::test::Note;
using kelvor::test::OpenNoted;

// NOLINTBEGIN(cppcoreguidelines-pro-type-vararg, cert-dcl50-cpp,
// readability-inconsistent-declaration-parameter-name)
extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : mode_t{};
    va_end(more);
    static const auto next = Next<int(const char*, int, ...)>("open");
    return OpenNoted(path, flags, [&] { return next(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : mode_t{};
    va_end(more);
    static const auto next = Next<int(const char*, int, ...)>("open64");
    return OpenNoted(path, flags, [&] { return next(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : mode_t{};
    va_end(more);
    static const auto next = Next<int(int, const char*, int, ...)>("openat");
    return OpenNoted(path, flags, [&] { return next(folder, path, flags, mode); });
}

int close(int file) {
    static const auto next = Next<int(int)>("close");
    const bool fails = Fails(IsWatched(file), EIO);
    Note(file, false);
    const int result = next(file);
    if (!fails) return result;
    errno = EIO;  // it is closed all the same
    return -1;
}

ssize_t read(int file, void* bytes, std::size_t count) {
    static const auto next = Next<ssize_t(int, void*, std::size_t)>("read");
    return Fails(IsWatched(file), EIO) ? -1 : next(file, bytes, count);
}

ssize_t pread64(int file, void* bytes, std::size_t count, off64_t place) {
    static const auto next = Next<ssize_t(int, void*, std::size_t, off64_t)>("pread64");
    return Fails(IsWatched(file), EIO) ? -1 : next(file, bytes, count, place);
}

ssize_t write(int file, const void* bytes, std::size_t count) {
    static const auto next = Next<ssize_t(int, const void*, std::size_t)>("write");
    return Fails(IsWatched(file), ENOSPC) ? -1 : next(file, bytes, count);
}

ssize_t pwrite64(int file, const void* bytes, std::size_t count, off64_t place) {
    static const auto next = Next<ssize_t(int, const void*, std::size_t, off64_t)>("pwrite64");
    return Fails(IsWatched(file), ENOSPC) ? -1 : next(file, bytes, count, place);
}

int fsync(int file) {
    static const auto next = Next<int(int)>("fsync");
    return Fails(IsWatched(file), EIO) ? -1 : next(file);
}

int fdatasync(int file) {
    static const auto next = Next<int(int)>("fdatasync");
    return Fails(IsWatched(file), EIO) ? -1 : next(file);
}

int ftruncate64(int file, off64_t length) noexcept {
    static const auto next = Next<int(int, off64_t)>("ftruncate64");
    return Fails(IsWatched(file), EIO) ? -1 : next(file, length);
}

int rename(const char* from, const char* to) noexcept {
    static const auto next = Next<int(const char*, const char*)>("rename");
    return Fails(IsWatched(to), EIO) ? -1 : next(from, to);
}

int unlink(const char* path) noexcept {
    static const auto next = Next<int(const char*)>("unlink");
    return Fails(IsWatched(path), EIO) ? -1 : next(path);
}

int remove(const char* path) noexcept {
    static const auto next = Next<int(const char*)>("remove");
    return Fails(IsWatched(path), EIO) ? -1 : next(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    static const auto next = Next<int(const char*, mode_t)>("mkdir");
    return Fails(IsWatched(path), ENOSPC) ? -1 : next(path, mode);
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    static const auto next = Next<int(int, const char*, mode_t, int)>("fchmodat");
    return Fails(IsWatched(path), EIO) ? -1 : next(folder, path, mode, flags);
}

}  // extern "C"
// NOLINTEND(cppcoreguidelines-pro-type-vararg, cert-dcl50-cpp,
// readability-inconsistent-declaration-parameter-name)
