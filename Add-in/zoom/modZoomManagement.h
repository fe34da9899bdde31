#pragma once
// The zoom window: its tool window, and the designer that it follows.
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/platform.h"
#include "Add-in/zoom/zoomed_designer.h"

namespace fernwick {

class modZoomManagement {
public:
    modZoomManagement(AddIn& addIn, ErrorReport& errors, modAddinPrefsManagement& prefs, const Platform& platform)
        : addIn_(addIn), errors_(errors), prefs_(prefs), windows_(platform.windows), app_(platform.app) {}

    /// The document in the tool window; Nothing while the window is closed.
    basic::Ref<ZoomedDesigner> ZoomDocument;
    basic::Ref<vbide::Window> ZoomToolWindow;

    /// Has the host create the window, which stays hidden.
    void createZoomWindow();
    void ShowZoomWin();
    /// Shows the window if it was visible when a project was last closed.
    void InitZoomWindow();
    /// Stores whether the window is visible.
    void SaveZoomWindowState();
    /// Makes the zoom window follow this form's designer. Errors are ignored.
    void SetZoomForm(const basic::Ref<vbide::VBComponent>& Component);
    /// Searches the designer: the first child of the first window whose text contains the title. If there is none,
    /// DesignerWindowHandle keeps its value.
    void SetDesignerWindowHandle(const std::string& WindowTitle);
    /// Releases the window and its document, which the host may keep.
    void CloseZoomWin();

    Hwnd DesignerWindowHandle = 0;

private:
    bool EnumWindowsProc(Hwnd hwnd);
    bool GetDesignerHandleChildProc(Hwnd hwnd);
    bool isWindowVisible() const;

    AddIn& addIn_;
    ErrorReport& errors_;
    modAddinPrefsManagement& prefs_;
    HostWindows& windows_;
    const App& app_;
    std::string DesignerWindowTitle;
    std::int32_t DesignerSearchCount = 0;
};

} // namespace fernwick
