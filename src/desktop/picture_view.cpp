#include "desktop/picture_view.h"

#include <QFile>
#include <QPainter>

#include "desktop/qt_text.h"

/// A library does not bring its resources in by itself. Outside the namespace, as its macro asks.
static void LoadPictures() { Q_INIT_RESOURCE(pictures); }

namespace kelvor {

namespace {

QString ResourceOf(const std::string& file) {
    LoadPictures();
    return QStringLiteral(":/pictures/") + ToQt(file);
}

/// The width of the drawing on the start page.
constexpr double kLettersWide = 64.0;

}  // namespace

PictureView::PictureView(const std::string& file, QWidget* parent, double letters)
    : QWidget(parent), file_(file), letters_(letters > 0.0 ? letters : kLettersWide) {
    if (const QString drawing = ResourceOf(file); QFile::exists(drawing)) drawing_.load(drawing);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
}

QSize PictureView::sizeHint() const {
    const QSize drawn = drawing_.defaultSize();
    return drawn.scaled(qRound(letters_ * fontMetrics().averageCharWidth()), QWIDGETSIZE_MAX,
                        Qt::KeepAspectRatio);
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawing_.render(&painter, rect());
}

}  // namespace kelvor
