#include "platform/ini_file.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/file_system_doubles.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

constexpr const char* kFile =
    "; settings of the program\n"
    "stray=1\n"
    "[Paths]\n"
    "Custom=custom.tpl\n"
    "  Spaced Key  =  a b  \n"
    "Empty=\n"
    "; Custom=comment.tpl\n"
    "  ;Hidden=1\n"
    "Equation=a=b=c\n"
    "Double=\"  in quotes  \"\n"
    "Single='in quotes'\n"
    "Open=\"half\n"
    "Mixed=\"half'\n"
    "Lone=\"\n"
    "Pair=\"\"\n"
    "no equals sign\n"
    "\n"
    "  [ Other Section ]  \n"
    "Custom=other.tpl\n"
    "Only=here\n"
    "[Empty]\n"
    "[Last]\n"
    "Key=last";

struct ReadRow {
    std::string_view section;
    std::string_view key;
    std::string_view value;
};

constexpr ReadRow kReadRows[] = {
    {"Paths", "Custom", "custom.tpl"},
    {"PATHS", "custom", "custom.tpl"},
    {"Paths", "Spaced Key", "a b"},
    {"Paths", "Empty", ""},
    {"Paths", "Equation", "a=b=c"},
    {"Paths", "Double", "  in quotes  "},
    {"Paths", "Single", "in quotes"},
    {"Paths", "Open", "\"half"},
    {"Paths", "Mixed", "\"half'"},
    {"Paths", "Lone", "\""},
    {"Paths", "Pair", ""},
    {"Other Section", "Custom", "other.tpl"},
    {"Other Section", "Only", "here"},
    {"Last", "Key", "last"},
    // what is not there
    {"Paths", "Hidden", ""},
    {"Paths", ";Hidden", ""},
    {"Paths", "; Custom", ""},
    {"Paths", "Only", ""},
    {"Paths", "Key", ""},
    {"Paths", "no equals sign", ""},
    {"Paths", "stray", ""},
    {"Paths", "Custo", ""},
    {"Empty", "Key", ""},
    {"Empty", "Custom", ""},
    {"Path", "Custom", ""},
    {"", "stray", ""},
    {"Last", "Custom", ""},
};

class IniFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::string Read(std::string_view section, std::string_view key) const {
        return ReadIni(files_, section, key, file_);
    }
    [[nodiscard]] bool Write(std::string_view section, std::string_view key, std::string_view value) {
        return WriteIni(files_, section, key, value, file_);
    }

    TemporaryFolder folder_;
    NativeFileSystem files_;
    Path file_ = folder_ / "kvor.ini";
};

TEST_F(IniFileTest, AKeyIsReadFromItsSection) {
    WriteFile(file_, kFile);
    for (const ReadRow& row : kReadRows) {
        EXPECT_EQ(Read(row.section, row.key), row.value) << '[' << row.section << "] " << row.key;
    }
}

TEST_F(IniFileTest, LineEndsOfOtherSystemsReadTheSame) {
    std::string content;
    for (const char* c = kFile; *c != '\0'; ++c) content += *c == '\n' ? "\r\n" : std::string(1, *c);
    WriteFile(file_, content);
    for (const ReadRow& row : kReadRows) {
        EXPECT_EQ(Read(row.section, row.key), row.value) << '[' << row.section << "] " << row.key;
    }
}

TEST_F(IniFileTest, AValueHasAtMost255Characters) {
    for (const std::size_t length : {254U, 255U, 256U, 3000U}) {
        const std::string value(length, 'x');
        const std::string expected = value.substr(0, 255);
        WriteFile(file_, "[A]\nPlain=" + value + "\nQuoted=\"" + value + "\"\n");
        EXPECT_EQ(Read("A", "Plain"), expected) << length;
        EXPECT_EQ(Read("A", "Quoted"), expected) << length;
    }
}

TEST_F(IniFileTest, WhatIsNoReadableFileHasNoValues) {
    EXPECT_EQ(Read("A", "Key"), "");
    EXPECT_EQ(ReadIni(files_, "A", "Key", folder_.path()), "");
    EXPECT_EQ(ReadIni(files_, "A", "Key", folder_ / "none" / "kvor.ini"), "");
    WriteFile(file_, "");
    EXPECT_EQ(Read("A", "Key"), "");
    WriteFile(file_, "[A]\nKey=1\n");
    ASSERT_EQ(Read("A", "Key"), "1");
    const FaultyFileSystem faulty(files_, {.operation = 0});
    EXPECT_EQ(ReadIni(faulty, "A", "Key", file_), "");
}

struct WriteRow {
    const char* before;
    const char* section;
    const char* key;
    const char* value;
    const char* after;
};

