#include "Apps/workbench/window/commands.h"
#include "Apps/workbench/assist/code_assist.h"
#include "Apps/workbench/designer/control_clipboard.h"
#include "Apps/workbench/designer/form_canvas.h"
#include "Apps/workbench/designer/form_commands.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/fold_levels.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/migration/migration_command.h"
#include "Apps/workbench/project/component_commands.h"
#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/references/libraries_dialog.h"
#include "Apps/workbench/window/main_window.h"

namespace workbench {

namespace {

constexpr auto kAlways = Enabled::Always, kInCode = Enabled::InCode, kInEditor = Enabled::InEditor,
               kCanUndo = Enabled::CanUndo, kCanRedo = Enabled::CanRedo, kCanCopy = Enabled::CanCopy,
               kCanPaste = Enabled::CanPaste, kCanSelect = Enabled::CanSelect;
constexpr QKeyCombination kNoKey{};

/// The editor in front, which commands that are enabled in an editor have.
QsciScintilla& textOf(const CommandTargets& on) { return on.window.code().current()->scintilla(); }

CodeCommands& actions(const CommandTargets& on) { return on.window.codeCommands(); }

CodePanes& panes(const CommandTargets& on) { return on.window.code().current()->panes(); }

MarkCommands& marks(const CommandTargets& on) { return on.window.markCommands(); }

/// The component that the user works on.
ComponentRef inHand(const CommandTargets& on) { return on.window.design().inHand(); }

EditFocus& edited(const CommandTargets& on) { return on.window.editFocus(); }

/// The form in front, which commands that are enabled on a form have.
FormView& form(const CommandTargets& on) { return *on.window.design().forms().current(); }

template <Arrangement how>
void arrangeAs(const CommandTargets& on) {
    arrange(form(on), how);
}

void saveProjectAs(const CommandTargets& on) {
    if (const auto active = on.host.ActiveVBProject()) saveUnderNewName(active, &on.window);
}

void editProjectProperties(const CommandTargets& on) {
    if (const auto active = on.host.ActiveVBProject()) editProperties(active, &on.window);
}

template <LibraryKind kind>
void editLibrariesOf(const CommandTargets& on) {
    // errors go to the caller, which shows them
    const Run here = [](const auto& act) { act(); };
    if (const auto active = on.host.ActiveVBProject()) editLibraries(active, kind, &on.window, here);
}

void showMigration(const CommandTargets& on) {
    if (const auto active = on.host.ActiveVBProject())
        openMigrationReport(active, on.window.code(), on.window.design(), &on.window);
}

void switchTheme(const CommandTargets& on) {
    on.window.setTheme(currentTheme() == Theme::Light ? Theme::Dark : Theme::Light);
}

const Command kFileCommands[] = {
    {host::kNewProjectId, "&New Project...", Qt::CTRL | Qt::Key_N, kAlways, [](auto& on) { on.program.newProject(); }},
    {host::kOpenProjectId, nullptr, Qt::CTRL | Qt::Key_O, kAlways},
    {host::kSaveProjectId, nullptr, kNoKey, kAlways, [](auto& on) { on.program.saveProject(); }},
    {host::kRemoveProjectId, nullptr, kNoKey, kAlways, [](auto& on) { on.program.removeProject(); }},
    {kGroup},
    {kSaveFileId, "&Save File", Qt::CTRL | Qt::Key_S, kAlways,
     [](auto& on) { saveFile(on.host, inHand(on), &on.window); }},
    {kSaveFileAsId, "Save File &As...", kNoKey, kAlways, [](auto& on) { saveFileAs(inHand(on), &on.window); }},
    {kSaveProjectAsId, "Save Pro&ject As...", kNoKey, kAlways, saveProjectAs},
    {kGroup},
    {kRecentMenuId, "Recent &Projects"},
    {kGroup},
    {kExitId, "E&xit", Qt::CTRL | Qt::Key_Q, kAlways, [](auto& on) { on.window.close(); }},
};

const Command kEditCommands[] = {
    {kUndoId,
     "&Undo",
     Qt::CTRL | Qt::Key_Z,
     kCanUndo,
     [](auto& on) { edited(on).undo(); },
     {},
     nullptr,
     [](auto& on) { return edited(on).stepToUndo(); }},
    {kRedoId,
     "&Redo",
     Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
     kCanRedo,
     [](auto& on) { edited(on).redo(); },
     {},
     nullptr,
     [](auto& on) { return edited(on).stepToRedo(); }},
    {kGroup},
    {kCutId, "Cu&t", Qt::CTRL | Qt::Key_X, kCanCopy, [](auto& on) { edited(on).cut(); }},
    {kCopyId, "&Copy", Qt::CTRL | Qt::Key_C, kCanCopy, [](auto& on) { edited(on).copy(); }},
    {kPasteId, "&Paste", Qt::CTRL | Qt::Key_V, kCanPaste, [](auto& on) { edited(on).paste(); }},
    // without a key, which text fields use
    {kDeleteId, "&Delete", kNoKey, kCanCopy, [](auto& on) { edited(on).remove(); }},
    {kCutLineId, "Cut &Line", Qt::CTRL | Qt::Key_Y, kInEditor, [](auto& on) { cutLine(textOf(on)); }},
    {kSelectAllId, "Select &All", Qt::CTRL | Qt::Key_A, kCanSelect, [](auto& on) { edited(on).selectAll(); }},
    {kGroup},
    {kFindId, "&Find...", Qt::CTRL | Qt::Key_F, kInCode, [](auto& on) { on.window.findBar().open(false); }},
    {kFindNextId, "Find &Next", Qt::Key_F3, kInCode, [](auto& on) { on.window.findBar().findAgain(false); }},
    {kFindPreviousId, "Find Pre&vious", Qt::SHIFT | Qt::Key_F3, kInCode,
     [](auto& on) { on.window.findBar().findAgain(true); }},
    {kFindInProjectsId, "Find in All Pro&jects...", Qt::CTRL | Qt::SHIFT | Qt::Key_F, kAlways,
     [](auto& on) { on.window.findBar().openForAllProjects(); }},
    {kReplaceId, "R&eplace...", Qt::CTRL | Qt::Key_H, kInCode, [](auto& on) { on.window.findBar().open(true); }},
    {kGroup},
    {kIndentId, "&Indent", kNoKey, kInEditor, [](auto& on) { indentLines(textOf(on)); }},
    {kOutdentId, "&Outdent", kNoKey, kInEditor, [](auto& on) { outdentLines(textOf(on)); }},
    {kCommentId, "Co&mment Block", kNoKey, kInEditor, [](auto& on) { commentLines(textOf(on)); }},
    {kUncommentId, "Uncomment Bloc&k", kNoKey, kInEditor, [](auto& on) { uncommentLines(textOf(on)); }},
    {kGroup},
    {kNextProcedureId, "Ne&xt Procedure", Qt::CTRL | Qt::Key_Down, kInEditor,
     [](auto& on) { actions(on).goToProcedure(false); }},
    {kPreviousProcedureId, "Previou&s Procedure", Qt::CTRL | Qt::Key_Up, kInEditor,
     [](auto& on) { actions(on).goToProcedure(true); }},
    {kGoToLineId, "&Go to Line...", Qt::CTRL | Qt::Key_G, kInEditor,
     [](auto& on) { actions(on).askForLine(&on.window); }},
    {kBookmarksMenuId, "&Bookmarks"},
    {kCodeHelpMenuId, "Code &Help"},
};

const Command kBookmarkCommands[] = {
    {kToggleBookmarkId, "&Toggle Bookmark", Qt::CTRL | Qt::SHIFT | Qt::Key_B, kInCode,
     [](auto& on) { marks(on).toggleBookmark(); }},
    {kNextBookmarkId, "&Next Bookmark", Qt::CTRL | Qt::SHIFT | Qt::Key_N, kInCode,
     [](auto& on) { marks(on).goToBookmark(false); }},
    {kPreviousBookmarkId, "&Previous Bookmark", Qt::CTRL | Qt::SHIFT | Qt::Key_P, kInCode,
     [](auto& on) { marks(on).goToBookmark(true); }},
    {kClearBookmarksId, "&Clear All Bookmarks", kNoKey, kInCode, [](auto& on) { marks(on).clearBookmarks(); }},
};

const Command kCodeHelpCommands[] = {
    {kListNamesId, "&List Names", Qt::CTRL | Qt::SHIFT | Qt::Key_J, kInEditor,
     [](auto& on) { assistOf(textOf(on))->names().request(false); }},
    {kCompleteWordId, "&Complete Word", Qt::CTRL | Qt::Key_Space, kInEditor,
     [](auto& on) { assistOf(textOf(on))->names().request(true); }},
    {kQuickInfoId, "&Quick Info", Qt::CTRL | Qt::Key_I, kInEditor, [](auto& on) { assistOf(textOf(on))->showInfo(); }},
    {kParameterInfoId, "&Parameter Info", Qt::CTRL | Qt::SHIFT | Qt::Key_I, kInEditor,
     [](auto& on) { assistOf(textOf(on))->showParameters(); }},
    {kGroup},
    {kFindReferencesId, "Find All &References", Qt::SHIFT | Qt::Key_F12, kInEditor,
     [](auto& on) { on.program.findReferences(); }},
    {kRenameId, "Ren&ame...", Qt::Key_F2, kInEditor, [](auto& on) { on.program.rename(); }},
};

const Command kFoldingCommands[] = {
    {kToggleFoldId, "&Fold or Unfold", Qt::CTRL | Qt::SHIFT | Qt::Key_O, kInEditor,
     [](auto& on) { toggleFold(textOf(on)); }},
    {kFoldProceduresId, "Fold All &Procedures", kNoKey, kInEditor, [](auto& on) { foldProcedures(textOf(on)); }},
    {kUnfoldAllId, "&Unfold All", kNoKey, kInEditor, [](auto& on) { unfoldAll(textOf(on)); }},
};

const Command kDebugCommands[] = {
    {kToggleBreakpointId, "&Toggle Breakpoint", Qt::Key_F9, kInCode, [](auto& on) { marks(on).toggleBreakpoint(); }},
    {kClearBreakpointsId, "&Clear All Breakpoints", Qt::CTRL | Qt::SHIFT | Qt::Key_F9, kInCode,
     [](auto& on) { marks(on).clearBreakpoints(); }},
};

// the commands that show docks are added before the toolbars
const Command kViewCommands[] = {
    {kViewCodeId, "&Code", Qt::Key_F7, kAlways, [](auto& on) { on.window.design().showCode(); }},
    {kViewObjectId, "O&bject", Qt::SHIFT | Qt::Key_F7, kAlways, [](auto& on) { on.window.design().showObject(); }},
    {kDefinitionId, "&Definition", Qt::SHIFT | Qt::Key_F2, kInEditor, [](auto& on) { actions(on).showDefinition(); }},
    {kLastPositionId, "Last Positio&n", Qt::CTRL | Qt::SHIFT | Qt::Key_F2, kInEditor,
     [](auto& on) { actions(on).showLastPosition(); }},
    {kGroup},
    {kToolBarsMenuId, "&Toolbars"},
    {kFoldingMenuId, "&Folding"},
    {kGroup},
    {kZoomInId, "Zoom &In", Qt::CTRL | Qt::Key_Plus, kInCode, [](auto& on) { on.window.code().zoomBy(+1); },
     Qt::CTRL | Qt::Key_Equal},
    {kZoomOutId, "Zoom O&ut", Qt::CTRL | Qt::Key_Minus, kInCode, [](auto& on) { on.window.code().zoomBy(-1); }},
    {kResetZoomId, "&Reset Zoom", Qt::CTRL | Qt::Key_0, kInCode, [](auto& on) { on.window.code().resetZoom(); }},
    {kGroup},
    {kThemeId, "Dar&k Theme", kNoKey, kAlways, switchTheme},
};

const Command kProjectCommands[] = {
    {kAddFormId, "Add &Form", kNoKey, kAlways, [](auto& on) { addComponent(on.host, vbide::vbext_ct_VBForm); }},
    {kAddModuleId, "Add &Module", kNoKey, kAlways, [](auto& on) { addComponent(on.host, vbide::vbext_ct_StdModule); }},
    {kAddClassId, "Add &Class Module", kNoKey, kAlways,
     [](auto& on) { addComponent(on.host, vbide::vbext_ct_ClassModule); }},
    {kGroup},
    {kAddFileId, "&Add File...", Qt::CTRL | Qt::Key_D, kAlways, [](auto& on) { addFile(on.host, &on.window); }},
    {kRemoveComponentId, "&Remove File", kNoKey, kAlways, [](auto& on) { removeComponent(inHand(on), &on.window); }},
    {kGroup},
    {kReferencesId, "Refere&nces...", kNoKey, kAlways, editLibrariesOf<LibraryKind::References>},
    {kComponentsId, "C&omponents...", Qt::CTRL | Qt::Key_T, kAlways, editLibrariesOf<LibraryKind::Components>},
    {kGroup},
    {kStartUpProjectId, "Set as Start &Up", kNoKey, kAlways, [](auto& on) { setAsStartUp(inHand(on)); }},
    {kConvertProjectId, "Convert to Another &Device...", kNoKey, kAlways, [](auto& on) { on.program.convert(); }},
    {kMigrationId, "Mi&gration Report...", kNoKey, kAlways, showMigration},
    {kProjectPropertiesId, "&Properties...", kNoKey, kAlways, editProjectProperties},
};

const Command kRunCommands[] = {
    {kStartId, "&Start on Device", Qt::Key_F5, kAlways, [](auto& on) { on.program.start(); }},
};

constexpr auto kOnForm = Enabled::OnForm, kOnControl = Enabled::OnControl, kOnOne = Enabled::OnOne,
               kOnSeveral = Enabled::OnSeveral, kOnThree = Enabled::OnThree;
using How = Arrangement;

const Command kFormatCommands[] = {
    {kAlignMenuId, "&Align"},
    {kSameSizeMenuId, "&Make Same Size"},
    {kSizeToGridId, "Size to Gri&d", kNoKey, kOnOne, arrangeAs<How::SizeToGrid>},
    {kGroup},
    {kSpaceAcrossMenuId, "&Horizontal Spacing"},
    {kSpaceDownMenuId, "&Vertical Spacing"},
    {kGroup},
    {kCentreMenuId, "&Center in Form"},
    {kGroup},
    {kOrderMenuId, "&Order"},
    {kTabOrderId,
     "&Tab Order",
     kNoKey,
     kOnForm,
     [](auto& on) { form(on).canvas().switchTabOrder(); },
     {},
     [](auto& on) { return form(on).canvas().showsTabOrder(); }},
    {kGroup},
    {kDuplicateId, "D&uplicate", kNoKey, kOnControl, [](auto& on) { duplicateControls(form(on)); }},
    {kLockControlsId,
     "&Lock Controls",
     kNoKey,
     kOnForm,
     [](auto& on) { switchLock(form(on)); },
     {},
     [](auto& on) { return isLocked(form(on)); }},
};

const Command kAlignCommands[] = {
    {kAlignLeftsId, "&Lefts", kNoKey, kOnSeveral, arrangeAs<How::AlignLefts>},
    {kAlignCentresId, "&Centers", kNoKey, kOnSeveral, arrangeAs<How::AlignCentres>},
    {kAlignRightsId, "&Rights", kNoKey, kOnSeveral, arrangeAs<How::AlignRights>},
    {kGroup},
    {kAlignTopsId, "&Tops", kNoKey, kOnSeveral, arrangeAs<How::AlignTops>},
    {kAlignMiddlesId, "&Middles", kNoKey, kOnSeveral, arrangeAs<How::AlignMiddles>},
    {kAlignBottomsId, "&Bottoms", kNoKey, kOnSeveral, arrangeAs<How::AlignBottoms>},
    {kGroup},
    {kAlignToGridId, "to &Grid", kNoKey, kOnOne, arrangeAs<How::AlignToGrid>},
};

const Command kSameSizeCommands[] = {
    {kSameWidthId, "&Width", kNoKey, kOnSeveral, arrangeAs<How::SameWidth>},
    {kSameHeightId, "&Height", kNoKey, kOnSeveral, arrangeAs<How::SameHeight>},
    {kSameSizeId, "&Both", kNoKey, kOnSeveral, arrangeAs<How::SameSize>},
};

const Command kSpaceAcrossCommands[] = {
    {kEqualSpaceAcrossId, "Make &Equal", kNoKey, kOnThree, arrangeAs<How::EqualSpaceAcross>},
    {kMoreSpaceAcrossId, "&Increase", kNoKey, kOnSeveral, arrangeAs<How::MoreSpaceAcross>},
    {kLessSpaceAcrossId, "&Decrease", kNoKey, kOnSeveral, arrangeAs<How::LessSpaceAcross>},
    {kNoSpaceAcrossId, "&Remove", kNoKey, kOnSeveral, arrangeAs<How::NoSpaceAcross>},
};

const Command kSpaceDownCommands[] = {
    {kEqualSpaceDownId, "Make &Equal", kNoKey, kOnThree, arrangeAs<How::EqualSpaceDown>},
    {kMoreSpaceDownId, "&Increase", kNoKey, kOnSeveral, arrangeAs<How::MoreSpaceDown>},
    {kLessSpaceDownId, "&Decrease", kNoKey, kOnSeveral, arrangeAs<How::LessSpaceDown>},
    {kNoSpaceDownId, "&Remove", kNoKey, kOnSeveral, arrangeAs<How::NoSpaceDown>},
};

const Command kCentreCommands[] = {
    {kCentreAcrossId, "&Horizontally", kNoKey, kOnOne, arrangeAs<How::CentreAcross>},
    {kCentreDownId, "&Vertically", kNoKey, kOnOne, arrangeAs<How::CentreDown>},
};

const Command kOrderCommands[] = {
    {kToFrontId, "&Bring to Front", Qt::CTRL | Qt::Key_J, kOnControl, [](auto& on) { bringToFront(form(on)); }},
    {kToBackId, "&Send to Back", Qt::CTRL | Qt::Key_K, kOnControl, [](auto& on) { sendToBack(form(on)); }},
};

const Command kToolsCommands[] = {
    {kMenuEditorId, "&Menu Editor...", Qt::CTRL | Qt::Key_E, Enabled::InDesigner,
     [](auto& on) { on.window.design().editMenus(); }},
    {kGroup},
    {kOptionsId, "&Options...", kNoKey, kAlways, [](auto& on) { on.program.options(); }},
};

const Command kWindowCommands[] = {
    {kSplitId,
     "&Split",
     Qt::CTRL | Qt::SHIFT | Qt::Key_D,
     kInCode,
     [](auto& on) { panes(on).setSplit(!panes(on).isSplit()); },
     {},
     [](auto& on) { return panes(on).isSplit(); }},
    {kOtherPaneId, "&Other Pane", Qt::CTRL | Qt::SHIFT | Qt::Key_E, kInCode,
     [](auto& on) { panes(on).showOtherPane(); }},
    {kGroup},
    {kNextWindowId, "&Next Window", Qt::CTRL | Qt::Key_F6, kAlways, [](auto& on) { on.window.code().step(1); }},
    {kPreviousWindowId, "&Previous Window", Qt::CTRL | Qt::SHIFT | Qt::Key_F6, kAlways,
     [](auto& on) { on.window.code().step(-1); }},
    {kGroup},
    {kCloseWindowId, "&Close", Qt::CTRL | Qt::Key_F4, kAlways, [](auto& on) { on.window.code().closeCurrent(); }},
    {kCloseAllWindowsId, "Close &All", kNoKey, kAlways, [](auto& on) { on.window.code().closeAll(); }},
};

const Command kHelpCommands[] = {
    {kHelpId, "&Contents", Qt::Key_F1, kAlways, [](auto& on) { on.program.help(); }},
    {kGroup},
    {kAboutId, "&About Fernwick Workbench...", kNoKey, kAlways, [](auto& on) { on.program.about(); }},
};

const DockCommand kDockCommands[] = {
    {"explorerDock", kExplorerId, "&Project Explorer", Qt::CTRL | Qt::Key_R},
    {"propertiesDock", kPropertiesId, "Properties &Window", Qt::Key_F4},
    {"toolboxDock", kToolboxId, "Toolbo&x"},
    {"resultsDock", kResultsId, "&Search Results"},
    {"Fernwick Messages", kMessagesId, "Fernwick &Messages", Qt::CTRL | Qt::Key_M},
    {"Fernwick Zoom", kZoomWindowId, "Fernwick &Zoom"},
};

const CommandMenu kCommandMenus[] = {
    {host::kFileMenuId, kFileCommands},
    {host::kEditMenuId, kEditCommands},
    {kBookmarksMenuId, kBookmarkCommands},
    {kCodeHelpMenuId, kCodeHelpCommands},
    {host::kViewMenuId, kViewCommands},
    {kFoldingMenuId, kFoldingCommands},
    {host::kProjectMenuId, kProjectCommands},
    {kFormatMenuId, kFormatCommands},
    {kAlignMenuId, kAlignCommands},
    {kSameSizeMenuId, kSameSizeCommands},
    {kSpaceAcrossMenuId, kSpaceAcrossCommands},
    {kSpaceDownMenuId, kSpaceDownCommands},
    {kCentreMenuId, kCentreCommands},
    {kOrderMenuId, kOrderCommands},
    {kDebugMenuId, kDebugCommands},
    {kRunMenuId, kRunCommands},
    {kToolsMenuId, kToolsCommands},
    {kWindowMenuId, kWindowCommands},
    {host::kHelpMenuId, kHelpCommands},
};

} // namespace

std::span<const CommandMenu> commandMenus() { return kCommandMenus; }

std::span<const DockCommand> dockCommands() { return kDockCommands; }

DockCommand dockCommandOf(const QString& dock) {
    for (const auto& command : kDockCommands)
        if (dock == command.dock) return command;
    return {""};
}

} // namespace workbench
