#include "desktop/preview/page_sheet.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace kelvor {

namespace {

constexpr int kKeptPages = 6;

/// The marks of what was found, over black letters on white.
const QColor kHitColour(255, 200, 0, 90);
const QColor kCurrentHitColour(255, 110, 0, 130);

}  // namespace

PageSheet::PageSheet(QWidget* parent) : QWidget(parent), images_(kKeptPages) {
    setFocusPolicy(Qt::NoFocus);
    setBackgroundRole(QPalette::Dark);
    setAutoFillBackground(true);
}

void PageSheet::SetPages(std::unique_ptr<PagedReport> pages) {
    pages_ = std::move(pages);
    hits_.clear();
    images_.clear();
    Resize();
    update();
}

void PageSheet::SetScale(double dotsPerPoint) {
    scale_ = dotsPerPoint;
    Resize();
    update();
}

void PageSheet::SetHits(std::vector<PageHit> hits) {
    hits_ = std::move(hits);
    currentHit_ = 0;
    update();
}

void PageSheet::SetCurrentHit(std::size_t hit) {
    currentHit_ = hit;
    update();
}

void PageSheet::Resize() {
    if (pages_ == nullptr) return;
    const QRect last = PageAt(pages_->Count() - 1);
    setFixedSize(last.width() + 2 * kRoom, last.bottom() + 1 + kRoom);
}

QRect PageSheet::PageAt(std::size_t page) const {
    const PointSize sheet = pages_->Sheet();
    const int width = qRound(sheet.width * scale_);
    const int height = qRound(sheet.height * scale_);
    return {kRoom, kRoom + static_cast<int>(page) * (height + kRoom), width, height};
}

QRect PageSheet::PlaceOf(const PageHit& hit) const {
    const QPointF corner = PageAt(hit.page).topLeft();
    const QRectF place(hit.place.left * scale_, hit.place.top * scale_, hit.place.width * scale_,
                       hit.place.height * scale_);
    return place.translated(corner).toAlignedRect();
}

std::size_t PageSheet::PageIn(const QRect& part) const {
    const int step = PageAt(0).height() + kRoom;
    const int middle = part.center().y() / std::max(step, 1);
    return static_cast<std::size_t>(std::clamp(middle, 0, static_cast<int>(pages_->Count()) - 1));
}

const QImage& PageSheet::ImageOf(std::size_t page) {
    const double scale = scale_ * devicePixelRatioF();
    if (std::exchange(imageScale_, scale) != scale) images_.clear();
    if (!images_.contains(page)) {
        const PageImage painted = pages_->Paint(page, scale);
        const QImage shared(reinterpret_cast<const uchar*>(painted.dots.data()), painted.width,
                            painted.height, painted.width * static_cast<int>(sizeof(std::uint32_t)),
                            QImage::Format_RGB32);
        images_.insert(page, new QImage(shared.copy()));
    }
    return *images_.object(page);
}

void PageSheet::PaintPage(QPainter& painter, std::size_t page) {
    painter.drawImage(PageAt(page), ImageOf(page));
    for (std::size_t i = 0; i < hits_.size(); ++i) {
        if (hits_[i].page != page) continue;
        painter.fillRect(PlaceOf(hits_[i]), i == currentHit_ ? kCurrentHitColour : kHitColour);
    }
}

void PageSheet::paintEvent(QPaintEvent* event) {
    if (pages_ == nullptr) return;
    QPainter painter(this);
    for (std::size_t page = 0; page < pages_->Count(); ++page) {
        if (PageAt(page).intersects(event->rect())) PaintPage(painter, page);
    }
}

}  // namespace kelvor
