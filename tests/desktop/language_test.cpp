// The windows in Spanish: what is Kelvor's own is translated, what every version says alike is not, and
// numbers keep their point.

#include <gmock/gmock.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <clocale>

#include "desktop/desktop_fixture.h"
#include "desktop/help_window.h"
#include "desktop/layout_audit.h"
#include "desktop/window_settings.h"
#include "forms/form.h"
#include "support/bracketed_language.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The environment of one test, set before its program is made.
class SpanishEnvironment {
  public:
    SpanishEnvironment() { qputenv("LANGUAGE", "es"); }
    SpanishEnvironment(const SpanishEnvironment&) = delete;
    SpanishEnvironment& operator=(const SpanishEnvironment&) = delete;
    ~SpanishEnvironment() { qputenv("LANGUAGE", "C"); }
};

class SpanishWindowTest : private SpanishEnvironment, public KeyboardTest {
  protected:
    std::string TextOf(const char* name) {
        if (const auto* button = window().findChild<QPushButton*>(name)) return button->text().toStdString();
        const auto* label = window().findChild<QLabel*>(name);
        return label == nullptr ? std::string() : label->text().toStdString();
    }

    std::string MenuText(const char* name) {
        const auto* menu = window().findChild<QMenu*>(name);
        return menu == nullptr ? std::string() : menu->title().toStdString();
    }
};

TEST_F(SpanishWindowTest, TheMenusOfKelvorsOwnAreSpanish) {
    EXPECT_EQ(MenuText("MenuFile"), "&Fichero");
    EXPECT_EQ(MenuText("MenuEdit"), "Ed&ición");
    EXPECT_EQ(MenuText("MenuView"), "&Ver");
    EXPECT_EQ(MenuText("MenuSamples"), "&Ejemplos");
    EXPECT_EQ(window().FindAction("MenuEditUndo")->text().toStdString(), "&Deshacer");
    EXPECT_EQ(window().findChild<QAction*>("ViewOverview")->text().toStdString(), "&Resumen");
    EXPECT_EQ(window().findChild<QAction*>("ViewOverview")->iconText().toStdString(), "Resumen");
}

TEST_F(SpanishWindowTest, WhatEveryVersionSaysAlikeStaysEnglish) {
    EXPECT_EQ(MenuText("MenuUnits"), "&Units");
    EXPECT_EQ(window().FindAction("NewProj")->text().toStdString(), "&New Project");
    EXPECT_EQ(window().FindAction("MenuAbout")->text().toStdString(), "A&bout Kelvor");
    window().door().Raise({UserEvent::Kind::OpenForm, "DeF"});
    EXPECT_EQ(window().FindView("DeF")->windowTitle().toStdString(), "Flexible Design Inputs");
    EXPECT_EQ(state().formRegistry.Find("DeF")->Find("FLEXREL")->toolTip.substr(0, 11), "Reliability");
}

TEST_F(SpanishWindowTest, TheStartPageIsSpanish) {
    EXPECT_EQ(TextOf("StartNew"), "Proyecto nuevo");
    EXPECT_EQ(TextOf("StartOpen"), "Abrir proyecto...");
    EXPECT_EQ(TextOf("StartRecentLabel"), "Proyectos recientes");
    EXPECT_EQ(TextOf("StartSamplesLabel"), "Ejemplos");
    EXPECT_EQ(TextOf("StartFirstDesign"), "Primer diseño en cinco minutos");
    EXPECT_EQ(TextOf("StartNews"), "Novedades");
}

TEST_F(SpanishWindowTest, TheOverviewIsSpanish) {
    EXPECT_EQ(TextOf("OverviewHeading"), "Resumen");
    EXPECT_EQ(TextOf("OverviewEmpty"), "Ninguna pantalla de este proyecto tiene datos todavía.");
    window().resize(2560, 1440);
    QApplication::processEvents();
    desktop.program().SetValue("FLEXDEV", 1, 1, "0.45");
    window().Sync();
    const auto& table = *window().findChild<QTableWidget*>("OverviewTable");
    ASSERT_EQ(table.rowCount(), 1);
    const QStringList heads = {"Pantalla", "Resultados", "Ecuación"};
    const QStringList cells = {"Flexible Design Inputs", "Structural Number: ninguno todavía",
                               "Sin equilibrio"};
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(table.horizontalHeaderItem(column)->text(), heads[column]);
        EXPECT_EQ(table.item(0, column)->text(), cells[column]);
    }
}

