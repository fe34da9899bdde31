// The introduction's window: its pictures, its keys, and the stored check box.
#include "Add-in/core/connect/Modules.h"
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/bridge/form_window.h"
#include "Apps/workbench/window/workbench.h"
#include "tests/workbench/desktop_user.h"
#include "tests/workbench/desktop_world.h"
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <set>

namespace {

class Introduction : public test::DesktopWorld {
protected:
    Introduction() { platform.app.Path = FERNWICK_SOURCE_DIR "/installation/VB Toolkit/Bin"; }
    void show(const std::function<void(QDialog&)>& act) {
        test::whenShown(act);
        modules.gettingStarted.ShowModal();
    }
    /// Runs `act` once the first page has its picture: the form draws it after its window is on screen.
    static void whenPictured(const std::function<void(QDialog&)>& act) {
        test::whenShown<QDialog>([act](QDialog& window) {
            const bool isPictured = !window.findChild<QLabel*>("pictMain")->pixmap().isNull();
            isPictured ? act(window) : whenPictured(act);
        });
    }
    static QString text(QDialog& window, const char* label) { return window.findChild<QLabel*>(label)->text(); }
    fernwick::Modules modules{platform};
};

} // namespace

TEST_F(Introduction, IsReadWithTheKeyboardAlone) {
    show([](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "Introduction to Fernwick");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_Return);
        QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(window, "lblPage") == "3 of 9"; }));
        QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return text(window, "lblTitle") == " 2. Custom Form Sizes"; }));
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(modules.gettingStarted.isLoaded());
}

TEST_F(Introduction, EachPageHasItsPicture) {
    whenPictured([](QDialog& window) {
        std::vector<QImage> pictures;
        for (int page = 0; page < 9; ++page, test::click(window, "cmdNext")) {
            const auto drawn = window.findChild<QLabel*>("pictMain");
            EXPECT_EQ(drawn->pixmap().size(), QSize(960, 640)) << page;
            EXPECT_EQ(drawn->contentsRect().size(), QSize(480, 320)) << page;
            for (const auto& other : pictures) EXPECT_NE(drawn->pixmap().toImage(), other) << page;
            pictures.push_back(drawn->pixmap().toImage());
        }
        window.close();
    });
    modules.gettingStarted.ShowModal();
}

TEST_F(Introduction, ItsTextFitsAndItsButtonsStayInPlace) {
    show([](QDialog& window) {
        const auto size = window.size();
        for (int page = 0; page < 9; ++page, test::click(window, "cmdNext")) {
            QTest::qWait(1);
            const auto* body = window.findChild<QLabel*>("lblBody");
            EXPECT_GE(body->height(), body->heightForWidth(body->width())) << page;
            EXPECT_EQ(window.size(), size) << page;
            EXPECT_TRUE(window.grab().save(QString(FERNWICK_BINARY_DIR "/introduction-%1.png").arg(page + 1)));
        }
        workbench::apply(workbench::Theme::Dark);
        QTest::qWait(1);
        EXPECT_TRUE(window.grab().save(FERNWICK_BINARY_DIR "/introduction-dark.png"));
        workbench::apply(workbench::Theme::Light);
        window.close();
    });
}

TEST_F(Introduction, ALinkIsOpenedFromTheList) {
    modules.gettingStarted.Load();
    show([](QDialog& window) {
        auto* links = window.findChild<QListWidget*>("lstLinks");
        EXPECT_FALSE(links->isVisible());
        for (int page = 0; page < 7; ++page) test::click(window, "cmdNext");
        EXPECT_TRUE(links->isVisible());
        EXPECT_EQ(links->count(), 3);
        EXPECT_FALSE(window.findChild<QPushButton*>("cmdOpenLink")->isEnabled());
        QTest::mouseClick(links->viewport(), Qt::LeftButton, {}, links->visualItemRect(links->item(1)).center());
        EXPECT_TRUE(window.findChild<QPushButton*>("cmdOpenLink")->isEnabled());
        window.close();
    });
}

namespace {

/// A desktop that shows the introduction at its start.
class FirstStart : public testing::Test {
protected:
    FirstStart() { workbench::apply(workbench::Theme::Light); }
    static bool asksAgain() {
        workbench::Workbench bench;
        return bench.addIn().prefs.GetStartTutorial();
    }
    ~FirstStart() override {
        workbench::Workbench bench;
        bench.addIn().prefs.SetStartTutorial(false);
    }
};

} // namespace

TEST_F(FirstStart, FindsPicturesAndAddressesInTheInstallation) {
    workbench::Workbench bench;
    const auto& app = bench.addIn().platform.app;
    EXPECT_TRUE(bench.addIn().platform.files.FileExists(app.Path + "/welcome.jpg"));
    const std::set<std::string> addresses{app.SupportWebAddress, app.WebAddress,      app.RuntimeWebAddress,
                                          app.SamplesWebAddress, app.ForumWebAddress, app.DevelopersWebAddress};
    EXPECT_EQ(addresses.size(), 6U);
    for (const auto& address : addresses) EXPECT_TRUE(address.starts_with("https://")) << address;
}

TEST_F(FirstStart, ShowsTheIntroductionUntilItsBoxIsTicked) {
    workbench::Workbench bench;
    bench.addIn().prefs.SetStartTutorial(true);
    bench.window().show();
    test::whenShown([](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "Introduction to Fernwick");
        window.findChild<QCheckBox*>("chkDontShow")->click();
        test::click(window, "cmdDone");
    });
    bench.connect();
    EXPECT_FALSE(asksAgain());
}
