#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "forms/form_events.h"
#include "platform/database_error.h"
#include "platform/number_text.h"
#include "platform/translation.h"
#include "shell/hub/offer.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

constexpr const char* kCombo = "CustCombo";
constexpr const char* kGrid = "DBGrid1";
constexpr const char* kAdd = "cmdbAddMaint";
constexpr const char* kDelete = "cmdbDeleteMaint";
constexpr const char* kRestore = "cmdbRestoreDefault";
constexpr const char* kSort = "cmdbSort";
constexpr const char* kNoList = ToTranslate("choose a list first");
constexpr const char* kValueColumn = "Value";

/// What stands behind the columns of a row of the grid: which row of the table it is.
constexpr std::size_t kIdPlace = 3;

std::string Chosen(const Form& hub) { return hub.Get(kCombo).text; }
GridData& GridOf(Form& hub) { return *hub.Get(kGrid).grid; }

/// Does something to the lists. What fails leaves them as they are, and is not told.
void Try(const std::function<void()>& act) {
    try {
        act();
    } catch (const DatabaseError&) {  // NOLINT(bugprone-empty-catch): the grid then shows what is stored
    }
}

/// Reads the rows of the chosen list again; the cursor stays on its row, or goes to the last one.
void ShowList(ScreenContext& context, Form& hub) {
    Try([&] {
        GridData& grid = GridOf(hub);
        std::vector<std::vector<std::string>> texts;
        for (const ListRow& row : context.lists.Rows(Chosen(hub))) {
            texts.push_back(
                {row.name, row.sort ? NumberToText(*row.sort) : "", row.value, std::to_string(row.id)});
        }
        grid.rows = static_cast<int>(texts.size());
        grid.row = std::max(1, std::min(grid.row, grid.rows));
        grid.typed.reset();
        grid.texts = std::move(texts);
    });
    OfferListButtons(hub);
}

/// The row of the table under the grid's cursor; nothing if the list is empty.
std::optional<ListRow> CurrentRow(Form& hub) {
    const GridData& grid = GridOf(hub);
    if (grid.rows == 0) return std::nullopt;
    const auto& texts = (*grid.texts)[static_cast<std::size_t>(grid.row - 1)];
    ListRow row;
    row.id = std::stoll(texts[kIdPlace]);
    row.name = texts[0];
    if (!texts[1].empty()) row.sort = ParseNumber(texts[1]);
    row.value = texts[2];
    return row;
}

bool Confirmed(ScreenContext& context, const char* question) {
    return context.calc.dialogs.ShowMessage(
               {.text = question, .title = "Confirmation", .style = MessageStyle::OkCancel}) == Answer::Ok;
}

// --- What the user does -----------------------------------------------------------------------------

void ListChosen(ScreenEvent& event) {
    if (Chosen(event.form).empty()) {
        OfferListButtons(event.form);  // the entries of the list before stay
        return;
    }
    GridOf(event.form).row = 1;
    ShowList(event.context, event.form);
}

void AddClick(ScreenEvent& event) {
    event.context.calc.dialogs.SetWaitCursor(true);
    Try([&] { event.context.lists.AddRow(Chosen(event.form)); });
    ShowList(event.context, event.form);
    event.context.calc.dialogs.SetWaitCursor(false);
    FormEvents(event.context).MoveToCell(event.form, GridOf(event.form).rows, kValueColumn);
}

void DeleteItem(ScreenEvent& event) {
    if (!Confirmed(event.context, "Are you sure you want to delete this item?")) return;
    const auto row = CurrentRow(event.form);
    if (!row) return;
    Try([&] { event.context.lists.DeleteRows(Chosen(event.form), *row); });
    ShowList(event.context, event.form);
}

void RestoreClick(ScreenEvent& event) {
    if (!Confirmed(event.context, "Are you sure you want to restore defaults for this item?")) return;
    Try([&] { event.context.lists.Restore(Chosen(event.form)); });
    ShowList(event.context, event.form);
}

void SortClick(ScreenEvent& event) { ShowList(event.context, event.form); }

/// What was typed goes to the table at once; its row moves when the list is sorted.
void CellChanged(ScreenEvent& event) {
    const auto row = CurrentRow(event.form);
    if (!row) return;
    try {
        event.context.lists.Write(*row);
    } catch (const DatabaseError&) {
        ShowList(event.context, event.form);
    }
}

}  // namespace

HubPage ListsTab() {
    return {
        Page("Lists",
             {Choice(kCombo, "List", Translated("The list to work on")),
              Grid(kGrid, {{"Name", "Name"}, {"Sort", "Sort Order"}, {kValueColumn, "Value"}}),
              Buttons({{kAdd, "&Add Item", Translated("Add an entry to the list, to be filled in")},
                       {kDelete, "&Delete Item", Translated("Take the entry under the cursor off the list")},
                       {kRestore, Translated("&Restore Defaults"),
                        Translated("Bring the list back as it was delivered")},
                       {kSort, "&Sort", Translated("Show the entries in their sort order")}})}),
        {{FormEvent::Change, kCombo, HandlerOrder::Instead, ListChosen},
         {FormEvent::CellChanged, kGrid, HandlerOrder::Instead, CellChanged},
         {FormEvent::RowDeleted, kGrid, HandlerOrder::Instead, DeleteItem},
         {FormEvent::Click, kAdd, HandlerOrder::Instead, AddClick},
         {FormEvent::Click, kDelete, HandlerOrder::Instead, DeleteItem},
         {FormEvent::Click, kRestore, HandlerOrder::Instead, RestoreClick},
         {FormEvent::Click, kSort, HandlerOrder::Instead, SortClick}}};
}

void LoadListsTab(Form& hub) {
    GridData& grid = GridOf(hub);
    grid.columns[1].picture = "0";
    grid.columns[0].hint = Translated("Name of the list, by which the screens know it");
    grid.columns[1].hint = Translated("Place in the list; press Sort to see the new order");
    grid.columns[2].hint = Translated("What the list offers");
    grid.texts.emplace();
    grid.rows = 0;
    OfferListButtons(hub);
}

void OfferListButtons(Form& hub) {
    for (const char* button : {kAdd, kDelete, kRestore, kSort}) {
        Offer(hub, button, !Chosen(hub).empty(), kNoList);
    }
}

void EnterListsTab(ScreenContext& context, Form& hub) {
    // Once: a list that is emptied stays there to be restored.
    std::vector<std::string>& lists = hub.Get(kCombo).items;
    if (lists.empty()) Try([&] { lists = context.lists.Descriptions(); });
    ShowList(context, hub);
}

}  // namespace kelvor
