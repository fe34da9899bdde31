#pragma once
// Menus and toolbars of the host.
#include "Add-in/platform/object.h"
#include "Basic/ref.h"
#include <string>
#include <vector>

namespace office {

using basic::Ref;
using fernwick::Object;

enum MsoControlType : int { msoControlButton = 1, msoControlPopup = 10 };
enum MsoButtonStyle : int {
    msoButtonAutomatic = 0,
    msoButtonIcon = 1,
    msoButtonCaption = 2,
    msoButtonIconAndCaption = 3
};
enum MsoBarPosition : int { msoBarLeft = 0, msoBarTop = 1, msoBarRight = 2, msoBarBottom = 3, msoBarFloating = 4 };

class CommandBarControls;
class CommandBar;

/// A button or popup of a bar. A deleted one raises errors.
class CommandBarControl : public Object {
public:
    virtual int Id() const = 0;
    /// Position in its bar, from 1.
    virtual int Index() const = 0;
    virtual MsoControlType Type() const = 0;
    virtual std::string Caption() const = 0;
    virtual void Caption(const std::string& caption) = 0;
    virtual std::string Tag() const = 0;
    virtual void Tag(const std::string& tag) = 0;
    virtual std::string ToolTipText() const = 0;
    virtual void ToolTipText(const std::string& text) = 0;
    virtual bool BeginGroup() const = 0;
    virtual void BeginGroup(bool begin) = 0;
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool enabled) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool visible) = 0;
    /// What a button shows; error 438 for a popup.
    virtual MsoButtonStyle Style() const = 0;
    virtual void Style(MsoButtonStyle style) = 0;
    /// Sets the button's face from the picture on the clipboard. Error 5 without a picture, 438 for a popup.
    virtual void PasteFace() = 0;
    virtual Ref<CommandBar> Parent() const = 0;
    /// The items of a popup; error 438 for a button.
    virtual Ref<CommandBarControls> Controls() = 0;
    virtual void Delete() = 0;
    /// Acts as a click does.
    virtual void Execute() = 0;
};

class CommandBarControls : public Object {
public:
    virtual int Count() const = 0;
    /// From 1. Error 9 outside of the range.
    virtual Ref<CommandBarControl> Item(int index) const = 0;
    /// Finds a control by its caption without "&".
    virtual Ref<CommandBarControl> Item(const std::string& caption) const = 0;
    virtual std::vector<Ref<CommandBarControl>> items() const = 0;
    /// `before` 0 appends.
    virtual Ref<CommandBarControl> Add(MsoControlType type = msoControlButton, int before = 0) = 0;
};

class CommandBar : public Object {
public:
    virtual std::string Name() const = 0;
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool enabled) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool visible) = 0;
    virtual int Position() const = 0;
    virtual void Position(int position) = 0;
    virtual int RowIndex() const = 0;
    virtual void RowIndex(int index) = 0;
    virtual int Left() const = 0;
    virtual void Left(int left) = 0;
    virtual int Top() const = 0;
    virtual void Top(int top) = 0;
    virtual Ref<CommandBarControls> Controls() = 0;
    /// Returns the first control with this id, in popups too; Nothing if there is none.
    virtual Ref<CommandBarControl> FindControl(int id) = 0;
    virtual void Delete() = 0;
};

class CommandBars : public Object {
public:
    /// A toolbar or one of the host's own menus. Error 5 for an unknown name.
    virtual Ref<CommandBar> Item(const std::string& name) const = 0;
    virtual std::vector<Ref<CommandBar>> items() const = 0;
    virtual Ref<CommandBar> ActiveMenuBar() const = 0;
    virtual Ref<CommandBarControl> FindControl(int id) const = 0;
    virtual Ref<CommandBar> Add(const std::string& name, int position, bool menuBar) = 0;
};

} // namespace office
