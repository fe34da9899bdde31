#include "Apps/workbench/window/command_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/window/commands.h"
#include <array>

namespace workbench {

namespace {

struct CommandIcon {
    int id;
    const char* icon;
};
constexpr std::array kCommandIcons{
    CommandIcon{host::kNewProjectId, "New"},
    CommandIcon{host::kOpenProjectId, "Open"},
    CommandIcon{host::kSaveProjectId, "Save"},
    CommandIcon{host::kRemoveProjectId, "Remove"},
    CommandIcon{kSaveFileId, "Save"},
    CommandIcon{kSaveFileAsId, "SaveAs"},
    CommandIcon{kSaveProjectAsId, "SaveAs"},
    CommandIcon{kExitId, "Exit"},
    CommandIcon{kUndoId, "Undo"},
    CommandIcon{kRedoId, "Redo"},
    CommandIcon{kCutId, "Cut"},
    CommandIcon{kCopyId, "Copy"},
    CommandIcon{kPasteId, "Paste"},
    CommandIcon{kCutLineId, "CutLine"},
    CommandIcon{kListNamesId, "ListNames"},
    CommandIcon{kCompleteWordId, "CompleteWord"},
    CommandIcon{kQuickInfoId, "QuickInfo"},
    CommandIcon{kParameterInfoId, "ParameterInfo"},
    CommandIcon{kSelectAllId, "SelectAll"},
    CommandIcon{kDeleteId, "Delete"},
    CommandIcon{kDuplicateId, "Duplicate"},
    CommandIcon{kAlignLeftsId, "AlignLefts"},
    CommandIcon{kAlignCentresId, "AlignCentres"},
    CommandIcon{kAlignRightsId, "AlignRights"},
    CommandIcon{kAlignTopsId, "AlignTops"},
    CommandIcon{kAlignMiddlesId, "AlignMiddles"},
    CommandIcon{kAlignBottomsId, "AlignBottoms"},
    CommandIcon{kAlignToGridId, "AlignToGrid"},
    CommandIcon{kSameWidthId, "SameWidth"},
    CommandIcon{kSameHeightId, "SameHeight"},
    CommandIcon{kSameSizeId, "SameSize"},
    CommandIcon{kSizeToGridId, "SizeToGrid"},
    CommandIcon{kEqualSpaceAcrossId, "EqualSpaceAcross"},
    CommandIcon{kMoreSpaceAcrossId, "MoreSpaceAcross"},
    CommandIcon{kLessSpaceAcrossId, "LessSpaceAcross"},
    CommandIcon{kNoSpaceAcrossId, "NoSpaceAcross"},
    CommandIcon{kEqualSpaceDownId, "EqualSpaceDown"},
    CommandIcon{kMoreSpaceDownId, "MoreSpaceDown"},
    CommandIcon{kLessSpaceDownId, "LessSpaceDown"},
    CommandIcon{kNoSpaceDownId, "NoSpaceDown"},
    CommandIcon{kCentreAcrossId, "CentreAcross"},
    CommandIcon{kCentreDownId, "CentreDown"},
    CommandIcon{kToFrontId, "ToFront"},
    CommandIcon{kToBackId, "ToBack"},
    CommandIcon{kTabOrderId, "TabOrder"},
    CommandIcon{kLockControlsId, "Lock"},
    CommandIcon{kFindId, "Find"},
    CommandIcon{kFindNextId, "FindNext"},
    CommandIcon{kFindPreviousId, "FindPrevious"},
    CommandIcon{kReplaceId, "Replace"},
    CommandIcon{kFindInProjectsId, "FindAll"},
    CommandIcon{kResultsId, "FindAll"},
    CommandIcon{kReferencesId, "References"},
    CommandIcon{kComponentsId, "Components"},
    CommandIcon{kMigrationId, "Migration"},
    CommandIcon{kIndentId, "Indent"},
    CommandIcon{kOutdentId, "Outdent"},
    CommandIcon{kCommentId, "Comment"},
    CommandIcon{kUncommentId, "Uncomment"},
    CommandIcon{kNextProcedureId, "Down"},
    CommandIcon{kPreviousProcedureId, "Up"},
    CommandIcon{kGoToLineId, "GoTo"},
    CommandIcon{kToggleBookmarkId, "Bookmark"},
    CommandIcon{kNextBookmarkId, "NextBookmark"},
    CommandIcon{kPreviousBookmarkId, "PreviousBookmark"},
    CommandIcon{kClearBookmarksId, "ClearBookmarks"},
    CommandIcon{kToggleBreakpointId, "Breakpoint"},
    CommandIcon{kClearBreakpointsId, "ClearBreakpoints"},
    CommandIcon{kToggleFoldId, "Fold"},
    CommandIcon{kFoldProceduresId, "FoldProcedures"},
    CommandIcon{kUnfoldAllId, "UnfoldAll"},
    CommandIcon{kSplitId, "Split"},
    CommandIcon{kOtherPaneId, "OtherPane"},
    CommandIcon{kViewCodeId, "Code"},
    CommandIcon{kViewObjectId, "Form"},
    CommandIcon{kDefinitionId, "Definition"},
    CommandIcon{kLastPositionId, "Back"},
    CommandIcon{kZoomInId, "ZoomIn"},
    CommandIcon{kZoomOutId, "ZoomOut"},
    CommandIcon{kResetZoomId, "ZoomReset"},
    CommandIcon{kThemeId, "Theme"},
    CommandIcon{kExplorerId, "Explorer"},
    CommandIcon{kPropertiesId, "Properties"},
    CommandIcon{kToolboxId, "Toolbox"},
    CommandIcon{kMessagesId, "Messages"},
    CommandIcon{kZoomWindowId, "ZoomWindow"},
    CommandIcon{kAddFormId, "Form"},
    CommandIcon{kAddModuleId, "Module"},
    CommandIcon{kAddClassId, "Class"},
    CommandIcon{kAddFileId, "AddFile"},
    CommandIcon{kRemoveComponentId, "Remove"},
    CommandIcon{kStartUpProjectId, "StartUp"},
    CommandIcon{kConvertProjectId, "Convert"},
    CommandIcon{kProjectPropertiesId, "Properties"},
    CommandIcon{kStartId, "Start"},
    CommandIcon{kMenuEditorId, "Menu"},
    CommandIcon{kOptionsId, "Options"},
    CommandIcon{kNextWindowId, "NextWindow"},
    CommandIcon{kPreviousWindowId, "PreviousWindow"},
    CommandIcon{kCloseWindowId, "Close"},
    CommandIcon{kCloseAllWindowsId, "CloseAll"},
    CommandIcon{kHelpId, "Help"},
    CommandIcon{kAboutId, "About"},
};

} // namespace

QIcon iconOfCommand(int id) {
    for (const auto& entry : kCommandIcons)
        if (entry.id == id) return drawnIcon(entry.icon);
    return {};
}

} // namespace workbench
