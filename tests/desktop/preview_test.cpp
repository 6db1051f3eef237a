// The view of a report's pages by itself, without the program around it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <utility>

#include "desktop/preview/report_pages_view.h"
#include "platform/file_system.h"

namespace kelvor {
namespace {

/// A report of three pages and more; "Axle Type" heads each page, "axle 7." stands on the first.
std::shared_ptr<const Document> LongReport() {
    auto document = std::make_shared<Document>();
    document->title = "Axles";
    blocks::Table table{{{"Axle Type"}, {"Load", Alignment::Right}}, {}};
    for (int i = 1; i <= 150; ++i) table.rows.push_back({"axle " + std::to_string(i) + ".", "1.0"});
    document->blocks = {table};
    return document;
}

class PreviewTest : public ::testing::Test {
  protected:
    PreviewTest() : view_(Hooks(), nullptr) {
        view_.resize(800, 600);
        view_.show();
        view_.activateWindow();
        (void)QTest::qWaitForWindowActive(&view_);
    }

    ReportPagesHooks Hooks() {
        ReportPagesHooks hooks;
        hooks.setup = [this] { return setup_; };
        hooks.changeSetup = [this](const PageSetup& setup) { setup_ = setup; };
        hooks.write = [this](ReportFormat format, const Path& file) {
            if (failure_) throw FileError("no space left");
            written_ = {format, file};
        };
        hooks.giveFocusBack = [this] { ++focusGivenBack_; };
        return hooks;
    }

    void ShowLongReport() {
        view_.Show(LongReport(), "Axles");
        QApplication::processEvents();
    }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *view_.findChild<Widget*>(QLatin1String(name));
    }

    std::string LabelText(const char* name) { return Find<QLabel>(name).text().toStdString(); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus == nullptr ? &view_ : focus, key, modifiers);
    }

    /// Presses a tool that opens a dialog, and does something to that dialog once it is up.
    template <typename Dialog>
    void PressTool(const char* tool, const std::function<void(Dialog&)>& answer) {
        bool came = false;
        QTimer::singleShot(0, &view_, [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            came = true;
            answer(*dialog);
        });
        QTest::mouseClick(&Find<QToolButton>(tool), Qt::LeftButton);
        EXPECT_TRUE(came) << tool;
    }

    /// Types a path into the dialog that asks where to save.
    void SaveAs(const std::string& path) {
        PressTool<QFileDialog>("SaveReport", [&](QFileDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(QString::fromStdString(path));
            QTest::keyClick(name, Qt::Key_Return);
            if (dialog.isVisible()) dialog.reject();
        });
    }

    PageSetup setup_;
    int focusGivenBack_ = 0;
    bool failure_ = false;
    std::pair<ReportFormat, Path> written_;
    ReportPagesView view_;
};

TEST_F(PreviewTest, PagesAreAsWideAsTheWindow) {
    ShowLongReport();
    const QScrollBar& sideways = *view_.browser().horizontalScrollBar();
    EXPECT_EQ(sideways.maximum(), 0);
    const int before = view_.browser().zoom();
    view_.resize(1200, 600);
    QApplication::processEvents();
    EXPECT_EQ(sideways.maximum(), 0);
    EXPECT_GT(view_.browser().zoom(), before);
}

TEST_F(PreviewTest, ArrowsAndKeysLeadThroughThePages) {
    ShowLongReport();
    const auto last = view_.browser().Count();
    ASSERT_GE(last, 3U);
    EXPECT_EQ(LabelText("PageNumber"), "Page 1 of " + std::to_string(last));
    QTest::mouseClick(&Find<QToolButton>("PageOn"), Qt::LeftButton);
    EXPECT_EQ(LabelText("PageNumber"), "Page 2 of " + std::to_string(last));
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().page(), 2);
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().page(), 1);
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().page(), static_cast<int>(last) - 1);
    QTest::mouseClick(&Find<QToolButton>("PageOn"), Qt::LeftButton);
    EXPECT_EQ(view_.browser().page(), static_cast<int>(last) - 1);
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().page(), 0);
}

TEST_F(PreviewTest, PageKeysScroll) {
    ShowLongReport();
    QScrollBar& bar = *view_.browser().verticalScrollBar();
    Press(Qt::Key_PageDown);
    EXPECT_EQ(bar.value(), bar.pageStep());
    Press(Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(PreviewTest, SizesAreSteppedAndSet) {
    ShowLongReport();
    Press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(LabelText("Zoom"), "100 %");
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().zoom(), 110);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().zoom(), 90);
    for (int i = 0; i < 30; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view_.browser().zoom(), 400);
    EXPECT_FALSE(view_.browser().fitsWidth());
    QTest::mouseClick(&Find<QToolButton>("FitWidth"), Qt::LeftButton);
    EXPECT_TRUE(view_.browser().fitsWidth());
    EXPECT_EQ(view_.browser().horizontalScrollBar()->maximum(), 0);
}

