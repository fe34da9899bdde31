#include "Apps/workbench/project/project_reopening.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/project/project_saving.h"

namespace workbench {

namespace {

struct OpenWindow {
    std::string component;
    int line, column, top;
};

std::vector<OpenWindow> windowsOf(CodeWindows& code, const vbide::Ref<vbide::VBProject>& project) {
    std::vector<OpenWindow> windows;
    for (const auto& component : project->VBComponents()->items())
        if (auto* const editor = code.editorOf(component)) {
            const auto place = editor->place();
            windows.push_back({component->Name(), place.line, place.column, editor->scintilla().firstVisibleLine()});
        }
    return windows;
}

void openAgain(CodeWindows& code, const vbide::Ref<vbide::VBProject>& project, const OpenWindow& window) {
    const auto component = project->VBComponents()->Item(window.component);
    code.showPlace({component, window.line, window.column, 0});
    if (auto* const editor = code.editorOf(component)) editor->scintilla().setFirstVisibleLine(window.top);
}

} // namespace

void reopenProject(host::Host& host, CodeWindows& code, const vbide::Ref<vbide::VBProject>& project) {
    const auto path = project->FileName();
    const auto windows = windowsOf(code, project);
    forgetChanges(project);
    host.VBProjects()->Remove(project);
    const auto again = host.VBProjects()->AddFromFile(path);
    for (const auto& one : windows) (void)basic::attempt([&] { openAgain(code, again, one); });
}

} // namespace workbench
