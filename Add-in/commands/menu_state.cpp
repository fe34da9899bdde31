// The menu while there is a project of ours, while there is none, and its end.
#include "Add-in/commands/modMenuManagement.h"

namespace fernwick {

namespace {

using ItemArray = Array<CommandItems::Item>;

/// The elements from 0 to count-1. Of those that the array doesn't have, and of failures, nobody hears.
template <class Act>
void quietlyToFirst(basic::Suppressed& quietly, const ItemArray& items, std::int32_t count, Act act) {
    for (std::int32_t i = 0; i < count; ++i)
        quietly([&] {
            if (const auto item = items[i]) act(item);
        });
}

} // namespace

/// Neither the configuration item nor the samples are ever disabled.
void modMenuManagement::EnableQuinloftMenu() {
    Procedure here{services_.errors, "modMenuManagement.EnableQuinloftMenu"};
    const auto enable = [&](const Item& item) {
        if (item) here([&] { item->Enabled(true); });
    };
    for (const auto* item :
         {&items_.gCompileItem, &items_.gPackageAllItem, &items_.gPackagePopup, &items_.gDeployAllItem,
          &items_.gDeployPopup, &items_.gSettingsItem, &items_.gInstallAllItem, &items_.gInstallPopup})
        enable(*item);
    if (items_.gDownloadItem) here([&] { items_.gDownloadItem->Enabled(false); });
    for (const auto* item : {&items_.gZoomItem, &items_.gMessagesItem, &items_.gMovieConverterItem,
                             &items_.gUtilitiesPopup, &items_.gDatabaseConverterItem, &items_.gDatabaseViewerItem,
                             &items_.gFontConverterItem, &items_.gFontViewerItem, &items_.gGraphicsConverterItem,
                             &items_.gGraphicsViewerItem, &items_.gMovieViewerItem})
        enable(*item);
    for (const auto& item : items_.gDeployItems) enable(item);
    for (const auto& item : items_.gPackageItems) enable(item);
    const auto& install = items_.gInstallItems;
    for (std::int32_t i = 0; install.isAllocated() && i < install.UBound(); ++i) enable(install[i]);
}

/// The number of all design targets reaches beyond the slots, of which there is one a family.
void modMenuManagement::DisableQuinloftMenu() {
    basic::Suppressed quietly;
    const auto disable = [](const Item& item) { item->Enabled(false); };
    for (const auto* item :
         {&items_.gCompileItem, &items_.gPackageAllItem, &items_.gPackagePopup, &items_.gDeployAllItem,
          &items_.gDeployPopup, &items_.gSettingsItem, &items_.gZoomItem, &items_.gMessagesItem})
        if (*item) quietly([&] { disable(*item); });
    const auto count = services_.devices.GetNumDesignTargets();
    quietlyToFirst(quietly, items_.gDeployItems, count, disable);
    quietlyToFirst(quietly, items_.gPackageItems, count, disable);
}

/// The top-level popup goes last and takes the rest with it.
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
