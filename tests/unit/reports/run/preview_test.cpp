// The two orders of acts that lead to previews, and the previews.

#include "run_fixture.h"

namespace kelvor::test {
namespace {

constexpr const char* kUnavailable =
    "Problem: A necessary system component needed to run reports could not be found.\n"
    "\t        Press 'OK' to continue.";

// --- The tab Reports --------------------------------------------------------------------------------

TEST_F(ReportRunTest, WithNothingTickedNoReportsAreSelected) {
    Report({});
    EXPECT_EQ(TitledMessages(), Lines{"Reports: No reports selected"});
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(Current(), "TabForm");
}

TEST_F(ReportRunTest, OneReportHasOnePreviewWhichIsTheCurrentScreen) {
    Report({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{});
    EXPECT_EQ(Captions(), Lines{"Flexible Design Report  Report 1 out of 1."});
    EXPECT_EQ(Current(), "ReportsPreview");
    EXPECT_EQ(State().formRegistry.CurrentForm->caption, "Flexible Design Report  Report 1 out of 1.");
}

TEST_F(ReportRunTest, TheReportsStandInTheOrderOfTheWalk) {
    Report({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(Previews(), "DeR DeF");
    Report({"rbOVopAAP", "rbOVopAP", "rbOVopAA", "rbOVopAFP", "rbOVopWT", "rbOVopUP", "rbOVopBP"});
    EXPECT_EQ(Previews(), "OvBP OvUP_Part OvWT OvAFP OvAA OvAP OvAAP");
    Report({"rbTRopTrTr", "rbTRopTrVe", "rbTRopTrAx"});
    EXPECT_EQ(Previews(), "TrAx TrVe TrTr");
}

TEST_F(ReportRunTest, TheCaptionsHaveTheTitlesAsTheyStand) {
    Report({"rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA", "rbOVopAP", "rbOVopAAP"});
    EXPECT_EQ(Captions(),
              (Lines{"Bonded Overlay Design  Report 1 out of 7.", "Unbonded Pavement  Report 2 out of 7.",
                     "PCC Overlay of Asphalt (Whitetopping)  Report 3 out of 7.",
                     "AC Overlay of Fractured PCC  Pavement  Report 4 out of 7.",
                     "AC Overlay of AC  Pavement  Report 5 out of 7.",
                     "AC Overlay of PCC Pavement  Report 6 out of 7.",
                     "AC Overlay of AC/PCC Pavement  Report 7 out of 7."}));
    Report({"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"});
    EXPECT_EQ(Captions(), (Lines{"ESAL Determination by Axle Data  Report 1 out of 3.",
                                 "ESAL Data by Vehicle Type  Report 2 out of 3.",
                                 "ESAL Determination by Traffic Factors  Report 3 out of 3."}));
}

TEST_F(ReportRunTest, CostsAreTwoReports) {
    Report({"rbCost"});
    EXPECT_EQ(Captions(),
              (Lines{"Cost Report (A)  Report 1 out of 2.", "Cost Report (B)  Report 2 out of 2."}));
}

TEST_F(ReportRunTest, CostsStageTheirSummaryToo) {
    program_.store().SetVarDim("ItemTotal2", 1, 1, 1234.5);
    Report({"rbCost"});
    const StagedTable& table = *engine_->requests.front().tables.Find("LCCAnalysis");
    EXPECT_EQ(std::get<double>(table.rows.front()[*table.Find("InitialCostA")]), 1234.5);
}

TEST_F(ReportRunTest, OnlyUnbalancedReportsGiveOneMessageAndNoPreview) {
    Unbalance(BalanceFlag::DeF);
    Unbalance(BalanceFlag::DeR);
    Report({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(
        TitledMessages(),
        Lines{"Reports: The following report(s) could not be printed, because not all input forms were "
              "balanced!\nRigid Design Report\nFlexible Design Report\n\nPlease go back and balance the "
              "form(s) first."});
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(Current(), "TabForm");
}

TEST_F(ReportRunTest, BalancedReportsStayOpenBesideAnUnbalancedOne) {
    Unbalance(BalanceFlag::DeF);
    Report({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(Captions(), Lines{"Rigid Design Report  Report 1 out of 1."});
    EXPECT_EQ(Current(), "ReportsPreview");
    EXPECT_EQ(Messages().size(), 1U);
}

TEST_F(ReportRunTest, TrafficAndCostsAreNotTested) {
    for (const BalanceFlag flag : {BalanceFlag::DeF, BalanceFlag::DeR, BalanceFlag::OvUP}) Unbalance(flag);
    Report({"rbTRopTrTr"});
    EXPECT_EQ(Previews(), "TrTr");
    Report({"rbCost"});
    EXPECT_EQ(Previews(), "LCA1 LCA2");
    EXPECT_EQ(Messages(), Lines{});
}

TEST_F(ReportRunTest, OnTheTabOnlyTheFlagCountsForAScreenThatIsOpenWithItsWarning) {
    OpenScreen("DeF");
    State().formRegistry.Find("DeF")->SetText("SolveFor", "WARNING! not balanced");
    Report({"rbNDopF"});
    EXPECT_EQ(Previews(), "DeF");
    EXPECT_EQ(Messages(), Lines{});
}

TEST_F(ReportRunTest, AnUnbondedOverlayOfAKnownPavementHasItsOwnLayout) {
    program_.Set("ACACPCFDUR", 0.96);
    Report({"rbOVopUP"});
    EXPECT_EQ(Previews(), "OvUP");
    program_.Set("ACACPCFDUR", 0.0);
    Report({"rbOVopUP"});
    EXPECT_EQ(Previews(), "OvUP_Part");
    EXPECT_EQ(engine_->requests.back().layout, LayoutFolder() / "Rep_OvUP_Part.vsr");
}

TEST_F(ReportRunTest, OnTheTabAMissingFolderIsTold) {
    std::filesystem::remove_all(LayoutFolder());
    Report({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{"Kelvor: Reports directory is missing (" + LayoutFolder().string() +
                                      ").\nPlease reinstall program."});
    EXPECT_FALSE(std::filesystem::exists(LayoutFolder()));
    EXPECT_EQ(Previews(), "");
}

TEST_F(ReportRunTest, AMissingCatalogueIsToldByBoth) {
    const Path folder = program_.home / "DataBase";
    std::filesystem::remove(folder / "Kelvor.mdb");
    const std::string message = "File is missing: Kelvor.mdb file does not exist in the " + folder.string() +
                                " directory.\nPlease reinstall the program.";
    Report({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{message});
    OpenScreen("DeF");
    Print();
    EXPECT_EQ(TitledMessages(), Lines{message});
}

TEST_F(ReportRunTest, ADamagedCatalogueIsToldAndNothingIsShown) {
    WriteFile(program_.home / "DataBase/Kelvor.mdb", "no database");
    Report({"rbNDopF"});
    const Lines messages = TitledMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages.front().starts_with("Reports: The reports cannot be prepared: "))
        << messages.front();
    EXPECT_EQ(Previews(), "");
}

TEST_F(ReportRunTest, WithoutAnEngineThereAreNoReports) {
    State().bReportsUnavailable = true;
    Report({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{kUnavailable});
    Print();
    EXPECT_EQ(TitledMessages(), Lines{kUnavailable});
    SaveAs("Main.kvr");
    Export({"rbNDopF"});
    EXPECT_EQ(TitledMessages(), Lines{kUnavailable});
    EXPECT_EQ(Exported(), Lines{});
}

// --- What the engine gets -----------------------------------------------------------------------------

TEST_F(ReportRunTest, TheEngineGetsTheLayoutTheTablesAndTheTexts) {
    program_.store().SetCell("Agency", 1, 1, {std::nullopt, "Road Department"});
    program_.Set("SN", 4.5);
    SaveAs("North bypass.v2.kvr");
    Report({"rbNDopF"});
    ASSERT_EQ(engine_->requests.size(), 1U);
    const ReportRequest& request = engine_->requests.front();
    EXPECT_EQ(request.layout, LayoutFolder() / "Rep_DeF.vsr");
    EXPECT_EQ(request.name, "DeF");
    EXPECT_EQ(request.title, "Flexible Design Report");
    const StagedTable& general = *request.tables.Find("GenInfo");
    EXPECT_EQ(std::get<std::string>(general.rows[0][*general.Find("Agency")]), "Road Department");
    const StagedTable& design = *request.tables.Find("FlexPavementDesign");
    EXPECT_EQ(std::get<double>(design.rows[0][*design.Find("SN")]), 4.5);
    EXPECT_EQ(request.texts.at("Project"), "North bypass.v2.kvr");
    EXPECT_EQ(request.texts.at("DateTime"), "2001-02-03 04:05 UTC");
    EXPECT_TRUE(request.texts.at("Check").starts_with("Missing: ")) << request.texts.at("Check");
    EXPECT_EQ(request.texts.at("Governs"), "");
}

TEST_F(ReportRunTest, EachDesignAndOverlayReportHasTheLineOfItsCheck) {
    for (const char* box : {"rbNDopF", "rbNDopR", "rbOVopBP", "rbOVopUP", "rbOVopWT", "rbOVopAFP", "rbOVopAA",
                            "rbOVopAP", "rbOVopAAP"}) {
        Report({box});
        EXPECT_NE(engine_->requests.back().texts.at("Check"), "") << box;
    }
    Report({"rbTRopTrTr"});
    EXPECT_EQ(engine_->requests.back().texts.at("Check"), "");
}

TEST_F(ReportRunTest, TheSectionOfThePavementGoesWithItsReport) {
    program_.Set("SBD", 6.0);
    program_.Set("DEPTH", 9.5);
    Report({"rbNDopR"});
    const ReportDrawing& section = engine_->requests.back().drawings.at("Section");
    EXPECT_EQ(section.words,
              "Rigid Pavement Design Cross Section. Total Thickness 15.5 in. From the top: "
              "PCC Thickness 9.5 in; Base Thickness 6.0 in; Subgrade.");
    EXPECT_EQ(section.scene.title, "Rigid Pavement Design Cross Section, Total Thickness 15.5 in");
    EXPECT_FALSE(section.IsEmpty());
}

TEST_F(ReportRunTest, WithoutALayerThereIsNoSection) {
    Report({"rbNDopF"});
    EXPECT_TRUE(engine_->requests.back().drawings.at("Section").IsEmpty());
    Report({"rbTRopTrTr"});
    EXPECT_TRUE(engine_->requests.back().drawings.at("Section").IsEmpty());
    Report({"rbOVopUP"});
    EXPECT_TRUE(engine_->requests.back().drawings.at("Section").IsEmpty()) << "an interlayer is no layer";
}

TEST_F(ReportRunTest, TheCheckIsTheLineOfTheScreen) {
    OpenScreen("DeF");
    const std::string line = State().formRegistry.Find("DeF")->TextOf("CHECK");
    ASSERT_NE(line, "");
    Report({"rbNDopF"});
    EXPECT_EQ(engine_->requests.back().texts.at("Check"), line);
}

TEST_F(ReportRunTest, AReportWithoutItsLayoutSaysSoAndTheOthersGoOn) {
    std::filesystem::remove(LayoutFolder() / "Rep_DeR.vsr");
    Report({"rbNDopF", "rbNDopR"});
    EXPECT_EQ(TitledMessages(), Lines{"Reports: Rep_DeR.vsr is missing"});
    EXPECT_EQ(Previews(), "DeR DeF");
    EXPECT_EQ(State().formRegistry.CurrentForm->TextOf("vsReport1"), "Rep_DeR.vsr is missing");
    EXPECT_THROW(State().reports.WritePreview(0, ReportFormat::Pdf, folder_ / "a.pdf"), FileError);
    State().reports.WritePreview(1, ReportFormat::Pdf, folder_ / "b.pdf");
    EXPECT_EQ(ReadFile(folder_ / "b.pdf"), "DeF as pdf");
}

// --- File > Print ---------------------------------------------------------------------------------------

TEST_F(ReportRunTest, PrintShowsTheReportOfTheCurrentScreen) {
    for (const char* screen :
         {"DeF", "DeR", "OvBP", "OvUP", "OvWT", "OvAFP", "OvAA", "OvAP", "OvAAP", "TrAx", "TrVe", "TrTr"}) {
        OpenScreen(screen);
        Print();
        EXPECT_EQ(Previews(), screen);
        EXPECT_EQ(Current(), "ReportsPreview");
        Press("Close");
    }
    EXPECT_EQ(Messages(), Lines{});
}

TEST_F(ReportRunTest, PrintTakesTheCatalogueKeySoThatTheTabOfCostsPrintsThem) {
    program_.store().SetVarDim("ItemTotal2", 1, 2, 77.5);
    Run().Raise({UserEvent::Kind::SwitchTab, {}, {}, 4});
    Print();
    EXPECT_EQ(Previews(), "LCA1 LCA2");
    const StagedTable& table = *engine_->requests.front().tables.Find("LCCAnalysis");
    EXPECT_EQ(std::get<double>(table.rows.front()[*table.Find("InitialCostB")]), 77.5);
}

TEST_F(ReportRunTest, AScreenWithoutAReportSaysSo) {
    OpenScreen("DeS");
    Print();
    EXPECT_EQ(TitledMessages(), Lines{"Report: The specified report does not exist."});
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(Current(), "DeS");
}

TEST_F(ReportRunTest, AWarningOnTheScreenStopsPrintThoughTheFlagIsSet) {
    OpenScreen("DeF");
    State().formRegistry.Find("DeF")->SetText("SolveFor", "WARNING!\r\nsomething");
    ASSERT_TRUE(State().balance.Get(BalanceFlag::DeF));
    Print();
    EXPECT_EQ(TitledMessages(), Lines{"Not Solved: The values for this input form were not balanced.\n"
                                      "Please press 'Solve for' to balance."});
    EXPECT_EQ(Previews(), "");
}

TEST_F(ReportRunTest, AnUnbalancedScreenIsNotPrinted) {
    OpenScreen("DeF");
    Unbalance(BalanceFlag::DeF);
    Print();
    EXPECT_EQ(TitledMessages(),
              Lines{"Reports: The following report could not be printed, because the input form was not "
                    "balanced:\nFlexible Design Report\n\nPlease go back and balance the form."});
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(Current(), "DeF");
}

TEST_F(ReportRunTest, PrintMakesAMissingFolder) {
    std::filesystem::remove_all(LayoutFolder());
    OpenScreen("DeF");
    Print();
    EXPECT_TRUE(std::filesystem::is_directory(LayoutFolder()));
    EXPECT_EQ(TitledMessages(), Lines{"Reports: Rep_DeF.vsr is missing"});
}

TEST_F(ReportRunTest, PrintNeverLeavesOutWhatIsNotKnown) {
    OpenScreen("OvUP");
    Print();
    EXPECT_EQ(Previews(), "OvUP");
}

TEST_F(ReportRunTest, ARefusedValueStopsPrint) {
    OpenScreen("DeF");
    Run().Raise({UserEvent::Kind::Focus, "FLEXREL", {}, 0});
    Run().Raise({UserEvent::Kind::Type, {}, "200", 0});
    Print();
    EXPECT_EQ(Messages().size(), 1U);  // that the value is out of its range
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(engine_->requests.size(), 0U);
}

TEST_F(ReportRunTest, AValueBeingTypedIsPrinted) {
    OpenScreen("TrTr");
    Run().Raise({UserEvent::Kind::Focus, "TrInADTT", {}, 0});
    Run().Raise({UserEvent::Kind::Type, {}, "750", 0});
    Print();
    const StagedTable& table = *engine_->requests.back().tables.Find("TrTr");
    EXPECT_EQ(std::get<double>(table.rows[0][*table.Find("TrInADTT")]), 750.0);
}

// --- Previews -------------------------------------------------------------------------------------------

TEST_F(ReportRunTest, NextAndPreviousLeadThroughThePreviewsAndEndThere) {
    Report({"rbNDopF", "rbNDopR"});
    const Form& form = *State().formRegistry.CurrentForm;
    EXPECT_EQ(form.caption, "Rigid Design Report  Report 1 out of 2.");
    Press("PreviousRep");
    EXPECT_EQ(TitledMessages(), Lines{"Reports: No more reports to display."});
    EXPECT_EQ(form.caption, "Rigid Design Report  Report 1 out of 2.");
    Press("NextRep");
    EXPECT_EQ(form.caption, "Flexible Design Report  Report 2 out of 2.");
    EXPECT_EQ(form.Get("vsReport1").document, State().reports.previews()[1].report.document);
    Press("NextRep");
    EXPECT_EQ(TitledMessages(), Lines{"Reports: No more reports to display."});
    EXPECT_EQ(form.caption, "Flexible Design Report  Report 2 out of 2.");
    Press("PreviousRep");
    EXPECT_EQ(form.caption, "Rigid Design Report  Report 1 out of 2.");
    EXPECT_EQ(Messages(), Lines{});
}

TEST_F(ReportRunTest, CloseAllLeadsBackToTheHub) {
    OpenScreen("DeF");
    Print();
    ASSERT_EQ(Current(), "ReportsPreview");
    Press("Close");
    EXPECT_EQ(Current(), "TabForm");
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(State().formRegistry.Find("ReportsPreview"), nullptr);
}

TEST_F(ReportRunTest, TheCloseBoxAndAnotherProjectEndThePreviews) {
    Report({"rbNDopF"});
    Run().Raise({UserEvent::Kind::CloseForm, "ReportsPreview", {}, 0});
    EXPECT_EQ(Previews(), "");
    Report({"rbNDopF"});
    Run().NewProject();
    EXPECT_EQ(Previews(), "");
    EXPECT_EQ(Current(), "TabForm");
}

TEST_F(ReportRunTest, AFurtherRunReplacesThePreviews) {
    Report({"rbNDopF", "rbNDopR"});
    Report({"rbTRopTrAx"});
    EXPECT_EQ(Captions(), Lines{"ESAL Determination by Axle Data  Report 1 out of 1."});
    Report({});
    EXPECT_EQ(Previews(), "");
}

TEST_F(ReportRunTest, APrinterThatIsNotThereIsTold) {
    Report({"rbNDopF"});
    Press("PrintRep");
    EXPECT_EQ(TitledMessages(), Lines{"Reports: The report could not be printed: there is no printer here."});
    EXPECT_EQ(Current(), "ReportsPreview");
    EXPECT_EQ(Previews(), "DeF");
}

TEST_F(ReportRunTest, NothingIsLeftInTheWorkFolder) {
    const Path file = State().home.ReportTablesFile();
    {
        TestProgram other;
        EXPECT_EQ(other.program.state()
                      .reports.Tables(other.program.state().MakeScreenContext())
                      .Find("GenInfo")
                      ->rows.size(),
                  1U);
        EXPECT_TRUE(std::filesystem::exists(other.program.state().home.ReportTablesFile()));
    }
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ReportRunTest, TheHourglassGoesWithTheRun) {
    Report({"rbNDopF"});
    EXPECT_FALSE(program_.host.dialogs.waiting());
}

}  // namespace
}  // namespace kelvor::test
