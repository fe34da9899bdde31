#pragma once
// The tabs of the code windows; form views are tabs here too.
#include "Apps/workbench/code/code_editor.h"
#include "Host/model/host.h"
#include <QKeySequence>
#include <QList>
#include <QTabWidget>
#include <map>

namespace workbench {

/// The marks of a project's components, by name.
using MarksByComponent = std::map<std::string, std::vector<LineMark>>;

/// Follows the host: shows the pane that the model shows, and closes the windows of removed components. Code is read
/// when its window opens.
class CodeWindows final : public QTabWidget {
public:
    CodeWindows(host::Host& host, CodeEditor::Refused refused);

    void open(const vbide::Ref<vbide::VBComponent>& component);
    /// Shows a component's window and selects a part of its code. Error 440 if the component was removed.
    void showPlace(const CodePlace& place);
    /// Called for each window that is created.
    std::function<void(CodeEditor&)> made = [](CodeEditor&) {};
    /// Called when a code window was split or joined.
    std::function<void()> splitChanged = [] {};
    /// Shows the next tab, or the previous one for -1, and starts again at the other end.
    void step(int by);
    void closeCurrent();
    void closeAll();
    /// Null for a component without a window.
    CodeEditor* editorOf(const vbide::Ref<vbide::VBComponent>& component) const;
    /// Null if no code window is in front.
    CodeEditor* current() const;
    /// The marks of a component, whether it has a window or not.
    ComponentMarks ownMarksOf(const vbide::Ref<vbide::VBComponent>& component);
    /// Removes bookmarks or breakpoints from all components of a project.
    void clearMarks(const vbide::Ref<vbide::VBProject>& project, std::vector<PlacedMark> ComponentMarks::*kind);
    /// Stores the breakpoints of a project.
    void storeMarks(const vbide::Ref<vbide::VBProject>& project);
    /// Called when the user clicks into the margin for breakpoints, with the line (from 0).
    std::function<void(CodeEditor&, int line)> marginClicked = [](CodeEditor&, int) {};
    /// Shows the messages of the active project as marks.
    void mark(MarksByComponent marks);
    /// Draws the code in the look of the user's settings.
    void showLook();
    /// Leaves these keys to the window, also in code windows that open later.
    void leaveKeys(const QList<QKeySequence>& keys);
    /// Changes the text size of all code windows, in points. It is kept in the user's settings.
    void zoomBy(int points);
    void resetZoom();
    /// Updates names and dirty marks and closes the windows of removed components when Qt's loop turns.
    void refreshSoon() { refresh_.start(0); }
    /// Called when the dirty marks are up to date after an edit.
    std::function<void()> refreshed = [] {};

private:
    std::vector<CodeEditor*> editors() const;
    void prepare(CodeInput& pane);
    void markEditor(CodeEditor& editor);
    void zoomTo(int points);
    void refresh();
    void changed(const vbide::Ref<vbide::VBComponent>& component);

    host::Host& host_;
    CodeEditor::Refused refused_;
    ProjectNames names_;
    std::shared_ptr<ProjectMarks> ownMarks_ = std::make_shared<ProjectMarks>();
    MarksByComponent marks_;
    int zoom_ = 0;
    QList<QKeySequence> leftKeys_;
    QTimer refresh_;
    bool edited_ = false; ///< since the last refresh
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
