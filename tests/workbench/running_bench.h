#pragma once
// The whole desktop, drawn into memory.
#include "Apps/workbench/window/workbench.h"
#include "tests/support/sample_project.h"
#include "tests/workbench/desktop_user.h"
#include <QAbstractEventDispatcher>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>

namespace test {

/// The base of all tests of the desktop: the program and a folder for its projects.
class RunningBench : public testing::Test {
protected:
    RunningBench() {
        QSettings().clear(); // of the test before
        workbench::apply(workbench::Theme::Light);
    }
    ~RunningBench() override { end(); }

    void start() {
        bench = std::make_unique<workbench::Workbench>();
        window().show();
        settle();
    }
    /// Ends the program without saving.
    void end() {
        if (!bench) return;
        for (const auto& open : bench->host().VBProjects()->items()) clean(open);
        bench.reset();
    }
    static void clean(const vbide::Ref<vbide::VBProject>& project) {
        project->IsDirty(false);
        for (const auto& component : project->VBComponents()->items()) component->IsDirty(false);
    }
    void open(const std::string& path) {
        bench->open(path);
        bench->connect();
        settle();
    }
    /// Copies a sample and returns its project file.
    std::string sample(const std::string& name) {
        std::filesystem::copy(std::filesystem::path(FERNWICK_SOURCE_DIR) / "samples" / name, folder / name,
                              std::filesystem::copy_options::recursive);
        return folder / (name + "/" + name + ".vbp");
    }
    /// Copies the sample HelloWorld in the format of projects before 3.5.
    std::string oldSample() {
        const auto path = sample("HelloWorld");
        auto text = folder.read("HelloWorld/HelloWorld.vbp");
        const std::string version = "ProjectVersion=3.5\r\n";
        text.erase(text.find(version), version.size());
        folder.write("HelloWorld/HelloWorld.vbp", text);
        return path;
    }
    /// Waits, then runs Qt's loop until nothing is pending, as on a busy machine the wait may end early and drawing may
    /// cause more drawing.
    static void settle(int milliseconds = 20) {
        QTest::qWait(milliseconds);
        constexpr int kMostTurns = 100;
        auto* const loop = QAbstractEventDispatcher::instance();
        for (int turn = 0; turn < kMostTurns && loop->processEvents(QEventLoop::AllEvents);) ++turn;
    }

    workbench::MainWindow& window() { return bench->window(); }
    vbide::Ref<vbide::VBProject> project() { return bench->host().ActiveVBProject(); }
    vbide::Ref<vbide::VBComponent> component(const std::string& name) { return project()->VBComponents()->Item(name); }
    /// Null if there is none. The name of a step may follow the text ("&Undo Move").
    QAction* menuItem(const QString& menu, const QString& item) {
        for (auto* top : window().menuBar()->actions())
            if (top->text() == menu)
                for (auto* action : top->menu()->actions())
                    if (action->text() == item || action->text().startsWith(item + " ")) return action;
        return nullptr;
    }

    TempFolder folder;
    std::unique_ptr<workbench::Workbench> bench;
};

} // namespace test
