#pragma once
// The platform of the desktop, without a host.
#include "Add-in/platform/platform.h"
#include "Add-in/platform/windows/no_windows.h"
#include "Apps/workbench/bridge/qt_clipboard.h"
#include "Apps/workbench/bridge/qt_loop.h"
#include "Apps/workbench/bridge/qt_user.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/clock.h"
#include "Host/system/environment.h"
#include "Host/system/file_system.h"
#include "Host/system/processes.h"
#include "Host/system/resources.h"
#include "Host/system/screen.h"
#include "Host/system/shell.h"
#include "tests/support/errors.h"
#include "tests/support/temp_folder.h"
#include <gtest/gtest.h>

namespace test {

class DesktopWorld : public testing::Test {
protected:
    TempFolder folder;
    /// Errors of the loop's deliveries.
    int failures = 0;
    host::Clock clock;
    workbench::QtUser user;
    workbench::QtLoop loop{clock, [this](std::exception_ptr) { ++failures; }};
    workbench::QtClipboard clipboard;
    host::RegistryStore registry{{folder / "user", folder / "machine", {}}};
    host::Classes classes{registry};
    host::FileSystem files;
    host::Environment environment;
    host::Processes processes{[](const std::string&, const std::string&) { return false; }};
    host::Shell shell{files, [](const std::string&) {}};
    host::Screen screen;
    fernwick::NoWindows windows;
    host::Resources resources{files, {}};
    fernwick::Platform platform{user,      loop,  registry, files,   processes, classes,   environment,
                                clipboard, shell, screen,   windows, clock,     resources, {}};
};

} // namespace test
