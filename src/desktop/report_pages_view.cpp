#include "desktop/report_pages_view.h"

#include <QFontMetrics>

namespace kelvor {

namespace {

constexpr int kColumns = 60;
constexpr int kLines = 6;

}  // namespace

ReportPagesView::ReportPagesView(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    const QFontMetrics letters = fontMetrics();
    setMinimumSize(kColumns * letters.averageCharWidth(), kLines * letters.lineSpacing());
}

}  // namespace kelvor
