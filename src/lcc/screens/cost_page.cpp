#include "lcc/screens/cost_page.h"

#include <algorithm>
#include <array>

#include "forms/form.h"
#include "forms/form_events.h"
#include "lcc/calc/pavements.h"
#include "lcc/screens/carried_items.h"
#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kUnitNote = "UNITNOTE";
constexpr double kUnitNoteLetters = 76.0;

struct PageName {
    const char* form;         // which the catalogue calls the page of pavement A by
    const char* ofPavementB;  // what the catalogue calls that of pavement B
    const char* subject;      // of its caption
};

/// In the order in which the buttons lead through them.
constexpr std::array kPages = {
    PageName{"LcA1", "LcA2", "Information"},
    PageName{"LcA1_2", "LcA2_2", "Initial Costs"},
    PageName{"LcA1_3", "LcA2_3", "Maintenance Costs"},
    PageName{"LcA1_4", "LcA2_4", "Maintenance & Rehabilitation Costs"},
};

std::size_t PlaceOf(const Form& page) {
    const auto found = std::find_if(kPages.begin(), kPages.end(),
                                    [&](const PageName& name) { return name.form == page.name(); });
    return static_cast<std::size_t>(found - kPages.begin());
}

/// A page that is opened without a pavement shows A.
void BeginPage(ScreenEvent& event) {
    Form& page = event.form;
    if (!page.dim2()) page.SetText("Dim2", std::to_string(kPavementA));
    const bool isA = PavementOf(page) == kPavementA;
    const PageName& name = kPages.at(PlaceOf(page));
    page.tag = isA ? name.form : name.ofPavementB;
    page.caption = std::string("Pavement (") + (isA ? "A" : "B") + ") " + name.subject;
    event.context.values.dim2 = PavementOf(page);
    page.Get(kBackButton).enabled = PlaceOf(page) > 0;
    page.Get(kNextButton).enabled = PlaceOf(page) + 1 < kPages.size();
}

void TurnTo(ScreenEvent& event, std::size_t place) {
    FormEvents events(event.context);
    if (events.Open({.form = kPages.at(place).form, .dim2 = PavementOf(event.form)}) == nullptr) return;
    events.Unload(event.form);
}

/// The names of the page before count. Who has picked others here is told where they went.
std::string ReplacedNamesText(int count) {
    return Filled(count == 1 ? Translated("%1 item name was replaced by that of the page before. Undo brings "
                                          "it back.")
                             : Translated("%1 item names were replaced by those of the page before. Undo "
                                          "brings them back."),
                  {std::to_string(count)});
}

void NextPageClick(ScreenEvent& event) {
    const std::size_t next = PlaceOf(event.form) + 1;
    FormRegistry& forms = event.context.forms;
    const int replaced = CarryItemsForward(event.context, event.form);
    TurnTo(event, next);
    Form* page = forms.Find(kPages.at(next).form);
    if (replaced > 0 && page != nullptr) ShowUnitNote(*page, ReplacedNamesText(replaced));
}

void PrevPageClick(ScreenEvent& event) {
    CarryItemsBack(event.context, event.form);
    TurnTo(event, PlaceOf(event.form) - 1);
}

void HideUnitNote(ScreenEvent& event) { ShowUnitNote(event.form, ""); }

}  // namespace

FormType CostPage(const std::string& name, const std::vector<Handler>& own) {
    FormType type;
    type.name = name;
    type.rowName = {ToTranslate("item"), ToTranslate("items")};
    type.foot = {BackButton(), NextButton(), OkButton(), HelpButton()};
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Before, BeginPage},
        {FormEvent::Click, kBackButton, HandlerOrder::Instead, PrevPageClick},
        {FormEvent::Click, kNextButton, HandlerOrder::Instead, NextPageClick},
        {FormEvent::Activate, "", HandlerOrder::Before, HideUnitNote},
        {FormEvent::CellChanged, "Grid", HandlerOrder::Before, HideUnitNote},
        {FormEvent::RowDeleted, "", HandlerOrder::Before, HideUnitNote},
    };
    type.handlers.insert(type.handlers.end(), own.begin(), own.end());
    return type;
}

std::optional<OpenRequest> PageOfPavementB(std::string_view name) {
    for (const PageName& page : kPages) {
        if (EqualNoCase(page.ofPavementB, name)) return OpenRequest{.form = page.form, .dim2 = kPavementB};
    }
    return std::nullopt;
}

int PavementOf(const Form& page) { return page.dim2().value_or(kPavementA); }

LayoutElement UnitNote() { return Statement(kUnitNote, 1, kUnitNoteLetters); }

void ShowUnitNote(Form& page, const std::string& text) { page.SetText(kUnitNote, text); }

void ShowUnitCostsStay(Form& page) {
    ShowUnitNote(page, Translated("Unit costs do not convert: they stay as they were entered."));
}

bool HasCell(const ScreenContext& context, const Form& page, int row, const GridColumn& column) {
    return context.calc.store.FindCell(column.variable, row, PavementOf(page)) != nullptr;
}

}  // namespace kelvor