TEST_F(SpanishWindowTest, NumbersKeepTheirPoint) {
    window().door().Raise({UserEvent::Kind::OpenForm, "DeF"});
    window().door().Raise({UserEvent::Kind::Focus, "FLEXDEV"});
    ComeToFront();
    TypeAndEnter("0.45");
    EXPECT_EQ(state().dbWork.GetVar("FLEXDEV"), 0.45);
    EXPECT_EQ(state().formRegistry.Find("DeF")->Find("FLEXDEV")->text, "0.450");
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(SpanishWindowTest, NothingOfAScreenIsCutAndNoAccessKeyStandsTwice) {
    for (const std::string& name : state().formRegistry.TypeNames()) {
        window().door().Raise({UserEvent::Kind::OpenForm, name});
        FormView* view = window().FindView(name);
        ASSERT_NE(view, nullptr) << name;
        const int pages = view->tabs() == nullptr ? 1 : view->tabs()->count();
        for (int page = 0; page < pages; ++page) {
            if (view->tabs() != nullptr) window().door().Raise({UserEvent::Kind::SwitchTab, {}, {}, page});
            QApplication::processEvents();
            SCOPED_TRACE(name + ", page " + std::to_string(page));
            EXPECT_THAT(FindCutWidgets(*view), IsEmpty());
            EXPECT_THAT(FindCutHeadings(*view), IsEmpty());
            EXPECT_THAT(FindOverlaps(*view), IsEmpty());
            EXPECT_THAT(FindDoubleAccessKeys(*view, *window().menuBar()), IsEmpty());
        }
        window().door().Raise({UserEvent::Kind::CloseForm, name});
    }
}

TEST_F(SpanishWindowTest, TheSentencesOfAScreenAreSpanish) {
    window().door().Raise({UserEvent::Kind::OpenForm, "OvAA"});
    window().door().Raise({UserEvent::Kind::Focus, "ACACFUTSN"});
    QApplication::processEvents();
    const Form& form = *state().formRegistry.Find("OvAA");
    EXPECT_EQ(form.TextOf("TARGET"), "Despeja: Future Structural Number");
    EXPECT_EQ(TextOf("GOVERNS"),
              "Ni el ensayo no destructivo ni la inspección de estado dan un SN. Sin espesor: el coeficiente "
              "de capa del refuerzo es 0.");
    EXPECT_EQ(window().FindView("OvAA")->windowTitle().toStdString(), "AC Overlay of AC Pavement");
}

TEST_F(SpanishWindowTest, ThePageOfTheKeysIsSpanish) {
    std::filesystem::create_directory_symlink(Path(KELVOR_HOME_FOLDER) / "Help", home / "Help");
    window().FindAction("MenuTopics")->trigger();
    HelpWindow* help = desktop.helpWindow();
    ASSERT_NE(help, nullptr);
    help->ShowPage("Keys");
    const QString keys = help->findChild<QTextBrowser*>()->toPlainText();
    EXPECT_TRUE(keys.contains(QStringLiteral("La pestaña siguiente")));
    EXPECT_TRUE(keys.contains(QStringLiteral("Ctrl+Mayús+C")));
    EXPECT_FALSE(keys.contains(QStringLiteral("The ")));
    help->ShowPage("DeF");
    EXPECT_TRUE(help->findChild<QTextBrowser*>()->toPlainText().contains(QStringLiteral("The screen")));
}

TEST_F(SpanishWindowTest, TheButtonsOfTheToolkitSpeakTheSameLanguage) {
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().toStdString(), "&Sí");
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text().remove(u'&').toStdString(), "Cancelar");
}

class LanguageMenuTest : public DesktopTest {};

