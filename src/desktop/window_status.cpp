#include "desktop/window_status.h"

#include <QFileInfo>

#include "desktop/grid_view.h"
#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

/// A widget of its own: what a menu says in passing would wipe a message away.
QLabel* MakeLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(label->fontMetrics().averageCharWidth(), 0, 0, 0);
    return label;
}

void SetText(QLabel& label, const QString& text) {
    if (label.text() != text) label.setText(text);
}

}  // namespace

QString DocumentName(const ProcessState& state) {
    if (state.sProjectFile.empty()) return TranslatedText("Unnamed project");
    return QFileInfo(ToQt(state.sProjectFile)).completeBaseName();
}

WindowStatus::WindowStatus(QWidget* parent)
    : QStatusBar(parent),
      hint_(MakeLabel("Hint", this)),
      figures_(MakeLabel("Figures", this)),
      document_(MakeLabel("Document", this)) {
    // What the hint has no room for is cut before it makes the window wider.
    hint_->setMinimumWidth(1);
    addWidget(hint_, 1);
    addPermanentWidget(figures_);
    addPermanentWidget(document_);
    figures_->setAccessibleName(TranslatedText("Figures of the marked cells"));
    document_->setAccessibleName(TranslatedText("Project"));
}

void WindowStatus::Sync(Program& program, const FormView* view) {
    ShowHint(program);
    ShowFigures(view);
    ShowDocument(program.state());
}

void WindowStatus::ShowHint(Program& program) {
    const Form* form = program.state().formRegistry.CurrentForm;
    const Control* focus = form == nullptr ? nullptr : form->focus;
    QString hint;
    if (focus != nullptr) hint = ToQt(focus->grid ? focus->grid->current().hint : focus->toolTip);
    if (const std::string preview = program.EntryPreview(); !preview.empty()) hint = ToQt(preview);
    if (!program.state().dbWork.IsOpen()) {
        hint = TranslatedText("No project is open: choose New Project or Open Project");
    }
    SetText(*hint_, hint);
}

void WindowStatus::ShowFigures(const FormView* view) {
    const Form* form = view == nullptr ? nullptr : view->form();
    const Control* focus = form == nullptr ? nullptr : form->focus;
    const auto* grid = focus == nullptr || !focus->grid
                           ? nullptr
                           : dynamic_cast<const GridView*>(view->FindWidget(focus->name));
    SetText(*figures_, grid == nullptr ? QString() : grid->FiguresOfMarked());
}

void WindowStatus::ShowNoRoom() { SetText(*hint_, TranslatedText("The overview needs a wider window")); }

/// "Saved road" until something is changed, then "road*".
void WindowStatus::ShowDocument(const ProcessState& state) {
    if (saves_ != state.saves) projects_ = state.projects;
    saves_ = state.saves;
    QString text = DocumentName(state);
    if (state.bProjectChanged) {
        text += u'*';
    } else if (projects_ == state.projects) {
        text = TranslatedText("Saved %1").arg(text);
    }
    if (!state.dbWork.IsOpen()) text.clear();
    SetText(*document_, text);
    document_->setToolTip(ToQt(state.sProjectFile));
}

}  // namespace kelvor
