#include "Apps/workbench/renaming/name_commands.h"
#include "Apps/workbench/assist/shown_names.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/renaming/apply_renaming.h"
#include "Apps/workbench/renaming/rename_dialog.h"

namespace workbench {

void NameCommands::findReferences() {
    auto* const editor = windows_.current();
    if (editor && references_.start(editor->place())) showResults_();
}

void NameCommands::rename(QWidget* parent) {
    auto* const editor = windows_.current();
    if (!editor) return;
    const auto program = insight_.programOf(projectOf(editor->component()));
    const auto place = sourcePlace(program, editor->place());
    if (!place) return;
    const auto apply = [this, &program](const qltoolkit::Renaming& renaming, const std::string& newName) {
        return applyRenaming(windows_, program, renaming, newName);
    };
    RenameDialog(insight_, program, *place, apply, parent).exec();
}

} // namespace workbench
