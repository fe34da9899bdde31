#pragma once
// How the program presents itself to Qt, which keeps its settings under these names, and to the desktop.
#include "Apps/common/version.h"
#include "Apps/workbench/base/drawn_icons.h"
#include <QApplication>
#include <QIcon>

namespace workbench {

/// `program` distinguishes the tests from the desktop.
inline void nameApplication(const char* program = "workbench") {
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName(program);
    QApplication::setApplicationVersion(apps::kVersion);
    QApplication::setDesktopFileName("fernwick-workbench");
    QApplication::setWindowIcon(QIcon::fromTheme("fernwick-workbench", drawnIcon("Project")));
}

} // namespace workbench
