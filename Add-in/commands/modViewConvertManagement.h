#pragma once
// The converters and viewers, which are separate programs.
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/shell.h"

namespace fernwick {

enum UtilityTool : int {
    kDatabaseConverter = 0,
    kDatabaseViewer = 1,
    kFontConverter = 2,
    kFontViewer = 3,
    kGraphicsConverter = 4,
    kGraphicsViewer = 5,
    kMovieConverter = 6,
    kMovieViewer = 7,
    kWeirgateConfiguration = 8,
};

class modViewConvertManagement {
public:
    modViewConvertManagement(Shell& shell, const modQLInstallInfo& install, ErrorReport& errors)
        : shell_(shell), install_(install), errors_(errors) {}

    /// Starts a UtilityTool. False for any other number, and, after a report, if the program can't be started.
    bool OpenViewerConverter(int tool);

private:
    Shell& shell_;
    const modQLInstallInfo& install_;
    ErrorReport& errors_;
};

} // namespace fernwick
