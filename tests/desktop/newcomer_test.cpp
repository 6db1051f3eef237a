// What someone does who sees the program for the first time: from the start page to a design that is solved,
// saved and printed. Each press of a key or a button, and each value, is an act.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMetaObject>
#include <QPrintDialog>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QToolBar>

#include "desktop/desktop_fixture.h"
#include "desktop/willing_printers.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;
using testing::StartsWith;

constexpr int kMostActs = 40;

/// The inputs of a flexible design, in the order of the screen; the structural number between them is asked
/// for.
struct Input {
    const char* field;
    const char* value;
};
constexpr Input kInputs[] = {{"FLEXE18", "5,000,000"}, {"FLEXREL", "95"}, {"FLEXDEV", "0.45"},
                             {"RM", "5,000"},          {"FLEXPO", "4.2"}, {"FLEXPT", "2.5"}};

class NewcomerTest : public QObject, public KeyboardTest {
  protected:
    NewcomerTest() : KeyboardTest(std::make_unique<WillingPrinters>()) { qApp->installEventFilter(this); }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ++acts_;
        Press(key, modifiers);
    }

    void Value(const char* text) {
        ++acts_;
        Type(text);
    }

    void Click(QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        ++acts_;
        // An option takes a click on its mark and its words alone.
        const bool option = qobject_cast<QRadioButton*>(widget) != nullptr;
        const QPoint place = option ? QPoint(widget->height() / 2, widget->height() / 2) : QPoint();
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        QApplication::processEvents();
    }

    QWidget* On(const char* form, const char* control) {
        const FormView* view = window().FindView(form);
        return view == nullptr ? nullptr : view->FindWidget(control);
    }

    /// In the dialog of the system, once it is up: names the file that is to be the printer, and prints.
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = qobject_cast<QPrintDialog*>(watched);
        if (dialog == nullptr || event->type() != QEvent::Show) return false;
        const auto print = [this, dialog] {
            auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("filename"));
            ASSERT_NE(name, nullptr);
            name->setText(QString::fromStdString(printed_.string()));
            dialog->accept();
            acts_ += 2;
        };
        QMetaObject::invokeMethod(this, print, Qt::QueuedConnection);
        return false;
    }

    void ExpectTheEnd(const std::string& file) {
        // The 1993 design equation for these inputs, solved by bisection beside the program.
        EXPECT_NEAR(state().dbWork.GetVar("SN").value(), 5.4135, 0.0001);
        EXPECT_EQ(state().sProjectFile, file);
        EXPECT_FALSE(state().bProjectChanged);
        ASSERT_NE(state().formRegistry.CurrentForm, nullptr);
        EXPECT_EQ(state().formRegistry.CurrentForm->name(), "ReportsPreview");
        EXPECT_THAT(ReadFile(printed_), StartsWith("%PDF"));
        EXPECT_THAT(Messages(), IsEmpty());
        EXPECT_LT(acts_, kMostActs);
    }

    int acts_ = 0;
    Path printed_ = home / "printed.pdf";
};

TEST_F(NewcomerTest, ByKeysAlone) {
    const std::string file = (home / "first.kvr").string();
    Key(Qt::Key_Tab);  // to the button New Project
    Key(Qt::Key_Return);
    Key(Qt::Key_3, Qt::ControlModifier);
    Key(Qt::Key_A, Qt::AltModifier);
    Key(Qt::Key_D, Qt::AltModifier);
    for (const Input& input : kInputs) {
        for (int i = 0; i < 3 && QApplication::focusWidget()->objectName() != input.field; ++i)
            Key(Qt::Key_Tab);
        Value(input.value);
        Key(Qt::Key_Return);
    }
    Key(Qt::Key_T, Qt::AltModifier);
    Key(Qt::Key_S, Qt::AltModifier);
    responder.AnswerFileDialogWith(file);
    Key(Qt::Key_S, Qt::ControlModifier);
    Key(Qt::Key_P, Qt::ControlModifier);
    Key(Qt::Key_P, Qt::AltModifier);
    ExpectTheEnd(file);
}

TEST_F(NewcomerTest, ByTheMouse) {
    const std::string file = (home / "first.kvr").string();
    auto* bar = window().findChild<QToolBar*>(QStringLiteral("ToolBar"));
    Click(window().findChild<QWidget*>(QStringLiteral("StartNew")));
    QTabBar* tabs = window().FindView("TabForm")->tabs()->tabBar();
    ++acts_;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(2).center());
    QApplication::processEvents();
    ASSERT_EQ(window().FindView("TabForm")->tabs()->currentIndex(), 2);
    Click(On("TabForm", "oDeF"));
    Click(On("TabForm", "Command4"));
    ASSERT_NE(window().FindView("DeF"), nullptr);
    for (const Input& input : kInputs) {
        Click(On("DeF", input.field));
        Value(input.value);
    }
    Click(On("DeF", "SN"));
    Click(On("DeF", "Command1"));
    responder.AnswerFileDialogWith(file);
    Click(bar->widgetForAction(window().FindAction("MenuFileSave")));
    Click(bar->widgetForAction(window().FindAction("MenuFilePrint")));
    Click(On("ReportsPreview", "PrintRep"));
    ExpectTheEnd(file);
}

}  // namespace
}  // namespace kelvor::test
