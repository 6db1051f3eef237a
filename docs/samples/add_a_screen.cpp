#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "forms/form.h"
#include "forms/recalculation.h"
#include "support/test_host.h"

namespace kelvor {

KeyTable SubgradeKeys();

// [screen]
namespace {

/// Once the modulus is left, k is that of a slab on the subgrade itself.
void ModulusLeft(ScreenEvent& event) {
    event.context.calculations.CalcField(event.context.calc, "K", "SUBGRADEK");
    RefreshScreen(event.context, event.form);
}

}  // namespace

/// `SubG`: the subgrade under a slab.
FormType SubgradeForm() {
    FormType type;
    type.name = "SubG";
    type.caption = "Subgrade";
    type.layout = Frame("Frame1", "Subgrade", {Fields({{"MRSG"}, {"K"}})});
    type.handlers = {{FormEvent::LostFocus, "MRSG", HandlerOrder::After, ModulusLeft}};
    return type;
}
// [screen]

namespace test {
namespace {

/// What the two lines in the catalogue's tables come to.
void AddRows(const Path& catalogue) {
    SQLite::Database database(catalogue.string(), SQLite::OPEN_READWRITE);
    database.exec("INSERT INTO Screen (Name, Title) VALUES ('SubG', 'Subgrade')");
    database.exec("INSERT INTO Field (Screen, Name, Id, Seq) VALUES ('SubG', 'MRSG', 'MRSG', 19)");
    database.exec("INSERT INTO Field (Screen, Name, Id, Seq) VALUES ('SubG', 'K', 'K', 20)");
}

TEST(SubgradeScreenTest, AnInputIsStoredWhenItIsLeftAndKFollows) {
    TestProgram program;
    AddRows(program.home / "DataBase/Kelvor.mdb");
    program.program.state().OpenCatalogue(program.home / "DataBase/Kelvor.mdb");
    program.program.state().calculations = Dispatch({SubgradeKeys()});
    program.program.state().formRegistry.Declare({SubgradeForm()});
    // [test]
    program.program.Raise({UserEvent::Kind::OpenForm, "SubG"});
    program.program.Raise({UserEvent::Kind::Type, {}, "7,000"});
    program.program.Raise({UserEvent::Kind::Key, "Enter"});
    EXPECT_EQ(program.Get("MRSG"), 7000.0);
    const Form& form = *program.program.state().formRegistry.Find("SubG");
    EXPECT_EQ(form.focus->name, "K");
    EXPECT_EQ(form.focus->text, "360.8");  // 7,000 / 19.4
    // [test]
    EXPECT_TRUE(program.host.record.TakeTexts().empty());
}

}  // namespace
}  // namespace test
}  // namespace kelvor
