// Printing: the dialog, the copy into a file, and the command that takes files to printers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "desktop/print_file.h"
#include "desktop/willing_printers.h"
#include "support/temporary_folder.h"

namespace kelvor::test {
namespace {

class PrintTest : public testing::Test {
  protected:
    PrintTest() { std::ofstream(Report()) << "%PDF"; }

    [[nodiscard]] Path Report() const { return folder.path() / "report.pdf"; }

    std::optional<std::string> Print(PrintSystem& system) {
        return PrintFile(nullptr, {Report(), "Axles"}, system);
    }

    TemporaryFolder folder;
};

TEST_F(PrintTest, WithoutAPrinterTheReasonIsToldAndNoDialogComesUp) {
    WillingPrinters none(false);
    EXPECT_EQ(Print(none), "there is no printer here");
}

TEST_F(PrintTest, WhoCancelsTheDialogPrintsNothing) {
    WillingPrinters printers;
    bool came = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        came = true;
        dialog->reject();
    });
    EXPECT_EQ(Print(printers), std::nullopt);
    EXPECT_TRUE(came);
    EXPECT_TRUE(printers.sent.empty());
}

/// Where the system has no printer of its own, the toolkit offers a file.
TEST_F(PrintTest, AFileInsteadOfAPrinterGetsACopy) {
    WillingPrinters printers;
    const Path copy = folder.path() / "copy.pdf";
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("filename"));
        ASSERT_NE(name, nullptr);
        name->setText(QString::fromStdString(copy.string()));
        dialog->accept();
    });
    EXPECT_EQ(Print(printers), std::nullopt);
    EXPECT_EQ(ReadFile(copy), "%PDF");
    EXPECT_TRUE(printers.sent.empty());
}

/// A command that writes down the words it was called with.
class LpTest : public PrintTest {
  protected:
    LpPrintSystem System(const std::string& lines) {
        const Path command = folder.path() / "lp";
        std::ofstream(command) << "#!/bin/sh\n" << lines << "\n";
        std::filesystem::permissions(command, std::filesystem::perms::owner_all);
        return LpPrintSystem(QString::fromStdString(command.string()));
    }

    [[nodiscard]] PrintJob Job() const { return {"laser", "Axles; and more", 2, 0, 0, false, Report()}; }
};

TEST_F(LpTest, TheCommandGetsPrinterTitleCopiesAndFile) {
    const Path words = folder.path() / "words";
    EXPECT_EQ(System("printf '%s\\n' \"$@\" > '" + words.string() + "'").Send(Job()), std::nullopt);
    EXPECT_EQ(ReadFile(words), "-d\nlaser\n-t\nAxles; and more\n-n\n2\n--\n" + Report().string() + "\n");
}

TEST_F(LpTest, SomePagesAndBothSidesAreAskedForByName) {
    const Path words = folder.path() / "words";
    PrintJob job = Job();
    job.firstPage = 2;
    job.lastPage = 3;
    job.bothSides = true;
    EXPECT_EQ(System("printf '%s ' \"$@\" > '" + words.string() + "'").Send(job), std::nullopt);
    EXPECT_THAT(ReadFile(words), testing::HasSubstr(" -P 2-3 -o sides=two-sided-long-edge -- "));
}

TEST_F(LpTest, TheReasonOfAFailureIsThatOfTheCommand) {
    EXPECT_EQ(System("echo 'lp: no paper' >&2; exit 1").Send(Job()), "lp: no paper");
    EXPECT_EQ(System("exit 1").Send(Job()), "the printer does not take it");
    EXPECT_NE(LpPrintSystem(QStringLiteral("/nosuch/lp")).Send(Job()), std::nullopt);
}

}  // namespace
}  // namespace kelvor::test
