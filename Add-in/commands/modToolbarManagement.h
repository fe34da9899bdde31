#pragma once
// The two toolbars of the add-in.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/modImageManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modAddinPrefsManagement.h"

namespace fernwick {

/// What the toolbars stand on.
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

    /// Each bar comes up disabled, where it last stood. False at the first failure, which is reported.
    bool SetupQuinloftToolbar();
    bool SetupSupportToolbar();

    /// A bar that doesn't stand is left alone. Disabling ignores errors.
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

    /// A new bar, docked at the top. One of that name that is left from an earlier run goes away. No trap.
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
