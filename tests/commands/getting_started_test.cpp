// The introduction: its pages, its links, and the preference to show it.
#include "Add-in/commands/frmGettingStarted.h"
#include "commands_world.h"
#include <fstream>
#include <sstream>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kMachinePrefs[] = "SOFTWARE\\Quinloft\\AddinPrefs";

std::string goldenText(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(FERNWICK_SOURCE_DIR "/tests/commands/golden/" + name).rdbuf();
    return text.str();
}

class GettingStarted : public testing::Test, protected test::CommandsWorld {
protected:
    struct Opener : fernwick::Shell {
        std::vector<std::string> opened;
        bool fails = false;
        int Start(const std::string&) override { return 1; }
        void Open(const std::string& document) override {
            if (fails) throw basic::RuntimeError(basic::kFileNotFound);
            opened.push_back(document);
        }
    };
    GettingStarted() {
        for (const auto* name :
             {"welcome", "forms", "tavlets", "menu", "toolbars", "startmenu", "template", "website", "finished"})
            files.files[std::string("/addin/") + name + ".jpg"] = {};
        storeTutorial("True");
    }
    void storeTutorial(const std::string& value) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, kMachinePrefs, "StartTutorial", value);
    }
    /// Shows the introduction and runs `act` in it.
    void show(const std::function<void()>& act = [] {}) {
        user.whenShown["frmGettingStarted"] = [act](fernwick::Form&) { act(); };
        intro.ShowModal();
    }
    void next(int times = 1) {
        for (; times > 0; --times) intro.cmdNext.press();
    }
    std::vector<std::string> links() const {
        std::vector<std::string> all;
        for (int i = 0; i < intro.lstLinks.ListCount(); ++i) all.push_back(intro.lstLinks.List(i));
        return all;
    }
    /// What each link of a page opens.
    std::vector<std::string> targetsOfPage(int page) {
        opener.opened.clear();
        show([&] {
            next(page);
            for (int i = 0; i < intro.lstLinks.ListCount(); ++i) {
                intro.lstLinks.ListIndex(i);
                intro.cmdOpenLink.press();
            }
        });
        return opener.opened;
    }

    Opener opener;
    fernwick::Platform maker{user,
                             loop,
                             registry,
                             files,
                             processes,
                             classes,
                             environment,
                             pasteboard,
                             opener,
                             screen,
                             windows,
                             clock,
                             pictures,
                             {"QLVBAddIn", "/addin", "https://support", "https://web", "https://runtime",
                              "https://samples", "https://forum", "https://developers"}};
    fernwick::frmGettingStarted intro{maker, install, prefs, errors};
};

