#include "desktop/copy_result.h"

#include <QStringList>
#include <algorithm>

#include "desktop/qt_text.h"
#include "forms/form_builder.h"

namespace kelvor {

namespace {

QString Spaced(const QString& value, const QString& unit) {
    return value.isEmpty() || unit.isEmpty() ? value : value + u' ' + unit;
}

QString UnitOf(Form& form, const std::string& box) {
    const Control* unit = form.FindUnitOf(box);
    return unit == nullptr || IsNoUnit(unit->text) ? QString() : PlainLabelText(unit->text);
}

/// True on the page that shows, and for what stands on every page.
bool IsShown(const Form& form, const Control& control) {
    return control.visible && (control.page < 0 || control.page == form.page());
}

QString LabelOf(const Form& form, const std::string& box) {
    for (const auto& control : form.controls()) {
        if (control->labelOf == box) return PlainLabelText(control->text);
    }
    return {};
}

QStringList GridLines(Program& program, const Form& form, const GridData& grid) {
    QStringList head;
    for (const GridColumn& column : grid.columns) {
        const QString unit = column.unit.empty() ? QString() : " (" + ToQt(column.unit) + ")";
        head << ToQt(column.caption) + unit;
    }
    QStringList lines = {head.join(u'\t')};
    for (int row = 1; row <= grid.rows; ++row) {
        QStringList cells;
        for (const GridColumn& column : grid.columns) cells << ToQt(program.CellText(form, row, column));
        const bool filled =
            std::any_of(cells.begin(), cells.end(), [](const auto& c) { return !c.isEmpty(); });
        if (filled) lines << cells.join(u'\t');
    }
    return lines;
}

}  // namespace

QString ValueOfFocus(Program& program, Form& form) {
    const Control* focus = form.focus;
    if (focus == nullptr) return {};
    if (focus->grid) {
        const GridColumn& column = focus->grid->current();
        return Spaced(ToQt(program.CellText(form, focus->grid->row, column)), ToQt(column.unit));
    }
    return focus->IsBox() ? Spaced(ToQt(focus->text), UnitOf(form, focus->name)) : QString();
}

QString TableOfScreen(Program& program, Form& form) {
    QStringList lines = {ToQt(form.caption)};
    for (const auto& control : form.controls()) {
        if (!IsShown(form, *control)) continue;
        if (control->grid) lines << GridLines(program, form, *control->grid);
        if (!control->IsField()) continue;
        const QString label = LabelOf(form, control->name);
        if (label.isEmpty()) continue;
        lines << QStringList{label, ToQt(control->text), UnitOf(form, control->name)}.join(u'\t');
    }
    return lines.join(u'\n') + u'\n';
}

}  // namespace kelvor
