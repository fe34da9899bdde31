#include "Apps/workbench/project_saving.h"
#include "Apps/workbench/text.h"
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <algorithm>

namespace workbench {

namespace {

/// What the file of a component of this type is called behind its name.
const char* extensionOf(vbide::vbext_ComponentType type) {
    switch (type) {
    case vbide::vbext_ct_StdModule: return ".bas";
    case vbide::vbext_ct_ClassModule: return ".cls";
    case vbide::vbext_ct_UserControl: return ".ctl";
    case vbide::vbext_ct_PropPage: return ".pag";
    case vbide::vbext_ct_DocObject: return ".dob";
    case vbide::vbext_ct_ActiveXDesigner: return ".dsr";
    default: return ".frm";
    }
}

/// "" for Cancel. The next name is asked for in the same folder.
std::string askForName(const std::string& name, const char* extension, QString& folder, QWidget* window) {
    const auto path = QFileDialog::getSaveFileName(
        window, "Save " + qt(name), QDir(folder).filePath(qt(name) + extension), QString("*%1").arg(extension));
    if (path.isEmpty()) return {};
    folder = QFileInfo(path).path();
    return text(QFileInfo(path).suffix().isEmpty() ? path + extension : path);
}

void forgetChanges(const vbide::Ref<vbide::VBProject>& project) {
    project->IsDirty(false);
    for (const auto& component : project->VBComponents()->items()) component->IsDirty(false);
}

} // namespace

bool isUnsaved(const vbide::Ref<vbide::VBProject>& project) {
    const auto components = project->VBComponents()->items();
    return project->IsDirty() || std::any_of(components.begin(), components.end(),
                                             [](const auto& component) { return component->IsDirty(); });
}

bool saveWithNames(host::Host& host, const vbide::Ref<vbide::VBProject>& project, QWidget* window) {
    const auto known = project->FileName();
    QString folder = known.empty() ? QDir::homePath() : QFileInfo(qt(known)).path();
    for (const auto& component : project->VBComponents()->items()) {
        if (!component->FileNames(1).empty()) continue;
        const auto path = askForName(component->Name(), extensionOf(component->Type()), folder, window);
        if (path.empty()) return false;
        component->SaveAs(path);
    }
    if (known.empty()) {
        const auto path = askForName(project->Name(), ".vbp", folder, window);
        if (path.empty()) return false;
        project->SaveAs(path);
    }
    host.saveProject(project);
    return true;
}

bool mayBeClosed(host::Host& host, const std::vector<vbide::Ref<vbide::VBProject>>& projects, QWidget* window) {
    std::vector<vbide::Ref<vbide::VBProject>> givenUp;
    for (const auto& project : projects) {
        if (!isUnsaved(project)) continue;
        const auto answer = QMessageBox::question(window, "Fernwick Workbench",
                                                  QString("Save the changes to %1?").arg(qt(project->Name())),
                                                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        if (answer == QMessageBox::Discard)
            givenUp.push_back(project);
        else if (answer != QMessageBox::Save || !saveWithNames(host, project, window))
            return false;
    }
    for (const auto& project : givenUp) forgetChanges(project); // not before all questions have been answered
    return true;
}

} // namespace workbench
