// Every form, in both unit systems, light and dark: nothing cut, nothing over another, readable, reachable.
// CTest runs this at 96 and at 192 dots an inch.

#include <gmock/gmock.h>

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/layout_audit.h"
#include "desktop/palettes.h"
#include "forms/form.h"
#include "forms/indicator.h"
#include "platform/number_picture.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class LayoutTest : public DesktopTest {
  protected:
    ~LayoutTest() override { QApplication::setPalette(LightPalette()); }

    void Raise(UserEvent::Kind kind, const std::string& name = {}, int number = 0) {
        window().door().Raise({kind, name, {}, number});
        QApplication::processEvents();
    }

    /// Opens each form, and each page of one that has pages, and looks at it.
    template <typename Look>
    void OnEveryForm(Look look) {
        for (const std::string& name : state().formRegistry.TypeNames()) {
            Raise(UserEvent::Kind::OpenForm, name);
            FormView* view = window().FindView(name);
            ASSERT_NE(view, nullptr) << name;
            const int pages = view->tabs() == nullptr ? 1 : view->tabs()->count();
            for (int page = 0; page < pages; ++page) {
                if (view->tabs() != nullptr) Raise(UserEvent::Kind::SwitchTab, {}, page);
                SCOPED_TRACE(name + ", page " + std::to_string(page));
                look(*view);
            }
            Raise(UserEvent::Kind::CloseForm, name);
        }
    }

    /// The widgets that Tab goes through, from the first to the last of the form.
    static std::vector<QWidget*> TabOrder(const FormView& view) {
        std::vector<QWidget*> order;
        for (const auto& control : view.form()->controls()) {
            if (view.form()->CanFocus(*control)) order.push_back(view.FindWidget(control->name));
        }
        return order;
    }

    /// Boxes in which a limit of their field has no room.
    Complaints FindNarrowBoxes(const FormView& view) {
        Complaints complaints;
        for (const auto& control : view.form()->controls()) {
            const Variable* variable = state().dbCatalogue->FindVariable(control->tag);
            auto* box = qobject_cast<QLineEdit*>(view.FindWidget(control->name));
            if (variable == nullptr || box == nullptr || !box->isVisible()) continue;
            const Range range = state().units->VariableRange(control->tag);
            for (const std::optional<double>& limit : {range.low, range.high}) {
                if (!limit) continue;
                const QString text = QString::fromStdString(FormatNumber(*limit, variable->format));
                const int room = box->width() - 2 * box->fontMetrics().averageCharWidth();
                if (box->fontMetrics().horizontalAdvance(text) > room) {
                    complaints.push_back(control->name + " has no room for " + text.toStdString());
                }
            }
        }
        return complaints;
    }

    void Audit(const FormView& view) {
        EXPECT_THAT(FindCutWidgets(view), IsEmpty());
        EXPECT_THAT(FindCutHeadings(view), IsEmpty());
        EXPECT_THAT(FindOverlaps(view), IsEmpty());
        EXPECT_THAT(FindTabOrderBreaks(view, TabOrder(view)), IsEmpty());
        EXPECT_THAT(FindDoubleAccessKeys(view, *window().menuBar()), IsEmpty());
        EXPECT_THAT(FindUnnamed(view), IsEmpty());
        EXPECT_THAT(FindWeakContrast(view), IsEmpty());
        EXPECT_THAT(FindNarrowBoxes(view), IsEmpty());
    }
};

TEST_F(LayoutTest, EveryFormIsWholeInBothUnitSystemsLightAndDark) {
    for (const bool metric : {false, true}) {
        Raise(UserEvent::Kind::Menu, metric ? "MenuUnitsMetric" : "MenuUnitsEnglish");
        for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
            QApplication::setPalette(palette);
            OnEveryForm([&](const FormView& view) { Audit(view); });
        }
    }
}

TEST_F(LayoutTest, EveryStateOfTheIndicatorsCanBeRead) {
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        QApplication::setPalette(palette);
        OnEveryForm([&](FormView& view) {
            for (const SolveState shown : {SolveState::Resting, SolveState::Warning, SolveState::Solved}) {
                SetSolveForState(*view.form(), shown, 0,
                                 {"A label as long as labels get", "1,000,000,000", "psi/in"});
                view.Sync();
                EXPECT_THAT(FindCutWidgets(view), IsEmpty());
                EXPECT_THAT(FindWeakContrast(view), IsEmpty());
            }
            SetSolveForState(*view.form(), SolveState::Resting);
        });
    }
}

