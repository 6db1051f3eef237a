#include "desktop/widget_reading.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

#include "desktop/chart_view.h"
#include "desktop/control_widgets.h"
#include "desktop/picture_view.h"
#include "desktop/preview/report_pages_view.h"
#include "desktop/qt_text.h"
#include "desktop/stack_view.h"
#include "desktop/theme.h"

namespace kelvor::test {

namespace {

/// True for the sunken label of an indicator, whose caption has the line ends of the model.
bool IsIndicator(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->frameShadow() == QFrame::Sunken;
}

/// A caption without the mark that the view put in.
std::string CaptionText(const QWidget& widget, QString text) {
    const auto mark = widget.property(kAddedMarkProperty).value<qsizetype>();
    if (mark >= 0 && mark < text.size() && text[mark] == u'&') text.remove(mark, 1);
    return FromQt(IsIndicator(widget) ? text.replace("\n", "\r\n") : text);
}

/// The colour of the model that a widget shows in a role; what the widget has from the palette is `usual`.
std::string ColourName(const QWidget& widget, QPalette::ColorRole role, Colour usual) {
    const QPalette& palette = widget.palette();
    if (!widget.testAttribute(Qt::WA_SetPalette) || !palette.isBrushSet(QPalette::Active, role)) {
        return std::string(usual);
    }
    const QColor shown = palette.color(QPalette::Active, role);
    for (const Colour colour : {colours::kLightCyan, colours::kLightRed, colours::kBrightWhite,
                                colours::kResting, colours::kBlue, colours::kBlack}) {
        const bool isText = role == QPalette::Text || role == QPalette::WindowText;
        const QColor own = isText ? ScreenTextColour(colour, QPalette()) : ScreenColour(colour, QPalette());
        if (own == shown) return std::string(colour);
    }
    return std::string(usual);
}

}  // namespace

ControlKind KindOf(const QWidget& widget) {
    if (dynamic_cast<const ChartView*>(&widget) != nullptr) return ControlKind::Chart;
    if (qobject_cast<const QTableView*>(&widget) != nullptr) return ControlKind::Grid;
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) return ControlKind::TextBox;
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) return ControlKind::ComboBox;
    if (qobject_cast<const QPushButton*>(&widget) != nullptr) return ControlKind::CommandButton;
    if (qobject_cast<const QToolButton*>(&widget) != nullptr) return ControlKind::CommandButton;
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr) return ControlKind::OptionButton;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) return ControlKind::CheckBox;
    if (qobject_cast<const QGroupBox*>(&widget) != nullptr) return ControlKind::Frame;
    if (qobject_cast<const QTabWidget*>(&widget) != nullptr) return ControlKind::TabStrip;
    if (dynamic_cast<const PictureView*>(&widget) != nullptr) return ControlKind::Image;
    if (dynamic_cast<const ReportPagesView*>(&widget) != nullptr) return ControlKind::ReportPages;
    return ControlKind::Label;
}

std::string TextOf(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return FromQt(box->text());
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return FromQt(list->currentText());
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) return FromQt(frame->title());
    if (const auto* picture = dynamic_cast<const PictureView*>(&widget)) return picture->file();
    if (const auto* pages = dynamic_cast<const ReportPagesView*>(&widget)) return FromQt(pages->shownText());
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        return FromQt(tabs->tabText(tabs->currentIndex()).replace("&&", "&"));
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return CaptionText(widget, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return CaptionText(widget, button->text());
    }
    return {};
}

PropertyValue ValueOf(const QWidget& widget) {
    if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) return tabs->currentIndex();
    const auto* choice = qobject_cast<const QAbstractButton*>(&widget);
    if (choice != nullptr && KindOf(widget) != ControlKind::CommandButton) return choice->isChecked();
    if (const QVariant height = widget.property(kStackHeightProperty); height.isValid())
        return height.toInt();
    return TextOf(widget);
}

bool IsEnabled(const QWidget& widget) { return !widget.testAttribute(Qt::WA_ForceDisabled); }

std::string BackColour(const QWidget& widget) {
    const ControlKind kind = KindOf(widget);
    const bool isBox = kind == ControlKind::TextBox || kind == ControlKind::ComboBox;
    const bool hidden = isBox && widget.isHidden();
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    const QPalette& palette = widget.palette();
    if (line != nullptr && !line->isReadOnly() && widget.testAttribute(Qt::WA_SetPalette) &&
        palette.color(QPalette::Active, QPalette::Base) ==
            palette.color(QPalette::Active, QPalette::Window)) {
        return std::string(colours::kButtonFace);
    }
    return ColourName(widget, isBox ? QPalette::Base : QPalette::Window,
                      isBox && !hidden ? colours::kWindow : colours::kButtonFace);
}

std::string ForeColour(const QWidget& widget) {
    const bool isBox = KindOf(widget) == ControlKind::TextBox;
    return ColourName(widget, isBox ? QPalette::Text : QPalette::WindowText, colours::kWindowText);
}

}  // namespace kelvor::test
