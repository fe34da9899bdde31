#pragma once
// Completion, parameter help and quick info in one pane of a code window.
#include "Apps/workbench/assist/name_offers.h"
#include "Apps/workbench/assist/tip.h"
#include "Apps/workbench/code/code_editor.h"

namespace workbench {

class CodeAssist final : public QObject {
public:
    /// Belongs to the pane. `insight` outlives it.
    CodeAssist(CodeInput& pane, ProjectInsight::Component component, ProjectInsight& insight);

    NameOffers& names() { return names_; }
    /// Shows the call around the cursor until the cursor leaves it.
    void showParameters();
    /// Shows how the name at the cursor is declared.
    void showInfo();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void typed(int character);
    void moved();
    bool keyPressed(const QKeyEvent& event);
    bool pressed(int key);
    void updateParameters();
    void hideTip();
    QString infoAt(int position);
    bool showHover(const QPoint& at, const QPoint& global);

    CodeInput& text_;
    ProjectInsight::Component component_;
    ProjectInsight& insight_;
    NameOffers names_;
    Tip tip_;
    bool isInCall_ = false; ///< the tip shows parameters
    QTimer moved_;
};

/// The assistant of a pane; null if it has none.
CodeAssist* assistOf(QsciScintilla& pane);

} // namespace workbench
