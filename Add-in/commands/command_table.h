#pragma once
// The commands of the menu and the toolbars: one row for each, and the item and button that it becomes.
#include "Add-in/commands/clsSampleMenuItem.h"
#include "Add-in/core/array.h"

namespace fernwick {

/// The items and buttons that were built; Nothing, or an unallocated array, for the others.
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
    /// The project importer's; looked up when it is needed.
    Item gConverterItem;

    // Toolbars
    basic::Ref<office::CommandBar> gMainToolbar, gSupportToolbar;
    Item gToolCompile, gToolDeploy, gToolSettings, gToolOpenProject, gToolZoom, gToolGuide;
    Item gToolDatabaseConverter, gToolDatabaseViewer, gToolFontConverter, gToolFontViewer, gToolGraphicsConverter,
        gToolGraphicsViewer, gToolMovieConverter, gToolMovieViewer, gToolWGConfig;
};

/// An entry of the string table.
struct ResString {
    int id;
    const char* text;
};

inline constexpr ResString kUtilitiesString{250, "Quinloft &Utilities"};

enum class CommandKind { Button, Popup, SamplesPopup };

/// What is set right after an item is added.
enum class FirstState { AsAdded, Enabled, Shown, DisabledAndHidden };

/// Whether a command depends on an open project of this system.
enum class Needs {
    Nothing,
    /// Enabled with a project and disabled without one.
    Project,
    /// Enabled with a project and never disabled: a device can get its runtime, and utilities run, without one.
    FirstProject,
    /// Disabled even with a project.
    Never,
};

enum class Toolbar { Main, Support };

/// A command's button on a toolbar.
struct ToolButton {
    CommandItems::Item CommandItems::*item = nullptr;
    Toolbar bar = Toolbar::Main;
    /// Defaults to the menu's caption.
    ResString tip{};
    bool group = false;
};

inline constexpr int kNoFace = 0;
inline constexpr int kLastTurn = 99;

struct CommandRow {
    CommandItems::Item CommandItems::*item;
    ResString caption;
    /// Number of the picture for the item and the button, for a popup of devices for their items; 16 by 16 pixels.
    int face = kNoFace;
    /// Whether a separator precedes the item.
    bool group = false;
    CommandKind kind = CommandKind::Button;
    /// The popup that the item is in.
    CommandItems::Item CommandItems::*menu = &CommandItems::gMainMenu;
    /// The popup's items for devices, if it has any.
    Array<CommandItems::Item> CommandItems::*devices = nullptr;
    FirstState first = FirstState::AsAdded;
    Needs needs = Needs::Nothing;
    /// The order in which items are enabled and disabled: lower turns first, equal turns in the order of the rows.
    int turn = kLastTurn;
    ToolButton tool{};
};

