// Tests of the desktop draw into memory, with a store and settings of their own.
#include "Add-in/core/modRegistry2.h"
#include "Host/registry/registry_store.h"
#include "Host/system/environment.h"
#include "tests/support/temp_folder.h"
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

/// A window that no test answers would stand for ever: tells which, and ends the program.
void endWhenStuck() {
    constexpr int kMostSeconds = 30;
    static QWidget* standing = nullptr;
    static int seconds = 0;
    auto* const now = QApplication::activeModalWidget();
    seconds = now && now == standing ? seconds + 1 : 0;
    standing = now;
    if (seconds < kMostSeconds) return;
    std::fprintf(stderr, "nobody answers '%s'\n", qPrintable(now->windowTitle()));
    for (const auto* label : now->findChildren<QLabel*>()) std::fprintf(stderr, "  %s\n", qPrintable(label->text()));
    std::abort();
}

/// It would wait for its user at the end of each start.
void leaveOutIntroduction() {
    host::RegistryStore store{host::usualRegistryPlaces(host::Environment{}, {})};
    fernwick::modRegistry2 registry{store};
    const fernwick::RegistryKey key{registry, registry.OpenOrCreateKey(fernwick::HKEY_LOCAL_MACHINE,
                                                                       "SOFTWARE\\Quinloft\\AddinPrefs",
                                                                       fernwick::KEY_ALL_ACCESS)};
    registry.SetValue(key.handle(), "StartTutorial", std::string("False"), fernwick::REG_SZ);
}

} // namespace

int main(int argc, char** argv) {
    const test::TempFolder home;
    for (const char* folder :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "FERNWICK_MACHINE_STORE"})
        qputenv(folder, QByteArray::fromStdString(home.path()));
    leaveOutIntroduction();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName("workbench-test");
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, endWhenStuck);
    watch.start(1000);
    return RUN_ALL_TESTS();
}
