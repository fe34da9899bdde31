#include "Add-in/lifecycle/project_importer.h"
#include "Add-in/lifecycle/importer_texts.h"
#include <algorithm>

namespace fernwick {

void ProjectImporter::IDTExtensibility_OnConnection(const basic::Ref<vbide::VBE>& VBInst, vbide::vbext_ConnectMode,
                                                    const basic::Ref<vbide::AddIn>&) {
    Procedure here{errors_, "QLProjectImport.IDTExtensibility_OnConnection"};
    host_ = VBInst;
    here([&] { projects_ = VBInst->Events()->VBProjectsEvents(); });
    placeItem();
}

void ProjectImporter::IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) {
    projects_ = nullptr;
    clicks_ = nullptr;
    // it may have gone with its menu
    if (const auto item = std::exchange(item_, nullptr)) (void)basic::attempt([&] { item->Delete(); });
}

/// Adds the item to the utilities menu unless it is there.
void ProjectImporter::placeItem() {
    Procedure here{errors_, "QLProjectImport.Connect"};
    const auto menu = utilitiesMenu();
    if (!menu) return;
    const auto items = here.value([&] { return menu->Controls()->items(); });
    if (std::find(items.begin(), items.end(), item_) != items.end()) return;
    here([&] {
        item_ = menu->Controls()->Add(office::msoControlButton);
        item_->Caption(importer_texts::kItem);
        item_->BeginGroup(true);
        clicks_ = host_->Events()->CommandBarEvents(item_);
    });
}

/// Returns Nothing if the Fernwick menu has not been built.
ProjectImporter::Item ProjectImporter::utilitiesMenu() const {
    Item menu;
    (void)basic::attempt([&] {
        const auto top = host_->CommandBars()->ActiveMenuBar()->Controls()->Item(command_texts::kMenuString.text);
        menu = top->Controls()->Item(kUtilitiesString.text);
    });
    return menu;
}

void ProjectImporter::projectRemoved(Project project) {
    // one whose file cannot be read is not offered
    (void)basic::attempt([&] {
        const auto path = project->FileName();
        if (!path.empty() && hasOldFormat(platform_.files, path)) closed_ = path;
    });
}

void ProjectImporter::itemClicked() {
    Procedure here{errors_, "QLProjectImport.Click"};
    const auto path = chosenProject(here);
    if (!path.empty()) import(here, path);
}

/// The project that was closed last is offered only once; "" for Cancel.
std::string ProjectImporter::chosenProject(Procedure& here) {
    const auto closed = std::exchange(closed_, {});
    if (closed.empty() || !platform_.files.FileExists(closed)) return askForProject(here);
    return box(here, closed + importer_texts::kConvert, vbYesNo + vbQuestion) == vbYes ? closed : std::string();
}

std::string ProjectImporter::askForProject(Procedure& here) {
    CommonDialog dialog;
    dialog.DialogTitle = importer_texts::kChooseProject;
    dialog.Filter = importer_texts::kProjectFilter;
    dialog.Flags = cdlOFNFileMustExist + cdlOFNHideReadOnly;
    here([&] { platform_.interaction.ShowOpen(dialog); });
    return dialog.FileName;
}

/// The host holds the text of open projects, so only the file of a closed one is changed.
void ProjectImporter::import(Procedure& here, const std::string& path) {
    if (here.value([&] { return isOpen(path) && hasOldFormat(platform_.files, path); }))
        return (void)box(here, path + importer_texts::kIsOpen, vbExclamation);
    if (upgraded(here, path)) here([&] { host_->VBProjects()->AddFromFile(path, false); });
}

bool ProjectImporter::upgraded(Procedure& here, const std::string& path) {
    Upgrade done;
    const auto failed = basic::attempt([&] { done = upgradeProject(platform_.files, deviceServices_, path); });
    if (failed.Number != 0)
        return box(here, path + importer_texts::kNotConverted + failed.Description, vbCritical), false;
    if (done.result == UpgradeResult::Current) box(here, path + importer_texts::kCurrent, vbInformation);
    if (done.result == UpgradeResult::Foreign) box(here, path + importer_texts::kForeign, vbExclamation);
    if (done.result != UpgradeResult::Upgraded) return false;
    if (backedUp_) here([&] { backedUp_(done.backup); });
    return true;
}

bool ProjectImporter::isOpen(const std::string& path) const {
    const auto open = host_->VBProjects()->items();
    return std::any_of(open.begin(), open.end(), [&](const Project& project) {
        const auto file = project->FileName();
        return !file.empty() && platform_.files.SameFile(file, path);
    });
}

int ProjectImporter::box(Procedure& here, const std::string& text, int buttons) {
    return here.value([&] { return platform_.interaction.MsgBox(text, buttons, importer_texts::kTitle); });
}

} // namespace fernwick