TEST_F(LayoutTest, NothingMovesWhenTheUnitsChange) {
    OnEveryForm([&](const FormView& view) {
        Raise(UserEvent::Kind::Menu, "MenuUnitsEnglish");
        QTest::qWait(0);
        const auto english = Places(view);
        Raise(UserEvent::Kind::Menu, "MenuUnitsMetric");
        QTest::qWait(0);
        EXPECT_EQ(Places(view), english);
    });
}

TEST_F(LayoutTest, EveryFormFitsIntoTheWindowAsItStarts) {
    window().resize(window().StartSize());
    QApplication::processEvents();
    OnEveryForm([&](const FormView& view) {
        EXPECT_LE(view.parentWidget()->width(), window().centralWidget()->width());
        EXPECT_LE(view.parentWidget()->height(), window().centralWidget()->height());
    });
}

// --- Screens and fonts of every size --------------------------------------------------------------------

/// The font that systems offer at the most, of the whole application as long as it lives.
class LargestFont {
  public:
    LargestFont() {
        QFont large = before_;
        large.setPointSize(kLargestPoints);
        QApplication::setFont(large);
    }
    LargestFont(const LargestFont&) = delete;
    LargestFont& operator=(const LargestFont&) = delete;
    ~LargestFont() { QApplication::setFont(before_); }

  private:
    static constexpr int kLargestPoints = 20;
    QFont before_ = QApplication::font();
};

class LargestFontTest : private LargestFont, public LayoutTest {};

TEST_F(LargestFontTest, EveryFormIsWholeInHighContrast) {
    QApplication::setPalette(HighContrastPalette());
    OnEveryForm([&](const FormView& view) { Audit(view); });
}

/// Black boxes on black ground have edges, and captions of screens the height of their letters.
TEST_F(LargestFontTest, EdgesAndCaptionsAreSeen) {
    QApplication::setPalette(HighContrastPalette());
    Raise(UserEvent::Kind::OpenForm, "DeF");
    FormView& view = *window().FindView("DeF");
    for (const char* name : {"FLEXREL", "Command1"}) {
        const QImage box = view.FindWidget(name)->grab().toImage();
        EXPECT_GT(box.pixelColor(box.width() / 2, 0).lightness(), 200) << name;
    }
    const int caption = view.mapTo(view.parentWidget(), QPoint(0, 0)).y();
    EXPECT_GE(caption, view.fontMetrics().height());
}

class ScreenSizeTest : public LayoutTest {
  protected:
    void Resize(int width, int height) {
        window().resize(width, height);
        QApplication::processEvents();
    }

    /// A control that has the focus but does not lie in the window.
    Complaints FindFocusOutOfSight(const FormView& view) {
        Complaints complaints;
        const QWidget& area = *window().centralWidget();
        const std::string form = view.form()->name();
        for (QWidget* stop : TabOrder(view)) {
            Raise(UserEvent::Kind::Focus, stop->objectName().toStdString());
            const QPoint corner = stop->mapTo(&area, QPoint(0, 0));
            if (area.rect().contains(QRect(corner, stop->size().boundedTo({1, 1})))) continue;
            complaints.push_back(stop->objectName().toStdString() + " of " + form + " is out of sight");
        }
        return complaints;
    }
};

TEST_F(ScreenSizeTest, OnTheSmallestScreenTheFocusIsAlwaysInSight) {
    Resize(800, 600);
    EXPECT_EQ(window().size(), QSize(800, 600)) << "the window is no larger than the screen";
    OnEveryForm([&](const FormView& view) {
        if (!view.form()->type().isHub) {
            EXPECT_THAT(FindFocusOutOfSight(view), IsEmpty());
        }
    });
}

TEST_F(ScreenSizeTest, TheHubIsWholeOnScreensOfEverySize) {
    for (const QSize size : {QSize(800, 600), QSize(1280, 800), QSize(2560, 1440)}) {
        Resize(size.width(), size.height());
        const FormView& hub = *window().FindView("TabForm");
        for (int page = 0; page < hub.tabs()->count(); ++page) {
            Raise(UserEvent::Kind::SwitchTab, {}, page);
            SCOPED_TRACE(std::to_string(size.width()) + ", page " + std::to_string(page));
            EXPECT_THAT(FindCutWidgets(hub), IsEmpty());
            EXPECT_THAT(FindOverlaps(hub), IsEmpty());
        }
    }
}

