#pragma once
// The whole desktop with a small project on disk, for tests of what its user does with code.
#include "Apps/workbench/scintilla.h"
#include "Apps/workbench/text.h"
#include "Apps/workbench/workbench.h"
#include "tests/support/sample_project.h"
#include "tests/workbench/desktop_user.h"
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <gmock/gmock.h>

namespace test {

/// Milliseconds after which what was waited for does not come any more.
inline constexpr int kLongestWait = 20000;

class OpenDesktop : public testing::Test {
protected:
    /// With a place of its own for the user's state, or this one.
    explicit OpenDesktop(const QByteArray& state = {}) {
        qputenv("XDG_STATE_HOME", state.isEmpty() ? QByteArray::fromStdString(folder / "state") : state);
        workbench::apply(workbench::Theme::Light);
        start();
    }
    ~OpenDesktop() override { end(); }

    void start() {
        bench = std::make_unique<workbench::Workbench>();
        window().show();
        settle();
    }
    /// Ends as after the user's "no" to saving.
    void end() {
        answers_.stop();
        if (!bench) return;
        for (const auto& open : bench->host().VBProjects()->items()) {
            open->IsDirty(false);
            for (const auto& one : open->VBComponents()->items()) one->IsDirty(false);
        }
        bench.reset();
    }
    void open(const SampleProject& sample) { openFile(sample.writeTo(folder)); }
    void openFile(const std::string& path) {
        bench->open(path);
        bench->connect();
        settle();
    }
    /// Lets everything be done that waits for Qt's loop.
    static void settle() { QTest::qWait(20); }

    workbench::MainWindow& window() { return bench->window(); }
    vbide::Ref<vbide::VBProject> project() { return bench->host().ActiveVBProject(); }
    vbide::Ref<vbide::VBComponent> component(const std::string& name) { return project()->VBComponents()->Item(name); }
    /// Opens the code window of a component.
    workbench::CodeEditor& editor(const std::string& name) {
        component(name)->CodeModule()->CodePane()->Show();
        settle(); // commands are drawn as enabled when the loop turns
        return *window().code().editorOf(component(name));
    }
    QsciScintilla& code(const std::string& name) { return editor(name).scintilla(); }
    std::string held(const std::string& name) {
        return workbench::codeOf(*component(name)->CodeModule().shared()).toStdString();
    }
    QAction* menuItem(const QString& menu, const QString& item) {
        for (auto* top : window().menuBar()->actions())
            if (top->text() == menu)
                for (auto* action : top->menu()->actions())
                    if (action->text() == item) return action;
        ADD_FAILURE() << menu.toStdString() << ": " << item.toStdString();
        return nullptr;
    }
    /// Answers each window that comes, until the next call: boxes with their text, forms as `form` says.
    void answer(
        std::function<void(QMessageBox&)> box, std::function<void(QDialog&)> form = [](QDialog&) {}) {
        boxes.clear();
        answers_.disconnect();
        QObject::connect(&answers_, &QTimer::timeout, [this, box, form] {
            auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || dialog->findChildren<QAbstractButton*>().isEmpty()) return;
            auto* const asked = dynamic_cast<QMessageBox*>(dialog);
            if (!asked) return form(*dialog);
            boxes.push_back(asked->text().toStdString() + asked->informativeText().toStdString());
            box(*asked);
        });
        answers_.start(10);
    }
    /// Presses the button of each box whose words these are.
    void answerWith(const QString& button) {
        answer([button](QMessageBox& box) { press(box, button); });
    }
    static void press(QMessageBox& box, const QString& words) {
        for (auto* button : box.buttons())
            if (button->text().remove('&') == words) return button->click();
        ADD_FAILURE() << "no button " << words.toStdString() << " in: " << box.text().toStdString();
        box.reject();
    }

    TempFolder folder;
    std::unique_ptr<workbench::Workbench> bench;
    /// The texts of the boxes that came since the last `answer`.
    std::vector<std::string> boxes;

private:
    QTimer answers_;
};

} // namespace test
