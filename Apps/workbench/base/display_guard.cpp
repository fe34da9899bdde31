#include "Apps/workbench/base/display_guard.h"
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace workbench {

namespace {

// That of `fernwick` for a problem with the system.
constexpr int kMachineTrouble = 3;

/// Qt's own sentence is about plugins, which is seldom the reason.
[[noreturn]] void endWithoutDisplay() {
    std::fputs("fernwick-workbench: no window can be opened, because there is no display or it cannot be reached. "
               "Start it in a desktop session, or set DISPLAY or WAYLAND_DISPLAY.\n",
               stderr);
    std::_Exit(kMachineTrouble);
}

void handleMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) endWithoutDisplay();
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

DisplayGuard::DisplayGuard() { qInstallMessageHandler(handleMessage); }

DisplayGuard::~DisplayGuard() { qInstallMessageHandler(nullptr); }

} // namespace workbench
