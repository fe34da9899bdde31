#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Host/model/code/component_kind.h"
#include <QDir>
#include <QFileDialog>
#include <algorithm>
#include <string_view>

namespace workbench {

namespace {

/// Returns "" if the user cancels. Updates `folder`, so that the next dialog opens in the same one.
std::string askForName(const std::string& name, std::string_view ending, QString& folder, QWidget* window) {
    const auto extension = qt(std::string(ending));
    const auto path = QFileDialog::getSaveFileName(
        window, "Save " + qt(name), QDir(folder).filePath(qt(name) + extension), QString("*%1").arg(extension));
    if (path.isEmpty()) return {};
    folder = QFileInfo(path).path();
    return text(QFileInfo(path).suffix().isEmpty() ? path + extension : path);
}

QString folderOf(const std::string& path) { return path.empty() ? QDir::homePath() : QFileInfo(qt(path)).path(); }

QMessageBox::StandardButton askAboutChanges(const std::string& name, QWidget* window) {
    return showBox(window, QMessageBox::Question, QString("Save the changes to %1?").arg(qt(name)),
                   QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
}

bool saveUnderName(const ComponentRef& component, QString folder, QWidget* window) {
    const auto path = askForName(component->Name(), host::kindOf(component->Type()).extension, folder, window);
    if (!path.empty()) component->SaveAs(path);
    return !path.empty();
}

} // namespace

void forgetChanges(const ProjectRef& project) {
    for (const auto& component : project->VBComponents()->items()) component->IsDirty(false);
    project->IsDirty(false);
}

bool isUnsaved(const ProjectRef& project) {
    const auto components = project->VBComponents()->items();
    return project->IsDirty() || std::any_of(components.begin(), components.end(),
                                             [](const auto& component) { return component->IsDirty(); });
}

bool saveWithNames(host::Host& host, const ProjectRef& project, QWidget* window) {
    const auto known = project->FileName();
    QString folder = folderOf(known);
    for (const auto& component : project->VBComponents()->items()) {
        if (!component->FileNames(1).empty()) continue;
        const auto path = askForName(component->Name(), host::kindOf(component->Type()).extension, folder, window);
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

bool saveUnderNewName(const ProjectRef& project, QWidget* window) {
    auto folder = folderOf(project->FileName());
    const auto path = askForName(project->Name(), ".vbp", folder, window);
    if (!path.empty()) project->SaveAs(path);
    return !path.empty();
}

bool saveWithName(const ComponentRef& component, QWidget* window) {
    const auto path = component->FileNames(1);
    if (path.empty()) return saveUnderNewName(component, window);
    if (component->IsDirty()) component->SaveAs(path);
    return true;
}

bool saveUnderNewName(const ComponentRef& component, QWidget* window) {
    const auto path = component->FileNames(1);
    const auto project = projectOf(component);
    return saveUnderName(component, folderOf(path.empty() && project ? project->FileName() : path), window);
}

bool mayBeClosed(host::Host& host, const std::vector<ProjectRef>& projects, QWidget* window) {
    std::vector<ProjectRef> saved, discarded;
    for (const auto& project : projects) {
        if (!isUnsaved(project)) continue;
        const auto answer = askAboutChanges(project->Name(), window);
        if (answer != QMessageBox::Save && answer != QMessageBox::Discard) return false;
        (answer == QMessageBox::Save ? saved : discarded).push_back(project);
    }
    for (const auto& project : saved)
        if (!saveWithNames(host, project, window)) return false;
    for (const auto& project : discarded) forgetChanges(project);
    return true;
}

bool mayBeRemoved(const ComponentRef& component, QWidget* window) {
    if (!component->IsDirty()) return true;
    const auto answer = askAboutChanges(component->Name(), window);
    if (answer == QMessageBox::Save) return saveWithName(component, window);
    return answer == QMessageBox::Discard;
}

} // namespace workbench