TEST_F(LanguageMenuTest, TheLanguageThatIsChosenIsSpokenFromTheNextStartOn) {
    auto* spanish = window().findChild<QAction*>("Languagees");
    ASSERT_NE(spanish, nullptr);
    EXPECT_EQ(spanish->text().toStdString(), "Español");
    EXPECT_FALSE(spanish->isChecked());
    spanish->trigger();
    EXPECT_THAT(Messages(), ElementsAre("The language changes when Kelvor is started again."));
    EXPECT_EQ(window().findChild<QPushButton*>("StartNew")->text().toStdString(), "New Project");
    EXPECT_EQ(WindowSettings(home.home().WindowFile()).Language(), "es");
    // Another program in the same home, but with a work folder of its own.
    const Path work = home / "other";
    std::filesystem::create_directory(work);
    std::filesystem::copy(home.home().WindowFile(), work / "kvrwindow.ini");
    DesktopProgram other(Home{home.path(), work});
    ASSERT_TRUE(other.Start(""));
    EXPECT_EQ(other.window().findChild<QPushButton*>("StartNew")->text().toStdString(), "Proyecto nuevo");
    EXPECT_TRUE(other.window().findChild<QAction*>("Languagees")->isChecked());
}

TEST_F(LanguageMenuTest, EnglishChosenOutweighsTheEnvironment) {
    const SpanishEnvironment spanish;
    const Path work = home / "other";
    std::filesystem::create_directory(work);
    WindowSettings(work / "kvrwindow.ini").KeepLanguage("en");
    DesktopProgram other(Home{home.path(), work});
    ASSERT_TRUE(other.Start(""));
    EXPECT_EQ(other.window().findChild<QPushButton*>("StartNew")->text().toStdString(), "New Project");
}

/// The texts of a window beside those of its forms, which the model has.
std::set<std::string> TextsBesideForms(const MainWindow& window) {
    std::set<std::string> texts;
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (action->objectName().startsWith(QStringLiteral("Language"))) continue;  // says its own name
        texts.insert(action->text().toStdString());
        // Without a tip of its own an action has its text for it.
        const QString tip = action->toolTip();
        if (tip != QString(action->text()).remove(u'&').remove(QStringLiteral("..."))) {
            texts.insert(tip.toStdString());
        }
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QWidget* parent = widget;
        while (parent != nullptr && dynamic_cast<const FormView*>(parent) == nullptr) {
            parent = parent->parentWidget();
        }
        const auto* tool = qobject_cast<const QToolButton*>(widget);
        const bool isAction = tool != nullptr && tool->defaultAction() != nullptr;
        if (parent != nullptr || isAction) continue;
        texts.insert({widget->toolTip().toStdString(), widget->accessibleName().toStdString(),
                      widget->accessibleDescription().toStdString()});
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            texts.insert(label->text().toStdString());
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            texts.insert(button->text().toStdString());
        }
    }
    return texts;
}

TEST_F(LanguageMenuTest, WhatTheWindowSaysBesideItsScreensIsTranslated) {
    const Path work = home / "other";
    std::filesystem::create_directory(work);
    WriteFile(home / "Languages/qq.po", BracketedLanguage());
    WindowSettings(work / "kvrwindow.ini").KeepLanguage("qq");
    DesktopProgram other(Home{home.path(), work});
    ASSERT_TRUE(other.Start(""));
    int own = 0;
    for (const std::string& text : TextsBesideForms(other.window())) {
        if (HasBracket(text)) ++own;
        EXPECT_TRUE(HasBracket(text) || !HasWord(text) || IsAlikeInEveryLanguage(text)) << text;
    }
    EXPECT_GT(own, 20);
}

/// Every menu has a letter of its own, and within a menu no letter stands twice.
TEST_F(LanguageMenuTest, EveryMenuHasAnAccessKeyOfItsOwn) {
    std::set<QChar> titles;
    for (const QAction* menu : window().menuBar()->actions()) {
        const qsizetype mark = menu->text().indexOf(u'&');
        ASSERT_GE(mark, 0) << menu->text().toStdString();
        EXPECT_TRUE(titles.insert(menu->text().at(mark + 1).toUpper()).second) << menu->text().toStdString();
    }
    for (const QMenu* menu : window().menuBar()->findChildren<QMenu*>()) {
        std::set<QChar> entries;
        for (const QAction* entry : menu->actions()) {
            const qsizetype mark = entry->text().indexOf(u'&');
            if (!entry->isVisible() || mark < 0) continue;
            EXPECT_TRUE(entries.insert(entry->text().at(mark + 1).toUpper()).second)
                << menu->title().toStdString() << ": " << entry->text().toStdString();
        }
    }
}

}  // namespace
}  // namespace kelvor::test
