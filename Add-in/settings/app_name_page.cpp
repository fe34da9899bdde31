#include "Add-in/settings/app_name_page.h"
#include "Add-in/settings/iconReader.h"
#include "Add-in/settings/setting_tip.h"
#include "Add-in/settings/settings_constants.h"
#include "Basic/text_search.h"

namespace fernwick {

using namespace settings_texts;

namespace {

/// Pocket PC 2000 needs an image with fewer bits for each pixel.
constexpr int kDeepColour = 24;

} // namespace

AppNamePage::AppNamePage(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project)
    : fraAppName(form, "fraAppName", false),
      lblAppName(form, "lblAppName", kAboutAppName),
      lblName(form, "lblName", "&Name on the device:"),
      lblIcon(form, "lblIcon", "&Icon file:"),
      chkSpacesInName(form, "chkSpacesInName", kSpacesInName),
      txtAppName(form, "txtAppName", true),
      txtIconFilePath(form, "txtIconFilePath"),
      btnBrowseIcon(form, "btnBrowseIcon", "&Browse...", this, &AppNamePage::btnBrowseIcon_Click),
      icoPreview(form, "icoPreview"),
      fraHideIcon(form, "fraHideIcon", false),
      services_(services),
      project_(project) {
    txtAppName.ToolTipText.design(kAppNameTip);
    txtIconFilePath.ToolTipText.design(kIconPathTip);
    btnBrowseIcon.ToolTipText.design(kBrowseIconTip);
    spacesClicked_ = chkSpacesInName.Click.connect([this] { chkSpacesInName_Click(); });
    iconChanged_ = txtIconFilePath.Text.watch([this](const std::string&) { showIcon(); });
}

void AppNamePage::SetupAppNameFrame() {
    Procedure here{services_.errors, "frmQuinloftSettings.SetupAppNameFrame"};
    here([&] { chkSpacesInName.Value(project_->SpacesInNameEnabled() ? 1 : 0); });
    here([&] { chkSpacesInName.ToolTipText(settingTip(*project_, "SpacesInNameEnabled")); });
    here([&] { txtAppName.Text(project_->ProjectName()); });
    here([&] {
        const auto icon = project_->IconFileName();
        if (icon != project_->DefaultIconFileName()) txtIconFilePath.Text(icon);
    });
}

void AppNamePage::chkSpacesInName_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.chkSpacesInName_Click"};
    const bool ticked = chkSpacesInName.Value() == 1;
    here([&] { txtAppName.Text(basic::Replace(txtAppName.Text(), ticked ? "_" : " ", ticked ? " " : "_")); });
}

void AppNamePage::btnBrowseIcon_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnBrowseIcon_Click"};
    CommonDialog cdlMain;
    cdlMain.DefaultExt = "ico";
    cdlMain.Filter = kIconFilter;
    cdlMain.Flags = kExistingFile;
    here([&] { services_.platform.interaction.ShowOpen(cdlMain); });
    if (!cdlMain.FileName.empty()) here([&] { txtIconFilePath.Text(cdlMain.FileName); });
}

std::string AppNamePage::iconPath() const {
    const auto& files = services_.platform.files;
    const auto& path = txtIconFilePath.Text();
    if (path.empty() || files.IsAbsolute(path) || !project_ || project_->ProjectPath().empty()) return path;
    return files.GetAbsolutePathName(files.BuildPath(project_->ProjectPath(), path));
}

void AppNamePage::showIcon() {
    Procedure here{services_.errors, "frmQuinloftSettings.txtIconFilePath_Change"};
    here([&] { icoPreview.FileName(services_.platform.files.PlaceOnDisk(iconPath())); });
}

void AppNamePage::validateAppNameFrame() {
    Procedure here{services_.errors, "frmQuinloftSettings.validateAppNameFrame"};
    auto& user = services_.platform.interaction;
    if (txtIconFilePath.Text().empty()) return;
    const auto path = here.value([&] { return iconPath(); });
    if (!here.value([&] { return services_.platform.files.FileExists(path); })) {
        here([&] { user.MsgBox(kIconMissing, vbExclamation, kTitle); });
        here([&] { txtIconFilePath.Text(""); });
        here([&] { project_->IconFileName(""); });
        return;
    }
    if (here.value([&] { return project_->IconWarning(); }) || hasSafeImage(path)) return;
    here([&] { user.MsgBox(kIconWarning, vbExclamation, kIconWarningTitle); });
    here([&] { project_->IconWarning(true); });
}

/// What is not an icon is safe too: there is nothing to warn of.
bool AppNamePage::hasSafeImage(const std::string& path) const {
    iconReader reader{services_.platform.files};
    if (reader.LoadIconFile(path) != iconReader::Done) return true;
    for (std::int16_t index = 1; index <= reader.ImageCount(); ++index) {
        IconImage image;
        if (reader.GetImageInfo(index, image) == iconReader::Done && image.BitCount < kDeepColour) return true;
    }
    return false;
}

void AppNamePage::saveAppNameFrame() {
    Procedure here{services_.errors, "frmQuinloftSettings.saveAppNameFrame"};
    here([&] { project_->SpacesInNameEnabled(chkSpacesInName.Value() == 1); });
    here([&] { project_->IconFileName(txtIconFilePath.Text()); });
}

} // namespace fernwick
