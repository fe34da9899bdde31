#pragma once
// The code window of one component.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/code/line_marks.h"
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

class QComboBox;
class QsciScintilla;

namespace workbench {

class CodeInput;
class VbLexer;

/// Reads the component's code when it is made, and passes on each edit to the host's code module, so that the host's
/// dirty marks, savings and the add-in see it at once.
class CodeEditor final : public QWidget {
public:
    /// Told of an edit that the host refuses. A character that the file can't hold never comes into the text; after
    /// any other refusal the text is the host's again.
    using Refused = std::function<void(std::exception_ptr)>;

    CodeEditor(vbide::Ref<vbide::VBComponent> component, Refused refused);

    const vbide::Ref<vbide::VBComponent>& component() const { return component_; }
    QsciScintilla& scintilla() const;
    /// Somebody edited the module: shows its text, unless it was this editor.
    void codeChanged();
    /// Shows the selection that the host has for the pane.
    void showSelection();
    LineMarks& marks() { return marks_; }
    void colour(Theme theme);

    /// The selection's part in its first line, or where the cursor stands.
    CodePlace place() const;
    /// Selects a part of a line and brings it into view; what is beyond the text's end is cut off.
    void select(const CodePlace& place);
    /// "" where nothing or more than a part of one line is selected.
    QString selectedPart() const;
    /// A line (from 0) without its end.
    QString lineText(int line) const;
    /// Puts `with` in each of these places, which stand in the code's order; one step to undo. False when the host
    /// refused any of it.
    bool replace(const std::vector<CodePlace>& places, const QString& with);

    /// To a line, from 1, which comes to stand at the top.
    void goToLine(int line);
    /// To the procedure behind the one in which the cursor stands, or before it; nowhere when there is none.
    void goToProcedure(bool before);

private:
    void prepareText();
    void load();
    bool accepts(const QString& inserted);
    void edited(int position, int linesAdded, bool isUndo);
    void refuse(std::exception_ptr error);
    void typed(int line, int linesAdded);
    void leaveLine();
    void replaceLine(int line, const QString& now);
    void listProcedures();
    void showProcedure();

    vbide::Ref<vbide::VBComponent> component_;
    vbide::Ref<vbide::CodeModule> module_;
    Refused refused_;
    QComboBox* objects_;
    QComboBox* procedures_;
    CodeInput* text_;
    LineMarks marks_;
    VbLexer* lexer_;
    bool passing_ = false, loading_ = false, refusing_ = false;
    std::vector<vbide::Member> members_;
    /// The line in which the user typed last, until the cursor leaves it; -1 for none.
    int typedLine_ = -1;
    /// Procedures are looked for when the user rests.
    QTimer rest_;
};

} // namespace workbench
