#pragma once
// The open code windows, each a tab; other windows may stand among them.
#include "Apps/workbench/code/code_editor.h"
#include "Host/model/host.h"
#include <QTabWidget>
#include <map>

namespace workbench {

/// The marks of a project's components, by name.
using MarksByComponent = std::map<std::string, std::vector<LineMark>>;

/// Follows the host: a pane that the model shows comes up, the windows of what is removed go. Code is read when its
/// window opens.
class CodeWindows final : public QTabWidget {
public:
    CodeWindows(host::Host& host, CodeEditor::Refused refused);

    void open(const vbide::Ref<vbide::VBComponent>& component);
    /// Selects a part of a component's code in its window, which comes to the front. Error 440 for one that was removed.
    void showPlace(const CodePlace& place);
    /// Told of each window that was made.
    std::function<void(CodeEditor&)> made = [](CodeEditor&) {};
    /// Shows the next tab, or the previous one for -1, and starts again at the other end.
    void step(int by);
    void closeCurrent();
    void closeAll();
    /// Null for a component without a window.
    CodeEditor* editorOf(const vbide::Ref<vbide::VBComponent>& component) const;
    /// Null when no code window is in front.
    CodeEditor* current() const;
    /// Messages of the active project.
    void mark(MarksByComponent marks);
    void colour(Theme theme);
    /// Names and dirty marks may be others, and windows of components that the host no longer has go, when Qt's loop
    /// turns.
    void refreshSoon() { refresh_.start(); }

private:
    std::vector<CodeEditor*> editors() const;
    void markEditor(CodeEditor& editor);
    void refresh();

    host::Host& host_;
    CodeEditor::Refused refused_;
    MarksByComponent marks_;
    QTimer refresh_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