constexpr WriteRow kWriteRows[] = {
    // a key that is there
    {"[A]\nKey=1\n", "A", "Key", "2", "[A]\nKey=2\n"},
    {"[A]\nOther=1\nKey=1\nThird=1\n", "A", "Key", "2", "[A]\nOther=1\nKey=2\nThird=1\n"},
    {"[A]\nKey=1\n[B]\nKey=1\n", "B", "Key", "2", "[A]\nKey=1\n[B]\nKey=2\n"},
    {"[B]\nKey=1\n[A]\nKey=1\n", "B", "Key", "2", "[B]\nKey=2\n[A]\nKey=1\n"},
    {"[A]\nKey=1\n", "A", "Key", "", "[A]\nKey=\n"},
    // a key that is not there, in a section that is
    {"[A]\nOther=1\n", "A", "Key", "2", "[A]\nOther=1\nKey=2\n"},
    {"[A]\n", "A", "Key", "2", "[A]\nKey=2\n"},
    {"[A]\nOther=1\n[B]\nKey=1\n", "A", "Key", "2", "[A]\nOther=1\nKey=2\n[B]\nKey=1\n"},
    {"[A]\n[B]\n", "A", "Key", "2", "[A]\nKey=2\n[B]\n"},
    {"[A]\n; Key=1\n", "A", "Key", "2", "[A]\n; Key=1\nKey=2\n"},
    // a section that is not there
    {"", "A", "Key", "2", "[A]\nKey=2\n"},
    {"[B]\nKey=1\n", "A", "Key", "2", "[B]\nKey=1\n[A]\nKey=2\n"},
    {"Key=1\n", "A", "Key", "2", "Key=1\n[A]\nKey=2\n"},
    // every other line stays, whatever it is
    {"; c\n\n[B] \n x = 1 \nno equals\n\n[A]\nKey=1\n\n; end\n", "A", "Key", "2",
     "; c\n\n[B] \n x = 1 \nno equals\n\n[A]\nKey=2\n\n; end\n"},
    {"[A]\nKey=1", "A", "Key", "2", "[A]\nKey=2\n"},
    {"[A]\nOther=1", "A", "Key", "2", "[A]\nOther=1\nKey=2\n"},
    {"[A]\r\nOther=1\r\nKey=1\r\nThird=1\r\n", "A", "Key", "2", "[A]\r\nOther=1\r\nKey=2\r\nThird=1\r\n"},
    {"[A]\r\nOther=1\r\n", "B", "Key", "2", "[A]\r\nOther=1\r\n[B]\r\nKey=2\r\n"},
};

TEST_F(IniFileTest, AKeyIsWrittenInItsPlaceAndEveryOtherLineStays) {
    for (const WriteRow& row : kWriteRows) {
        WriteFile(file_, row.before);
        EXPECT_TRUE(Write(row.section, row.key, row.value)) << row.before;
        EXPECT_EQ(ReadFile(file_), row.after) << row.before;
        EXPECT_EQ(Read(row.section, row.key), row.value) << row.before;
    }
}

TEST_F(IniFileTest, NamesAreFoundWithoutRegardToCaseWhenWriting) {
    WriteFile(file_, "[paths]\ncustom=1\n");
    EXPECT_TRUE(Write("Paths", "Custom", "2"));
    EXPECT_EQ(Read("Paths", "Custom"), "2");
    EXPECT_EQ(ReadFile(file_).find("custom=1"), std::string::npos);
    EXPECT_EQ(ReadFile(file_).find("[Paths]"), std::string::npos) << "one section of a name is enough";
}

TEST_F(IniFileTest, AMissingFileIsMade) {
    EXPECT_TRUE(Write("A", "Key", "2"));
    EXPECT_EQ(ReadFile(file_), "[A]\nKey=2\n");
}

TEST_F(IniFileTest, WhatCannotBeWrittenIsReported) {
    EXPECT_FALSE(WriteIni(files_, "A", "Key", "2", folder_.path()));
    EXPECT_FALSE(WriteIni(files_, "A", "Key", "2", folder_ / "none" / "kvor.ini"));
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
}

TEST_F(IniFileTest, AFailureAtAnyMomentLeavesTheFileWhole) {
    const std::string before = "[A]\nKey=1\n";
    const std::string after = "[A]\nKey=2\n";
    WriteFile(file_, before);
    FaultyFileSystem sound(files_, {});
    ASSERT_TRUE(WriteIni(sound, "A", "Key", "2", file_));
    ASSERT_GT(sound.operations(), 1);
    for (int operation = 0; operation < sound.operations(); ++operation) {
        WriteFile(file_, before);
        FaultyFileSystem faulty(files_, {.operation = operation, .bytes = 3});
        const bool written = WriteIni(faulty, "A", "Key", "2", file_);
        EXPECT_EQ(ReadFile(file_), written ? after : before) << operation;
        // The last operation only flushes the folder: by then the new file is in place.
        EXPECT_EQ(written, operation == sound.operations() - 1) << operation;
    }
}

}  // namespace
}  // namespace kelvor::test
