#pragma once
// The add-in's dialogs on the desktop.
#include "Add-in/platform/interaction.h"
#include <QWidget>
#include <functional>
#include <vector>

namespace workbench {

class FormWindow;

class QtUser final : public fernwick::Interaction {
public:
    void showModal(fernwick::Form& form) override;
    int MsgBox(const std::string& text, int buttons, const std::string& title) override;
    void ShowSave(fernwick::CommonDialog& dialog) override;
    /// Error 20476 if the names together are longer than MaxFileSize.
    void ShowOpen(fernwick::CommonDialog& dialog) override;
    void MessageBeep(int type) override;
    /// Lasts until Qt's loop turns, as the next mouse move would reset it.
    void SetCursor(fernwick::MousePointerShape shape) override;
    void SetRedraw(bool redraw) override;

    /// The parent of boxes and forms; null for none.
    QWidget* mainWindow = nullptr;
    bool isShowingForm() const { return !forms_.empty(); }
    /// Called when a form has closed.
    std::function<void(const fernwick::Form&)> closed = [](const fernwick::Form&) {};

private:
    class InFront;

    QWidget* top() const;

    std::vector<FormWindow*> forms_;
};

} // namespace workbench
