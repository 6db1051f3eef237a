#include "store/work_copy.h"

#include <gtest/gtest.h>

#include "platform/sqlite.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

class WorkCopyTest : public testing::Test {
  protected:
    WorkCopyTest() { std::filesystem::copy_file(home_ / "kvrwork.tpl", home_ / "kvrwork.tmp"); }

    /// The cell at (1, 1) as the file has it.
    CellValue Read(WorkCopy& workCopy, const std::string& name) {
        CellValue found;
        workCopy.ReadRows([&](const WorkCopy::Row& row) {
            if (row.name == name && row.dim1 == 1 && row.dim2 == 1) found = row.value;
        });
        return found;
    }

    TestHome home_;
};

TEST_F(WorkCopyTest, ARowIsChangedByItsKeyWithoutRegardToCase) {
    WorkCopy workCopy(home_ / "kvrwork.tmp", true);
    workCopy.Update("sn", 1, 1, {4.5, "4.5"});
    EXPECT_EQ(Read(workCopy, "SN"), (CellValue{4.5, "4.5"}));
    workCopy.Update("SN", 1, 1, {});
    EXPECT_EQ(Read(workCopy, "SN"), CellValue{});
}

TEST_F(WorkCopyTest, AChangeOfARowThatIsNotThereIsAFailure) {
    WorkCopy workCopy(home_ / "kvrwork.tmp", true);
    EXPECT_THROW(workCopy.Update("NOSUCH", 1, 1, {4.5, std::nullopt}), DatabaseError);
    EXPECT_THROW(workCopy.Update("SN", 2, 1, {4.5, std::nullopt}), DatabaseError);
    workCopy.Update("SN", 1, 1, {4.5, std::nullopt});
    EXPECT_EQ(Read(workCopy, "SN"), (CellValue{4.5, std::nullopt}));
}

TEST_F(WorkCopyTest, WhatIsRolledBackIsGoneAndWhatIsCommittedStays) {
    WorkCopy workCopy(home_ / "kvrwork.tmp", true);
    workCopy.Begin();
    workCopy.Update("SN", 1, 1, {4.5, std::nullopt});
    workCopy.Commit();
    workCopy.Begin();
    workCopy.Update("SN", 1, 1, {5.5, std::nullopt});
    workCopy.Rollback();
    EXPECT_EQ(Read(workCopy, "SN"), (CellValue{4.5, std::nullopt}));
    workCopy.Rollback();  // nothing is open
    EXPECT_THROW(workCopy.Commit(), DatabaseError);
}

TEST_F(WorkCopyTest, AFileThatIsMissingIsNotMade) {
    EXPECT_THROW(WorkCopy(home_ / "nowhere.tmp", true), DatabaseError);
    EXPECT_FALSE(std::filesystem::exists(home_ / "nowhere.tmp"));
}

}  // namespace
}  // namespace kelvor::test
