#include "Apps/workbench/window/commands.h"
#include "Apps/workbench/code/code_lines.h"
#include "Apps/workbench/code/scintilla.h"
#include "Apps/workbench/project/component_commands.h"
#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/window/main_window.h"

namespace workbench {

namespace {

constexpr auto kAlways = Enabled::Always, kInCode = Enabled::InCode, kInEditor = Enabled::InEditor,
               kInText = Enabled::InText, kCanUndo = Enabled::CanUndo;
constexpr QKeyCombination kNoKey{};

/// The editor in front, which commands that are enabled in an editor have.
QsciScintilla& textOf(const CommandTargets& on) { return on.window.code().current()->scintilla(); }

CodeCommands& actions(const CommandTargets& on) { return on.window.codeCommands(); }

/// The component that the user works on.
ComponentRef inHand(const CommandTargets& on) { return on.window.design().inHand(); }

EditFocus& edited(const CommandTargets& on) { return on.window.editFocus(); }

void saveProjectAs(const CommandTargets& on) {
    if (const auto active = on.host.ActiveVBProject()) saveUnderNewName(active, &on.window);
}

void editProjectProperties(const CommandTargets& on) {
    if (const auto active = on.host.ActiveVBProject()) editProperties(active, &on.window);
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
    {kUndoId, "&Undo", Qt::CTRL | Qt::Key_Z, kCanUndo, [](auto& on) { edited(on).undo(); }},
    {kRedoId, "&Redo", Qt::CTRL | Qt::SHIFT | Qt::Key_Z, kInText, [](auto& on) { edited(on).edit("redo"); }},
    {kGroup},
    {kCutId, "Cu&t", Qt::CTRL | Qt::Key_X, kInText, [](auto& on) { edited(on).edit("cut"); }},
    {kCopyId, "&Copy", Qt::CTRL | Qt::Key_C, kInText, [](auto& on) { edited(on).edit("copy"); }},
    {kPasteId, "&Paste", Qt::CTRL | Qt::Key_V, kInText, [](auto& on) { edited(on).edit("paste"); }},
    {kCutLineId, "Cut &Line", Qt::CTRL | Qt::Key_Y, kInEditor, [](auto& on) { cutLine(textOf(on)); }},
    {kSelectAllId, "Select &All", Qt::CTRL | Qt::Key_A, kInText, [](auto& on) { edited(on).edit("selectAll"); }},
    {kGroup},
    {kFindId, "&Find...", Qt::CTRL | Qt::Key_F, kInCode, [](auto& on) { on.window.findBar().open(false); }},
    {kFindNextId, "Find &Next", Qt::Key_F3, kInCode, [](auto& on) { on.window.findBar().findAgain(false); }},
    {kFindPreviousId, "Find Pre&vious", Qt::SHIFT | Qt::Key_F3, kInCode,
     [](auto& on) { on.window.findBar().findAgain(true); }},
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
    {kStartUpProjectId, "Set as Start &Up", kNoKey, kAlways, [](auto& on) { setAsStartUp(inHand(on)); }},
    {kConvertProjectId, "Convert to Another &Device...", kNoKey, kAlways, [](auto& on) { on.program.convert(); }},
    {kProjectPropertiesId, "&Properties...", kNoKey, kAlways, editProjectProperties},
};

const Command kRunCommands[] = {
    {kStartId, "&Start on Device", Qt::Key_F5, kAlways, [](auto& on) { on.program.start(); }},
};

const Command kToolsCommands[] = {
    {kMenuEditorId, "&Menu Editor...", Qt::CTRL | Qt::Key_E, Enabled::InDesigner,
     [](auto& on) { on.window.design().editMenus(); }},
    {kGroup},
    {kOptionsId, "&Options...", kNoKey, kAlways, [](auto& on) { on.program.options(); }},
};

const Command kWindowCommands[] = {
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
    {"Fernwick Messages", kMessagesId, "Fernwick &Messages", Qt::CTRL | Qt::Key_M},
};

const CommandMenu kCommandMenus[] = {
    {host::kFileMenuId, kFileCommands},       {host::kEditMenuId, kEditCommands}, {host::kViewMenuId, kViewCommands},
    {host::kProjectMenuId, kProjectCommands}, {kRunMenuId, kRunCommands},         {kToolsMenuId, kToolsCommands},
    {kWindowMenuId, kWindowCommands},         {host::kHelpMenuId, kHelpCommands},
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
