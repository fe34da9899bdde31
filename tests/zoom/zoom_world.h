#pragma once
// The add-in over recorded windows, with a form's designer and the zoom window.
#include "tests/support/add_in_world.h"
#include "tests/support/recorded_windows.h"

namespace test {

struct ZoomPlatform : TracedPlatform {
    RecordedWindows windows;
    fernwick::Platform platform{
        user,      loop,  registry, files,   processes, classes,   environment,
        clipboard, shell, screen,   windows, clock,     resources, TracedPlatform::platform.app};
};

struct ZoomWorld : AddInWorld<ZoomPlatform> {
    using ZoomPlatform::windows;

    static constexpr WindowPoint kZoomPlace{1000, 200};
    static constexpr WindowPoint kSurfacePlace{110, 130};
    static constexpr int kSurfaceWidth = 200, kSurfaceHeight = 150;
    /// Where the picture begins without scrolling.
    static constexpr int kTop = 30;

    ZoomWorld() {
        designer = windows.add(windows.main, "Demo - frmMain (Form)", {100, 100, 600, 500});
        surface = windows.add(designer, "", rectAt(kSurfacePlace, kSurfaceWidth, kSurfaceHeight));
        handle = windows.add(surface, "", {170, 150, 176, 156}, fernwick::kDesignerInstance); // at 60,20
        control = windows.add(surface, "", {130, 140, 170, 160});                             // at 20,10
        zoomHwnd = windows.add(windows.main, "Fernwick Zoom", rectAt(kZoomPlace, 600, 600));
        windows.under = zoomHwnd;
        form->designerOpen = true;
        form->window = basic::make<TracedWindow>(trace);
        form->window->caption = "Demo - frmMain (Form)";
        form->window->visible = true;
    }
    static WindowRect rectAt(WindowPoint place, int width, int height) {
        return {place.x, place.y, place.x + width, place.y + height};
    }
    /// Creates the window and shows it, in pixels of 15 twips.
    void open(int width = 600, int height = 600) {
        zoom.createZoomWindow();
        document = basic::cast<fernwick::udocZoomWindow>(zoom.ZoomDocument);
        windows.of(zoomHwnd).document = document.shared().get();
        resize(width, height);
        document->UserDocument_Show();
        forget();
    }
    /// Opens the window on the form's designer.
    void follow(int width = 600, int height = 600) {
        open(width, height);
        zoom.SetZoomForm(form);
        forget();
    }
    void resize(int width, int height) {
        windows.of(zoomHwnd).rect = rectAt(kZoomPlace, width, height);
        document->UserDocument_Resize(width * 15, height * 15);
    }
    /// Sets the size of the designer's surface.
    void surfaceIs(int width, int height) { windows.of(surface).rect = rectAt(kSurfacePlace, width, height); }
    /// Chooses the zoom level.
    void level(int factor) { document->Combo1.ListIndex(factor - 1); }
    void forget() {
        windows.log.clear();
        windows.messages.clear();
        trace.effects.clear();
    }
    /// A place in the zoom window, on the screen.
    static WindowPoint inZoom(int x, int y) { return {kZoomPlace.x + x, kZoomPlace.y + y}; }
    /// Sends a mouse message to the zoom window.
    std::intptr_t send(unsigned number, int x, int y, std::intptr_t keys = 0) {
        return windows.SendMessage({zoomHwnd, number, keys, placeParam(x, y)});
    }
    /// The messages with this number that reached the window's own procedure, as places.
    std::vector<WindowPoint> places(Hwnd hwnd, unsigned number) const {
        std::vector<WindowPoint> all;
        for (const auto& message : windows.messages)
            if (message.hwnd == hwnd && message.number == number) all.push_back(placeOf(message.lParam));
        return all;
    }
    /// Where the picture is, in pixels of the zoom window.
    const WindowRect& picture() const { return windows.transfer.target; }

    Ref<TracedComponent> form =
        basic::make<TracedComponent>(trace, "frmMain", "/p/frmMain.frm", vbide::vbext_ct_VBForm);
    Ref<fernwick::udocZoomWindow> document;
    Hwnd designer = 0, surface = 0, control = 0, handle = 0, zoomHwnd = 0;
};

inline void PrintTo(const fernwick::udocZoomWindow&, std::ostream* to) { *to << "zoom window"; }

} // namespace test

namespace fernwick {

inline void PrintTo(const WindowPoint& place, std::ostream* to) { *to << test::RecordedWindows::text(place); }
inline void PrintTo(const WindowRect& rect, std::ostream* to) { *to << test::RecordedWindows::text(rect); }

} // namespace fernwick
