#pragma once
// The surroundings of a measurement of the desktop: a home folder, and windows drawn into memory.
#include "Apps/workbench/base/theme.h"
#include "tests/workbench/own_home.h"
#include <QApplication>

namespace bench {

class OffscreenDesktop {
public:
    OffscreenDesktop(int& argc, char** argv) : app_(prepared(argc), argv) { workbench::apply(workbench::Theme::Light); }

    const test::OwnHome& home() const { return home_; }

private:
    /// The platform is chosen when the application is created.
    static int& prepared(int& argc) {
        test::leaveOutIntroduction();
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
        return argc;
    }

    test::OwnHome home_;
    QApplication app_;
};

} // namespace bench
