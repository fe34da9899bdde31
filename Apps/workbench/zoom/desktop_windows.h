#pragma once
// The desktop's windows as an add-in works with them.
#include "Apps/workbench/designer/form_windows.h"
#include "Apps/workbench/zoom/designer_procedure.h"

namespace workbench {

/// Exists before the window of the desktop; without one it has no windows.
class DesktopWindows final : public QObject, public fernwick::HostWindows {
public:
    DesktopWindows();
    ~DesktopWindows() override;

    /// Both outlive this, or its next detach().
    void attach(QWidget& main, FormWindows& forms);
    void detach();

    // ---- for the windows of documents ----
    fernwick::Hwnd draw(const fernwick::Object& document, DocumentWindow& window);
    void removeDocument(const fernwick::Object& document);
    MouseRoute& mouse() { return mouse_; }
    WindowProcedures& procedures() { return procedures_; }

    /// The picture of a designer's surface; null for another window.
    DesignerImage* imageOf(fernwick::Hwnd surface) const;

    // ---- HostWindows ----
    fernwick::Hwnd MainWindow() const noexcept override;
    void EnumChildWindows(fernwick::Hwnd parent, const std::function<bool(fernwick::Hwnd)>& visit) const override;
    std::string GetWindowText(fernwick::Hwnd hwnd, int size) const override;
    fernwick::WindowRect GetWindowRect(fernwick::Hwnd hwnd) const noexcept override;
    fernwick::WindowPoint ClientToScreen(fernwick::Hwnd hwnd, fernwick::WindowPoint place) const noexcept override;
    fernwick::Hwnd ChildWindowFromPoint(fernwick::Hwnd hwnd, fernwick::WindowPoint place) const noexcept override;
    std::intptr_t GetWindowInstance(fernwick::Hwnd hwnd) const noexcept override;
    fernwick::WindowProc SetWindowProc(fernwick::Hwnd hwnd, const fernwick::WindowProc& procedure) noexcept override;
    std::intptr_t CallWindowProc(const fernwick::WindowProc& procedure,
                                 const fernwick::WindowMessage& message) noexcept override;
    std::intptr_t SendMessage(const fernwick::WindowMessage& message) noexcept override;
    fernwick::WindowPoint GetCursorPos() const noexcept override { return mouse_.cursor(); }
    void SetCursorPos(fernwick::WindowPoint) noexcept override { mouse_.postMove(); }
    std::intptr_t SetWindowsHookEx(const fernwick::GetMessageHook& hook) noexcept override;
    void UnhookWindowsHookEx(std::intptr_t hook) noexcept override;
    std::intptr_t CallNextHookEx(std::intptr_t hook, int code, std::intptr_t wParam,
                                 fernwick::WindowMessage& message) noexcept override;
    fernwick::Hdc GetDC(fernwick::Hwnd hwnd) noexcept override;
    void ReleaseDC(fernwick::Hwnd, fernwick::Hdc) noexcept override {}
    void StretchBlt(fernwick::Hdc to, const fernwick::WindowRect& target, fernwick::Hdc from,
                    const fernwick::WindowRect& source, fernwick::RasterOperation operation) noexcept override;
    void Clear(fernwick::Hwnd hwnd) noexcept override;
    fernwick::Hwnd WindowOfDocument(const fernwick::Object& document) const noexcept override;
    std::unique_ptr<fernwick::MsgHook> CreateMsgHook() override;

private:
    std::intptr_t ownProcedure(const fernwick::WindowMessage& message);
    std::vector<fernwick::Hwnd> windowsOf(DesignerWindow& designer) const;
    QRectF onScreen(const NumberedWindow& window) const;
    void showCursor(Qt::CursorShape shape);
    void activate(FormView& view);

    mutable WindowNumbers numbers_;
    WindowProcedures procedures_;
    MouseRoute mouse_;
    DesignerProcedure designers_;
    QWidget* main_ = nullptr;
    FormWindows* forms_ = nullptr;
    fernwick::Subscription closing_;
};

} // namespace workbench
