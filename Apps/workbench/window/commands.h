#pragma once
// The window's commands. commands.cpp has one row for each: its text, key, action, and where it is enabled.
#include "Host/model/bars/control_ids.h"
#include "Host/model/host.h"
#include <QKeyCombination>
#include <QString>
#include <functional>
#include <span>

namespace workbench {

class MainWindow;

/// Ids of the commands that the window adds to the host's menus. The keys that users choose are stored by these numbers.
enum CommandId : int {
    kGroup = 0, ///< no command: the next one begins a group
    kRecentMenuId = 40001,
    kExitId,
    kUndoId,
    kRedoId,
    kCutId,
    kCopyId,
    kPasteId,
    kSelectAllId,
    kFindId,
    kFindNextId,
    kExplorerId,
    kThemeId,
    kRunMenuId,
    kAddFormId,
    kAddModuleId,
    kAddClassId,
    kAddFileId,
    kSaveFileId,
    kSaveFileAsId,
    kSaveProjectAsId,
    kViewCodeId,
    kViewObjectId,
    kMessagesId,
    kZoomWindowId,
    kPropertiesId,
    kToolboxId,
    kDockId,
    kToolBarsMenuId,
    kToolBarId,
    kRemoveComponentId,
    kStartUpProjectId,
    kProjectPropertiesId,
    kStartId,
    kAddInId,
    kWindowMenuId,
    kNextWindowId,
    kPreviousWindowId,
    kCloseWindowId,
    kCloseAllWindowsId,
    kWindowId,
    kHelpId,
    kAboutId,
    kCutLineId = 40201,
    kFindPreviousId,
    kReplaceId,
    kIndentId,
    kOutdentId,
    kCommentId,
    kUncommentId,
    kNextProcedureId,
    kPreviousProcedureId,
    kGoToLineId,
    kDefinitionId,
    kLastPositionId,
    kZoomInId,
    kZoomOutId,
    kResetZoomId,
    kToolsMenuId,
    kOptionsId,
    kConvertProjectId,
    kMenuEditorId,
    kBookmarksMenuId,
    kToggleBookmarkId,
    kNextBookmarkId,
    kPreviousBookmarkId,
    kClearBookmarksId,
    kFoldingMenuId,
    kToggleFoldId,
    kFoldProceduresId,
    kUnfoldAllId,
    kDebugMenuId,
    kToggleBreakpointId,
    kClearBreakpointsId,
    kReferencesId,
    kComponentsId,
    kFindInProjectsId,
    kResultsId,
    kSplitId,
    kOtherPaneId,
    kMigrationId,
    kFormatMenuId = 40301,
    kDeleteId,
    kDuplicateId,
    kAlignMenuId,
    kAlignLeftsId,
    kAlignCentresId,
    kAlignRightsId,
    kAlignTopsId,
    kAlignMiddlesId,
    kAlignBottomsId,
    kAlignToGridId,
    kSameSizeMenuId,
    kSameWidthId,
    kSameHeightId,
    kSameSizeId,
    kSizeToGridId,
    kSpaceAcrossMenuId,
    kEqualSpaceAcrossId,
    kMoreSpaceAcrossId,
    kLessSpaceAcrossId,
    kNoSpaceAcrossId,
    kSpaceDownMenuId,
    kEqualSpaceDownId,
    kMoreSpaceDownId,
    kLessSpaceDownId,
    kNoSpaceDownId,
    kCentreMenuId,
    kCentreAcrossId,
    kCentreDownId,
    kOrderMenuId,
    kToFrontId,
    kToBackId,
    kLockControlsId,
    kTabOrderId,
    kCodeHelpMenuId = 40401,
    kListNamesId,
    kCompleteWordId,
    kQuickInfoId,
    kParameterInfoId,
    kFindReferencesId,
    kRenameId,
};

/// The program's actions that commands call.
struct ProgramActions {
    std::function<void()> newProject;
    std::function<void()> saveProject;
    std::function<void()> removeProject;
    /// Compiles the active project and sends it to its device.
    std::function<void()> start;
    /// Converts the active project to another device.
    std::function<void()> convert;
    std::function<void()> options;
    /// For the name at the cursor.
    std::function<void()> findReferences;
    std::function<void()> rename;
    std::function<void()> help;
    std::function<void()> about;
};

/// What the commands act on. Host and window must outlive the host's bars.
struct CommandTargets {
    host::Host& host;
    MainWindow& window;
    ProgramActions program;
};

/// Where a command is enabled.
enum class Enabled {
    Always,
    InCode,     ///< while a code window is in front
    InEditor,   ///< while the text of a code window has the focus
    InDesigner, ///< while a form is in front
    InText,     ///< while any text that can be edited has the focus
    CanUndo,    ///< the same, and while a form in front has the focus and a step to undo
    CanRedo,
    CanCopy,   ///< in a text, and with controls selected on a form that has the focus
    CanPaste,  ///< in a text, and on a form if controls were copied
    CanSelect, ///< in a text, and on a form
    OnForm,    ///< on a form
    OnControl, ///< with a control selected on it
    OnOne,     ///< the same, unless it is locked
    OnSeveral, ///< with two controls or more
    OnThree,   ///< with three controls or more
};

struct Command {
    int id = kGroup;
    /// Null for a command of the host that keeps its text.
    const char* text = nullptr;
    QKeyCombination key{};
    Enabled enabled = Enabled::Always;
    /// Null for a submenu, or for a command of the host that keeps its action.
    void (*act)(const CommandTargets&) = nullptr;
    /// A second key, which menus do not show.
    QKeyCombination otherKey{};
    /// Whether a switch is on; null for a command that is not a switch.
    bool (*isOn)(const CommandTargets&) = nullptr;
    /// The step that is added to the text; null for a command without steps.
    std::string (*step)(const CommandTargets&) = nullptr;
};

/// The commands of one menu, in order.
struct CommandMenu {
    int id;
    std::span<const Command> commands;
};
std::span<const CommandMenu> commandMenus();

/// The command that shows a dock, in the View menu.
struct DockCommand {
    const char* dock; ///< its object name
    int id = kDockId;
    const char* text = nullptr; ///< null: the dock's title
    QKeyCombination key{};
};
std::span<const DockCommand> dockCommands();
/// A dock without a row in the table gets a command without a key.
DockCommand dockCommandOf(const QString& dock);

} // namespace workbench
