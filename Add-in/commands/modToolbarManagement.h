#pragma once
// The two toolbars of the add-in.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/modImageManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modAddinPrefsManagement.h"

namespace fernwick {

/// The dependencies of the toolbars.
struct ToolbarServices {
    ErrorReport& errors;
    AddIn& addIn;
    modAddinPrefsManagement& prefs;
    modImageManagement& images;
    CommandItems& items;
};

class modToolbarManagement {
public:
    using Bar = basic::Ref<office::CommandBar>;
    using Item = CommandItems::Item;

    explicit modToolbarManagement(const ToolbarServices& services) : services_(services), items_(services.items) {}

    /// Adds a bar, disabled, at its stored position. False at the first failure, which is reported.
    bool SetupQuinloftToolbar();
    bool SetupSupportToolbar();

    /// Do nothing if the bar was not created. Disabling ignores errors.
    void EnableQuinloftToolbar() { enable(items_.gMainToolbar, "EnableQuinloftToolbar"); }
    void EnableSupportToolbar() { enable(items_.gSupportToolbar, "EnableSupportToolbar"); }
    void DisableQuinloftToolbar() { disable(items_.gMainToolbar); }
    void DisableSupportToolbar() { disable(items_.gSupportToolbar); }
    /// Errors are ignored.
    void RemoveQuinloftToolbar() { remove(items_.gMainToolbar, Toolbar::Main); }
    void RemoveSupportToolbar() { remove(items_.gSupportToolbar, Toolbar::Support); }

    /// A bar that doesn't stand is left alone.
    void SaveAllToolbarState();
    void RestoreAllToolbarState();

    /// Adds a bar at the top, after deleting a bar of that name left from an earlier run. No trap.
    Bar AddToolbar(const std::string& name);
    static Item AddControlButtonToolbar(const Bar& bar);

private:
    void addButtons(const Bar& bar, Toolbar which);
    void remove(const Bar& bar, Toolbar which);
    void showDisabled(const Bar& bar);
    void enable(const Bar& bar, const char* procedure);
    static void disable(const Bar& bar);

    ToolbarServices services_;
    CommandItems& items_;
};

} // namespace fernwick
