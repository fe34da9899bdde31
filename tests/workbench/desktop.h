#pragma once
// The whole desktop over copies of the samples, drawn into memory.
#include "Apps/workbench/scintilla.h"
#include "Apps/workbench/workbench.h"
#include "Host/model/bars.h"
#include "tests/support/sample_project.h"
#include "tests/workbench/desktop_user.h"
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidgetItemIterator>
#include <filesystem>

namespace test {

class Desktop : public testing::Test {
protected:
    Desktop() {
        workbench::apply(workbench::Theme::Light);
        bench = std::make_unique<workbench::Workbench>();
        bench->addIn().prefs.SetStartTutorial(false);
        window().show();
        settle();
    }
    ~Desktop() override {
        for (const auto& project : bench->host().VBProjects()->items()) clean(project);
    }
    static void clean(const basic::Ref<vbide::VBProject>& project) {
        project->IsDirty(false);
        for (const auto& component : project->VBComponents()->items()) component->IsDirty(false);
    }

    workbench::MainWindow& window() { return bench->window(); }
    void openSample(const std::string& name) {
        std::filesystem::copy(std::filesystem::path(FERNWICK_SOURCE_DIR) / "samples" / name, folder / name,
                              std::filesystem::copy_options::recursive);
        open(folder / (name + "/" + name + ".vbp"));
    }
    void open(const std::string& path) {
        bench->open(path);
        bench->connect();
        settle();
    }
    /// Lets everything be drawn that waits for Qt's loop.
    static void settle() {
        QTest::qWait(20);
        constexpr int kMostTurns = 10; // one drawing may ask for another
        for (int turn = 0; turn < kMostTurns; ++turn) QCoreApplication::processEvents();
    }
    vbide::Ref<vbide::VBProject> project() { return bench->host().ActiveVBProject(); }
    vbide::Ref<vbide::VBComponent> component(const std::string& name) { return project()->VBComponents()->Item(name); }
    workbench::CodeEditor& editor(const std::string& name) {
        component(name)->CodeModule()->CodePane()->Show();
        return *window().code().editorOf(component(name));
    }
    /// The texts of the explorer, an entry below another one behind it with its depth.
    std::vector<std::string> explorerEntries() {
        std::vector<std::string> entries;
        for (QTreeWidgetItemIterator at(&window().explorer()); *at; ++at) {
            int depth = 0;
            for (auto* above = (*at)->parent(); above; above = above->parent()) ++depth;
            entries.push_back(std::string(std::size_t(depth), ' ') + (*at)->text(0).toStdString());
        }
        return entries;
    }
    QTreeWidgetItem* entry(const QString& text) {
        const auto found = window().explorer().findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.front();
    }
    void doubleClick(QTreeWidgetItem* item) {
        auto& tree = window().explorer();
        const auto at = tree.visualItemRect(item).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
    }
    std::vector<std::string> compile() { return carryOut("&Fernwick", "Compile and &Validate"); }
    /// Chooses the command, saves where that is asked, and gives the texts of the boxes that come.
    std::vector<std::string> carryOut(const QString& menu, const QString& item) {
        std::vector<std::string> boxes;
        answer([&boxes](QDialog& window) {
            auto* box = dynamic_cast<QMessageBox*>(&window);
            if (!box) return click(window, "btnYes");
            boxes.push_back(box->text().toStdString());
            box->button(QMessageBox::Ok)->click();
        });
        menuItem(menu, item)->trigger();
        answers_.stop();
        settle();
        return boxes;
    }
    /// Does this with every question that comes, until it is stopped.
    void answer(std::function<void(QDialog&)> act) {
        answers_.disconnect();
        QObject::connect(&answers_, &QTimer::timeout, [act] {
            auto* window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            const bool asks = window && window->isVisible() && !window->findChildren<QAbstractButton*>().isEmpty();
            if (asks) act(*window);
        });
        answers_.start(10);
    }
    QAction* menuItem(const QString& menu, const QString& item) {
        for (auto* top : window().menuBar()->actions())
            if (top->text() == menu)
                for (auto* action : top->menu()->actions())
                    if (action->text() == item) return action;
        return nullptr;
    }

    TempFolder folder;
    QTimer answers_;
    std::unique_ptr<workbench::Workbench> bench;
};

} // namespace test
