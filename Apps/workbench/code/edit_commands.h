#pragma once
// The commands of the code windows: the Edit menu, what the View menu says of definitions, and the editors' own menu.
#include "Apps/workbench/code/find_bar.h"
#include "Host/model/bars/bars.h"
#include <QObject>

namespace workbench {

class MainWindow;

enum EditCommandId : int {
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
};

class EditCommands final : public QObject {
public:
    /// What a window in front that is no code window does of undoing and the clipboard.
    using Elsewhere = std::function<void(int id)>;

    /// Fills the host's Edit and View menus and puts the find bar below the code windows. Belongs to the window.
    /// Without `elsewhere` nothing can be done where no code window is in front.
    EditCommands(host::Host& host, MainWindow& window, Elsewhere elsewhere = nullptr);

private:
    using Act = void (EditCommands::*)(CodeEditor&);
    struct Entry {
        int id;
        const char* caption;
        Act act;
        bool begins;
        bool everywhere = false; ///< other windows may have it too
    };
    static const Entry kEditMenu[];
    static const Entry kViewMenu[];
    /// What the editors' own menu has of them, 0 for a line.
    static const int kEditorMenu[];

    void fill(host::Bar& menu, const Entry* first, const Entry* end);
    void addFindBar();
    void enable(bool hasWindow, bool hasEditor);
    void attach(CodeEditor& editor);
    void showMenu(CodeEditor& editor, const QPoint& at);

    void undo(CodeEditor& editor);
    void redo(CodeEditor& editor);
    void cut(CodeEditor& editor);
    void copy(CodeEditor& editor);
    void paste(CodeEditor& editor);
    void cutLine(CodeEditor& editor);
    void selectAll(CodeEditor& editor);
    void find(CodeEditor& editor);
    void findNext(CodeEditor& editor);
    void findPrevious(CodeEditor& editor);
    void replace(CodeEditor& editor);
    void indent(CodeEditor& editor);
    void outdent(CodeEditor& editor);
    void comment(CodeEditor& editor);
    void uncomment(CodeEditor& editor);
    void nextProcedure(CodeEditor& editor);
    void previousProcedure(CodeEditor& editor);
    void askForLine(CodeEditor& editor);
    void showDefinition(CodeEditor& editor);
    void showLastPosition(CodeEditor& editor);

    MainWindow& window_;
    FindBar* bar_;
    Elsewhere elsewhere_;
    std::vector<std::shared_ptr<host::BarControl>> controls_, everywhere_;
    /// Where definitions were asked for, the latest behind.
    std::vector<CodePlace> positions_;
};

} // namespace workbench
