#pragma once
// The names under which Qt keeps the program's settings.
#include <QApplication>

namespace workbench {

/// `program` distinguishes the tests from the desktop.
inline void nameApplication(const char* program = "workbench") {
    QApplication::setOrganizationName("fernwick");
    QApplication::setApplicationName(program);
}

} // namespace workbench
