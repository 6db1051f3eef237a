#include "support/file_system_doubles.h"

#include <csignal>
#include <new>

namespace kelvor::test {

void FaultyFileSystem::Fail() const {
    if (plan_.kill) std::raise(SIGKILL);
    if (plan_.outOfMemory) throw std::bad_alloc();
    throw FileError(kReason);
}

void FaultyFileSystem::CountOrFail() const {
    if (GoesWrong()) Fail();
}

std::string FaultyFileSystem::Read(const Path& path, std::size_t limit) const {
    CountOrFail();
    return inner_.Read(path, limit);
}

std::string FaultyFileSystem::ReadStart(const Path& path, std::size_t count) const {
    CountOrFail();
    return inner_.ReadStart(path, count);
}

void FaultyFileSystem::Write(const Path& path, std::string_view content) {
    if (GoesWrong()) {
        if (plan_.bytes > 0) inner_.Write(path, content.substr(0, plan_.bytes));
        Fail();
    }
    inner_.Write(path, content);
}

std::unique_ptr<FileHold> FaultyFileSystem::WriteNew(const Path& path, std::string_view content,
                                                     FileAccess access) {
    if (GoesWrong()) {
        std::unique_ptr<FileHold> half;
        if (plan_.bytes > 0) half = inner_.WriteNew(path, content.substr(0, plan_.bytes), access);
        Fail();
    }
    return inner_.WriteNew(path, content, access);
}

void FaultyFileSystem::Flush(const Path& path) {
    CountOrFail();
    inner_.Flush(path);
}

void FaultyFileSystem::Rename(const Path& from, const Path& to) {
    CountOrFail();
    inner_.Rename(from, to);
}

void FaultyFileSystem::Remove(const Path& path) {
    CountOrFail();
    inner_.Remove(path);
}

void FaultyFileSystem::MakeDirectory(const Path& path) {
    CountOrFail();
    inner_.MakeDirectory(path);
}

void FaultyFileSystem::CopyPermissions(const Path& from, const Path& to) {
    CountOrFail();
    inner_.CopyPermissions(from, to);
}

}  // namespace kelvor::test
