#include "desktop/stack_view.h"

#include <QLineEdit>
#include <algorithm>

namespace kelvor {

namespace {

constexpr int kLowestBox = 240;  // twips: such a box is one line high
constexpr int kHighestBox = 500;
constexpr int kLabelLetters = 34;

}  // namespace

StackView::StackView(const Form& form, const layout::Stack& stack, const WidgetFinder& find, QWidget* parent)
    : QWidget(parent), lineHeight_(QLineEdit().sizeHint().height()) {
    const auto adopt = [&](const std::string& name) {
        QWidget* widget = find(name);
        const bool shown = !widget->isHidden();
        widget->setParent(this);
        widget->setVisible(shown);
        return widget;
    };
    for (const layout::StackedBox& declared : stack.boxes) {
        boxes_.push_back({form.Find(declared.box), adopt(declared.box), adopt(declared.label)});
        boxWidth_ = std::max(boxWidth_, boxes_.back().box->minimumWidth());
    }
    ground_ = {form.Find(stack.ground), nullptr, adopt(stack.ground)};
    const int highest = static_cast<int>(boxes_.size()) * Pixels(kHighestBox) + Pixels(kLowestBox);
    setFixedSize(boxWidth_ + fontMetrics().averageCharWidth() * kLabelLetters, highest);
    Arrange();
}

int StackView::Pixels(int twips) const { return twips * lineHeight_ / kLowestBox; }

void StackView::Arrange() {
    const int gap = fontMetrics().averageCharWidth();
    const int labelWidth = width() - boxWidth_ - gap;
    for (const Entry& entry : boxes_) {
        const StackPlace place = *entry.control->stacked;
        const int top = Pixels(place.top);
        const int height = Pixels(place.top + place.height) - top;
        entry.box->setGeometry(0, top, boxWidth_, std::max(height, lineHeight_));
        entry.label->setGeometry(boxWidth_ + gap, top, labelWidth, std::max(height, lineHeight_));
        entry.box->setProperty(kStackHeightProperty, place.height);
    }
    ground_.label->setGeometry(0, Pixels(ground_.control->stacked->top), boxWidth_, lineHeight_);
}

}  // namespace kelvor