TEST_F(GettingStarted, ShowsItsNinePages) {
    std::string shown;
    show([&] {
        for (int page = 0; page < 9; ++page, next()) {
            shown += intro.lblPage.Caption() + "|" + intro.lblTitle.Caption() + "|" + intro.pictMain.Picture() + "\n";
            shown += intro.lblBody.Caption() + "\n";
            for (const auto& link : links()) shown += "-> " + link + "\n";
        }
    });
    std::erase(shown, '\r');
    EXPECT_EQ(shown, goldenText("introduction.txt"));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(GettingStarted, TheFirstPageHasNoBack) {
    show([&] {
        EXPECT_FALSE(intro.cmdPrev.Enabled());
        intro.cmdPrev.Click.raise();
        EXPECT_EQ(intro.lblPage.Caption(), "1 of 9");
        next();
        EXPECT_TRUE(intro.cmdPrev.Enabled());
        intro.cmdPrev.press();
        EXPECT_EQ(intro.lblTitle.Caption(), " 1. Introduction");
        EXPECT_FALSE(intro.cmdPrev.Enabled());
    });
}

TEST_F(GettingStarted, TheLastPageHasNoNext) {
    show([&] {
        next(8);
        EXPECT_FALSE(intro.cmdNext.Enabled());
        intro.cmdNext.Click.raise();
        EXPECT_EQ(intro.lblPage.Caption(), "9 of 9");
        intro.cmdPrev.press();
        EXPECT_TRUE(intro.cmdNext.Enabled());
        EXPECT_EQ(intro.lblPage.Caption(), "8 of 9");
    });
}

TEST_F(GettingStarted, BeginsAtItsFirstPageEachTime) {
    show([&] { next(8); });
    show([&] {
        EXPECT_EQ(intro.lblPage.Caption(), "1 of 9");
        EXPECT_FALSE(intro.cmdOpenLink.Visible());
    });
}

TEST_F(GettingStarted, DoneClosesIt) {
    EXPECT_TRUE(intro.cmdDone.Cancel);
    show([&] {
        intro.cmdDone.press();
        EXPECT_FALSE(intro.isLoaded());
    });
}

TEST_F(GettingStarted, OnlyTheLastTwoPagesHaveLinks) {
    show([&] {
        for (int page = 0; page < 9; ++page, next()) {
            EXPECT_EQ(intro.lstLinks.Visible(), page >= 7) << page;
            EXPECT_EQ(intro.cmdOpenLink.Visible(), page >= 7) << page;
        }
        intro.cmdPrev.press();
        EXPECT_EQ(links().size(), 3U);
        intro.cmdPrev.press();
        EXPECT_FALSE(intro.lstLinks.Visible());
        EXPECT_THAT(links(), IsEmpty());
    });
}

TEST_F(GettingStarted, ALinkIsChosenBeforeItOpens) {
    show([&] {
        next(7);
        EXPECT_FALSE(intro.cmdOpenLink.Enabled());
        intro.lstLinks.DblClick.raise();
        intro.lstLinks.ListIndex(1);
        EXPECT_TRUE(intro.cmdOpenLink.Enabled());
        next();
        EXPECT_FALSE(intro.cmdOpenLink.Enabled());
        intro.cmdOpenLink.Click.raise();
    });
    EXPECT_THAT(opener.opened, IsEmpty());
}

TEST_F(GettingStarted, TheWebsitePageLinksToTheVendor) {
    EXPECT_THAT(targetsOfPage(7), ElementsAre("https://support", "https://samples", "https://forum"));
}

TEST_F(GettingStarted, TheNextStepsLinkToInstalledFiles) {
    EXPECT_THAT(targetsOfPage(8),
                ElementsAre("/install/VB Toolkit/Doc/Hello World Tutorial/hw_write.html", "/install/VB Toolkit/Samples",
                            "/install/VB Toolkit/Doc/Quinloft_Users_Guide.chm", "https://developers"));
}

TEST_F(GettingStarted, ADoubleClickOpensALink) {
    show([&] {
        next(7);
        intro.lstLinks.ListIndex(2);
        intro.lstLinks.DblClick.raise();
    });
    EXPECT_THAT(opener.opened, ElementsAre("https://forum"));
}

TEST_F(GettingStarted, NamesALinkThatCannotBeOpened) {
    opener.fails = true;
    const auto effects = effectsOf([&] {
        show([&] {
            next(8);
            intro.lstLinks.ListIndex(0);
            intro.cmdOpenLink.press();
            intro.lstLinks.DblClick.raise();
        });
    });
    const auto box = "box 48 Fernwick: Unable to open resource on network or machine: "
                     "/install/VB Toolkit/Doc/Hello World Tutorial/hw_write.html";
    EXPECT_THAT(effects, ElementsAre("form frmGettingStarted", box, box));
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(GettingStarted, WithoutAnInstallationTheLinksFail) {
    registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "");
    EXPECT_THAT(targetsOfPage(8), ElementsAre("", "", "", "https://developers"));
}

TEST_F(GettingStarted, ReportsAMissingPictureAndShowsThePage) {
    files.files.erase("/addin/forms.jpg");
    show([&] {
        next();
        EXPECT_EQ(intro.pictMain.Picture(), "");
        EXPECT_EQ(intro.lblTitle.Caption(), " 2. Custom Form Sizes");
        EXPECT_EQ(intro.lblPage.Caption(), "2 of 9");
        EXPECT_TRUE(intro.cmdPrev.Enabled());
        next();
        EXPECT_EQ(intro.pictMain.Picture(), "/addin/tavlets.jpg");
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmGettingStarted.ShowPage [53]"));
}

TEST_F(GettingStarted, LoadsTheFirstPictureOnceVisible) {
    files.files.erase("/addin/welcome.jpg");
    intro.Load();
    EXPECT_THAT(errors.seen, IsEmpty());
    EXPECT_EQ(intro.lblPage.Caption(), "1 of 9");
    show([&] {
        intro.activate(); // as after a box
        EXPECT_EQ(intro.pictMain.Picture(), "");
    });
    EXPECT_THAT(errors.seen, ElementsAre("frmGettingStarted.ShowPage [53]"));
}

class StartPreference : public GettingStarted {
protected:
    std::string stored() {
        const fernwick::RegistryKey key{registry2, registry2.OpenKey(fernwick::HKEY_LOCAL_MACHINE, kMachinePrefs, 1)};
        return registry2.GetStringValue(key.handle(), "StartTutorial").text;
    }
};

TEST_F(StartPreference, IsWhatTheBoxShows) {
    show([&] { EXPECT_EQ(intro.chkDontShow.Value(), 0); });
    storeTutorial("False");
    show([&] { EXPECT_EQ(intro.chkDontShow.Value(), 1); });
    EXPECT_EQ(stored(), "False"); // without a click
}

TEST_F(StartPreference, AClickStoresTheOppositeOfTheBox) {
    show([&] {
        intro.chkDontShow.Value(1);
        EXPECT_EQ(stored(), "False");
        intro.chkDontShow.Value(0);
        EXPECT_EQ(stored(), "True");
        intro.chkDontShow.Value(1);
    });
    EXPECT_EQ(stored(), "False");
}

TEST_F(StartPreference, ALaterShowDoesNotChangeIt) {
    show([&] { intro.chkDontShow.Value(1); });
    show([&] { EXPECT_EQ(intro.chkDontShow.Value(), 1); });
    EXPECT_EQ(stored(), "False");
}

TEST_F(StartPreference, WithoutWriteAccessTheBoxIsNotStored) {
    std::uint32_t root = fernwick::HKEY_LOCAL_MACHINE;
    registry.RegDeleteKey(root, kMachinePrefs); // can't be opened, and opening does not create it
    show([&] { intro.chkDontShow.Value(1); });
    show([&] { EXPECT_EQ(intro.chkDontShow.Value(), 0); });
    EXPECT_THAT(errors.seen, IsEmpty());
}

TEST_F(StartPreference, ANonBooleanIsReportedAndCountsAsTrue) {
    storeTutorial("maybe");
    show([&] { EXPECT_EQ(intro.chkDontShow.Value(), 0); });
    EXPECT_THAT(errors.seen, ElementsAre("frmGettingStarted.Form_Load [13]"));
}

TEST_F(GettingStarted, AFailingCallLosesOnlyItself) {
    opener.fails = true; // to get boxes
    const auto session = [&] {
        return effectsOf([&] {
            (void)basic::attempt([&] {
                show([&] {
                    next(7);
                    intro.lstLinks.ListIndex(0);
                    intro.cmdOpenLink.press();
                    intro.lstLinks.DblClick.raise();
                    EXPECT_EQ(intro.lblPage.Caption(), "8 of 9");
                });
            });
        });
    };
    const auto whole = session();
    for (int failing = 2;; ++failing) { // the first is the form itself
        errors.injected = 0;
        trace.calls = 0;
        trace.failing = failing;
        const auto now = session();
        trace.failing = 0;
        if (trace.calls < failing) break;
        EXPECT_EQ(test::lost(whole, now).size(), 1U) << failing;
        EXPECT_EQ(errors.injected, 1) << failing;
        EXPECT_FALSE(intro.isLoaded());
    }
}

} // namespace
