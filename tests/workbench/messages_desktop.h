#pragma once
// The desktop over a project of one module, with its messages window open.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/messages/message_list.h"
#include "Apps/workbench/messages/messages_view.h"
#include "tests/workbench/desktop_user.h"
#include "tests/workbench/running_bench.h"
#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QToolButton>
#include <gtest/gtest.h>

namespace test {

class MessagesDesktop : public RunningBench {
protected:
    using Grid = fernwick::MessageGrid;

    MessagesDesktop() {
        qunsetenv("DISPLAY"); // help is shown in a box
        qunsetenv("WAYLAND_DISPLAY");
        std::string code = "Sub Main()\r\n";
        for (int i = 1; i < 20; ++i) code += "    Beep " + std::to_string(i) + "\r\n";
        path_ =
            SampleProject("Demo").module("modA", code + "End Sub\r\n").handheld("PalmOS-DragonBall").writeTo(folder);
        start();
    }
    ~MessagesDesktop() override {
        end();
        QGuiApplication::clipboard()->clear();
    }
    /// Starts the program again.
    void start() {
        end();
        RunningBench::start();
        window().resize(1100, 720);
        bench->open(path_);
        bench->connect();
        messages().ShowProjectCompileErrors(project(), false);
        messages().clearToolWindow();
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        settle();
    }

    fernwick::modCompileErrorManagement& messages() { return bench->addIn().messages; }
    fernwick::udocCompileMsgs& document() { return *view().document(); }
    QDockWidget& dock() { return *window().findChild<QDockWidget*>("Fernwick Messages"); }
    workbench::MessagesView& view() { return *static_cast<workbench::MessagesView*>(dock().widget()); }
    workbench::MessageList& list() {
        return *static_cast<workbench::MessageList*>(dock().findChild<QTreeView*>("msgGrid"));
    }
    QLineEdit& filter() { return part<QLineEdit>("messageFilter"); }
    template <class T>
    T& part(const char* name) {
        return *dock().findChild<T*>(name);
    }

    vbide::Ref<vbide::VBComponent> component() { return RunningBench::component("modA"); }
    void error(const QString& text, int line = 0, int number = 0) { add(text, line, number, fernwick::ERROR_MSG); }
    void warning(const QString& text, int line = 0, int number = 0) { add(text, line, number, fernwick::WARNING_MSG); }
    /// Waits, as messages are drawn a moment after they were added.
    static void settle() { RunningBench::settle(40); }

    QModelIndex at(int row, int column = Grid::MessageColumn) { return list().model()->index(row, column); }
    QString cell(int row, int column) { return at(row, column).data().toString(); }
    std::vector<std::string> shown() {
        std::vector<std::string> texts;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            texts.push_back(at(row).data().toString().toStdString());
        return texts;
    }
    std::vector<std::string> selected() {
        std::vector<std::string> texts;
        for (const auto& index : list().selectionModel()->selectedRows(Grid::MessageColumn))
            texts.push_back(index.data().toString().toStdString());
        return texts;
    }
    void select(const std::vector<int>& rows) {
        list().clearSelection();
        for (const int row : rows)
            list().selectionModel()->select(at(row), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    void doubleClick(const QModelIndex& index) {
        const auto where = list().visualRect(index).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, where);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, where);
    }
    /// Sends a key to the window, wherever the focus is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, QWidget* focus = nullptr) {
        if (!focus) focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), key, modifiers);
    }
    std::string selectedCode() {
        auto* const editor = window().code().current();
        return editor ? editor->scintilla().selectedText().trimmed().prepend("    ").toStdString() : "";
    }
    /// The texts of the boxes that were shown and answered with OK.
    std::vector<std::string> boxesOf(const std::function<void()>& act) {
        std::vector<std::string> boxes;
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [&boxes] {
            auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isVisible()) return;
            expectPlainText(*box);
            boxes.push_back(box->text().toStdString());
            box->button(QMessageBox::Ok)->click();
        });
        answers.start(10);
        act();
        return boxes;
    }
    void fillForPicture() {
        warning("The event cmdList_MouseMove is not supported by Quinloft Fernwick for Button{cmdList}", 7, 8198);
        warning("The Picture property of Forms is not supported.", 0, 8202);
        error("Expected: Then.", 12, 1205);
        error("The name \"persons\" is not declared here. With Option Explicit each variable needs a declaration, such "
              "as "
              "Dim persons As Long, in the procedure or in the declarations of the module, before it is used in a "
              "statement; names of parameters count as declared.",
              18, 1501);
        error("first line\r\nsecond line", 3);
        bench->addIn().messages.addToToolWindow("", "", 0, "of no kind", 0, 0, false);
        std::string none, failed = "FAILED - Errors (3 items) must be fixed to deploy this project.";
        messages().ProjectStatusText(none, none, failed);
        settle();
        list().setCurrentIndex(at(1));
    }

private:
    void add(const QString& text, int line, int number, int type) {
        const auto file = component()->FileNames(1);
        const bool isError = type == fernwick::ERROR_MSG;
        messages().addToToolWindow(file, messages().FindFileTitle(project(), file), line, workbench::text(text), type,
                                   number, isError);
    }
    std::string path_;
};

} // namespace test
