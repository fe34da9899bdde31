#pragma once
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

enum HelpTopic : int { kUsersGuideTopic = 0, kAddInGuideTopic = 1 };

class modHelpManagement {
public:
    modHelpManagement(Platform& platform, const modQLInstallInfo& install, ErrorReport& errors)
        : platform_(platform), install_(install), errors_(errors) {}

    /// Shows the help of a HelpTopic, or a box if there is none or its file is missing.
    void DisplayHelp(int topic);

private:
    void box(const std::string& text);

    Platform& platform_;
    const modQLInstallInfo& install_;
    ErrorReport& errors_;
};

} // namespace fernwick
