// Pictures of the windows that users see every day, in both themes, for looking at. Taken only by
// scripts/make-window-pictures, which names the folder.
#include "Apps/workbench/bridge/form_window.h"
#include "Apps/workbench/options/options_dialog.h"
#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/window/command_keys.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QDir>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

using namespace test;

namespace {

struct Windows : XDesktop {
    /// The whole screen in both themes.
    void take(const char* name) {
        for (const auto theme : {workbench::Theme::Light, workbench::Theme::Dark})
            ask([&] {
                constexpr int kUntilDrawn = 150; // milliseconds
                window().setTheme(theme);
                QTest::qWait(kUntilDrawn);
                const auto picture = window().screen()->grabWindow(0).toImage();
                const QDir folder(qEnvironmentVariable("FERNWICK_PICTURES"));
                const auto file = QString("%1-%2.png").arg(name, theme == workbench::Theme::Light ? "light" : "dark");
                EXPECT_TRUE(picture.save(folder.filePath(file))) << file.toStdString();
            });
    }
    /// Shows a form of the add-in without running it.
    void takeForm(const char* name, fernwick::Form& form) {
        std::unique_ptr<workbench::FormWindow> shown;
        ask([&] {
            form.Load();
            shown = std::make_unique<workbench::FormWindow>(form, &window());
            shown->show();
        });
        take(name);
        ask([&] {
            shown.reset();
            form.Unload();
        });
    }
    /// Each page of the options.
    void takeOptions() {
        std::unique_ptr<workbench::OptionsDialog> options;
        ask([&] {
            options = std::make_unique<workbench::OptionsDialog>(
                workbench::keyOptions(bench->host()), [] {}, &window());
            options->show();
        });
        for (const char* page : {"editor", "colours", "designer", "keys"}) {
            take(qPrintable(QString("options-%1").arg(page)));
            ask([&] {
                auto& tabs = *options->findChild<QTabWidget*>();
                tabs.setCurrentIndex(tabs.currentIndex() + 1);
            });
        }
        ask([&] { options.reset(); });
    }
    void compileWithAnError() {
        ask([this] { component("frmList")->CodeModule()->InsertLines(1, "Private shown As Strin g"); });
        choose("&Fernwick", "Compile and &Validate");
        answerUntil("messages", {With::Mouse, {"btnYes", "OK"}}, [this] {
            return !QApplication::activeModalWidget() && messages() && messages()->model()->rowCount() > 0;
        });
    }
};

} // namespace

TEST_F(Windows, OfEveryDay) {
    if (!qEnvironmentVariableIsSet("FERNWICK_PICTURES")) GTEST_SKIP() << "run by scripts/make-window-pictures";
    openSample("AddressBook");
    ask([this] { window().design().open(component("frmPerson")); });
    take("designer");
    ask([this] { component("frmList")->CodeModule()->CodePane()->Show(); });
    take("code");
    choose("&Edit", "&Find...");
    take("find");
    compileWithAnError();
    take("messages");
    std::unique_ptr<workbench::ProjectProperties> properties;
    ask([&] {
        properties = std::make_unique<workbench::ProjectProperties>(bench->host().ActiveVBProject(), &window());
        properties->show();
    });
    take("project-properties");
    ask([&] { properties.reset(); });
    takeOptions();
    auto& forms = bench->addIn();
    takeForm("device-choice", forms.chooseTarget);
    takeForm("compile", forms.compile);
    takeForm("send", forms.sendToDevice);
    takeForm("introduction", forms.gettingStarted);
    takeForm("about", forms.about);
}
