#include "Apps/workbench/code/code_commands.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/code/definition.h"
#include "Apps/workbench/editing/scintilla.h"
#include <QInputDialog>

namespace workbench {

namespace {

/// As many as the language's own IDE remembers.
constexpr std::size_t kMostPositions = 8;

} // namespace

void CodeCommands::goToProcedure(bool backwards) {
    if (auto* const editor = windows_.current()) editor->goToProcedure(backwards);
}

void CodeCommands::askForLine(QWidget* parent) {
    auto* const editor = windows_.current();
    if (!editor) return;
    bool accepted = false;
    const int last = editor->scintilla().lines();
    const int line = QInputDialog::getInt(parent, "Go to Line", QString("Line (1 to %1):").arg(last),
                                          editor->place().line + 1, 1, last, 1, &accepted);
    if (accepted) editor->goToLine(line);
}

void CodeCommands::showDefinition() {
    auto* const editor = windows_.current();
    if (!editor) return;
    auto from = editor->place();
    const auto name = nameAt(editor->lineText(from.line), from.column);
    const auto place = definitionOf(name, from);
    if (!place) {
        if (!name.name.isEmpty()) notice_.showText(QString(code_texts::kNotDeclared).arg(name.name));
        return;
    }
    from.length = 0;
    positions_.push_back(from);
    if (positions_.size() > kMostPositions) positions_.erase(positions_.begin());
    windows_.showPlace(*place);
}

void CodeCommands::showLastPosition() {
    while (!positions_.empty()) {
        const auto place = positions_.back();
        positions_.pop_back();
        const auto failed = basic::attempt([&] { windows_.showPlace(place); });
        if (failed.Number == 0) return; // else its component was removed
    }
}

} // namespace workbench
