#pragma once
#include "Add-in/platform/object.h"
#include <cstdint>

namespace fernwick {

/// A document in a tool window. The host calls these on real changes only: a window that is minimized or covered by
/// another tab is not hidden.
class UserDocument : public Object {
public:
    virtual void UserDocument_Show() = 0;
    virtual void UserDocument_Hide() = 0;
    /// The inner size of the window, in twips.
    virtual void UserDocument_Resize(std::int32_t width, std::int32_t height) = 0;
    /// The window was removed; other objects may still hold the document.
    virtual void UserDocument_Terminate() = 0;
};

} // namespace fernwick
