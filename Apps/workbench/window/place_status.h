#pragma once
#include "Add-in/platform/events.h"
#include <QObject>

class QLabel;
class QStatusBar;

namespace workbench {

class CodeWindows;
class DesignDesk;

/// Shows in the status bar where the user is: line and column of the code in front, or position and size of what is
/// selected on the form in front.
class PlaceStatus final : public QObject {
public:
    /// All of them outlive this.
    PlaceStatus(QStatusBar& bar, CodeWindows& code, DesignDesk& design);

private:
    void follow();
    void show();
    void showTexts(const QString& place, const QString& size);

    CodeWindows& code_;
    DesignDesk& design_;
    QLabel *place_, *size_;
    /// To the caret of the editor in front.
    fernwick::Subscription caret_;
    fernwick::Subscription selection_, drag_;
};

} // namespace workbench
