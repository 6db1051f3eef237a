#include "desktop/wait_box.h"

#include <QVBoxLayout>

#include "desktop/qt_text.h"

namespace kelvor {

namespace {

constexpr int kColumns = 50;

}  // namespace

WaitBox::WaitBox(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("PleaseWait"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    text_->setTextFormat(Qt::PlainText);
    text_->setMinimumWidth(kColumns * fontMetrics().averageCharWidth());
    bar_->setTextVisible(false);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(text_);
    rows->addWidget(bar_);
}

/// The work goes on in between without an event loop, so the box is painted at once.
void WaitBox::Show(const WaitNotice& notice) {
    setWindowTitle(ToQt(notice.title));
    text_->setText(ToQt(notice.text));
    bar_->setRange(0, static_cast<int>(notice.steps));
    bar_->setValue(static_cast<int>(notice.done));
    show();
    repaint();
}

}  // namespace kelvor
