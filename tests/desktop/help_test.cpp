// The help: its pages, its search, and how it is asked for.

#include <gmock/gmock.h>

#include <QApplication>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include "desktop/desktop_fixture.h"
#include "desktop/help_window.h"
#include "desktop/layout_audit.h"
#include "desktop/palettes.h"

namespace kelvor::test {
namespace {

/// Gives a home the help file that was built.
void LinkHelp(const TestHome& home) {
    std::filesystem::create_directory_symlink(Path(KELVOR_HOME_FOLDER) / "Help", home / "Help");
}

class HelpTest : public DesktopTest {
  protected:
    HelpTest() { LinkHelp(home); }

    void Raise(const UserEvent& event) { window().door().Raise(event); }

    /// The name of the page that the help window shows; empty if there is no window.
    std::string Page() {
        const HelpWindow* help = desktop.helpWindow();
        if (help == nullptr || !help->isVisible()) return {};
        return help->page().fileName().toStdString();
    }

    QByteArray Text(const std::string& page) {
        const QUrl url(QStringLiteral("qthelp://kelvor.help/help/") + QString::fromStdString(page));
        return desktop.helpWindow()->engine().fileData(url);
    }
};

TEST_F(HelpTest, TheMenuShowsTheContents) {
    EXPECT_EQ(Page(), "");
    window().FindAction("MenuTopics")->trigger();
    EXPECT_EQ(Page(), "index.html");
}

TEST_F(HelpTest, F1OutsideAFieldTellsOfTheScreen) {
    Raise({UserEvent::Kind::SwitchTab, {}, {}, 2});
    QTest::keyClick(window().FindView("TabForm")->FindWidget("oDeF"), Qt::Key_F1);
    EXPECT_EQ(Page(), "TabForm2.html");
    Raise({UserEvent::Kind::OpenForm, "DeF", {}, 0});
    Raise({UserEvent::Kind::Focus, "Command1", {}, 0});
    Raise({UserEvent::Kind::Key, "F1", {}, 0});
    EXPECT_EQ(state().formRegistry.CurrentForm->name(), "HelpForm") << "the help of the field before it";
    EXPECT_EQ(Page(), "TabForm2.html");
    Raise({UserEvent::Kind::Key, "Esc", {}, 0});
    Raise({UserEvent::Kind::OpenForm, "H_SN", {}, 0});
    Raise({UserEvent::Kind::Key, "F1", {}, 0});
    EXPECT_EQ(Page(), "index.html") << "a form without a page of its own";
    Raise({UserEvent::Kind::OpenForm, "About", {}, 0});
    Raise({UserEvent::Kind::Key, "F1", {}, 0});
    EXPECT_EQ(Page(), "index.html") << "a form without a page of its own";
}

TEST_F(HelpTest, TheProgramEndsWithItsMainWindow) {
    window().FindAction("MenuTopics")->trigger();
    ASSERT_TRUE(desktop.helpWindow()->isVisible());
    QApplication::setQuitOnLastWindowClosed(true);
    QTimer::singleShot(0, &window(), [this] { window().close(); });
    bool late = false;
    QTimer::singleShot(5000, &window(), [&] {
        late = true;
        QApplication::quit();
    });
    QApplication::exec();
    QApplication::setQuitOnLastWindowClosed(false);
    EXPECT_FALSE(late);
}

TEST_F(HelpTest, EveryTabAndEveryScreenOfADesignHasAPage) {
    window().FindAction("MenuTopics")->trigger();
    for (int tab = 0; tab < 7; ++tab) EXPECT_FALSE(Text("TabForm" + std::to_string(tab) + ".html").isEmpty());
    for (const char* screen : {"DeF", "DeR", "DeS", "LayDet", "H_K", "H_SRM", "TrFa", "TrAx", "TrVe", "TrTr",
                               "FirstDesign", "Differences"}) {
        EXPECT_FALSE(Text(std::string(screen) + ".html").isEmpty()) << screen;
    }
    EXPECT_TRUE(Text("NoSuchPage.html").isEmpty());
}

TEST_F(HelpTest, EveryPageIsSoundAndItsLinksLeadSomewhere) {
    window().FindAction("MenuTopics")->trigger();
    HelpWindow& help = *desktop.helpWindow();
    const QList<QUrl> pages =
        help.engine().files(QStringLiteral("kelvor.help"), QString(), QStringLiteral("html"));
    EXPECT_GE(pages.size(), 15);
    for (const QUrl& page : pages) {
        SCOPED_TRACE(page.toString().toStdString());
        const QByteArray text = help.engine().fileData(page);
        EXPECT_TRUE(text.contains("<h1>"));
        static const QRegularExpression link(QStringLiteral("href=\"([^\"]*)\""));
        auto links = link.globalMatch(QString::fromUtf8(text));
        while (links.hasNext()) {
            const QUrl target = page.resolved(QUrl(links.next().captured(1)));
            EXPECT_FALSE(help.engine().fileData(target).isEmpty()) << target.toString().toStdString();
        }
    }
}

TEST_F(HelpTest, TheIndexAndTheSearchFindAWord) {
    window().FindAction("MenuTopics")->trigger();
    HelpWindow& help = *desktop.helpWindow();
    const QList<QHelpLink> links = help.engine().documentsForKeyword(QStringLiteral("Discount rate"));
    ASSERT_EQ(links.size(), 1);
    EXPECT_EQ(links.constFirst().url.fileName(), "TabForm4.html");

    QHelpSearchEngine* search = help.engine().searchEngine();
    QSignalSpy indexed(search, &QHelpSearchEngine::indexingFinished);
    if (search->searchResultCount() == 0) (void)indexed.wait(10000);
    QSignalSpy found(search, &QHelpSearchEngine::searchingFinished);
    help.Search(QStringLiteral("apostrophe"));
    ASSERT_TRUE(found.count() > 0 || found.wait(10000));
    ASSERT_EQ(search->searchResultCount(), 1);
    EXPECT_EQ(search->searchResults(0, 1).constFirst().url().fileName(), "TabForm6.html");
}

/// The colours of all links on the page that shows.
QList<QColor> LinkColours(const HelpWindow& help) {
    QList<QColor> colours;
    const QTextDocument& page = *help.findChild<QTextBrowser*>()->document();
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor() && !format.anchorHref().isEmpty()) colours << format.foreground().color();
        }
    }
    return colours;
}

