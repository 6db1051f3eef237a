// Reports as files beside the project.

#include "run_fixture.h"

namespace kelvor::test {
namespace {

class ExportTest : public ReportRunTest {
  protected:
    [[nodiscard]] std::string Folder() const { return (folder_ / "ExportDt").string(); }

    [[nodiscard]] std::string Created(int count) const {
        return "Export finished: " + std::to_string(count) +
               (count == 1 ? " file was created!! \n It is" : " files were created!! \n They are") +
               " located in the " + Folder() + " directory.";
    }

    [[nodiscard]] static std::string Exists(const std::string& name) {
        return "File exists: The export file " + name +
               " already exists.\nDo you want to replace existing file?";
    }
};

TEST_F(ExportTest, AnUnnamedProjectMustBeSavedFirst) {
    Enter("SN", "4.5");
    Export({"rbNDopR"});
    EXPECT_EQ(TitledMessages(), Lines{"Export Files: Please save the project first!"});
    EXPECT_TRUE(program_.host.record.inputs.empty());
    EXPECT_EQ(Exported(), Lines{});
}

TEST_F(ExportTest, AChangedProjectMustBeSavedToo) {
    SaveAs("Main.kvr");
    Enter("SN", "4.5");
    Export({"rbNDopR"});
    EXPECT_EQ(TitledMessages(), Lines{"Save: Please save the project first!"});
    EXPECT_EQ(Exported(), Lines{});
}

TEST_F(ExportTest, TheFileIsNamedAfterPrefixProjectAndReport) {
    SaveAs("Main.kvr");
    Answer("Bid");
    Export({"rbNDopR"});
    EXPECT_EQ(Exported(), Lines{"Bid_Main_Rigid Pavement Design.rtf"});
    EXPECT_EQ(ReadFile(folder_ / "ExportDt/Bid_Main_Rigid Pavement Design.rtf"), "DeR as rtf");
    EXPECT_EQ(TitledMessages(), Lines{Created(1)});
}

TEST_F(ExportTest, ThePrefixIsAskedFor) {
    SaveAs("Main.kvr");
    Export({"rbNDopR"});
    ASSERT_EQ(program_.host.record.inputs.size(), 1U);
    EXPECT_EQ(
        program_.host.record.inputs.front().text,
        "Using a prefix allows you to group the exported reports together by name.\n"
        "It allows a custom value (that you type in) to be appended to the name(s) of the files created.\n"
        "\nEnter a prefix below to use for naming the exported reports (the name format will be "
        "PREFIX_PROJECTNAME_REPORTNAME.RTF, if you enter none, the name format will be "
        "PROJECTNAME_REPORTNAME.RTF)");
    EXPECT_EQ(Exported(), Lines{"Main_Rigid Pavement Design.rtf"});  // it was cancelled
}

TEST_F(ExportTest, APrefixLeadsToNoOtherFolder) {
    SaveAs("Main.kvr");
    Answer("../../up");
    Export({"rbNDopR"});
    EXPECT_EQ(Exported(), Lines{".._.._up_Main_Rigid Pavement Design.rtf"});
}

TEST_F(ExportTest, TheNameOfTheProjectEndsAtItsFirstPoint) {
    SaveAs("Main.v2.kvr");
    Export({"rbNDopF"});
    EXPECT_EQ(Exported(), Lines{"Main_Flexible Design Inputs.rtf"});
}

TEST_F(ExportTest, EveryReportHasItsFile) {
    SaveAs("M.kvr");
    program_.Set("K", 100.0);
    Export({"rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA", "rbOVopAP", "rbOVopAAP"});
    EXPECT_EQ(TitledMessages(), Lines{Created(7)});
    program_.Set("K", 0.0);
    Export({"rbOVopUP"});
    Export({"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"});
    Export({"rbCost"});
    EXPECT_EQ(TitledMessages(), (Lines{Created(1), Created(3), Created(2)}));
    Lines expected = {"M_Bonded Overlay Design.rtf",
                      "M_Unbonded Pavement.rtf",
                      "M_Unbonded Pavement_Part.rtf",
                      "M_PCC Overlay of Asphalt (Whitetopping).rtf",
                      "M_AC Overlay of Fractured PCC  Pavement.rtf",
                      "M_AC Overlay of AC  Pavement.rtf",
                      "M_AC Overlay of PCC Pavement.rtf",
                      "M_AC Overlay of AC_PCC Pavement.rtf",
                      "M_ESAL Determination by Axle Data.rtf",
                      "M_ESAL Data by Vehicle Type.rtf",
                      "M_ESAL Determination by Traffic Factors.rtf",
                      "M_Cost Report(A).rtf",
                      "M_Cost Report(B).rtf"};
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(Exported(), expected);
    EXPECT_EQ(Previews(), "");
}

TEST_F(ExportTest, ThePrefixIsAskedForEvenWithNothingTicked) {
    SaveAs("Main.kvr");
    Export({});
    EXPECT_EQ(program_.host.record.inputs.size(), 1U);
    EXPECT_EQ(TitledMessages(), Lines{"Reports: No reports selected"});
}

TEST_F(ExportTest, NoLeavesOutThatFileAlone) {
    SaveAs("Main.kvr");
    std::filesystem::create_directory(Folder());
    WriteFile(folder_ / "ExportDt/Main_Cost Report(A).rtf", "signed");
    Answer("");    // no prefix
    Answer("no");  // the file stays
    Export({"rbCost"});
    EXPECT_EQ(TitledMessages(), (Lines{Exists("Main_Cost Report(A).rtf"), Created(1)}));
    EXPECT_EQ(ReadFile(folder_ / "ExportDt/Main_Cost Report(A).rtf"), "signed");
    EXPECT_EQ(ReadFile(folder_ / "ExportDt/Main_Cost Report(B).rtf"), "LCA2 as rtf");
}

TEST_F(ExportTest, WithEveryFileKeptNoReportsAreSelected) {
    SaveAs("Main.kvr");
    std::filesystem::create_directory(Folder());
    WriteFile(folder_ / "ExportDt/Main_Rigid Pavement Design.rtf", "signed");
    Answer("");
    Answer("no");
    Export({"rbNDopR"});
    EXPECT_EQ(TitledMessages(),
              (Lines{Exists("Main_Rigid Pavement Design.rtf"), "Reports: No reports selected"}));
}

TEST_F(ExportTest, YesReplacesTheFile) {
    SaveAs("Main.kvr");
    Export({"rbNDopR"});
    WriteFile(folder_ / "ExportDt/Main_Rigid Pavement Design.rtf", "old");
    (void)Messages();
    Answer("");
    Answer("yes");
    Export({"rbNDopR"});
    EXPECT_EQ(TitledMessages(), (Lines{Exists("Main_Rigid Pavement Design.rtf"), Created(1)}));
    EXPECT_EQ(ReadFile(folder_ / "ExportDt/Main_Rigid Pavement Design.rtf"), "DeR as rtf");
}

TEST_F(ExportTest, UnbalancedReportsAreToldAtTheEnd) {
    SaveAs("Main.kvr");
    Unbalance(BalanceFlag::DeF);
    const std::string failed =
        "Reports: The following report(s) could not be exported, because not all input forms were balanced!\n"
        "Flexible Design Report\n\nPlease go back and balance the form(s) first.";
    Export({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(TitledMessages(), (Lines{Created(1), failed}));
    Export({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{failed});
}

TEST_F(ExportTest, AnUnbalancedReportsFileIsNotAskedFor) {
    SaveAs("Main.kvr");
    std::filesystem::create_directory(Folder());
    WriteFile(folder_ / "ExportDt/Main_Flexible Design Inputs.rtf", "signed");
    Unbalance(BalanceFlag::DeF);
    Export({"rbNDopF"});
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(ReadFile(folder_ / "ExportDt/Main_Flexible Design Inputs.rtf"), "signed");
}

TEST_F(ExportTest, AReportWithoutItsLayoutIsLeftOut) {
    SaveAs("Main.kvr");
    std::filesystem::remove(LayoutFolder() / "Rep_DeR.vsr");
    Export({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(TitledMessages(), (Lines{"Reports: Rep_DeR.vsr is missing", Created(1)}));
    EXPECT_EQ(Exported(), Lines{"Main_Flexible Design Inputs.rtf"});
}

TEST_F(ExportTest, AFolderThatCannotBeMadeIsAFailureThatLeavesNothing) {
    SaveAs("Main.kvr");
    WriteFile(folder_ / "ExportDt", "a file in its place");
    Export({"rbNDopF"});
    const Lines messages = TitledMessages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages.front(), "Kelvor: Error exporting files!");
    EXPECT_TRUE(messages.back().starts_with("Reports: ")) << "then why: " << messages.back();
    EXPECT_EQ(ReadFile(folder_ / "ExportDt"), "a file in its place");
}

TEST_F(ExportTest, AFileThatCannotBeWrittenStaysAsItWas) {
    SaveAs("Main.kvr");
    std::filesystem::create_directory(Folder());
    std::filesystem::create_directory(folder_ / "ExportDt/Main_Rigid Pavement Design.rtf");
    Answer("");
    Answer("yes");
    Export({"rbNDopR"});
    const Lines messages = TitledMessages();
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_EQ(messages[1], "Kelvor: Error exporting files!");
    EXPECT_TRUE(messages.back().starts_with("Reports: ")) << "then why: " << messages.back();
    EXPECT_EQ(Exported(), Lines{"Main_Rigid Pavement Design.rtf"});
}

}  // namespace
}  // namespace kelvor::test
