#pragma once
// The whole desktop over copies of the samples, drawn into memory.
#include "Apps/workbench/editing/scintilla.h"
#include "Host/model/bars/bars.h"
#include "tests/workbench/desktop_user.h"
#include "tests/workbench/running_bench.h"
#include <QMessageBox>
#include <QTreeWidgetItemIterator>

namespace test {

class Desktop : public RunningBench {
protected:
    Desktop() { start(); }

    void openSample(const std::string& name) { open(sample(name)); }
    workbench::CodeEditor& editor(const std::string& name) {
        component(name)->CodeModule()->CodePane()->Show();
        return *window().code().editorOf(component(name));
    }
    /// The texts of the explorer's entries from top to bottom, indented by depth, with the file in brackets if it is shown.
    std::vector<std::string> explorerEntries() {
        std::vector<std::string> entries;
        for (QTreeWidgetItemIterator at(&window().explorer()); *at; ++at) {
            int depth = 0;
            for (auto* above = (*at)->parent(); above; above = above->parent()) ++depth;
            const auto file = (*at)->text(1);
            const auto shown = file.isEmpty() ? (*at)->text(0) : QString("%1 [%2]").arg((*at)->text(0), file);
            entries.push_back(std::string(std::size_t(depth), ' ') + shown.toStdString());
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
    /// Chooses the command, confirms saving, and returns the texts of the boxes that were shown.
    std::vector<std::string> carryOut(const QString& menu, const QString& item) {
        std::vector<std::string> boxes;
        answer([&boxes](QDialog& window) {
            auto* box = dynamic_cast<QMessageBox*>(&window);
            if (!box) return click(window, "btnYes");
            expectPlainText(*box);
            boxes.push_back(box->text().toStdString());
            box->button(QMessageBox::Ok)->click();
        });
        menuItem(menu, item)->trigger();
        answers_.stop();
        settle();
        return boxes;
    }
    /// Calls `act` with each question until answers_ is stopped.
    void answer(std::function<void(QDialog&)> act) {
        answers_.disconnect();
        QObject::connect(&answers_, &QTimer::timeout, [act] {
            auto* window = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            const bool asks = window && window->isVisible() && !window->findChildren<QAbstractButton*>().isEmpty();
            if (asks) act(*window);
        });
        answers_.start(10);
    }

    QTimer answers_;
};

} // namespace test