TEST_F(HelpTest, LinksCanBeReadInLightAndDarkAlsoAfterAChange) {
    for (const QPalette& palette : {DarkPalette(), LightPalette(), DarkPalette()}) {
        QApplication::setPalette(palette);
        window().FindAction("MenuTopics")->trigger();
        QApplication::processEvents();
        const QList<QColor> links = LinkColours(*desktop.helpWindow());
        EXPECT_GT(links.size(), 10);
        for (const QColor& link : links) EXPECT_GE(ContrastRatio(link, palette.color(QPalette::Base)), 4.5);
    }
    QApplication::setPalette(LightPalette());
}

TEST(HelpFileTest, AMissingOrBrokenHelpFileIsNotTold) {
    const TestHome home;
    QuestionRecord record;
    DialogResponder responder(record);
    DesktopProgram desktop(home.home());
    ASSERT_TRUE(desktop.Start(""));
    desktop.window().FindAction("MenuTopics")->trigger();
    EXPECT_EQ(desktop.helpWindow(), nullptr);
    std::filesystem::create_directory(home / "Help");
    WriteFile(home / "Help/Kelvor.hlp", "no help");
    desktop.window().FindAction("MenuTopics")->trigger();
    EXPECT_EQ(desktop.helpWindow(), nullptr);
    EXPECT_TRUE(record.TakeTexts().empty());
}

}  // namespace
}  // namespace kelvor::test
