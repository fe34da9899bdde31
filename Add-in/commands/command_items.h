#pragma once
// The items of the menu and the buttons of the toolbars, as their builders leave them.
#include "Add-in/commands/clsSampleMenuItem.h"
#include "Add-in/core/array.h"

namespace fernwick {

/// Nothing, or an array that is not allocated, for what does not stand.
struct CommandItems {
    using Item = basic::Ref<office::CommandBarControl>;

    // Main menu
    Item gMainMenu, gDeployPopup, gPackagePopup, gInstallPopup;
    Item gCompileItem, gDeployAllItem, gPackageAllItem, gSettingsItem, gDownloadItem, gInstallAllItem, gOpenProjectItem,
        gZoomItem, gMessagesItem, gGuideItem, gWebItem, gAboutItem;
    /// From 0. An item's Tag is its design target's key.
    Array<Item> gDeployItems, gPackageItems, gInstallItems;

    /// The third and fourth controls of the host's own File menu. The fourth removes the active project.
    Item gFileThirdItem, gFileFourthItem;

    // Utilities and samples
    Item gUtilitiesPopup, gSamplesPopup;
    Item gDatabaseConverterItem, gDatabaseViewerItem, gFontConverterItem, gFontViewerItem, gGraphicsConverterItem,
        gGraphicsViewerItem, gMovieConverterItem, gMovieViewerItem, gWeirgateItem;
    Item gSampleIntroItem, gSampleHelloItem, gSampleDirItem;
    Array<basic::Ref<clsSampleMenuItem>> gSampleItems;
    /// The project importer's; it is looked for when it is needed.
    Item gConverterItem;

    // Toolbars
    basic::Ref<office::CommandBar> gMainToolbar, gSupportToolbar;
    Item gToolCompile, gToolDeploy, gToolSettings, gToolOpenProject, gToolZoom, gToolGuide;
    Item gToolDatabaseConverter, gToolDatabaseViewer, gToolFontConverter, gToolFontViewer, gToolGraphicsConverter,
        gToolGraphicsViewer, gToolMovieConverter, gToolMovieViewer, gToolWGConfig;
};

} // namespace fernwick
