#include "ndt/screens/left_out_tests.h"

#include <algorithm>
#include <sstream>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kBox = "LeftOut";
constexpr const char* kMarks = "LeftOutTests";
constexpr const char* kMarksAfterDeletion = "LeftOutAfterDeletion";

std::set<int> RowsIn(const std::string& text) {
    std::istringstream words(text);
    std::set<int> rows;
    for (int row = 0; words >> row;) rows.insert(row);
    return rows;
}

std::string TextOf(const std::set<int>& rows) {
    std::string text;
    for (const int row : rows) text += (text.empty() ? "" : " ") + std::to_string(row);
    return text;
}

bool IsFilled(const ScreenContext& context, const Form& form, int row) {
    const std::vector<GridColumn>& columns = form.FindGrid()->grid->columns;
    return std::any_of(columns.begin(), columns.end(), [&](const GridColumn& column) {
        const CellValue* cell = context.calc.store.FindCell(column.variable, row, form.dim2().value_or(1));
        return cell != nullptr && cell->IsFilled();
    });
}

/// The box tells of the row in which the cursor is.
void ShowMark(ScreenEvent& event) {
    event.form.Get(kBox).value = LeftOutTests(event.form).contains(event.form.FindGrid()->grid->row);
}

void SetMark(ScreenEvent& event) {
    std::set<int> marks = LeftOutTests(event.form);
    const int row = event.form.FindGrid()->grid->row;
    if (event.form.Get(kBox).value) {
        marks.insert(row);
    } else {
        marks.erase(row);
    }
    event.form.SetText(kMarks, TextOf(marks));
}

void MoveMarks(ScreenEvent& event) {
    event.form.SetText(kMarks, event.form.TextOf(kMarksAfterDeletion));
    ShowMark(event);
}

}  // namespace

LayoutElement LeaveOutBox() { return Checks({{kBox, Translated("Leave This &Test out of the Spread")}}); }

LayoutElement LeaveOutState() { return Hidden({kMarks, kMarksAfterDeletion}); }

std::vector<Handler> LeaveOutHandlers() {
    return {{FormEvent::Activate, "", HandlerOrder::After, ShowMark},
            {FormEvent::RowChanged, "", HandlerOrder::After, ShowMark},
            {FormEvent::Click, kBox, HandlerOrder::After, SetMark},
            {FormEvent::RowDeleted, "", HandlerOrder::After, MoveMarks}};
}

std::set<int> LeftOutTests(const Form& form) { return RowsIn(form.TextOf(kMarks)); }

std::string WithLeftOutNote(std::string note, const Form& form, int row, const GridColumn& column) {
    if (!column.locked || !LeftOutTests(form).contains(row)) return note;
    if (note.empty()) return Translated("Left out of the spread");
    return Filled(Translated("%1. Left out of the spread"), {note});
}

bool PrepareDeletion(ScreenContext& context, Form& form, int row) {
    const std::set<int> marks = LeftOutTests(form);
    std::set<int> moved;
    int next = 1;
    for (int from = 1; from <= form.FindGrid()->grid->rows; ++from) {
        if (from == row || !IsFilled(context, form, from)) continue;
        if (marks.contains(from)) moved.insert(next);
        ++next;
    }
    form.SetText(kMarksAfterDeletion, TextOf(moved));
    return true;
}

}  // namespace kelvor
