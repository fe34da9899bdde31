#pragma once
// The introduction.
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// A slide show of nine pages. The last two contain links to installed files and the vendor's pages.
class frmGettingStarted : public Form {
public:
    frmGettingStarted(Platform& platform, const modQLInstallInfo& install, modAddinPrefsManagement& prefs,
                      ErrorReport& errors);
    const char* typeName() const override { return "frmGettingStarted"; }

    PictureBox pictMain{this, "pictMain"};
    Label lblTitle{this, "lblTitle"};
    Label lblBody{this, "lblBody"};
    Label lblPage{this, "lblPage"};
    ListBox lstLinks{this, "lstLinks", &frmGettingStarted::lstLinks_Click, &frmGettingStarted::lstLinks_DblClick};
    CommandButton cmdOpenLink{this, "cmdOpenLink", "&Open", &frmGettingStarted::cmdOpenLink_Click};
    CommandButton cmdPrev{this, "cmdPrev", "&Back", &frmGettingStarted::cmdPrev_Click};
    CommandButton cmdNext{this, "cmdNext", "&Next", &frmGettingStarted::cmdNext_Click};
    CommandButton cmdDone{this, "cmdDone", "&Done", &frmGettingStarted::cmdDone_Click};
    CheckBox chkDontShow;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void lstLinks_Click();
    void lstLinks_DblClick();
    void cmdOpenLink_Click();
    void cmdPrev_Click();
    void cmdNext_Click();
    void cmdDone_Click();
    void chkDontShow_Click();

    /// From 0.
    void showPage(int page);
    void showPicture();
    void showLinks(Procedure& here, int page);
    void addLink(const char* text, std::string target);
    void openLink(Procedure& here);

    Platform& platform_;
    const modQLInstallInfo& install_;
    modAddinPrefsManagement& prefs_;
    ErrorReport& errors_;
    int page_ = 0;
    /// Whether the form is visible.
    bool isShown_ = false;
    /// Targets of the entries of lstLinks.
    std::vector<std::string> linkTargets_;
    /// Connected at the end of Load, because Load resets the box without a click by the user.
    Subscription dontShowClicks_;
};

} // namespace fernwick
