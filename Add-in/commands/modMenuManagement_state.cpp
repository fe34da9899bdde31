// Enabling, disabling and removing the menu.
#include "Add-in/commands/modMenuManagement.h"
#include <algorithm>

namespace fernwick {

namespace {

using ItemArray = Array<CommandItems::Item>;

/// The commands that depend on a project, in the order in which they are enabled.
std::vector<const CommandRow*> commandsInTurn() {
    std::vector<const CommandRow*> rows;
    for (const auto& command : kCommands)
        if (command.needs != Needs::Nothing) rows.push_back(&command);
    std::stable_sort(rows.begin(), rows.end(), [](const auto* a, const auto* b) { return a->turn < b->turn; });
    return rows;
}

/// Applies `act` to elements 0 to count-1; missing elements and errors are ignored.
template <class Act>
void quietlyToFirst(basic::Suppressed& quietly, const ItemArray& items, std::int32_t count, Act act) {
    for (std::int32_t i = 0; i < count; ++i)
        quietly([&] {
            if (const auto item = items[i]) act(item);
        });
}

} // namespace

void modMenuManagement::EnableQuinloftMenu() {
    Procedure here{services_.errors, "modMenuManagement.EnableQuinloftMenu"};
    const auto enable = [&](const Item& item, bool enabled = true) {
        if (item) here([&] { item->Enabled(enabled); });
    };
    for (const auto* command : commandsInTurn()) enable(items_.*command->item, command->needs != Needs::Never);
    for (const auto& item : items_.gDeployItems) enable(item);
    for (const auto& item : items_.gPackageItems) enable(item);
    const auto& install = items_.gInstallItems;
    for (std::int32_t i = 0; install.isAllocated() && i < install.UBound(); ++i) enable(install[i]);
}

/// The number of all design targets exceeds the number of items, of which there is one for each family.
void modMenuManagement::DisableQuinloftMenu() {
    basic::Suppressed quietly;
    const auto disable = [](const Item& item) { item->Enabled(false); };
    for (const auto* command : commandsInTurn()) {
        const auto& item = items_.*command->item;
        if (item && command->needs == Needs::Project) quietly([&] { disable(item); });
    }
    const auto count = services_.devices.GetNumDesignTargets();
    quietlyToFirst(quietly, items_.gDeployItems, count, disable);
    quietlyToFirst(quietly, items_.gPackageItems, count, disable);
}

/// The top-level popup is deleted last, with its remaining items.
void modMenuManagement::RemoveQuinloftMenu() {
    basic::Suppressed quietly;
    const auto remove = [](const Item& item) { item->Delete(); };
    const auto count = services_.devices.GetNumDesignTargets();
    for (const auto* items : {&items_.gDeployItems, &items_.gPackageItems, &items_.gInstallItems})
        quietlyToFirst(quietly, *items, count, remove);
    for (const auto* item :
         {&items_.gCompileItem, &items_.gPackageAllItem, &items_.gPackagePopup, &items_.gDeployAllItem,
          &items_.gDeployPopup, &items_.gOpenProjectItem, &items_.gSettingsItem, &items_.gInstallAllItem,
          &items_.gDownloadItem, &items_.gInstallPopup, &items_.gGuideItem, &items_.gWebItem, &items_.gAboutItem,
          &items_.gMainMenu})
        if (*item) quietly([&] { remove(*item); });
}

} // namespace fernwick
