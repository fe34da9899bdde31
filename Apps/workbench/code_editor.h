#pragma once
// The code window of one component.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/code_text.h"
#include "Apps/workbench/theme.h"
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

class QComboBox;
class QsciScintilla;

namespace workbench {

class VbLexer;

/// A line that a message points to, from 1.
struct LineMark {
    int line = 0;
    bool isError = false;
    std::string text;
};

/// Reads the component's code when it is made, and passes on each edit to the host's code module, so that the host's
/// dirty marks, savings and the add-in see it at once.
class CodeEditor final : public QWidget {
public:
    /// Told of an edit that the host refused; the text is then the host's again.
    using Refused = std::function<void(std::exception_ptr)>;

    CodeEditor(vbide::Ref<vbide::VBComponent> component, Refused refused);

    const vbide::Ref<vbide::VBComponent>& component() const { return component_; }
    QsciScintilla& scintilla() { return *text_; }
    /// Somebody edited the module: shows its text, unless it was this editor.
    void codeChanged();
    /// Shows the selection that the host has for the pane.
    void showSelection();
    void mark(const std::vector<LineMark>& marks);
    void colour(Theme theme);

private:
    void prepareText();
    void load();
    void edited(int position, int linesAdded);
    void listProcedures();
    void showProcedure();
    void goToLine(int line);

    vbide::Ref<vbide::VBComponent> component_;
    vbide::Ref<vbide::CodeModule> module_;
    Refused refused_;
    QComboBox* objects_;
    QComboBox* procedures_;
    QsciScintilla* text_;
    VbLexer* lexer_;
    bool passing_ = false, loading_ = false;
    std::vector<vbide::Member> members_;
    /// Procedures are looked for when the user rests.
    QTimer rest_;
};

} // namespace workbench
