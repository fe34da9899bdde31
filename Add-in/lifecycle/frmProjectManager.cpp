#include "Add-in/lifecycle/frmProjectManager.h"
#include "Add-in/lifecycle/lifecycle_texts.h"
#include <algorithm>
#include <iterator>
#include <string_view>

namespace fernwick {

namespace {

constexpr int kNextTurn = 1; // milliseconds
constexpr int kRecentTab = 1, kSamplesTab = 2;
constexpr std::int32_t kSamplesState = 1;
constexpr int kNameColumn = 0, kPathColumn = 1;
constexpr char kRecent[] = "Recent", kSamples[] = "Samples";

/// By the last characters alone, in lower case.
bool isProjectFileName(std::string_view path) {
    constexpr std::string_view kEndings[] = {"vbp", "vbg", "cls", "bas", "frm"};
    return path.size() >= 4 &&
           std::any_of(std::begin(kEndings), std::end(kEndings), [&](auto ending) { return path.ends_with(ending); });
}

} // namespace

frmProjectManager::frmProjectManager(const ManagerServices& services)
    : Form(services.user),
      services_(services),
      Timer1(services_.loop, kNextTurn, this, &frmProjectManager::Timer1_Timer) {
    Caption.design("Fernwick Project Manager");
    btnOpenRecent.Enabled.design(false);
    btnOpenRecent.Default = true;
    btnCancel.Cancel = true;
}

void frmProjectManager::ShowOnDelay() {
    Procedure here{services_.errors, "frmProjectManager.ShowOnDelay"};
    if (services_.addIn.gConnectMode != vbide::vbext_cm_CommandLine) here([&] { Timer1.Enabled(true); });
}

void frmProjectManager::dismiss() {
    Timer1.Enabled(false);
    Unload();
}

void frmProjectManager::Timer1_Timer() {
    Procedure here{services_.errors, "frmProjectManager.Timer1_Timer"};
    if (here.test([&] { return services_.addIn.gVBInstance->VBProjects()->Count() >= 1; })) return;
    Timer1.Enabled(false);
    here([&] { ShowModal(); });
}

void frmProjectManager::Form_Load() {
    Procedure here{services_.errors, "frmProjectManager.Form_Load"};
    here([&] { Timer1.Enabled(false); }); // a form that is shown waits no longer
    here([&] { grdRecentProjects.ColWidth(kNameColumn, services_.prefs.GetRecentProjColWidth()); });
    recentList_ = services_.recent.GetRecentList();
    services_.samples.InitSamplesList();
    tbsFiles.Clear();
    tbsFiles.Add("Recent Projects");
    tbsFiles.Add("Sample Projects");
    const bool showsSamples = services_.prefs.GetProjectManagerState() == kSamplesState;
    here([&] { tbsFiles.SelectedItem(showsSamples ? kSamplesTab : kRecentTab); });
}

void frmProjectManager::Form_Unload() {
    Procedure here{services_.errors, "frmProjectManager.Form_Unload"};
    services_.prefs.SetRecentProjColWidth(grdRecentProjects.ColWidth(kNameColumn));
    services_.prefs.SetProjectManagerState(tbsFiles.SelectedItem() == kSamplesTab ? kSamplesState : 0);
}

void frmProjectManager::tbsFiles_Click() {
    if (tbsFiles.SelectedItem() == kSamplesTab)
        fillSamples();
    else
        fillRecent();
}

/// Nothing is selected in a new list.
void frmProjectManager::beginList(const char* name, const char* headings) {
    grdRecentProjects.Rows(1);
    grdRecentProjects.FormatString(headings);
    btnOpenRecent.Enabled(false);
    ListName = name;
}

void frmProjectManager::fillRecent() {
    Procedure here{services_.errors, "frmProjectManager.fillRecent"};
    here([&] { beginList(kRecent, "Project|Location"); });
    for (const auto& [name, path] : recentList_)
        if (!name.empty()) here([&] { grdRecentProjects.AddItem(name + '\t' + path); });
}

void frmProjectManager::fillSamples() {
    Procedure here{services_.errors, "frmProjectManager.fillSamples"};
    here([&] { beginList(kSamples, "Description|Location"); });
    for (const auto& [name, path] : services_.samples.gSamplesList)
        here([&] { grdRecentProjects.AddItem(name + '\t' + path); });
}

void frmProjectManager::grdRecentProjects_Click() {
    if (grdRecentProjects.Row() >= 1) btnOpenRecent.Enabled(true);
}

void frmProjectManager::grdRecentProjects_DblClick() {
    Procedure here{services_.errors, "frmProjectManager.grdRecentProjects_DblClick"};
    openSelected(here);
}

void frmProjectManager::btnOpenRecent_Click() {
    Procedure here{services_.errors, "frmProjectManager.btnOpenRecent_Click"};
    openSelected(here);
}

void frmProjectManager::openSelected(Procedure& here) {
    if (ListName != kRecent && ListName != kSamples)
        return box(here, lifecycle_texts::kInvalidState, lifecycle_texts::kTitle);
    const int row = grdRecentProjects.Row();
    if (row < 1) return;
    const auto path = here.value([&] { return grdRecentProjects.TextMatrix(row, kPathColumn); });
    if (!services_.files.FileExists(path)) return box(here, lifecycle_texts::kProjectNotFound, lifecycle_texts::kTitle);
    here([&] { Unload(); });
    here([&] { services_.projects.OpenQuinloftProjectFromPath(path); });
}

void frmProjectManager::btnNewProject_Click() {
    Procedure here{services_.errors, "frmProjectManager.btnNewProject_Click"};
    services_.projects.OpenNewQuinloftProject();
    here([&] { Unload(); });
}

void frmProjectManager::btnOpenExisiting_Click() {
    Procedure here{services_.errors, "frmProjectManager.btnOpenExisiting_Click"};
    const auto path = askForProject(here);
    if (path.empty()) return;
    here([&] { services_.projects.OpenQuinloftProjectFromPath(path); });
    here([&] { Unload(); });
}

/// Asks again after a file that is not part of a project. Returns "" for Cancel.
std::string frmProjectManager::askForProject(Procedure& here) {
    for (;;) {
        CommonDialog dialog; // a new one, so that Cancel leaves no name
        dialog.Filter = lifecycle_texts::kProjectFilter;
        if (!here([&] { services_.user.ShowOpen(dialog); })) return {};
        if (dialog.FileName.empty() || isProjectFileName(dialog.FileName)) return dialog.FileName;
        box(here, lifecycle_texts::kNotAProject, lifecycle_texts::kNotAProjectTitle);
    }
}

void frmProjectManager::box(Procedure& here, const char* text, const char* title) {
    here([&] { services_.user.MsgBox(text, vbOKOnly, title); });
}

} // namespace fernwick
