#pragma once
// The whole desktop on a display, with a user's actions.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/window/workbench.h"
#include "tests/support/temp_folder.h"
#include "tests/workbench_x11/hands.h"
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTreeView>
#include <filesystem>
#include <gtest/gtest.h>

namespace test {

class XDesktop : public testing::Test {
protected:
    XDesktop() {
        ask([this] {
            QSettings().clear();
            std::filesystem::remove_all(qEnvironmentVariable("FERNWICK_DEVICES").toStdString());
        });
        start();
    }
    ~XDesktop() override {
        ask([this] {
            // the objects below a dialog's loop must not be destroyed while it runs
            if (QApplication::activeModalWidget()) std::_Exit(1);
            for (const auto& project : bench->host().VBProjects()->items()) {
                project->IsDirty(false);
                for (const auto& component : project->VBComponents()->items()) component->IsDirty(false);
            }
            bench.reset();
        });
    }

    /// Shows the window without the introduction.
    void start() {
        ask([this] {
            workbench::apply(workbench::Theme::Light);
            bench = std::make_unique<workbench::Workbench>();
            bench->addIn().prefs.SetStartTutorial(false);
            window().show();
        });
        eventually("the window has the keys", [this] { return window().isActiveWindow(); });
    }
    void connect() {
        begin([this] { bench->connect(); });
        eventually("the add-in's menu", [this] { return menu("&Fernwick") != nullptr; });
    }
    /// Copies a sample.
    void openSample(const std::string& name) {
        std::filesystem::copy(std::filesystem::path(FERNWICK_SOURCE_DIR) / "samples" / name, folder / name,
                              std::filesystem::copy_options::recursive);
        begin([=, this] { bench->open(folder / (name + "/" + name + ".vbp")); });
        connect();
    }

    workbench::MainWindow& window() { return bench->window(); }
    QsciScintilla* code() {
        auto* const editor = window().code().current();
        return editor ? &editor->scintilla() : nullptr;
    }
    vbide::Ref<vbide::VBComponent> component(const std::string& name) {
        return bench->host().ActiveVBProject()->VBComponents()->Item(name);
    }
    QMenu* menu(const QString& caption) {
        for (auto* top : window().menuBar()->actions())
            if (top->text() == caption) return top->menu();
        return nullptr;
    }
    QTreeView* messages() {
        auto* const grid = window().findChild<QTreeView*>("msgGrid");
        return grid && grid->isVisible() ? grid : nullptr;
    }

    // ---- with the mouse ----
    void choose(const QString& caption, const QString& item) {
        click(ask([&] {
            auto& bar = *window().menuBar();
            return middleOf(bar, bar.actionGeometry(menu(caption)->menuAction()));
        }));
        eventually("the menu " + caption.toStdString(), [&] { return menu(caption)->isVisible(); });
        QPoint at;
        eventually("the item " + item.toStdString(), [&] {
            for (auto* action : menu(caption)->actions())
                if (action->text() == item && action->isEnabled())
                    at = middleOf(*menu(caption), menu(caption)->actionGeometry(action));
            return !at.isNull();
        });
        click(at);
        eventually("the menu is gone", [&] { return !menu(caption)->isVisible(); });
    }
    QPoint explorerEntry(const QString& text) {
        return ask([&] {
            auto& tree = window().explorer();
            const auto found = tree.findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive);
            return found.isEmpty() ? QPoint() : middleOf(*tree.viewport(), tree.visualItemRect(found.front()));
        });
    }
    /// The centre of the first occurrence of a word in the code that is shown.
    QPoint wordInCode(const char* word) {
        return ask([&] {
            auto& shown = *code();
            const auto begin = long(shown.text().indexOf(word)), middle = begin + long(std::strlen(word)) / 2;
            const QPoint at(int(shown.SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, middle)),
                            int(shown.SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, middle)));
            return shown.viewport()->mapToGlobal(at + QPoint(1, shown.textHeight(0) / 2));
        });
    }

    std::string read(const std::string& name) const { return folder.read(name); }
    static std::vector<std::string> filesOnDevices() {
        std::vector<std::string> names;
        std::error_code none;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(
                 qEnvironmentVariable("FERNWICK_DEVICES").toStdString(), none))
            if (entry.is_regular_file()) names.push_back(entry.path().filename());
        return names;
    }

    TempFolder folder;
    std::unique_ptr<workbench::Workbench> bench;
};

} // namespace test
