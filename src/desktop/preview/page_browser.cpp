#include "desktop/preview/page_browser.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <utility>

namespace kelvor {

namespace {

constexpr std::array kZooms = {25, 33, 50, 67, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300, 400};
constexpr double kPointsPerInch = 72.0;
constexpr int kAround = 60;  // dots that show around what was found

}  // namespace

PageBrowser::PageBrowser(QWidget* parent) : QScrollArea(parent), sheet_(new PageSheet(this)) {
    setWidget(sheet_);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setBackgroundRole(QPalette::Dark);
    setFocusPolicy(Qt::NoFocus);
    // A bar that comes and goes would change the width that the pages are to fit.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { onMoved(); });
}

void PageBrowser::SetPages(std::unique_ptr<PagedReport> pages) {
    hits_.clear();
    sheet_->SetPages(std::move(pages));
    verticalScrollBar()->setValue(0);
    if (fitsWidth_) FitWidth();
    onMoved();
}

std::size_t PageBrowser::Count() const { return sheet_->pages() == nullptr ? 0 : sheet_->pages()->Count(); }

// --- Size --------------------------------------------------------------------------------------------

double PageBrowser::DotsPerPoint(int percent) const {
    return percent / 100.0 * logicalDpiY() / kPointsPerInch;
}

int PageBrowser::zoom() const { return qRound(sheet_->scale() / DotsPerPoint(1)); }

/// The head of what shows stays where it is.
void PageBrowser::Scale(double dotsPerPoint) {
    const double share = verticalScrollBar()->value() / std::max(1.0, static_cast<double>(sheet_->height()));
    sheet_->SetScale(dotsPerPoint);
    verticalScrollBar()->setValue(qRound(share * sheet_->height()));
    onMoved();
}

void PageBrowser::FitWidth() {
    fitsWidth_ = true;
    if (Count() == 0) return;
    const int room = viewport()->width() - 2 * PageSheet::kRoom;
    Scale(std::max(room, 1) / sheet_->pages()->Sheet().width);
}

void PageBrowser::SetZoom(int percent) {
    fitsWidth_ = false;
    if (Count() > 0) Scale(DotsPerPoint(std::clamp(percent, kZooms.front(), kZooms.back())));
}

void PageBrowser::StepZoom(int direction) {
    const int now = zoom();
    if (direction > 0) {
        const auto* const larger =
            std::find_if(kZooms.begin(), kZooms.end(), [now](int z) { return z > now; });
        SetZoom(larger == kZooms.end() ? kZooms.back() : *larger);
    } else {
        const auto smaller = std::find_if(kZooms.rbegin(), kZooms.rend(), [now](int z) { return z < now; });
        SetZoom(smaller == kZooms.rend() ? kZooms.front() : *smaller);
    }
}

void PageBrowser::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (fitsWidth_) FitWidth();
}

void PageBrowser::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) StepZoom(event->angleDelta().y());
    event->accept();
}

// --- Place -------------------------------------------------------------------------------------------

void PageBrowser::GoTo(int page) {
    if (Count() == 0) return;
    const int last = static_cast<int>(Count()) - 1;
    const auto place = static_cast<std::size_t>(std::clamp(page, 0, last));
    verticalScrollBar()->setValue(sheet_->PageAt(place).top() - PageSheet::kRoom);
    onMoved();
}

int PageBrowser::page() const {
    if (Count() == 0) return 0;
    // The end of the last page may be all that shows of it.
    const QScrollBar& bar = *verticalScrollBar();
    if (bar.maximum() > 0 && bar.value() == bar.maximum()) return static_cast<int>(Count()) - 1;
    return static_cast<int>(sheet_->PageIn({0, bar.value(), 1, viewport()->height()}));
}

// --- Search ------------------------------------------------------------------------------------------

std::size_t PageBrowser::Search(std::string_view words) {
    hits_.clear();
    current_ = 0;
    const auto here = static_cast<std::size_t>(page());
    for (std::size_t i = 0; i < Count(); ++i) {
        if (i == here) current_ = hits_.size();
        for (const PageRectangle& place : sheet_->pages()->Find(i, words)) hits_.push_back({i, place});
    }
    if (current_ >= hits_.size()) current_ = 0;
    sheet_->SetHits(hits_);
    ShowHit();
    return hits_.size();
}

void PageBrowser::StepHit(int direction) {
    if (hits_.empty()) return;
    current_ = (current_ + (direction > 0 ? 1 : hits_.size() - 1)) % hits_.size();
    ShowHit();
}

std::size_t PageBrowser::hit() const { return hits_.empty() ? 0 : current_ + 1; }

void PageBrowser::ShowHit() {
    if (hits_.empty()) return;
    sheet_->SetCurrentHit(current_);
    const QPoint centre = sheet_->PlaceOf(hits_[current_]).center();
    ensureVisible(centre.x(), centre.y(), kAround, kAround);
}

}  // namespace kelvor
