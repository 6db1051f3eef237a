// From the model to the widgets.

#include <QLineEdit>

#include "desktop/chart_view.h"
#include "desktop/control_widgets.h"
#include "desktop/form_view.h"
#include "desktop/grid_view.h"
#include "desktop/preview/report_pages_view.h"
#include "desktop/qt_text.h"
#include "desktop/stack_view.h"

namespace kelvor {

void FormView::Sync() {
    if (form_ == nullptr) return;
    SyncCaption();
    for (const auto& control : form_->controls()) {
        QWidget* widget = widgets_.value(control.get());
        if (auto* grid = dynamic_cast<GridView*>(widget)) grid->Show();
        if (control->stacked && !control->IsBox())
            dynamic_cast<StackView&>(*widget->parentWidget()).Arrange();
        if (control->chart) MirrorChart(*control, *widget);
        if (auto* pages = dynamic_cast<ReportPagesView*>(widget))
            pages->Show(control->document, control->text);
        const bool rewritten = MirrorControl(*control, *widget);
        auto* box = qobject_cast<QLineEdit*>(widget);
        if (rewritten && box != nullptr && form_->focus == control.get()) box->selectAll();
    }
    for (const auto& control : form_->controls()) {
        if (control->labelOf.empty()) continue;
        NameField(*FindWidget(control->labelOf), *control, form_->FindUnitOf(control->labelOf));
    }
    if (tabs_ != nullptr && tabs_->currentIndex() != form_->page()) {
        const QSignalBlocker quiet(tabs_);
        tabs_->setCurrentIndex(form_->page());
    }
}

/// A form may change its caption while it is open; the frame around it has the same.
void FormView::SyncCaption() {
    const QString caption = ToQt(form_->caption);
    if (windowTitle() == caption) return;
    setWindowTitle(caption);
    setAccessibleName(caption);
    if (parentWidget() != nullptr) parentWidget()->setWindowTitle(caption);
}

void FormView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) Sync();
    QWidget::changeEvent(event);
}

}  // namespace kelvor
