#include "Add-in/settings/dependencies_page.h"
#include "Add-in/settings/settings_texts.h"

namespace fernwick {

using namespace settings_texts;

namespace {

/// Of an entry that is no file, or whose file cannot be looked up.
constexpr char kUnknown[] = "???";

/// Names that differ only in letter case may both be listed.
std::int32_t indexOf(const std::string& name, const tResourceList& list) {
    for (std::int32_t index = 0; index < list.Count(); ++index)
        if (list.entries[std::size_t(index)].FileName == name) return index;
    return modDependencyManagement::FindResourceIndex(name, list);
}

} // namespace

DependenciesPage::DependenciesPage(Form* form, const SettingsServices& services,
                                   const basic::Ref<clsQLProject>& project)
    : fraDependencies(form, "fraDependencies", false),
      lblDependencies(form, "lblDependencies", kAboutDependencies),
      lblAutomaticDependencies(form, "lblAutomaticDependencies", kAboutAutomaticDependencies),
      tvwDependencies(form, "tvwDependencies"),
      lvwAutomaticDependencies(form, "lvwAutomaticDependencies"),
      btnAdd(form, "btnAdd", "&Add...", this, &DependenciesPage::btnAdd_Click),
      btnDelete(form, "btnDelete", "&Remove", this, &DependenciesPage::btnDelete_Click),
      btnScanforDependencies(form, "btnScanforDependencies", "&Scan for Dependencies", this,
                             &DependenciesPage::btnScanforDependencies_Click),
      prgDependencyScan(form, "prgDependencyScan"),
      stsDependencyScan(form, "stsDependencyScan"),
      services_(services),
      project_(project) {
    btnAdd.ToolTipText.design(kAddTip);
    btnDelete.ToolTipText.design(kRemoveTip);
    btnDelete.Enabled.design(false);
    // A scan takes place in each compile.
    btnScanforDependencies.Visible.design(false);
    prgDependencyScan.Visible.design(false);
    stsDependencyScan.Visible.design(false);
    auto& list = tvwDependencies;
    events_.push_back(list.GotFocus.connect([this] { btnDelete.Enabled(true); }));
    events_.push_back(list.ItemClick.connect([this](int) { btnDelete.Enabled(true); }));
    // Remove would otherwise be disabled by the click on it.
    events_.push_back(list.LostFocus.connect([this](const std::string& now) {
        if (now != btnDelete.Name) btnDelete.Enabled(false);
    }));
    events_.push_back(list.KeyUp.connect([this](int key) {
        if (key == ListView::kDeleteKey) btnDelete_Click();
    }));
    events_.push_back(
        list.FilesDropped.connect([this](const std::vector<std::string>& paths) { filesDropped(paths); }));
}

void DependenciesPage::setUp() {
    Procedure here{services_.errors, "frmQuinloftSettings.ShowQuinloftSettings"};
    here([&] { modDependencyManagement::ClearDependencyList(Dependencies); });
    here([&] { Dependencies = services_.dependencies.ReadProjectDependencies(project_->VBProject()); });
    here([&] { DisplayDependencies(project_->VBProject()); });
    DisplayAutomaticDependencies();
    DependenciesChanged = false;
}

void DependenciesPage::DisplayDependencies(const VBProject& project) {
    Procedure here{services_.errors, "frmQuinloftSettings.DisplayDependencies"};
    const auto& files = services_.platform.files;
    std::vector<ListView::Item> rows;
    for (const auto& entry : Dependencies) {
        if (entry.FileName.empty()) continue;
        const auto path = here.value([&] { return services_.dependencies.PlaceOf(project, entry); });
        const bool exists = here.value([&] { return files.FileExists(path); });
        rows.push_back({{entry.FileName, std::to_string(entry.FileSize), entry.FileType},
                        exists ? files.PlaceOnDisk(path) : path});
    }
    here([&] { tvwDependencies.Show({{"Name"}, {"Size", true}, {"Type"}}, std::move(rows)); });
}

/// Components are known by identifiers, which are looked up on the device only.
void DependenciesPage::DisplayAutomaticDependencies() {
    Procedure here{services_.errors, "frmQuinloftSettings.DisplayAutomaticDependencies"};
    const auto& dependencies = services_.dependencies;
    std::vector<ListView::Item> rows;
    for (const auto& component : here.value([&] { return project_->GetComponentDependencies(); }))
        rows.push_back({{component, "", kUnknown}, ""});
    const auto addFile = [&](const std::string& name, const std::string& type) {
        const auto path =
            here.value([&] { return dependencies.PlaceOf(project(), {.FileName = name, .FileType = type}); });
        here([&] { rows.push_back(automaticRow(name, path)); });
    };
    for (const auto& name : here.value([&] { return project_->GetTavletFileDependencies(); })) addFile(name, "");
    for (const auto& name : here.value([&] { return project_->GetFontDependencies(); })) addFile(name, kFontType);
    here([&] { lvwAutomaticDependencies.Show({{"Name"}, {"Size", true}, {"Found"}}, std::move(rows)); });
}

ListView::Item DependenciesPage::automaticRow(const std::string& name, const std::string& path) const {
    const auto& files = services_.platform.files;
    if (!files.FileExists(path)) return {{name, "", "No"}, path};
    return {{name, std::to_string(files.GetSize(path)), "Yes"}, files.PlaceOnDisk(path)};
}

/// Asks the host to save a project without a file.
bool DependenciesPage::isSaved(Procedure& here) {
    if (!here.test([&] { return project()->FileName().empty(); })) return true;
    here([&] { services_.platform.interaction.MsgBox(kSaveBeforeAdding, vbExclamation, kTitle); });
    here([&] { services_.menu.saveProjectItem()->Execute(); });
    return false;
}

void DependenciesPage::btnAdd_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnAdd_Click"};
    if (!isSaved(here)) return;
    add(here, services_.dependencies.GetNewDependency(project()));
}

void DependenciesPage::filesDropped(const std::vector<std::string>& paths) {
    Procedure here{services_.errors, "frmQuinloftSettings.tvwDependencies_OLEDragDrop"};
    if (!isSaved(here)) return;
    add(here, services_.dependencies.newDependencies(project(), paths));
}

void DependenciesPage::add(Procedure& here, const tResourceList& chosen) {
    for (const auto& entry : chosen) {
        if (entry.FileName.empty()) continue;
        if (modDependencyManagement::ResourceinDependencyList(entry.FileName, Dependencies)) {
            const auto text = entry.FileName + kListedAlready;
            here([&] { services_.platform.interaction.MsgBox(text, vbExclamation, kTitle); });
            continue;
        }
        modDependencyManagement::AddDependency(entry, Dependencies);
        DependenciesChanged = true;
    }
    here([&] { DisplayDependencies(services_.addIn.gVBInstance->ActiveVBProject()); });
}

void DependenciesPage::btnDelete_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnDelete_Click"};
    bool removed = false;
    for (const auto& row : tvwDependencies.Items()) {
        if (!row.Selected) continue;
        here(
            [&] { modDependencyManagement::RemoveDependency(indexOf(row.Cells.front(), Dependencies), Dependencies); });
        removed = DependenciesChanged = true;
    }
    if (removed) here([&] { DisplayDependencies(project()); });
}

/// Scanning is part of each compile, which shows what it found on the second tab.
void DependenciesPage::btnScanforDependencies_Click() {}

void DependenciesPage::SaveNewDependencies() {
    Procedure here{services_.errors, "frmQuinloftSettings.SaveNewDependencies"};
    here([&] { services_.dependencies.WriteProjectDependencies(project(), Dependencies); });
}

} // namespace fernwick
