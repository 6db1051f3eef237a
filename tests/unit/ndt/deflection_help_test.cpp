// F1 on a cell of the three deflection screens: each column has a help of its own, which says what stands in
// it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "forms/form.h"
#include "ndt_fixture.h"

namespace kelvor::test {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using Kind = UserEvent::Kind;

/// A column, and words that its help cannot do without: where the sensor stands, what the value is found
/// from, or what is usual.
struct Column {
    const char* variable;
    std::vector<std::string> words;
};

struct Screen {
    const char* name;
    std::vector<Column> columns;
};

const std::vector<Screen> kScreens = {
    {"ReDfF",
     {{"NDTLOADF", {"peak load", "9,000 lb"}},
      {"D0F", {"under the centre of the plate", "mils"}},
      {"DR", {"at the distance r", "mils"}},
      {"Msg", {"No calculation reads it"}},
      {"NDTRM", {"C x 0.24 x P / (dr x r)", "psi"}},
      {"NDTEFFEP", {"all layers above the subgrade", "between 5,000 and 2,000,000 psi"}}}},
    {"ReDfR",
     {{"NDTLOAD", {"peak load", "8,000 to 16,000 lb"}},
      {"D0", {"under the plate", "mils"}},
      {"D12", {"12 inches (305 mm) from the centre", "of d0"}},
      {"D24", {"24 inches (610 mm) from the centre", "of d0"}},
      {"D36", {"36 inches (914 mm) from the centre", "of d0"}},
      {"AREA", {"6 x (1 + 2 d12/d0 + 2 d24/d0 + d36/d0)", "29 to 32"}},
      {"BACKL", {"AREA", "25 to 45 inches"}},
      {"DYNK", {"Westergaard", "100 to 600 psi/in"}},
      {"STATK", {"Half the dynamic k", "50 to 300 psi/in"}},
      {"NDTE", {"dynamic k", "3,000 to 8,000 ksi"}}}},
    {"ReDfC",
     {{"NDTLOADC", {"peak load on the asphalt", "8,000 to 16,000 lb"}},
      {"D0C", {"centre of the plate, on the asphalt", "mils"}},
      {"D12C", {"12 inches (305 mm) from the centre", "of the corrected d0"}},
      {"D24C", {"24 inches (610 mm) from the centre", "of the corrected d0"}},
      {"D36C", {"36 inches (914 mm) from the centre", "of the corrected d0"}},
      {"AREAC", {"corrected d0", "outer deflections as measured"}},
      {"BACKLC", {"AREA", "25 to 45 inches"}},
      {"DYNKC", {"corrected d0", "100 to 600 psi/in"}},
      {"STATKC", {"Half the dynamic k", "50 to 300 psi/in"}},
      {"NDTEC", {"ksi", "slab under the asphalt"}}}},
};

class DeflectionHelpTest : public NdtTest {
  protected:
    void Raise(Kind kind, const std::string& name = {}, int number = 0) {
        program_.program.Raise({kind, name, {}, number});
    }

    Form& Current() { return *program_.program.state().formRegistry.CurrentForm; }
};

TEST_F(DeflectionHelpTest, EachColumnHasAHelpOfItsOwnWithItsSensorAndWhatIsUsual) {
    std::set<std::string> heads;
    std::set<std::string> texts;
    for (const Screen& screen : kScreens) {
        Raise(Kind::OpenForm, screen.name);
        ASSERT_THAT(Current().FindGrid()->grid->columns, SizeIs(screen.columns.size()));
        for (const Column& column : screen.columns) {
            SCOPED_TRACE(std::string(screen.name) + " " + column.variable);
            Raise(Kind::MoveToCell, column.variable, 2);
            Raise(Kind::Key, "F1");
            ASSERT_EQ(Current().name(), "HelpGrid");
            EXPECT_EQ(Current().TextOf("FieldName"), column.variable);
            heads.insert(Current().TextOf("HelpHead"));
            texts.insert(Current().TextOf("HelpText"));
            for (const std::string& words : column.words) {
                EXPECT_THAT(Current().TextOf("HelpText"), HasSubstr(words));
            }
            Raise(Kind::CloseForm, "HelpGrid");
            EXPECT_EQ(Current().name(), screen.name);
        }
        Raise(Kind::CloseForm, screen.name);
    }
    EXPECT_THAT(heads, SizeIs(26U));
    EXPECT_THAT(texts, SizeIs(26U));
    EXPECT_THAT(heads, Each(Not(IsEmpty())));
    EXPECT_THAT(program_.host.record.TakeTexts(), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test
