#pragma once
// The code window of one component.
#include "Add-in/platform/events.h"
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/code_panes.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/code/line_marks.h"
#include "Apps/workbench/code/project_names.h"
#include "Apps/workbench/editing/fold_levels.h"
#include "Apps/workbench/editing/typed_line.h"
#include "Apps/workbench/events/object_events.h"
#include "Apps/workbench/marks/editor_marks.h"
#include "Apps/workbench/options/code_look.h"
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace workbench {

class ProcedureBar;

/// Reads the component's code when it is created, and passes each edit to the host's code module at once, so that dirty
/// marks, saving and the add-in are up to date.
class CodeEditor final : public QWidget {
public:
    /// Called when the host refuses an edit. A character that the file's code page lacks is not inserted at all; after
    /// any other refusal the host's text is restored.
    using Refused = std::function<void(std::exception_ptr)>;

    /// What the editors of all projects share.
    struct Shared {
        ProjectNames& names;
        std::shared_ptr<ProjectMarks> marks; ///< gets the marks of an editor that is destroyed
    };
    CodeEditor(vbide::Ref<vbide::VBComponent> component, Shared shared, Refused refused);
    ~CodeEditor() override;

    const vbide::Ref<vbide::VBComponent>& component() const { return component_; }
    /// The pane that has the focus, or had it last.
    QsciScintilla& scintilla() const { return panes_->active(); }
    CodePanes& panes() { return *panes_; }
    /// Raised when the cursor moves or another pane becomes active.
    fernwick::Event<> cursorMoved;
    /// Called after each edit of the module. Shows the new text unless this editor made the edit.
    void codeChanged();
    /// Shows the selection of the host's code pane.
    void showSelection();
    LineMarks& marks() { return marks_; }
    EditorMarks& ownMarks() { return ownMarks_; }
    /// Passes the present marks of the user on to those of the project.
    void keepMarks();
    /// Called when the user clicks into the margin for breakpoints, with the line (from 0).
    std::function<void(int)> marginClicked = [](int) {};
    /// Called with each line (from 0) that the user typed in and left.
    std::function<void(int)> lineLeft = [](int) {};
    /// Returns the names of libraries in a line (from 0), as they are declared.
    std::function<Spellings(int)> libraryNames = [](int) { return Spellings(); };
    /// What else the tool tip of a line's margin shows; "" for nothing.
    std::function<QString(int)> noteOf = [](int) { return QString(); };
    void showIn(const CodeLook& look);
    /// Enlarges the text by this many points; negative to make it smaller.
    void zoomTo(int points);

    /// The part of the selection in its first line, or the cursor.
    CodePlace place() const;
    /// Selects a part of a line and scrolls to it. A place beyond the end of the text is moved to it.
    void select(const CodePlace& place);
    /// The selected text; "" if nothing is selected or the selection spans several lines.
    QString selectedPart() const;
    /// A line (from 0) without its line end.
    QString lineText(int line) const;
    /// Replaces each of these places, which are in ascending order, by `with`, as one undo step. False if the host
    /// refused an edit.
    bool replace(const std::vector<CodePlace>& places, const QString& with);

    /// Moves the cursor to a line (from 1) and scrolls it to the top.
    void goToLine(int line);
    /// Moves to the next procedure, or to the previous one, if there is one.
    void goToProcedure(bool before);

private:
    CodeInput* makePane();
    void watchPane(CodeInput& pane);
    NameLookup namesAt(int line);
    void watchText();
    void showCursor();
    void rested();
    void load();
    bool accepts(const QString& inserted);
    void edited(int position, int linesAdded, bool isUndo);
    void refuse(std::exception_ptr error);
    void listProcedures();
    void addHandler(const EventObject& object, const host::ClassEvent& event);

    vbide::Ref<vbide::VBComponent> component_;
    vbide::Ref<vbide::CodeModule> module_;
    Shared shared_;
    Refused refused_;
    ProcedureBar* procedures_;
    CodePanes* panes_;
    CodeInput* text_; ///< the pane that is always there
    LineMarks marks_;
    EditorMarks ownMarks_;
    FoldLevels folds_;
    /// The line in which the user types, for each pane.
    std::map<CodeInput*, std::unique_ptr<TypedLine>> typedLines_;
    bool passing_ = false, loading_ = false, refusing_ = false;
    /// Updates the procedure lists and checks breakpoints when the user pauses.
    QTimer rest_;
};

} // namespace workbench
