// The window's layout, and the program as started by the desktop.
#include "Apps/common/version.h"
#include "tests/workbench_x11/x_desktop.h"
#include <QDockWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <QToolBar>
#include <gmock/gmock.h>
#include <set>

using namespace test;
using workbench::BarPlace;

namespace {

struct Window : XDesktop {
    QToolBar& toolBar(const QString& name) { return *window().findChild<QToolBar*>(name); }
    bool isEnabled(const QString& name) { return toolBar(name).actions().front()->isEnabled(); }
    host::Bar& bar(const char* name) {
        return *basic::cast<host::Bar>(bench->host().CommandBars()->Item(name)).shared();
    }
    BarPlace place(const char* name) {
        return ask([&] { return workbench::placeOf(bar(name)); });
    }
    QPoint handleOf(const QString& name) {
        return ask([&] { return toolBar(name).mapToGlobal(QPoint(4, 4)); });
    }
    /// Closes the window and starts again.
    void restart() {
        choose("&File", "E&xit");
        eventually("the window is closed", [this] { return !window().isVisible(); });
        ask([this] { bench.reset(); });
        start();
        connect();
    }
};

} // namespace

TEST_F(Window, WithoutAProjectTheAddInsCommandsAreDisabled) {
    connect();
    EXPECT_FALSE(ask([this] { return isEnabled("Fernwick"); }));
}

TEST_F(Window, WithAProjectTheAddInsCommandsAreEnabled) {
    openSample("HelloWorld");
    eventually("its toolbar works", [this] { return isEnabled("Fernwick"); });
    EXPECT_TRUE(ask([this] { return menu("&Fernwick")->actions().front()->isEnabled(); }));
}

TEST_F(Window, DraggedToolbarsAreRestored) {
    connect();
    drag(handleOf("Fernwick"), ask([this] { return window().mapToGlobal(QPoint(6, 300)); }));
    eventually("it is at the left", [this] { return bar("Fernwick").Position() == office::msoBarLeft; });
    drag(handleOf("Quinloft Utilities"), ask([this] { return window().mapToGlobal(QPoint(400, 350)); }));
    eventually("it floats", [this] { return bar("Quinloft Utilities").Position() == office::msoBarFloating; });
    const std::vector left{place("Fernwick"), place("Quinloft Utilities"), place("Standard")};
    ask([this] { bench->addIn().toolbars.SaveAllToolbarState(); }); // as when a project closes
    restart();
    eventually("it floats again", [this] { return toolBar("Quinloft Utilities").isFloating(); });
    EXPECT_EQ((std::vector{place("Fernwick"), place("Quinloft Utilities"), place("Standard")}), left);
    ask([this] {
        workbench::setPlace(bar("Fernwick"), {});
        workbench::setPlace(bar("Quinloft Utilities"), {});
        bench->addIn().toolbars.SaveAllToolbarState();
    });
}

TEST_F(Window, ADraggedDockIsRestored) {
    openSample("HelloWorld");
    const auto title = ask([this] { return window().explorerDock().mapToGlobal(QPoint(60, 8)); });
    drag(title, ask([this] { return window().mapToGlobal(QPoint(500, 400)); }));
    eventually("it floats", [this] { return window().explorerDock().isFloating(); });
    restart();
    EXPECT_TRUE(ask([this] { return window().explorerDock().isFloating(); }));
}

TEST_F(Window, ALetterOfTwoMenusOpensThemInAFixedOrder) {
    connect();
    const auto isOpen = [this](const QString& caption) {
        auto* const popup = QApplication::activePopupWidget();
        return popup && popup == menu(caption);
    };
    for (int times = 0; times < 2; ++times) {
        press({"alt+f"});
        eventually("File is open", [&] { return isOpen("&File"); });
        press({"f"});
        eventually("Fernwick is open", [&] { return isOpen("&Fernwick"); });
        press({"Escape", "Escape"});
        eventually("the menus are closed", [] { return !QApplication::activePopupWidget(); });
    }
}

TEST_F(Window, CopiedCodeReachesOtherPrograms) {
    openSample("HelloWorld");
    click(explorerEntry("frmHello"));
    press({"F7"});
    eventually("the code", [this] { return code() && code()->hasFocus(); });
    press({"ctrl+Home", "shift+End", "ctrl+c"});
    eventually("it is chosen", [this] { return code()->selectedText() == "Option Explicit"; });
    QProcess reader;
    reader.start("xclip", {"-selection", "clipboard", "-o"});
    reader.waitForFinished();
    EXPECT_EQ(reader.readAllStandardOutput(), "Option Explicit");
}

/// Opens it with the right button and chooses with the keyboard.
TEST_F(Window, TheExplorersMenuActsOnItsEntry) {
    openSample("AddressBook");
    rightClick(explorerEntry("clsPerson"));
    eventually("a menu", [] { return QApplication::activePopupWidget() != nullptr; });
    press({"Down", "Return"});
    eventually("the code of clsPerson",
               [this] { return window().code().current() && window().code().tabText(0) == "clsPerson"; });
}

TEST(Program, DescribesItsCommandLine) {
    const auto text = [](const QString& option) {
        QProcess program;
        program.start(qEnvironmentVariable("FERNWICK_WORKBENCH", FERNWICK_WORKBENCH_PROGRAM), {option});
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), 0);
        return program.readAllStandardOutput().toStdString();
    };
    EXPECT_EQ(text("--version"), std::string("workbench ") + apps::kVersion + "\n");
    EXPECT_THAT(text("--help"), testing::EndsWith(R"([options] [PROJECT...]
Turns Visual Basic 6 projects into applications for handhelds.

Options:
  -h, --help     Displays help on commandline options.
  --help-all     Displays help including Qt specific options.
  -v, --version  Displays version information.

Arguments:
  PROJECT        the project or group to open
)"));
}

TEST(Program, OpensTheGivenProjectAndEndsWithItsWindow) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QTemporaryDir home; // of a first start
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const auto* const place :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "FERNWICK_MACHINE_STORE"})
        environment.insert(place, home.path());
    program.setProcessEnvironment(environment);
    program.start(environment.value("FERNWICK_WORKBENCH", FERNWICK_WORKBENCH_PROGRAM),
                  {FERNWICK_SOURCE_DIR "/samples/HelloWorld/HelloWorld.vbp"});
    // the introduction of the first start comes before the project
    findWindow("^Introduction to Fernwick", {"windowactivate", "--sync"});
    press({"alt+F4"});
    findWindow("^HelloWorld - Fernwick Workbench$");
    // first the dialogs in front of the window
    constexpr int kMostDialogs = 20, kBetween = 300;
    for (int closed = 0; closed < kMostDialogs && !program.waitForFinished(kBetween); ++closed) press({"alt+F4"});
    EXPECT_EQ(program.state(), QProcess::NotRunning);
    EXPECT_EQ(program.exitCode(), 0);
}
