// Any text read and written as a configuration file: a value fits its buffer, what is written is read back,
// and writing one key leaves the others.

#include <map>

#include "fuzz_target.h"
#include "platform/ini_file.h"

namespace kelvor::test {
namespace {

constexpr std::size_t kLongestFile = 64 * 1024;
constexpr std::size_t kLongestValue = 255;

/// Files in memory.
class MemoryFiles : public FileSystem {
  public:
    [[nodiscard]] FileKind Kind(const Path& path) const override {
        return files_.contains(path) ? FileKind::Regular : FileKind::Missing;
    }
    [[nodiscard]] std::string Read(const Path& path, std::size_t limit) const override {
        const std::string& content = Content(path);
        if (content.size() > limit) throw FileTooLarge();
        return content;
    }
    [[nodiscard]] std::string ReadStart(const Path& path, std::size_t count) const override {
        return Content(path).substr(0, count);
    }
    void Write(const Path& path, std::string_view content) override { files_[path] = content; }
    [[nodiscard]] std::unique_ptr<FileHold> WriteNew(const Path& path, std::string_view content,
                                                     FileAccess /*access*/) override {
        Write(path, content);
        return std::make_unique<FileHold>();
    }
    [[nodiscard]] std::vector<std::string> Names(const Path& /*folder*/) const override { return {}; }
    void RemoveUnheld(const Path& path) override { Remove(path); }
    void Flush(const Path& /*path*/) override {}
    void Rename(const Path& from, const Path& to) override {
        files_[to] = files_.at(from);
        files_.erase(from);
    }
    void Remove(const Path& path) override { files_.erase(path); }
    void MakeDirectory(const Path& /*path*/) override {}
    [[nodiscard]] bool IsWritable(const Path& /*path*/) const override { return true; }
    void CopyPermissions(const Path& /*from*/, const Path& /*to*/) override {}
    [[nodiscard]] Path Resolve(const Path& path) const override { return path; }

  private:
    [[nodiscard]] const std::string& Content(const Path& path) const {
        const auto file = files_.find(path);
        if (file == files_.end()) throw FileError("No such file or directory");
        return file->second;
    }

    std::map<Path, std::string> files_;
};

}  // namespace

std::vector<std::string> Seeds() {
    return {"[kvor]\nApplication=Kelvor.mdb\nCustom=custom.tpl\nOfficePath=\n",
            "; comment\r\n[Other]\r\nApplication = x\r\n\r\n[ KVOR ]\r\n application = \"Kelvor.mdb\" \r\n"
            ";Custom=no\r\nCUSTOM='custom.tpl'\r\n[last]\r\nOfficePath=/usr/lib\r\n"};
}

int FuzzIni(const std::uint8_t* data, std::size_t size) {
    if (size > kLongestFile) return 0;
    const Path file = "/kvor.ini";
    MemoryFiles files;
    files.Write(file, ToText(data, size));
    const auto read = [&](const char* key) { return ReadIni(files, "kvor", key, file); };

    const std::string application = read("Application");
    const std::string custom = read("Custom");
    Require(application.size() <= kLongestValue && custom.size() <= kLongestValue, "a value fits its buffer");
    for (const std::string value : {"/opt/office", "", "a=b;c [d]"}) {
        Require(WriteIni(files, "kvor", "OfficePath", value, file), "a value can be written");
        Require(read("OfficePath") == value, "what is written is read back");
        Require(read("officepath") == value, "names compare without regard to case");
        Require(read("Application") == application && read("Custom") == custom, "the other keys stand");
    }
    const std::string once = files.Read(file, kLongestFile * 2);
    Require(WriteIni(files, "kvor", "OfficePath", "a=b;c [d]", file), "a value can be written again");
    Require(files.Read(file, kLongestFile * 2) == once, "writing the same again changes nothing");
    return 0;
}

}  // namespace kelvor::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kelvor::test::FuzzIni(data, size);
}
