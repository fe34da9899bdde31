#pragma once
// What the window adds to the host's own commands: pictures and keys.
#include <QIcon>
#include <QKeySequence>

namespace workbench {

/// Ids of the commands that the window puts into the host's menus.
enum WindowCommandId : int {
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
};

/// Empty for a command without one.
QIcon iconOf(int id);
QKeySequence shortcutOf(int id);

} // namespace workbench
