#include "platform/user_folders.h"

#include <gtest/gtest.h>

#include <map>

#include "support/temporary_folder.h"

namespace kelvor::test {
namespace {

class UserFoldersTest : public testing::Test {
  protected:
    UserFoldersTest() : environment_{{"HOME", user_.path().string()}} {}

    UserFolders Find() {
        const NativeFileSystem files;
        return FindUserFolders(files, [&](const char* variable) {
            const auto found = environment_.find(variable);
            return found == environment_.end() ? std::string() : found->second;
        });
    }

    void WriteUserDirs(const Path& folder, const std::string& content) {
        std::filesystem::create_directories(folder);
        WriteFile(folder / "user-dirs.dirs", content);
    }

    TemporaryFolder user_;
    std::map<std::string, std::string> environment_;
};

TEST_F(UserFoldersTest, WithoutSettingsTheyLieInTheHomeFolder) {
    EXPECT_EQ(Find().data, user_ / ".local/share");
    EXPECT_EQ(Find().documents, user_ / "Documents");
}

TEST_F(UserFoldersTest, TheEnvironmentNamesTheFolderOfData) {
    environment_["XDG_DATA_HOME"] = "/srv/anna/data";
    EXPECT_EQ(Find().data, "/srv/anna/data");
}

TEST_F(UserFoldersTest, WhatIsNoPathFromTheRootIsPassedOver) {
    environment_["XDG_DATA_HOME"] = "data";
    EXPECT_EQ(Find().data, user_ / ".local/share");
}

TEST_F(UserFoldersTest, TheDesktopNamesTheFolderOfDocuments) {
    WriteUserDirs(user_ / ".config",
                  "# a comment\nXDG_MUSIC_DIR=\"$HOME/Music\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    EXPECT_EQ(Find().documents, user_ / "Papers");
}

TEST_F(UserFoldersTest, TheFolderOfDocumentsMayLieOutsideTheHomeFolder) {
    environment_["XDG_CONFIG_HOME"] = (user_ / "settings").string();
    WriteUserDirs(user_ / "settings", "  XDG_DOCUMENTS_DIR=\"/srv/office/papers\"  \n");
    EXPECT_EQ(Find().documents, "/srv/office/papers");
}

TEST_F(UserFoldersTest, WhatIsNoSettingIsPassedOver) {
    for (const char* line : {"XDG_DOCUMENTS_DIR=\"", "XDG_DOCUMENTS_DIR=\"\"", "XDG_DOCUMENTS_DIR=Papers",
                             "#XDG_DOCUMENTS_DIR=\"$HOME/Papers\"", "XDG_DOCUMENTS_DIR=\"Papers\""}) {
        WriteUserDirs(user_ / ".config", std::string(line) + "\n");
        EXPECT_EQ(Find().documents, user_ / "Documents") << line;
    }
}

TEST_F(UserFoldersTest, AUserWithoutTheVariableIsLookedUp) {
    environment_.clear();
    EXPECT_TRUE(Find().data.is_absolute());
}

TEST_F(UserFoldersTest, MissingFoldersAreMadeForTheirOwnerAlone) {
    MakePrivateFolders(user_ / "a/b");
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(user_ / "a").permissions(), perms::owner_all);
    EXPECT_EQ(std::filesystem::status(user_ / "a/b").permissions(), perms::owner_all);
    WriteFile(user_ / "file", "");
    EXPECT_THROW(MakePrivateFolders(user_ / "file/folder"), FileError);
}

}  // namespace
}  // namespace kelvor::test