TEST_F(PreviewTest, WordsAreFoundOneAfterTheOther) {
    ShowLongReport();
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), &view_.tools().search());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("AXLE TYPE"));
    const std::string of = " of " + std::to_string(view_.browser().Count());
    EXPECT_EQ(LabelText("Found"), "1" + of);
    Press(Qt::Key_Return);
    EXPECT_EQ(LabelText("Found"), "2" + of);
    EXPECT_GT(view_.browser().verticalScrollBar()->value(), 0);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(LabelText("Found"), std::to_string(view_.browser().Count()) + of);
    Press(Qt::Key_F3);
    EXPECT_EQ(LabelText("Found"), "1" + of);
}

TEST_F(PreviewTest, WordsThatAreNotThereAreToldByNumber) {
    ShowLongReport();
    view_.tools().search().setText(QStringLiteral("asphalt"));
    EXPECT_EQ(LabelText("Found"), "0 of 0");
    Press(Qt::Key_F3);
    view_.tools().search().clear();
    EXPECT_EQ(LabelText("Found"), "");
}

TEST_F(PreviewTest, EscapeLeavesTheSearch) {
    ShowLongReport();
    Press(Qt::Key_F, Qt::ControlModifier);
    Press(Qt::Key_Escape);
    EXPECT_EQ(focusGivenBack_, 1);
}

TEST_F(PreviewTest, AReportThatIsNotThereShowsTheReason) {
    view_.Show(nullptr, "Rep_DeF.vsr, line 7: wrong.");
    EXPECT_EQ(LabelText("NoPages"), "Rep_DeF.vsr, line 7: wrong.");
    EXPECT_TRUE(Find<QLabel>("NoPages").isVisible());
    EXPECT_FALSE(view_.browser().isVisible());
    EXPECT_FALSE(view_.tools().isVisible());
    ShowLongReport();
    EXPECT_FALSE(Find<QLabel>("NoPages").isVisible());
    EXPECT_TRUE(view_.browser().isVisible());
}

TEST_F(PreviewTest, ThePageOnTheScreenHasInk) {
    ShowLongReport();
    const QImage seen = view_.browser().viewport()->grab().toImage();
    int white = 0;
    int dark = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const int grey = qGray(seen.pixel(x, y));
            if (grey == 255) ++white;
            if (grey < 60) ++dark;
        }
    }
    EXPECT_GT(white, seen.width() * seen.height() / 2);
    EXPECT_GT(dark, 500);
}

TEST_F(PreviewTest, WhoHearsTheScreenGetsTheWords) {
    ShowLongReport();
    EXPECT_THAT(view_.browser().accessibleDescription().toStdString(), ::testing::HasSubstr("axle 150."));
}

// --- Dialogs ---------------------------------------------------------------------------------------------

TEST_F(PreviewTest, ThePageSetupAsksForPaperAndMargins) {
    ShowLongReport();
    const auto before = view_.browser().Count();
    PressTool<QDialog>("PageSetup", [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("PageSetup"));
        auto* papers = dialog.findChild<QComboBox*>();
        auto* margin = dialog.findChild<QDoubleSpinBox*>();
        EXPECT_EQ(papers->currentIndex(), 0);
        EXPECT_EQ(margin->value(), 0.75);
        papers->setCurrentIndex(1);
        margin->setValue(2.0);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    EXPECT_EQ(setup_.paper, Paper::A4);
    EXPECT_EQ(setup_.marginPoints, 144.0);
    EXPECT_GT(view_.browser().Count(), before) << "wider margins take more pages";
}

TEST_F(PreviewTest, APageSetupThatIsCancelledChangesNothing) {
    ShowLongReport();
    PressTool<QDialog>("PageSetup", [](QDialog& dialog) {
        dialog.findChild<QDoubleSpinBox*>()->setValue(2.0);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(setup_.marginPoints, 54.0);
}

TEST_F(PreviewTest, TheEndingOfANameChoosesTheKindOfFile) {
    ShowLongReport();
    const QTemporaryDir folder;
    const Path path = folder.filePath(QStringLiteral("axles")).toStdString();
    const std::pair<const char*, ReportFormat> kinds[] = {{".pdf", ReportFormat::Pdf},
                                                          {".rtf", ReportFormat::Rtf},
                                                          {".html", ReportFormat::Html},
                                                          {".txt", ReportFormat::Text}};
    for (const auto& [ending, format] : kinds) {
        SaveAs(path.string() + ending);
        EXPECT_EQ(written_, std::pair(format, Path(path.string() + ending)));
    }
    SaveAs(path.string());
    EXPECT_EQ(written_, std::pair(ReportFormat::Pdf, Path(path.string() + ".pdf"))) << "unless one is named";
}

TEST_F(PreviewTest, AFileThatCannotBeWrittenIsTold) {
    ShowLongReport();
    failure_ = true;
    std::string told;
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, &view_, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        told = box->text().toStdString();
        box->accept();
    });
    waiting.start(0);
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("axles.pdf")).toStdString();
    SaveAs(path);
    EXPECT_EQ(told, path + " could not be written:\nno space left");
}

}  // namespace
}  // namespace kelvor
