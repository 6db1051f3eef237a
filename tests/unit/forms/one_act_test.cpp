// One act of the user commits what was typed once, and a form knows what it was opened with before it does
// anything.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/side_screen.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;

const char* const kOverflow = "Math Overflow Error: One or more values out of range.";

class OneActTest : public testing::Test {
  protected:
    void Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        program_.program.Raise({kind, name, text, number});
    }
    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }
    FormRegistry& Forms() { return program_.program.state().formRegistry; }

    /// A test of the soil, typed and not yet left, beside another that no modulus can be worked out of.
    void TypeBesideABadTest() {
        program_.Set("RVAL", 1e6);  // e to the power 34,350
        Raise(Kind::OpenForm, "H_SRM");
        Raise(Kind::Focus, "CBR");
        Raise(Kind::Type, {}, "5");
    }

    TestProgram program_;
};

TEST_F(OneActTest, NewTellsOfABadTestOnce) {
    TypeBesideABadTest();
    Raise(Kind::Menu, "NewProj");
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
}

TEST_F(OneActTest, SoDoSaveAndTheCloseBox) {
    TypeBesideABadTest();
    Raise(Kind::Menu, "MenuFileSave");
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
    Raise(Kind::CloseForm, "H_SRM");
    EXPECT_THAT(Messages(), ElementsAre(kOverflow));
}

TEST_F(OneActTest, WhatIsTypedAfterASaveIsCommittedAnew) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Type, {}, "90");
    Raise(Kind::Menu, "MenuFileSave");
    EXPECT_EQ(program_.Get("FLEXREL"), 90.0);
    EXPECT_EQ(Forms().CurrentForm->focus->name, "FLEXREL");
    Raise(Kind::Type, {}, "85");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(program_.Get("FLEXREL"), 85.0);
}

TEST_F(OneActTest, AFormThatIsLeftForAnotherIsNotCommittedAgainWhenItCloses) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Type, {}, "90");
    Raise(Kind::OpenForm, "DeR");
    program_.Set("FLEXREL", 70.0);  // by a script, while the form lies behind
    Raise(Kind::CloseForm, "DeF");
    EXPECT_EQ(program_.Get("FLEXREL"), 70.0);
}

// --- What a form is opened with ---------------------------------------------------------------------

/// What a form's routines knew when they ran.
struct Known {
    std::string event;
    std::string dim2;
    int calculationsDim2 = 0;
    std::string caller;
    friend bool operator==(const Known&, const Known&) = default;
};

std::vector<Known> known;

void Note(const char* event, const ScreenEvent& from) {
    known.push_back(
        {event, from.form.TextOf("Dim2"), from.context.values.dim2, from.form.TextOf("FormName")});
}

FormType SliceForm() {
    FormType type;
    type.name = "Slice";
    type.tag = "DeF";
    type.caption = "Slice";
    type.layout = Rows({Fields({{"RM"}}), Hidden({"FormName", "FieldName"})});
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Before, [](ScreenEvent& event) { Note("load", event); }},
        {FormEvent::Activate, "", HandlerOrder::Before, [](ScreenEvent& event) { Note("activate", event); }}};
    return type;
}

class OpenRequestTest : public OneActTest {
  protected:
    OpenRequestTest() {
        known.clear();
        Forms().Declare({SliceForm()});
    }
};

TEST_F(OpenRequestTest, TheSliceIsKnownBeforeAnyRoutineRuns) {
    Raise(Kind::OpenForm, "Slice", {}, 2);
    EXPECT_THAT(known, ElementsAre(Known{"load", "2", 2, ""}, Known{"activate", "2", 2, ""}));
}

TEST_F(OpenRequestTest, AnotherSliceOfAnOpenFormBeginsAnew) {
    Raise(Kind::OpenForm, "Slice", {}, 1);
    Raise(Kind::OpenForm, "Slice", {}, 1);
    EXPECT_EQ(known.size(), 2U) << "the same slice is in front already";
    Raise(Kind::OpenForm, "Slice", {}, 2);
    ASSERT_EQ(known.size(), 4U);
    EXPECT_EQ(known[2], (Known{"load", "2", 2, ""}));
    EXPECT_EQ(known[3], (Known{"activate", "2", 2, ""}));
    EXPECT_EQ(Forms().InOpeningOrder().size(), 2U) << "the hub and one instance";
}

TEST_F(OpenRequestTest, TheCallerIsKnownBeforeAnyRoutineRuns) {
    Raise(Kind::OpenForm, "DeF");
    ScreenContext context = program_.program.state().MakeScreenContext();
    const Form* form =
        FormEvents(context).Open({.form = "Slice", .call = MakeCall(*Forms().CurrentForm, "RM")});
    EXPECT_EQ(form, Forms().CurrentForm);
    ASSERT_FALSE(known.empty());
    EXPECT_EQ(known.front().caller, "DeF");
}

}  // namespace
}  // namespace kelvor::test
