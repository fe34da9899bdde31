#pragma once
// The window of an add-in's document, as the operations on windows need it.
#include "Add-in/platform/host_windows.h"
#include <qnamespace.h>

class QWidget;

namespace workbench {

class DesignerImage;

class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;

    virtual QWidget& widget() = 0;
    /// Shows a part of a designer's picture, magnified, until it is cleared.
    virtual void present(DesignerImage& image, const fernwick::WindowRect& target,
                         const fernwick::WindowRect& source) noexcept = 0;
    virtual void clear() noexcept = 0;
    /// The shape of the pointer over the picture.
    virtual void showCursor(Qt::CursorShape shape) noexcept = 0;
    /// What the window does with a message that the add-in leaves to it.
    virtual std::intptr_t ownProcedure(const fernwick::WindowMessage& message) noexcept = 0;
};

} // namespace workbench