/// In the order in which menu items and buttons are added.
inline constexpr CommandRow kCommands[] = {
    {.item = &CommandItems::gCompileItem,
     .caption = {102, "Compile and &Validate"},
     .face = 109,
     .needs = Needs::Project,
     .turn = 1,
     .tool = {&CommandItems::gToolCompile, Toolbar::Main, {202, "Compile and Validate"}}},
    {.item = &CommandItems::gDeployPopup,
     .caption = {108, "&Deploy To Device"},
     .face = 110,
     .kind = CommandKind::Popup,
     .devices = &CommandItems::gDeployItems,
     .needs = Needs::Project,
     .turn = 5,
     .tool = {&CommandItems::gToolDeploy, Toolbar::Main, {203, "Deploy to Device"}}},
    {.item = &CommandItems::gDeployAllItem,
     .caption = {104, "&To My Devices"},
     .group = true,
     .menu = &CommandItems::gDeployPopup,
     .needs = Needs::Project,
     .turn = 4},
    {.item = &CommandItems::gPackagePopup,
     .caption = {103, "Save &Project Package..."},
     .kind = CommandKind::Popup,
     .devices = &CommandItems::gPackageItems,
     .needs = Needs::Project,
     .turn = 3},
    {.item = &CommandItems::gPackageAllItem,
     .caption = {104, "&To My Devices"},
     .group = true,
     .menu = &CommandItems::gPackagePopup,
     .needs = Needs::Project,
     .turn = 2},
    {.item = &CommandItems::gSettingsItem,
     .caption = {109, "Fernwick &Settings..."},
     .face = 108,
     .first = FirstState::Enabled,
     .needs = Needs::Project,
     .turn = 6,
     .tool = {&CommandItems::gToolSettings, Toolbar::Main, {204, "Fernwick Settings"}}},
    {.item = &CommandItems::gDownloadItem,
     .caption = {117, "Download Tamarik..."},
     .group = true,
     .first = FirstState::DisabledAndHidden,
     .needs = Needs::Never,
     .turn = 9},
    {.item = &CommandItems::gInstallPopup,
     .caption = {110, "Install &Tamarik To Device..."},
     .group = true,
     .kind = CommandKind::Popup,
     .devices = &CommandItems::gInstallItems,
     .first = FirstState::Shown,
     .needs = Needs::FirstProject,
     .turn = 8},
    {.item = &CommandItems::gInstallAllItem,
     .caption = {104, "&To My Devices"},
     .group = true,
     .menu = &CommandItems::gInstallPopup,
     .needs = Needs::FirstProject,
     .turn = 7},
    {.item = &CommandItems::gOpenProjectItem,
     .caption = {116, "&Open Fernwick Project..."},
     .face = 122,
     .group = true,
     .tool = {&CommandItems::gToolOpenProject, Toolbar::Main, {207, "Open Fernwick Project"}, true}},
    {.item = &CommandItems::gZoomItem,
     .caption = {115, "&Zoom Window"},
     .face = 112,
     .group = true,
     .needs = Needs::Project,
     .turn = 10,
     .tool = {&CommandItems::gToolZoom, Toolbar::Main, {206, "Zoom Level"}, true}},
    {.item = &CommandItems::gMessagesItem,
     .caption = {118, "Fernwick &Messages Window"},
     .needs = Needs::Project,
     .turn = 11},

    {.item = &CommandItems::gUtilitiesPopup,
     .caption = kUtilitiesString,
     .group = true,
     .kind = CommandKind::Popup,
     .needs = Needs::FirstProject,
     .turn = 13},
    {.item = &CommandItems::gDatabaseConverterItem,
     .caption = {251, "&Database Converter"},
     .face = 113,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 14,
     .tool = {&CommandItems::gToolDatabaseConverter, Toolbar::Support}},
    {.item = &CommandItems::gDatabaseViewerItem,
     .caption = {259, "&PDB Database Viewer"},
     .face = 121,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 15,
     .tool = {&CommandItems::gToolDatabaseViewer, Toolbar::Support}},
    {.item = &CommandItems::gFontConverterItem,
     .caption = {252, "&Font Converter"},
     .face = 114,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 16,
     .tool = {&CommandItems::gToolFontConverter, Toolbar::Support}},
    {.item = &CommandItems::gFontViewerItem,
     .caption = {253, "F&ont Viewer"},
     .face = 115,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 17,
     .tool = {&CommandItems::gToolFontViewer, Toolbar::Support}},
    {.item = &CommandItems::gGraphicsConverterItem,
     .caption = {254, "&Graphic Converter"},
     .face = 116,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 18,
     .tool = {&CommandItems::gToolGraphicsConverter, Toolbar::Support}},
    {.item = &CommandItems::gGraphicsViewerItem,
     .caption = {255, "G&raphic Viewer"},
     .face = 117,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 19,
     .tool = {&CommandItems::gToolGraphicsViewer, Toolbar::Support}},
    {.item = &CommandItems::gMovieConverterItem,
     .caption = {256, "&Movie Converter"},
     .face = 118,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 12,
     .tool = {&CommandItems::gToolMovieConverter, Toolbar::Support}},
    {.item = &CommandItems::gMovieViewerItem,
     .caption = {257, "Mo&vie Viewer"},
     .face = 119,
     .menu = &CommandItems::gUtilitiesPopup,
     .needs = Needs::FirstProject,
     .turn = 20,
     .tool = {&CommandItems::gToolMovieViewer, Toolbar::Support}},
    {.item = &CommandItems::gWeirgateItem,
     .caption = {258, "&Weirgate Configuration"},
     .face = 120,
     .group = true,
     .menu = &CommandItems::gUtilitiesPopup,
     .tool = {&CommandItems::gToolWGConfig, Toolbar::Support}},

    {.item = &CommandItems::gGuideItem,
     .caption = {111, "Fernwick User's &Guide..."},
     .face = 111,
     .group = true,
     .tool = {&CommandItems::gToolGuide, Toolbar::Main, {205, "Fernwick User's Guide"}, true}},
    {.item = &CommandItems::gSamplesPopup,
     .caption = {260, "Samples and Tutorials"},
     .kind = CommandKind::SamplesPopup},
    {.item = &CommandItems::gWebItem, .caption = {112, "Quinloft on the &Web..."}},
    {.item = &CommandItems::gAboutItem, .caption = {114, "&About Fernwick..."}, .group = true},
};

} // namespace fernwick
