#pragma once
// The page "App Name/Icon": whether underscores of the name show as spaces, and the application's icon.
#include "Add-in/platform/controls.h"
#include "Add-in/platform/file_icon.h"
#include "Add-in/platform/frame.h"
#include "Add-in/platform/text_box.h"
#include "Add-in/settings/settings_services.h"
#include "Add-in/settings/settings_texts.h"

namespace fernwick {

class AppNamePage {
public:
    AppNamePage(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project);

    Frame fraAppName;
    Label lblAppName, lblName, lblIcon;
    CheckBox chkSpacesInName;
    TextBox txtAppName, txtIconFilePath;
    CommandButton btnBrowseIcon;
    FileIcon icoPreview;
    /// Never shown.
    Frame fraHideIcon;

    void SetupAppNameFrame();
    /// Shows the name as applications will.
    void chkSpacesInName_Click();
    /// Warns about a missing icon and, once for each project, about one that devices may not be able to draw.
    void validateAppNameFrame();
    void saveAppNameFrame();

private:
    void btnBrowseIcon_Click();
    /// A relative path counts from the project's folder.
    std::string iconPath() const;
    bool hasSafeImage(const std::string& path) const;
    void showIcon();

    const SettingsServices& services_;
    /// The dialog's.
    const basic::Ref<clsQLProject>& project_;
    Subscription spacesClicked_, iconChanged_;
};

} // namespace fernwick
