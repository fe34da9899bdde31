#pragma once
// The add-in's user at the desktop.
#include "Add-in/platform/interaction.h"
#include <QWidget>
#include <vector>

namespace workbench {

class FormWindow;

class QtUser final : public fernwick::Interaction {
public:
    void showModal(fernwick::Form& form) override;
    int MsgBox(const std::string& text, int buttons, const std::string& title) override;
    void ShowSave(fernwick::CommonDialog& dialog) override;
    /// Error 20476 for names that are together longer than MaxFileSize.
    void ShowOpen(fernwick::CommonDialog& dialog) override;
    void MessageBeep(int type) override;
    /// Until Qt's loop turns, as the next move of the mouse would end it.
    void SetCursor(fernwick::MousePointerShape shape) override;
    void SetRedraw(bool redraw) override;

    /// Above which windows stand; null for none.
    QWidget* mainWindow = nullptr;

private:
    QWidget* top() const;

    std::vector<FormWindow*> forms_;
};

} // namespace workbench
