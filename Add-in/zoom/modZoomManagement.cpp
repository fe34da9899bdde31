#include "Add-in/zoom/modZoomManagement.h"
#include "Add-in/zoom/zoom_texts.h"

namespace fernwick {

namespace {

constexpr int kTitleBuffer = 255;

} // namespace

/// A document without its tool window belongs to a window that was closed and that the host shows again.
void modZoomManagement::createZoomWindow() {
    Procedure here{errors_, "modZoomManagement.createZoomWindow"};
    if (ZoomDocument && ZoomToolWindow) return;
    basic::Ref<Object> document;
    here([&] {
        const basic::Ref<vbide::VBE> vbe = addIn_.gVBInstance;
        ZoomToolWindow = vbe->Windows()->CreateToolWindow(vbe->Addins()->Item(app_.Title + ".Connect"),
                                                          app_.Title + ".udocZoomWindow", zoom_texts::kCaption,
                                                          zoom_texts::kGuidPosition, document);
        ZoomDocument = basic::cast<ZoomedDesigner>(document);
    });
    here([&] { ZoomToolWindow->Visible(false); });
}

void modZoomManagement::ShowZoomWin() {
    Procedure here{errors_, "modZoomManagement.ShowZoomWin"};
    if (!ZoomDocument || !ZoomToolWindow) createZoomWindow();
    here([&] { ZoomToolWindow->Visible(true); });
}

void modZoomManagement::InitZoomWindow() {
    Procedure here{errors_, "modZoomManagement.InitZoomWindow"};
    if (here.test([&] { return prefs_.GetZoomWinState() == 0; })) ShowZoomWin();
}

void modZoomManagement::SaveZoomWindowState() {
    Procedure here{errors_, "modZoomManagement.SaveZoomWindowState"};
    if (!addIn_.gVBInstance) return;
    bool isVisible = false;
    (void)basic::attempt([&] { isVisible = isWindowVisible(); });
    here([&] { prefs_.SetZoomWinState(isVisible ? 0 : 1); });
}

bool modZoomManagement::isWindowVisible() const {
    for (const auto& window : addIn_.gVBInstance->Windows()->items())
        if (window->Caption() == zoom_texts::kCaption) return window->Visible();
    return false;
}

void modZoomManagement::SetZoomForm(const basic::Ref<vbide::VBComponent>& Component) {
    if (!ZoomDocument) return;
    basic::Suppressed quietly;
    quietly([&] { SetDesignerWindowHandle(Component->DesignerWindow()->Caption()); });
    quietly([&] { ZoomDocument->SetZoomWindow(DesignerWindowHandle); });
}

void modZoomManagement::SetDesignerWindowHandle(const std::string& WindowTitle) {
    Procedure here{errors_, "modZoomManagement.SetDesignerWindowHandle"};
    const Hwnd main = windows_.MainWindow();
    DesignerSearchCount = 0;
    DesignerWindowTitle = WindowTitle;
    here([&] { windows_.EnumChildWindows(main, [this](Hwnd hwnd) { return EnumWindowsProc(hwnd); }); });
}

bool modZoomManagement::EnumWindowsProc(Hwnd hwnd) {
    if (hwnd == 0) return false;
    if (windows_.GetWindowText(hwnd, kTitleBuffer).find(DesignerWindowTitle) != std::string::npos) {
        windows_.EnumChildWindows(hwnd, [this](Hwnd child) { return GetDesignerHandleChildProc(child); });
        return false;
    }
    ++DesignerSearchCount;
    return true;
}

bool modZoomManagement::GetDesignerHandleChildProc(Hwnd hwnd) {
    DesignerWindowHandle = hwnd;
    return false;
}

void modZoomManagement::CloseZoomWin() {
    ZoomToolWindow = nullptr;
    ZoomDocument = nullptr;
}

} // namespace fernwick
