#pragma once
// The add-in's one menu on the host's menu bar.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/modImageManagement.h"
#include "Add-in/commands/modSamplesManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modRegistry2.h"
#include "Add-in/devices/modDeviceManagement.h"

namespace fernwick {

/// What the menu stands on.
struct MenuServices {
    Interaction& user;
    ErrorReport& errors;
    AddIn& addIn;
    modRegistry2& registry;
    modDeviceManagement& devices;
    modImageManagement& images;
    CommandItems& items;
};

/// What an item of the menu is besides its caption.
struct MenuLook {
    bool group = false;
    int face = kNoFace;
};

/// The menu is built once a connection: a design target that is installed later shows at the next one.
class modMenuManagement {
public:
    using Host = basic::Ref<vbide::VBE>;
    using Item = CommandItems::Item;
    using Keys = std::vector<std::string>;

    explicit modMenuManagement(const MenuServices& services) : services_(services), items_(services.items) {}

    /// False when the top-level popup could not be made; the user was told then. No trap.
    bool SetUpQuinloftMenu(const Host& VBInst);
    /// For an open Fernwick project. The download command stays off for good, and the last install item as it is.
    void EnableQuinloftMenu();
    /// What needs no project stays: a device can get its runtime with no project open. Errors are ignored.
    void DisableQuinloftMenu();
    /// Errors are ignored.
    void RemoveQuinloftMenu();

    /// A new popup on the menu bar, in front of the host's Add-Ins. Nothing, and a box, where there is no menu bar.
    Item AddSubMenu(const std::string& barName, const std::string& caption);
    static Item AddToAddInCommandBar(const Item& parent, const std::string& caption);
    static Item AddPopupToAddInCommandBar(const Item& parent, const std::string& caption);

    /// Only the project's own design target shows its face among those to deploy to.
    void SetupDefaultTargetName(const std::string& deviceKey);
    /// Looks gConverterItem up; the last match counts, and without one it stays as it was.
    Item FindConverterMenuItem();
    /// The host's command that saves the active project; Nothing where the host has none. No trap.
    Item saveProjectItem() const;

    /// Leaves the first design target of each family, which is what stands before the first "-" of a key. A key
    /// without one is a family of its own.
    static void kludgeForTopDevices(Keys& devices);
    static void SortDeviceList(Keys& devices);

    void SetupSamplesMenu();
    /// Adds a popup to `parent` for each subkey that has a name for it. `isFirst` while none was added yet.
    void SetupDynamicSamplesMenu(const std::string& keyPath, const Item& parent, bool& isFirst);
    void SetupDynamicSamplesMenuHelper(const std::string& keyPath, const Item& parent, bool& isFirst);

private:
    void addCommand(const CommandRow& command, const Keys& devices);
    static void setFirstState(const Item& item, FirstState state);
    Item button(const Item& parent, ResString caption, MenuLook look = {});
    Item popup(const Item& parent, const CommandRow& command);
    Array<Item> deviceItems(const Item& popup, const Keys& devices, int face);

    basic::Ref<office::CommandBar> menuBar(basic::Suppressed& quietly);
    void tellNoMenuBar(const std::string& barName, const basic::ErrObject& error);

    /// A popup is a sample item without a project.
    basic::Ref<clsSampleMenuItem> addSampleItem(const Item& control, bool isPopup);
    void addSample(const Item& popup, const modSamplesManagement::Sample& stored);

    MenuServices services_;
    CommandItems& items_;
};

} // namespace fernwick
