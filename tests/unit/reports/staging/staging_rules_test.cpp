// What the staging routines do beyond plain columns.

#include "reports/staging/rating_texts.h"
#include "staging_fixture.h"

namespace kelvor::test {
namespace {

// --- Texts of factors -------------------------------------------------------------------------------

struct Rating {
    double factor;
    const char* text;
};

TEST(RatingTextsTest, DurabilityHasFourBandsWhoseBoundsBelongToThem) {
    constexpr const char* kNone = "No sign of PCC durability problems.";
    constexpr const char* kCracks = "Durability cracking exists, but no spalling.";
    constexpr const char* kSome = "Substancial cracking and some spalling exists.";
    constexpr const char* kExtensive = "Extensive cracking and severe spalling exists.";
    const Rating ratings[] = {{1.0, kNone},       {0.99, kCracks}, {0.96, kCracks},   {0.955, ""},
                              {0.95, kSome},      {0.88, kSome},   {0.875, ""},       {0.87, kExtensive},
                              {0.80, kExtensive}, {0.799, ""},     {0.0, ""},         {1.001, ""},
                              {0.995, ""},        {0.97, kCracks}, {0.85, kExtensive}};
    for (const Rating& rating : ratings)
        EXPECT_EQ(DurabilityText(rating.factor), rating.text) << rating.factor;
}

TEST(RatingTextsTest, FatigueHasThree) {
    constexpr const char* kFew = "Few transverse cracks/punchouts exist.";
    constexpr const char* kMany = "A significant number of transverse cracks/punchouts exist.";
    constexpr const char* kMost = "A large number of transverse cracks punchouts exist.";
    const Rating ratings[] = {{1.0, kFew}, {0.97, kFew},  {0.965, ""},   {0.96, kMany}, {0.94, kMany},
                              {0.935, ""}, {0.93, kMost}, {0.90, kMost}, {0.899, ""},   {0.0, ""}};
    for (const Rating& rating : ratings) EXPECT_EQ(FatigueText(rating.factor), rating.text) << rating.factor;
}

TEST(RatingTextsTest, AxleTypesHaveThreeNumbers) {
    EXPECT_EQ(AxleTypeName(1), "Single");
    EXPECT_EQ(AxleTypeName(2), "Tandem");
    EXPECT_EQ(AxleTypeName(3), "Tridem");
    EXPECT_EQ(AxleTypeName(0), "");
    EXPECT_EQ(AxleTypeName(4), "");
    EXPECT_EQ(AxleTypeName(1.5), "");
}

// --- General ----------------------------------------------------------------------------------------

TEST_F(StagingTest, TheHeadingHasTheTextsAsTheyStand) {
    SetText("Agency", "Strassen & <Wege> {\"\u00e9\u6f22\u5b57\"}\nAbt. 2");
    SetText("JobNumber", "007");
    const StagedTables tables = Stage(StageGeneralInfo);
    EXPECT_EQ(Text(tables, "GenInfo", "Agency"), "Strassen & <Wege> {\"\u00e9\u6f22\u5b57\"}\nAbt. 2");
    EXPECT_EQ(Text(tables, "GenInfo", "JobNumber"), "007");
    EXPECT_EQ(Text(tables, "GenInfo", "Engineer"), "");
    EXPECT_EQ(Messages(), std::vector<std::string>{});
}

TEST_F(StagingTest, ALongLocationIsCutTo255LettersAndStaysInTheProject) {
    const std::string letter = "\u00e9";  // two bytes
    std::string location;
    for (int i = 0; i < 10000; ++i) location += letter;
    SetText("Location", location);
    const std::string staged = Text(Stage(StageGeneralInfo), "GenInfo", "Location1");
    EXPECT_EQ(staged.size(), 255 * letter.size());
    EXPECT_EQ(staged, location.substr(0, staged.size()));
    EXPECT_EQ(program_.store().FindCell("Location", 1, 1)->text, location);
}

TEST_F(StagingTest, ALocationOf255LettersIsWhole) {
    SetText("Location", std::string(255, 'x'));
    EXPECT_EQ(Text(Stage(StageGeneralInfo), "GenInfo", "Location1"), std::string(255, 'x'));
}

// --- Designs ----------------------------------------------------------------------------------------

TEST_F(StagingTest, SixLayersAreAlwaysWritten) {
    SetText("LDLayerMat", "Asphalt Concrete", 1);
    SetCell("LDLayerThick", 1, 1, 4.25);
    SetCell("LDLayerStructNo", 1, 1, 1.87);
    const StagedTables tables = Stage(StageFlexibleDesign);
    ASSERT_EQ(tables.Find("LayerThickness")->rows.size(), 6U);
    EXPECT_EQ(Text(tables, "LayerThickness", "LDLayerMat", 1), "Asphalt Concrete");
    EXPECT_EQ(Number(tables, "LayerThickness", "LDLayerThick", 1), 4.3);  // shown with one decimal
    EXPECT_EQ(Number(tables, "LayerThickness", "SN", 1), 1.87);
    for (std::size_t row = 2; row <= 6; ++row) {
        EXPECT_EQ(Text(tables, "LayerThickness", "LDLayerMat", row), "");
        EXPECT_EQ(Number(tables, "LayerThickness", "LDLayerThick", row), 0.0);
        EXPECT_EQ(Number(tables, "LayerThickness", "LDAdditThickness", row), 0.0);
    }
}

TEST_F(StagingTest, AnEmptyProjectStagesZerosWithoutAMessage) {
    const StagedTables tables = Stage([](Stager& stager) {
        StageFlexibleDesign(stager);
        StageRigidDesign(stager);
        for (const char* screen : {"OvAA", "OvAAP", "OvAFP", "OvAP", "OvBP", "OvUP", "OvWT"}) {
            EXPECT_FALSE(StageOverlayCommon(stager, screen)) << screen;
        }
    });
    EXPECT_EQ(Messages(), std::vector<std::string>{});
    for (const char* name : {"OvAA", "OvAAP", "OvAFP", "OvAP", "OvBP", "OvUP", "OvWT", "Rigid"}) {
        const StagedTable& table = *tables.Find(name);
        ASSERT_EQ(table.rows.size(), 1U) << name;
        for (const StagedValue& value : table.rows.front()) {
            const auto* number = std::get_if<double>(&value);
            EXPECT_EQ(number == nullptr ? 0.0 : *number, 0.0) << name;
        }
    }
}

TEST_F(StagingTest, WhatAnEarlierRunHasFilledStaysUntilItIsOverwritten) {
    Set("DEPTH", 9.5);
    (void)Stage(StageRigidDesign);
    Set("DEPTH", 11.0);
    EXPECT_EQ(Number(Stage(StageFlexibleDesign), "Rigid", "DEPTH"), 9.5);
    EXPECT_EQ(Number(Stage(StageRigidDesign), "Rigid", "DEPTH"), 11.0);
}

// --- Overlays ---------------------------------------------------------------------------------------

bool StageOverlay(StagingDatabase& database, const CalcContext& context, const char* screen) {
    Stager stager(database, context);
    return StageOverlayCommon(stager, screen);
}

TEST_F(StagingTest, AnyOfNineNumbersTellsOfAnExistingPavement) {
    StagingDatabase database(StagingPath());
    const CalcContext context = State().MakeCalcContext();
    Set("UBOLFUTDEPTH", 9.0);
    Set("EXISTDEPTH", 8.0);
    Set("APDETJTS", 3.0);
    Set("APDETTOT", 3.0);
    Set("APBOLFJC", 0.9);
    EXPECT_FALSE(StageOverlay(database, context, "OvUP"));
    for (const char* name : {"MRSG", "MRSB", "SBD", "SGD", "LS", "K", "APDETEXP", "ACACPCFDUR", "ACPCFFAT"}) {
        Set(name, 1.0);
        EXPECT_TRUE(StageOverlay(database, context, "OvUP")) << name;
        Set(name, 0.0);
        EXPECT_FALSE(StageOverlay(database, context, "OvUP")) << name;
    }
}

TEST_F(StagingTest, ANumberThatIsShownAsZeroIsNone) {
    StagingDatabase database(StagingPath());
    const CalcContext context = State().MakeCalcContext();
    Set("SBD", 0.004);  // shown with two decimals
    EXPECT_FALSE(StageOverlay(database, context, "OvUP"));
    Set("SBD", 0.005);
    EXPECT_TRUE(StageOverlay(database, context, "OvUP"));
}

TEST_F(StagingTest, TwoFactorsAreAlwaysThoseOfTheAsphaltOverlays) {
    Set("APDETTOT", 12.0);
    Set("APBOLFJC", 0.77);
    Set("BOLFDUR", 0.81);
    Set("BOLFFAT", 0.91);
    Set("ACACPCFDUR", 0.96);
    Set("ACPCFFAT", 0.93);
    const StagedTables tables = Stage([](Stager& stager) { StageOverlayCommon(stager, "OvBP"); });
    EXPECT_EQ(Number(tables, "OverlayAdjFactor", "APDETTOT"), 0.96);
    EXPECT_EQ(Number(tables, "OverlayAdjFactor", "APBOLFJC"), 0.93);
    EXPECT_EQ(Text(tables, "OverlayAdjFactor", "DurabilityAdjFactor"),
              "Durability cracking exists, but no spalling.");
    EXPECT_EQ(Text(tables, "OverlayAdjFactor", "FatigueAdjFactor"),
              "A large number of transverse cracks punchouts exist.");
}

TEST_F(StagingTest, AFactorBetweenTwoBandsSaysNothing) {
    Set("ACACPCFDUR", 0.955);
    Set("ACPCFFAT", 0.935);
    const StagedTables tables = Stage([](Stager& stager) { StageOverlayCommon(stager, "OvAP"); });
    EXPECT_EQ(Text(tables, "OverlayAdjFactor", "DurabilityAdjFactor"), "");
    EXPECT_EQ(Text(tables, "OverlayAdjFactor", "FatigueAdjFactor"), "");
}

TEST_F(StagingTest, EachOverlayFillsItsOwnTable) {
    Set("OLRIGREL", 85.0);
    Set("ACACREL", 90.0);
    const StagedTables tables = Stage([](Stager& stager) { StageOverlayCommon(stager, "OvWT"); });
    EXPECT_EQ(Number(tables, "OvWT", "OLRIGREL"), 85.0);
    EXPECT_EQ(Number(tables, "OvBP", "OLRIGREL"), 0.0);
    EXPECT_EQ(Number(tables, "OvAA", "ACACREL"), 0.0);
}

// --- Failures ---------------------------------------------------------------------------------------

TEST_F(StagingTest, ATextInANumericColumnCostsOneMessageAndTheRestIsWritten) {
    Set("FLEXREL", 90.0);
    (void)Stage(StageFlexibleDesign);
    SetText("FLEXREL", "high");
    Set("FLEXDEV", 0.45);
    const StagedTables tables = Stage(StageFlexibleDesign);
    const std::vector<std::string> messages = Messages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages.front().starts_with("Error updating : ")) << messages.front();
    EXPECT_NE(messages.front().find("FLEXREL"), std::string::npos) << messages.front();
    EXPECT_EQ(Number(tables, "FlexPavementDesign", "FLEXREL"), 90.0);  // what it held
    EXPECT_EQ(Number(tables, "FlexPavementDesign", "FLEXDEV"), 0.45);
}

TEST_F(StagingTest, EachBadColumnHasItsMessage) {
    SetText("FLEXREL", "high");
    SetText("RM", "soft");
    Set("FLEXPO", 4.2);
    EXPECT_EQ(Number(Stage(StageFlexibleDesign), "FlexPavementDesign", "FLEXPO"), 4.2);
    EXPECT_EQ(Messages().size(), 2U);
}

TEST_F(StagingTest, AColumnThatIsMissingCostsOneMessage) {
    RunSql(StagingPath(), "ALTER TABLE FlexPavementDesign RENAME COLUMN RM TO Elsewhere");
    Set("FLEXPT", 2.5);
    StagingDatabase database(StagingPath());
    const CalcContext context = State().MakeCalcContext();
    Stager stager(database, context);
    StageFlexibleDesign(stager);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(std::get<double>(database.Read("FlexPavementDesign", 1, "FLEXPT")), 2.5);
}

TEST_F(StagingTest, ATableThatIsMissingCostsOneMessage) {
    RunSql(StagingPath(), "DROP TABLE LayerThickness");
    Set("SN", 4.5);
    StagingDatabase database(StagingPath());
    const CalcContext context = State().MakeCalcContext();
    Stager stager(database, context);
    StageFlexibleDesign(stager);
    EXPECT_EQ(std::get<double>(database.Read("FlexPavementDesign", 1, "SN")), 4.5);
    EXPECT_EQ(Messages().size(), 6U);  // one for each row, which fails by itself
}

// --- The copy -------------------------------------------------------------------------------------------

TEST_F(StagingTest, TheInstalledCatalogueStaysAsItIs) {
    const std::string before = ReadFile(program_.home / "DataBase/Kelvor.mdb");
    Set("SN", 4.5);
    EXPECT_EQ(Number(Stage(StageFlexibleDesign), "FlexPavementDesign", "SN"), 4.5);
    EXPECT_EQ(ReadFile(program_.home / "DataBase/Kelvor.mdb"), before);
}

TEST_F(StagingTest, ARowChangedBySqlIsReadAgain) {
    Set("SN", 4.5);
    (void)Stage(StageFlexibleDesign);
    RunSql(StagingPath(), "UPDATE FlexPavementDesign SET SN = 7.25");
    EXPECT_EQ(Number(Stage([](Stager&) {}), "FlexPavementDesign", "SN"), 7.25);
}

TEST_F(StagingTest, TheCopyGoesWithItsOwner) {
    const Path file = folder_ / "another.tmp";
    {
        WriteFile(file, "left by a killed process");
        StagingFile copy(file);
        EXPECT_EQ(copy.Provide(program_.host.native, program_.home / "DataBase/Kelvor.mdb"), file);
        EXPECT_NO_THROW(StagingDatabase{file});
    }
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(StagingTest, ADamagedCatalogueIsNoCopy) {
    const Path broken = folder_ / "broken.mdb";
    WriteFile(broken, "no database");
    StagingFile copy(folder_ / "another.tmp");
    EXPECT_THROW(copy.Provide(program_.host.native, broken), DatabaseError);
}

TEST_F(StagingTest, ColumnsTellPictureAndUnit) {
    Run().ChooseUnits(true);
    const StagedTables tables = Stage([](Stager&) {});
    const StagedTable& table = *tables.Find("FlexPavementDesign");
    const StagedColumn& modulus = table.columns[*table.Find("rm")];
    EXPECT_EQ(modulus.picture, "#,##0");
    EXPECT_EQ(modulus.unit, "MPa");
    EXPECT_EQ(table.columns[*table.Find("uRM")].picture, "");
}

}  // namespace
}  // namespace kelvor::test
