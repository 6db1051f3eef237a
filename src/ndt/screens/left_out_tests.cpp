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

bool IsMeasured(const ScreenContext& context, const Form& form, int row) {
    const std::vector<GridColumn>& columns = form.FindGrid()->grid->columns;
    return std::any_of(columns.begin(), columns.end(), [&](const GridColumn& column) {
        const CellValue* cell = context.calc.store.FindCell(column.variable, row, form.dim2().value_or(1));
        return !column.locked && cell != nullptr && cell->IsFilled();
    });
}

/// What is taken back takes the marks back too.
void KeepMarks(ScreenEvent& event) { event.form.Get(kMarks).travels = true; }

/// A row that has been emptied is no test any more: what is measured there next counts.
void DropMarksOfEmptyRows(ScreenEvent& event) {
    std::set<int> marks = LeftOutTests(event.form);
    if (std::erase_if(marks, [&](int row) { return !IsMeasured(event.context, event.form, row); }) == 0)
        return;
    event.form.SetText(kMarks, TextOf(marks));
}

/// The box tells of the row in which the cursor is.
void ShowMark(ScreenEvent& event) {
    DropMarksOfEmptyRows(event);
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

}  // namespace

LayoutElement LeaveOutBox() {
    return Checks({{kBox, Translated("Leave This &Test out of the Spread"),
                    Translated("Only the spread leaves it out: it still counts in the averages")}});
}

LayoutElement LeaveOutState() { return Hidden({kMarks}); }

std::vector<Handler> LeaveOutHandlers() {
    return {{FormEvent::Load, "", HandlerOrder::After, KeepMarks},
            {FormEvent::Activate, "", HandlerOrder::After, ShowMark},
            {FormEvent::RowChanged, "", HandlerOrder::After, ShowMark},
            {FormEvent::Click, kBox, HandlerOrder::After, SetMark},
            {FormEvent::RowDeleted, "", HandlerOrder::After, ShowMark},
            {FormEvent::RowsWritten, "", HandlerOrder::After, ShowMark},
            {FormEvent::Travelled, "", HandlerOrder::After, ShowMark}};
}

std::set<int> LeftOutTests(const Form& form) { return RowsIn(form.TextOf(kMarks)); }

std::string WithLeftOutNote(std::string note, const Form& form, int row, const GridColumn& column) {
    if (!column.locked || !LeftOutTests(form).contains(row)) return note;
    if (note.empty()) return Translated("Left out of the spread");
    return Filled(Translated("%1. Left out of the spread"), {note});
}

void MoveMarks(Form& form, const RowMoves& moves) {
    std::set<int> moved;
    for (const int row : LeftOutTests(form)) {
        const auto place = static_cast<std::size_t>(row - 1);
        const int now = place < moves.size() ? moves[place] : row;
        if (now > 0) moved.insert(now);
    }
    form.SetText(kMarks, TextOf(moved));
}

}  // namespace kelvor
