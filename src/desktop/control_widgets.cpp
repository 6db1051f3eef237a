#include "desktop/control_widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

#include "desktop/picture_view.h"
#include "desktop/qt_text.h"
#include "desktop/theme.h"
#include "desktop/translated_text.h"
#include "platform/number_picture.h"

namespace kelvor {

namespace {

/// The least number of characters that a box shows, whatever its picture.
constexpr qsizetype kFewestPlaces = 14;  // 10,000,000,000
constexpr qsizetype kPlacesOfText = 30;

/// More than anybody types, and than a cell takes: a box that cut a text would disagree with the form.
constexpr int kLongestText = 1 << 24;

/// The lines and the width that an indicator needs, whatever it says.
const char* const kWidestIndicator = "Press Solve For to Recalculate";
constexpr int kIndicatorLines = 4;

bool IsIndicator(const Control& control) {
    return control.kind == ControlKind::Label && control.tag == "SolveFor";
}

qsizetype PlacesOf(const Control& control) {
    if (control.letters > 0.0) return static_cast<qsizetype>(control.letters);
    if (IsTextPicture(control.picture)) return kPlacesOfText;
    return std::max(static_cast<qsizetype>(control.picture.size()), kFewestPlaces);
}

int BoxWidth(const Control& control, const QWidget& box) {
    const QFontMetrics metrics = box.fontMetrics();
    const QString widest(PlacesOf(control), u'0');
    return metrics.horizontalAdvance(widest) + 2 * metrics.averageCharWidth();
}

QWidget* MakeTextBox(const Control& control, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setFrame(!control.plain);
    box->setMinimumWidth(BoxWidth(control, *box));
    const bool isText = !control.plain && IsTextPicture(control.picture);
    box->setAlignment((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    box->setMaxLength(kLongestText);
    box->setAcceptDrops(false);  // a text dropped on a field without the focus would be nobody's edit
    return box;
}

QWidget* MakeComboBox(const Control& control, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMinimumWidth(BoxWidth(control, *list));
    list->setAcceptDrops(false);
    list->lineEdit()->setAcceptDrops(false);
    list->setCompleter(nullptr);  // what is typed stays as typed
    return list;
}

QWidget* MakeIndicator(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    label->setAlignment(Qt::AlignCenter);
    label->setAutoFillBackground(true);
    label->setAccessibleName(QStringLiteral("Solve For"));
    QFont bold = label->font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    label->setMinimumSize(metrics.horizontalAdvance(kWidestIndicator) + 4 * metrics.averageCharWidth(),
                          (kIndicatorLines + 1) * metrics.lineSpacing());
    return label;
}

QWidget* MakeLabel(const Control& control, QWidget* parent) {
    if (IsIndicator(control)) return MakeIndicator(parent);
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    int width = 0;
    for (const std::string& wording : control.wordings) {
        label->setText(PlainLabelText(wording));
        width = std::max(width, label->sizeHint().width());
    }
    label->setMinimumWidth(width);
    return label;
}

template <typename Button>
QWidget* MakeButton(QWidget* parent) {
    auto* button = new Button(parent);
    // The model moves the focus; a click of the mouse asks it to.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

/// A small button beside a field is as wide as its caption, and named by what it does.
QWidget* MakeCommandButton(const Control& control, QWidget* parent) {
    if (!control.IsSmallButton()) return MakeButton<QPushButton>(parent);
    QWidget* button = MakeButton<QToolButton>(parent);
    button->setAccessibleName(ToQt(control.toolTip));
    return button;
}

QWidget* MakeOption(QWidget* parent) {
    auto* option = new QRadioButton(parent);
    option->setAutoExclusive(false);  // which options exclude each other is the model's to say
    option->setFocusPolicy(Qt::TabFocus);
    return option;
}

QWidget* MakeTabStrip(QWidget* parent) {
    auto* tabs = new QTabWidget(parent);
    tabs->setFocusPolicy(Qt::NoFocus);
    tabs->tabBar()->setFocusPolicy(Qt::TabFocus);
    tabs->tabBar()->setAccessibleName(TranslatedText("Tabs"));
    tabs->setUsesScrollButtons(false);
    tabs->setElideMode(Qt::ElideNone);
    return tabs;
}

void MirrorLabel(const Control& control, QLabel& label) {
    const WidgetCaption caption = CaptionOf(control);
    const QString text = label.buddy() != nullptr ? caption.text : PlainLabelText(control.text);
    label.setProperty(kAddedMarkProperty, label.buddy() != nullptr ? caption.addedMark : qsizetype{-1});
    if (label.text() != text) label.setText(text);
    // A paragraph is as high as its lines; the layouts above it do not ask for that.
    if (label.wordWrap()) {
        const int least = label.property(kLeastLinesProperty).toInt() * label.fontMetrics().lineSpacing();
        label.setMinimumHeight(std::max(least, label.heightForWidth(label.minimumWidth())));
    }
    ApplyColours(label, control, QPalette::Window, QPalette::WindowText);
}

bool MirrorTextBox(const Control& control, QLineEdit& box) {
    box.setReadOnly(control.locked);
    box.setFocusPolicy(control.tabStop ? Qt::StrongFocus : Qt::NoFocus);
    ApplyColours(box, control, QPalette::Base, QPalette::Text);
    const QString text = ToQt(control.text);
    if (box.text() == text) return false;
    box.setText(text);
    if (!box.hasFocus()) box.setCursorPosition(0);  // of a text that is too long its beginning is seen
    return true;
}

bool MirrorComboBox(const Control& control, QComboBox& list) {
    const QSignalBlocker quiet(list);
    QStringList items;
    for (const std::string& item : control.items) items << ToQt(item);
    QStringList shown;
    for (int i = 0; i < list.count(); ++i) shown << list.itemText(i);
    if (items != shown) {
        list.clear();
        list.addItems(items);
    }
    const QString text = ToQt(control.text);
    if (list.currentText() == text) return false;
    list.setCurrentIndex(list.findText(text, Qt::MatchExactly));
    list.setEditText(text);
    return true;
}

void MirrorButton(const Control& control, QAbstractButton& button) {
    const WidgetCaption caption = CaptionOf(control);
    button.setProperty(kAddedMarkProperty, caption.addedMark);
    if (button.text() != caption.text) button.setText(caption.text);
    if (!control.IsChoice()) return;
    const QSignalBlocker quiet(button);
    button.setCheckable(true);
    button.setChecked(control.value);
}

void MirrorFrame(const Control& control, QGroupBox& frame) {
    const QString title = ToQt(control.text);
    if (frame.title() != title) frame.setTitle(title);
}

void MirrorCommon(const Control& control, QWidget& widget) {
    if (widget.testAttribute(Qt::WA_ForceDisabled) == control.enabled) widget.setEnabled(control.enabled);
    if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
    const QString toolTip = ToQt(control.toolTip);
    if (widget.toolTip() != toolTip) {
        widget.setToolTip(toolTip);
        widget.setAccessibleDescription(toolTip);
    }
    if (widget.font().bold() != control.bold) {
        QFont font = widget.font();
        font.setBold(control.bold);
        widget.setFont(font);
    }
}

}  // namespace

QWidget* MakeWidget(const Control& control, QWidget* parent) {
    switch (control.kind) {
        case ControlKind::Label:
            return MakeLabel(control, parent);
        case ControlKind::Image:
            return new PictureView(control.text, parent, control.letters);
        case ControlKind::TextBox:
            return MakeTextBox(control, parent);
        case ControlKind::ComboBox:
            return MakeComboBox(control, parent);
        case ControlKind::CommandButton:
            return MakeCommandButton(control, parent);
        case ControlKind::OptionButton:
            return MakeOption(parent);
        case ControlKind::CheckBox:
            return MakeButton<QCheckBox>(parent);
        case ControlKind::Frame:
            return new QGroupBox(parent);
        case ControlKind::TabStrip:
            return MakeTabStrip(parent);
        case ControlKind::Grid:
        case ControlKind::Chart:
        case ControlKind::ReportPages:
            break;  // it needs more than its control
    }
    return nullptr;
}

bool MirrorControl(const Control& control, QWidget& widget) {
    bool rewritten = false;
    if (auto* label = qobject_cast<QLabel*>(&widget)) MirrorLabel(control, *label);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) rewritten = MirrorTextBox(control, *box);
    if (auto* list = qobject_cast<QComboBox*>(&widget)) rewritten = MirrorComboBox(control, *list);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) MirrorButton(control, *button);
    if (auto* frame = qobject_cast<QGroupBox*>(&widget)) MirrorFrame(control, *frame);
    MirrorCommon(control, widget);
    return rewritten;
}

void NameField(QWidget& field, const Control& label, const Control* unit) {
    QString name = PlainLabelText(label.text);
    if (unit != nullptr && !unit->text.empty()) name += ", " + PlainLabelText(unit->text);
    if (field.accessibleName() != name) field.setAccessibleName(name);
}

}  // namespace kelvor
