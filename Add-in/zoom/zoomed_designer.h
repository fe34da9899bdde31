#pragma once
#include "Add-in/platform/host_windows.h"
#include "Add-in/platform/windows/user_document.h"

namespace fernwick {

/// The zoom document as the rest of the zoom uses it.
class ZoomedDesigner : public UserDocument {
public:
    /// Shows this designer from now on. Does nothing for 0.
    virtual void SetZoomWindow(Hwnd target) = 0;
    /// How far the picture is scrolled, in pixels; negative for a picture that begins below the document's top edge.
    virtual std::int32_t GetXOffset() const = 0;
    virtual std::int32_t GetYOffset() const = 0;
    /// Copies the designer's pixels.
    virtual void UpdateDisplay() = 0;
};

} // namespace fernwick
