#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <cstdio>

namespace {

/// What the toolkit has complained of since the last test.
QStringList& Warnings() {
    static QStringList warnings;
    return warnings;
}

/// The platform without a display says of each window what it cannot do; anything else is taken down.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (text.startsWith(QStringLiteral("This plugin does not support"))) return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type != QtDebugMsg && type != QtInfoMsg) Warnings() << text;
}

/// A test in which the toolkit warned of something fails: it tells of a fault that a user may not see yet.
class WarningsFail : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        for (const QString& warning : std::exchange(Warnings(), {})) {
            ADD_FAILURE() << "the toolkit warns: " << warning.toStdString();
        }
    }
};

}  // namespace

/// Every test of the windows runs in one application, without a display unless one is asked for.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // No test prints on paper, whatever printers the machine has.
    qputenv("CUPS_SERVER", "localhost:9");
    // English, whatever language the machine speaks.
    qputenv("LANGUAGE", "C");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    qInstallMessageHandler(TakeMessage);
    testing::UnitTest::GetInstance()->listeners().Append(new WarningsFail);
    return RUN_ALL_TESTS();
}
