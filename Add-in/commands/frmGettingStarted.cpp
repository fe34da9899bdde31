#include "Add-in/commands/frmGettingStarted.h"
#include "Add-in/commands/getting_started_pages.h"
#include <utility>

namespace fernwick {

namespace {

constexpr int kLastPage = kGettingStartedPages - 1;
constexpr char kTutorial[] = "VB Toolkit\\Doc\\Hello World Tutorial\\hw_write.html";
constexpr char kGuide[] = "VB Toolkit\\Doc\\Quinloft_Users_Guide.chm";

/// LoadPicture. Only the front end reads the picture.
std::string pictureInFolder(const Platform& platform, const char* name) {
    const auto path = platform.files.Canonical(platform.files.BuildPath(platform.app.Path, name));
    if (!platform.files.FileExists(path)) throw basic::RuntimeError(basic::kFileNotFound, "File not found: " + path);
    return path;
}

} // namespace

frmGettingStarted::frmGettingStarted(Platform& platform, const modQLInstallInfo& install,
                                     modAddinPrefsManagement& prefs, ErrorReport& errors)
    : Form(platform.interaction),
      chkDontShow(this, "chkDontShow", getting_started_texts::kDontShow),
      platform_(platform),
      install_(install),
      prefs_(prefs),
      errors_(errors) {
    Caption.design(getting_started_texts::kCaption);
    chkDontShow.ToolTipText.design(getting_started_texts::kDontShowTip);
    cmdNext.Default = true;
    cmdDone.Cancel = true;
}

void frmGettingStarted::Form_Load() {
    Procedure here{errors_, "frmGettingStarted.Form_Load"};
    chkDontShow.Value(here.test([&] { return prefs_.GetStartTutorial(); }) ? 0 : 1);
    dontShowClicks_ = chkDontShow.Click.connect([this] { chkDontShow_Click(); });
    isShown_ = false;
    showPage(0);
}

/// Errors about the first picture are shown on top of the form, so it must be visible first. Closing the form earlier
/// skips the picture.
void frmGettingStarted::Form_Activate() {
    if (std::exchange(isShown_, true)) return;
    showPicture();
}

void frmGettingStarted::Form_Unload() { dontShowClicks_.reset(); }

void frmGettingStarted::showPage(int page) {
    Procedure here{errors_, "frmGettingStarted.ShowPage"};
    page_ = page;
    const auto& shown = kGettingStarted[std::size_t(page)];
    lblTitle.Caption(shown.title);
    lblBody.Caption(shown.body);
    lblPage.Caption(std::to_string(page + 1) + getting_started_texts::kOf + std::to_string(kGettingStartedPages));
    if (isShown_) showPicture();
    showLinks(here, page);
    cmdPrev.Enabled(page > 0);
    cmdNext.Enabled(page < kLastPage);
}

/// A page whose picture is missing shows none instead of that of another page.
void frmGettingStarted::showPicture() {
    Procedure here{errors_, "frmGettingStarted.ShowPage"};
    pictMain.Picture("");
    here([&] { pictMain.Picture(pictureInFolder(platform_, kGettingStarted[std::size_t(page_)].picture)); });
}

void frmGettingStarted::showLinks(Procedure& here, int page) {
    namespace texts = getting_started_texts;
    lstLinks.Clear();
    linkTargets_.clear();
    cmdOpenLink.Enabled(false);
    if (page == kWebsitePage) {
        addLink(texts::kSupportLink, platform_.app.SupportWebAddress);
        addLink(texts::kSamplesLink, platform_.app.SamplesWebAddress);
        addLink(texts::kForumLink, platform_.app.ForumWebAddress);
    } else if (page == kNextStepsPage) {
        here([&] { addLink(texts::kTutorialLink, install_.installed(kTutorial)); });
        here([&] { addLink(texts::kInstalledSamplesLink, install_.GetQuinloftSamplesDir()); });
        here([&] { addLink(texts::kGuideLink, install_.installed(kGuide)); });
        addLink(texts::kDevelopersLink, platform_.app.DevelopersWebAddress);
    }
    const bool hasLinks = !linkTargets_.empty();
    lstLinks.Visible(hasLinks);
    cmdOpenLink.Visible(hasLinks);
}

void frmGettingStarted::addLink(const char* text, std::string target) {
    lstLinks.AddItem(text);
    linkTargets_.push_back(std::move(target));
}

void frmGettingStarted::lstLinks_Click() { cmdOpenLink.Enabled(lstLinks.ListIndex() >= 0); }

void frmGettingStarted::lstLinks_DblClick() {
    Procedure here{errors_, "frmGettingStarted.lstLinks_DblClick"};
    openLink(here);
}

void frmGettingStarted::cmdOpenLink_Click() {
    Procedure here{errors_, "frmGettingStarted.cmdOpenLink_Click"};
    openLink(here);
}

void frmGettingStarted::openLink(Procedure& here) {
    const int chosen = lstLinks.ListIndex();
    if (chosen < 0) return;
    const std::string target = linkTargets_[std::size_t(chosen)];
    const auto error = basic::attempt([&] { platform_.shell.Open(target); });
    if (error.Number == 0) return;
    here(
        [&] { user_.MsgBox(getting_started_texts::kCantOpen + target, vbExclamation, getting_started_texts::kTitle); });
}

void frmGettingStarted::cmdPrev_Click() {
    if (page_ > 0) showPage(page_ - 1);
}

void frmGettingStarted::cmdNext_Click() {
    if (page_ < kLastPage) showPage(page_ + 1);
}

void frmGettingStarted::cmdDone_Click() { Unload(); }

/// The preference is the machine's: for a user without write access the introduction remains on.
void frmGettingStarted::chkDontShow_Click() {
    Procedure here{errors_, "frmGettingStarted.chkDontShow_Click"};
    here([&] { prefs_.SetStartTutorial(chkDontShow.Value() == 0); });
}

} // namespace fernwick
