// The tests draw into memory and use their own settings.
#include "Apps/workbench/base/application_name.h"
#include "tests/workbench/own_home.h"
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

/// Reports a window that no test answers and ends the program, which would wait forever.
void endWhenStuck() {
    constexpr int kMostSeconds = 30;
    static QWidget* standing = nullptr;
    static int seconds = 0;
    auto* const now = QApplication::activeModalWidget();
    seconds = now && now == standing ? seconds + 1 : 0;
    standing = now;
    if (seconds < kMostSeconds) return;
    std::fprintf(stderr, "unanswered window: '%s'\n", qPrintable(now->windowTitle()));
    for (const auto* label : now->findChildren<QLabel*>()) std::fprintf(stderr, "  %s\n", qPrintable(label->text()));
    std::abort();
}

/// Qt only warns of a colour, picture or pattern that it cannot read.
void failOnWarnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
    const bool isOfThePlatform = text.startsWith("This plugin does not support");
    if (isOfThePlatform || type == QtDebugMsg || type == QtInfoMsg) return;
    ADD_FAILURE() << "Qt: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    const test::OwnHome home;
    test::leaveOutIntroduction();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    workbench::nameApplication("workbench-test");
    qInstallMessageHandler(failOnWarnings);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, endWhenStuck);
    watch.start(1000);
    return RUN_ALL_TESTS();
}
