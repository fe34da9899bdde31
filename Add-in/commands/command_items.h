#pragma once
// The items of the menu and the buttons of the toolbars, as their builders leave them.
#include "Add-in/commands/clsSampleMenuItem.h"
#include "Add-in/core/array.h"

namespace fernwick {

/// Nothing, or an array that is not allocated, for what does not stand.
struct CommandItems {
    using Item = basic::Ref<office::CommandBarControl>;

    // Main menu
    Item gCompileItem, gDeployAllItem, gPackageAllItem, gSettingsItem, gDownloadItem, gInstallAllItem, gOpenProjectItem,
        gZoomItem, gMessagesItem, gGuideItem, gWebItem, gAboutItem;
    /// From 0. An item's Tag is its design target's key.
    Array<Item> gDeployItems, gPackageItems, gInstallItems;

    // Utilities and samples
    Item gDatabaseConverterItem, gDatabaseViewerItem, gFontConverterItem, gFontViewerItem, gGraphicsConverterItem,
        gGraphicsViewerItem, gMovieConverterItem, gMovieViewerItem, gWeirgateItem;
    Item gSampleIntroItem, gSampleHelloItem, gSampleDirItem;
    Array<basic::Ref<clsSampleMenuItem>> gSampleItems;

    // Toolbars
    Item gToolCompile, gToolDeploy, gToolSettings, gToolOpenProject, gToolZoom, gToolGuide;
    Item gToolDatabaseConverter, gToolDatabaseViewer, gToolFontConverter, gToolFontViewer, gToolGraphicsConverter,
        gToolGraphicsViewer, gToolMovieConverter, gToolMovieViewer, gToolWGConfig;
};

} // namespace fernwick
