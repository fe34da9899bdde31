// Tests of the desktop on X. The program starts itself again on its own display. There the window runs in the main
// thread and the tests in another thread, so that they continue while a dialog is open.
#include "tests/workbench/own_home.h"
#include "tests/workbench_x11/clipboard_owner.h"
#include <QApplication>
#include <QThread>
#include <gtest/gtest.h>
#include <unistd.h>
#include <vector>

namespace {

/// Runs this program under the script that starts a display.
int onDisplayOfItsOwn(int argc, char** argv) {
    std::string script = FERNWICK_SOURCE_DIR "/scripts/with-display";
    std::vector<char*> command{script.data()};
    command.insert(command.end(), argv, argv + argc);
    command.push_back(nullptr);
    qputenv("FERNWICK_TEST_ON_DISPLAY", "1");
    ::execv(script.c_str(), command.data());
    std::perror(script.c_str());
    return 1;
}

/// Whether the tests are only to be listed, which needs no display.
bool isListing(int argc, char** argv) { return argc == 2 && std::string(argv[1]) == "--gtest_list_tests"; }

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    if (argc == 2 && std::string(argv[1]) == test::kOwnClipboard) return test::ownClipboard(argc, argv);
    if (isListing(argc, argv)) {
        testing::InitGoogleTest(&argc, argv);
        return RUN_ALL_TESTS();
    }
    if (qEnvironmentVariableIsEmpty("FERNWICK_TEST_ON_DISPLAY")) return onDisplayOfItsOwn(argc, argv);

    const test::OwnHome home;
    qputenv("FERNWICK_DEVICES", QByteArray::fromStdString(home / "devices"));
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName("workbench-test");
    QApplication::setQuitOnLastWindowClosed(false);
    int status = 1;
    std::unique_ptr<QThread> user(QThread::create([&] { status = RUN_ALL_TESTS(); }));
    QObject::connect(user.get(), &QThread::finished, &app, &QApplication::quit);
    user->start();
    QApplication::exec();
    user->wait();
    return status;
}
