#pragma once
// The add-in's one menu on the host's menu bar.
#include "Add-in/commands/command_texts.h"
#include "Add-in/commands/modImageManagement.h"
#include "Add-in/commands/modSamplesManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modRegistry2.h"
#include "Add-in/devices/modDeviceManagement.h"

namespace fernwick {

/// The dependencies of the menu.
struct MenuServices {
    Interaction& user;
    ErrorReport& errors;
    AddIn& addIn;
    modRegistry2& registry;
    modDeviceManagement& devices;
    modImageManagement& images;
    CommandItems& items;
};

/// Properties of a menu item besides its caption.
struct MenuLook {
    bool group = false;
    int face = kNoFace;
};

/// The menu is built once for each connection: a design target installed later appears with the next one.
class modMenuManagement {
public:
    using Host = basic::Ref<vbide::VBE>;
    using Item = CommandItems::Item;
    using Keys = std::vector<std::string>;

    explicit modMenuManagement(const MenuServices& services) : services_(services), items_(services.items) {}

    /// False if the top-level popup could not be added; the user has been informed. No trap.
    bool SetUpQuinloftMenu(const Host& VBInst);
    /// For an open Fernwick project. The download command remains disabled, and the last install item is left
    /// unchanged.
    void EnableQuinloftMenu();
    /// Commands that need no project remain enabled: a device can get its runtime without one. Errors are ignored.
    void DisableQuinloftMenu();
    /// Errors are ignored.
    void RemoveQuinloftMenu();

    /// Adds a popup to the menu bar before the host's Add-Ins menu. Without a menu bar, shows a box and returns
    /// Nothing.
    Item AddSubMenu(const std::string& barName, const std::string& caption);
    static Item AddToAddInCommandBar(const Item& parent, const std::string& caption);
    static Item AddPopupToAddInCommandBar(const Item& parent, const std::string& caption);

    /// Among the items to deploy to, only the project's own design target shows its face.
    void SetupDefaultTargetName(const std::string& deviceKey);
    /// Finds gConverterItem; the last match counts. Without a match it is unchanged.
    Item FindConverterMenuItem();
    /// Returns the host's command that saves the active project; Nothing if the host has none. No trap.
    Item saveProjectItem() const;

    /// Keeps the first design target of each family. A family is the text before the first "-" of a key; a key without
    /// "-" is always kept.
    static void kludgeForTopDevices(Keys& devices);
    static void SortDeviceList(Keys& devices);

    void SetupSamplesMenu();
    /// Adds a popup to `parent` for each subkey that has a caption. `isFirst` is True until one has been added.
    void SetupDynamicSamplesMenu(const std::string& keyPath, const Item& parent, bool& isFirst);
    void SetupDynamicSamplesMenuHelper(const std::string& keyPath, const Item& parent, bool& isFirst);

private:
    void addCommand(const CommandRow& command, const Keys& devices);
    static void setFirstState(const Item& item, FirstState state);
    Item button(const Item& parent, ResString caption, MenuLook look = {});
    Item popup(const Item& parent, const CommandRow& command);
    Array<Item> deviceItems(const Item& popup, const Keys& devices, int face);

    basic::Ref<office::CommandBar> menuBar(basic::Suppressed& quietly);
    void reportNoMenuBar(const std::string& barName, const basic::ErrObject& error);

    /// A popup is an item without a project file.
    basic::Ref<clsSampleMenuItem> addSampleItem(const Item& control, bool isPopup);
    void addSample(const Item& popup, const modSamplesManagement::Sample& stored);

    MenuServices services_;
    CommandItems& items_;
};

} // namespace fernwick
