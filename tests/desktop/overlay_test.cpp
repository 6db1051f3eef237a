// All seven overlays by keys alone, from a new project to the thickness of the overlay. A row of the table
// says which keys are pressed and what is shown then; a value is read as a script reads it.

#include <gmock/gmock.h>

#include <QApplication>
#include <QKeySequence>
#include <QTest>
#include <cctype>
#include <cmath>
#include <string>
#include <vector>

#include "desktop/desktop_fixture.h"
#include "platform/number_text.h"
#include "unit/design/reference_equations.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;

constexpr double kTraffic = 5e6;
constexpr double kZrOf95 = -1.645;
constexpr double kShownToHundredth = 0.006;
constexpr double kShownToTenth = 0.06;

/// Values are typed and left with Enter, an empty one leaves what stands there. What is in "<>" are keys.
using Keys = std::vector<const char*>;

/// What a field shows in the end.
struct Shown {
    const char* field;
    double value;
    double tolerance;
};

struct Journey {
    const char* overlay;
    const char* existing;  // the option of the existing pavement
    Keys existingKeys;     // from its first field on
    Keys overlayKeys;      // from the field for which it is solved on
    const char* solvedFor;
    const char* button;      // that solves
    std::vector<Shown> end;  // what is shown in the end
};

void PrintTo(const Journey& journey, std::ostream* stream) { *stream << journey.overlay; }

/// What gives this traffic, between two bounds.
template <typename Equation>
double Solved(const Equation& equation, double least, double most) {
    for (int i = 0; i < 60; ++i) {
        const double middle = (least + most) / 2.0;
        (equation.Traffic(middle) < kTraffic ? least : most) = middle;
    }
    return least;
}

double StructuralNumber(double modulus) {
    return Solved(FlexibleCase{kZrOf95, 0.45, modulus, 4.2, 2.5}, 1.0, 15.0);
}

/// On a subgrade of 7,000 psi without a subbase, of which k is a 19.4th (1993 AASHTO Guide, Part II, 3.2.1).
double SlabThickness(double rupture, double elasticity, double transfer) {
    return Solved(RigidCase{kZrOf95, 0.35, rupture, elasticity, transfer, 7000.0 / 19.4, 1.0, 4.5, 2.5}, 4.0,
                  20.0);
}

/// Of an existing slab of 650 and 4,000,000 psi.
double FutureOfExistingSlab() { return SlabThickness(650.0, 4e6, 3.2); }
double FutureOfNewSlab() { return SlabThickness(700.0, 5e6, 3.0); }

/// The asphalt that replaces so much slab (1993 AASHTO Guide, Part III, Section 5.6).
double AsphaltFor(double lack) { return lack * (2.2233 + 0.0099 * lack * lack - 0.1534 * lack); }

/// A modulus of the soil by its CBR: 1941.488 x 5^0.6844709 psi.
constexpr double kSoilModulus = 5842.0;
const Keys kFlexible = {"<F2>", "5", "<Alt+O>"};

/// Thickness, rupture, elasticity, load transfer, k by its help, drainage.
const Keys kSlab = {"9", "650", "4,000,000", "3.2", "<F2>", "7000", "<Alt+O>", "", "1"};

/// 35 joints and cracks in a mile; a punchout more counts only below what is bonded.
const Keys kSurvey = {"<F2>", "20", "10", "1", "5", "<Alt+O>", ""};

