#include <gtest/gtest.h>

#include <QApplication>
#include <QLoggingCategory>
#include <cstdio>

/// Every test of the windows runs in one application, without a display unless one is asked for.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // The platform without a display says of each window what it cannot do.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        if (!text.startsWith(QStringLiteral("This plugin does not support"))) {
            std::fprintf(stderr, "%s\n", qPrintable(text));
        }
    });
    return RUN_ALL_TESTS();
}