TEST_F(ScreenSizeTest, OnTheLargestScreenTheOverviewStandsBesideTheTabs) {
    Resize(2560, 1440);
    const auto* overview = window().findChild<QWidget*>(QStringLiteral("Overview"));
    ASSERT_NE(overview, nullptr);
    EXPECT_TRUE(overview->isVisible());
    const FormView& hub = *window().FindView("TabForm");
    EXPECT_GE(overview->mapTo(&hub, QPoint(0, 0)).x(), hub.tabs()->geometry().right());
}

// --- The audit itself --------------------------------------------------------------------------------

class BadForm : public QWidget {
  public:
    QLabel* Label(const char* name, const char* text, QRect place) {
        auto* label = new QLabel(text, this);
        label->setObjectName(name);
        label->setGeometry(place);
        return label;
    }

    QLineEdit* Box(const char* name, QRect place) {
        auto* box = new QLineEdit(this);
        box->setObjectName(name);
        box->setGeometry(place);
        return box;
    }
};

TEST(LayoutAuditTest, FindsWhatIsCut) {
    BadForm form;
    form.Label("narrow", "A text that has no room", {0, 0, 20, 100});
    EXPECT_THAT(FindCutWidgets(form), SizeIs(1));
    form.findChild<QLabel*>("narrow")->resize(2000, 100);
    EXPECT_THAT(FindCutWidgets(form), IsEmpty());
}

TEST(LayoutAuditTest, FindsAHeadingThatIsCut) {
    QWidget form;
    QTableWidget table(1, 2, &form);
    table.setHorizontalHeaderLabels({QStringLiteral("One"), QStringLiteral("Thickness of the layer")});
    table.resize(400, 200);
    form.show();
    EXPECT_THAT(FindCutHeadings(form), SizeIs(1));
    table.setColumnWidth(1, 300);
    EXPECT_THAT(FindCutHeadings(form), IsEmpty());
}

TEST(LayoutAuditTest, FindsWhatLiesOverAnotherOrReachesOut) {
    BadForm form;
    form.resize(200, 200);
    form.Label("first", "", {0, 0, 50, 50});
    QLabel* second = form.Label("second", "", {40, 40, 50, 50});
    EXPECT_THAT(FindOverlaps(form), SizeIs(1));
    second->move(100, 100);
    EXPECT_THAT(FindOverlaps(form), IsEmpty());
    second->move(180, 100);
    EXPECT_THAT(FindOverlaps(form), SizeIs(1));
}

TEST(LayoutAuditTest, FindsATabThatGoesBack) {
    BadForm form;
    QLineEdit* upper = form.Box("upper", {0, 0, 50, 20});
    QLineEdit* lower = form.Box("lower", {0, 50, 50, 20});
    EXPECT_THAT(FindTabOrderBreaks(form, {upper, lower}), IsEmpty());
    EXPECT_THAT(FindTabOrderBreaks(form, {lower, upper}), SizeIs(1));
}

TEST(LayoutAuditTest, FindsAnAccessKeyThatStandsTwice) {
    BadForm form;
    QMenuBar menus;
    menus.addMenu("&File");
    form.Label("one", "&One", {0, 0, 50, 20})->setBuddy(form.Box("boxOne", {0, 0, 1, 1}));
    EXPECT_THAT(FindDoubleAccessKeys(form, menus), IsEmpty());
    form.Label("other", "&Other", {0, 0, 50, 20})->setBuddy(form.Box("boxTwo", {0, 0, 1, 1}));
    EXPECT_THAT(FindDoubleAccessKeys(form, menus), SizeIs(1));
    form.Label("file", "Of a &file", {0, 0, 50, 20})->setBuddy(form.Box("boxThree", {0, 0, 1, 1}));
    EXPECT_THAT(FindDoubleAccessKeys(form, menus), SizeIs(2));
}

TEST(LayoutAuditTest, FindsABoxWithoutAName) {
    BadForm form;
    QLineEdit* box = form.Box("nameless", {0, 0, 50, 20});
    EXPECT_THAT(FindUnnamed(form), SizeIs(1));
    box->setAccessibleName("Thickness, in");
    EXPECT_THAT(FindUnnamed(form), IsEmpty());
}

TEST(LayoutAuditTest, FindsTextThatIsHardToRead) {
    EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(QColor(0xFF, 0, 0), Qt::white), 3.998, 0.001);  // a published value: 4.00
    BadForm form;
    QLabel* label = form.Label("pale", "pale", {0, 0, 50, 20});
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::lightGray);
    label->setPalette(palette);
    EXPECT_THAT(FindWeakContrast(form), SizeIs(1));
    palette.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(palette);
    EXPECT_THAT(FindWeakContrast(form), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test