Keys Joined(const std::vector<Keys>& parts) {
    Keys all;
    for (const Keys& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

Journey AsphaltOnAsphalt() {
    const double byDeflections = 0.0045 * 10.0 * std::cbrt(100'000.0);
    const double bySurvey = 4.0 * 1.0 * 0.35 + 5.0 * 0.9 * 0.1;
    return {"OvAA",
            "oExF",
            kFlexible,
            {"",        "5,000,000", "95",      "0.45",    "",        "4.2", "2.5",  // terms
             "<F2>",    "10",        "100,000", "<Alt+O>", "",                       // by deflections
             "<F2>",    "<Right>",   "4",       "1",       "0.35",                   // by a survey
             "<Right>", "5",         "0.9",     "0.1",     "<Alt+O>", "",    "0.44"},
            "ACACFUTSN",
            "Command1",
            {{"EXISTRM", kSoilModulus, 0.5},
             {"NDTEFFSN", byDeflections, kShownToHundredth},
             {"CONDEFFSN", bySurvey, kShownToHundredth},
             {"ACACEFFSN", bySurvey, kShownToHundredth},
             {"ACACFUTSN", StructuralNumber(kSoilModulus), kShownToHundredth},
             {"ACACTHICK", (StructuralNumber(kSoilModulus) - bySurvey) / 0.44, kShownToTenth}}};
}

Journey AsphaltOnFracturedSlab() {
    const double effective = 9.0 * 0.25 * 1.0 + 6.0 * 0.11 * 0.9;
    return {
        "OvAFP",
        "oExR",
        kSlab,
        {"", "5,000,000", "95", "0.45", "5,000", "4.2", "2.5", "9", "0.25", "1", "6", "0.11", "0.9", "0.44"},
        "ACCSFUTSN",
        "Command1",
        {{"ACCSEFFSN", effective, kShownToHundredth},
         {"ACCSFUTSN", StructuralNumber(5000.0), kShownToHundredth},
         {"ACCSTHICK", (StructuralNumber(5000.0) - effective) / 0.44, kShownToTenth}}};
}

Journey AsphaltOnSlab() {
    const double factor = 0.92;  // 1 - 0.00232 x 36 = 0.91648, as it is shown
    const double effective = 9.0 * factor * 0.97 * 0.95;
    return {"OvAP",
            "oExR",
            kSlab,
            Joined({{"", "5,000,000", "95", "0.35", "", "", "", "", "", "4.5", "2.5", ""},
                    kSurvey,
                    {"0.97", "0.95"}}),
            "ACPCFUTD",
            "Command1",
            {{"EXISTK", 7000.0 / 19.4, kShownToTenth},
             {"ACPCFJC", factor, kShownToHundredth},
             {"ACPCEFFD", effective, kShownToTenth},
             {"ACPCFUTD", FutureOfExistingSlab(), kShownToTenth},
             {"ACPCOLT", AsphaltFor(FutureOfExistingSlab() - effective), kShownToTenth}}};
}

/// The other overlay of a slab was never used, so the leading factor is the whole future thickness.
Journey AsphaltOnComposite() {
    const double factor = 0.92;
    const double effective = 4.0 / 2.0 * 0.9 + 0.97 * factor * 9.0;
    const double lack = FutureOfExistingSlab() - effective;
    return {"OvAAP",
            "oExR",
            {"9", "650", "4,000,000", "3.2", "100", "1"},
            Joined({{"", "5,000,000", "95", "0.35", "", "", "", "<F2>", "7000", "<Alt+O>", "", "", "4.5",
                     "2.5", ""},
                    kSurvey,
                    {"0.97", "4", "0.9"}}),
            "ACACPCFUTD",
            "Command1",
            {{"EXISTK", 7000.0 / 19.4, kShownToTenth},
             {"ACACPCFJC", factor, kShownToHundredth},
             {"ACACPCEFFD", effective, kShownToTenth},
             {"ACACPCFUTD", FutureOfExistingSlab(), kShownToTenth},
             {"ACACPCOLT", AsphaltFor(lack) / lack * FutureOfExistingSlab(), kShownToTenth}}};
}

Journey BondedOnSlab() {
    const double factor = 0.92;
    const double effective = 9.0 * factor * 0.97 * 0.8;
    return {"OvBP",
            "oExR",
            kSlab,
            Joined({{"", "5,000,000", "95", "0.35", "", "", "", "", "", "4.5", "2.5", ""},
                    kSurvey,
                    {"0.97", "0.8"}}),
            "BOLFUTDEPTH",
            "Command1",
            {{"BOLFJC", factor, kShownToHundredth},
             {"BOLEFFDEPTH", effective, kShownToTenth},
             {"BOLFUTDEPTH", FutureOfExistingSlab(), kShownToTenth},
             {"BOLDEPTH", FutureOfExistingSlab() - effective, kShownToTenth}}};
}

Journey UnbondedOnSlab() {
    const double factor = 0.96;  // 1 - 0.00106 x 35 = 0.9629, the punchout left out
    const double effective = 9.0 * factor;
    const double future = FutureOfNewSlab();
    return {"OvUP",
            "oExR",
            Joined({{"9", "650", "4,000,000", "3.2", "100", "1"}}),
            Joined({{"", "5,000,000", "95", "0.35", "700", "5,000,000", "3", "<F2>", "7000", "<Alt+O>", "",
                     "", "4.5", "2.5", ""},
                    kSurvey}),
            "UBOLFUTDEPTH",
            "CmdSolveFor",
            {{"EXISTK", 7000.0 / 19.4, kShownToTenth},
             {"UBOLFJCU", factor, kShownToHundredth},
             {"UBOLEFFDEPTH", effective, kShownToTenth},
             {"UBOLFUTDEPTH", future, kShownToTenth},
             {"UBOLDEPTH", std::max(4.0, std::sqrt(std::max(0.0, future * future - effective * effective))),
              kShownToTenth}}};
}

Journey Whitetopping() {
    return {"OvWT",
            "oExF",
            kFlexible,
            {"", "5,000,000", "95", "0.35", "700", "5,000,000", "3", "<F2>", "7000", "<Alt+O>", "", "1",
             "4.5", "2.5"},
            "WTDEPTH",
            "Command1",
            {{"EXISTK", 7000.0 / 19.4, kShownToTenth}, {"WTDEPTH", FutureOfNewSlab(), kShownToTenth}}};
}

class OverlayWindowTest : public KeyboardTest, public testing::WithParamInterface<Journey> {
  protected:
    const Form& Current() { return *state().formRegistry.CurrentForm; }

    void PressKeys(const QString& keys) {
        const QKeyCombination key = QKeySequence(keys)[0];
        Press(key.key(), key.keyboardModifiers());
    }

    void Work(const Keys& keys) {
        for (const char* one : keys) {
            const QString text = QString::fromLatin1(one);
            if (text.startsWith('<')) {
                PressKeys(text.mid(1, text.size() - 2));
            } else {
                TypeAndEnter(one);
            }
        }
    }

    /// Alt and the access key of a control of the form in front.
    void PressAccessKeyOf(const char* control) {
        const char key = Current().Get(control).accessKey;
        ASSERT_NE(key, '\0') << control << " has no access key";
        Press(static_cast<Qt::Key>(std::toupper(static_cast<unsigned char>(key))), Qt::AltModifier);
    }

    void OpenChoice(const std::string& option, const char* screen) {
        PressAccessKeyOf(option.c_str());
        Press(Qt::Key_Space);
        PressAccessKeyOf("Command7");
        ASSERT_EQ(Current().name(), screen) << testing::PrintToString(Messages());
    }

    void TabTo(const char* control) {
        for (int i = 0; i < 40 && Current().focus->name != control; ++i) Press(Qt::Key_Tab);
        ASSERT_EQ(Current().focus->name, control);
    }
};

TEST_P(OverlayWindowTest, FromANewProjectToTheThicknessByKeysAlone) {
    const Journey& journey = GetParam();
    PressKeys("Ctrl+N");
    PressKeys("Ctrl+4");
    OpenChoice(journey.existing, journey.existing + 1);  // an option is named after its screen
    Work(journey.existingKeys);
    ASSERT_EQ(Current().name(), std::string(journey.existing + 1));
    PressAccessKeyOf("cmdAction");
    OpenChoice(std::string("o") + journey.overlay, journey.overlay);
    Work(journey.overlayKeys);
    ASSERT_EQ(Current().name(), journey.overlay);
    EXPECT_EQ(Current().focus->name, journey.button) << "Enter leads from the last field to the button";
    TabTo(journey.solvedFor);
    PressAccessKeyOf(journey.button);
    WindowDriver driver(desktop, responder);
    for (const Shown& shown : journey.end) {
        const auto text = driver.Read(shown.field, "text");
        EXPECT_NEAR(ParseNumber(std::get<std::string>(text)), shown.value, shown.tolerance) << shown.field;
    }
    EXPECT_THAT(std::get<std::string>(driver.Read("GOVERNS", "text")), testing::Not(IsEmpty()));
    PressAccessKeyOf("cmdAction");
    EXPECT_TRUE(Current().type().isHub) << "what is solved closes without a question";
    EXPECT_THAT(Messages(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(AllOverlays, OverlayWindowTest,
                         testing::Values(AsphaltOnAsphalt(), AsphaltOnFracturedSlab(), AsphaltOnSlab(),
                                         AsphaltOnComposite(), BondedOnSlab(), UnbondedOnSlab(),
                                         Whitetopping()),
                         [](const auto& journey) { return std::string(journey.param.overlay); });

}  // namespace
}  // namespace kelvor::test
