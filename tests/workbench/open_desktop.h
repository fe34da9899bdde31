#pragma once
// The whole desktop with a small project on disk, for tests of code windows.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/scintilla.h"
#include "tests/workbench/desktop_user.h"
#include "tests/workbench/running_bench.h"
#include <QMessageBox>
#include <QTest>
#include <gmock/gmock.h>

namespace test {

/// The longest time to wait for something, in milliseconds.
inline constexpr int kLongestWait = 20000;

class OpenDesktop : public RunningBench {
protected:
    /// Uses this folder for the user's state; a temporary one by default.
    explicit OpenDesktop(const QByteArray& state = {}) {
        qputenv("XDG_STATE_HOME", state.isEmpty() ? QByteArray::fromStdString(folder / "state") : state);
        start();
    }
    ~OpenDesktop() override { end(); }

    void end() {
        answers_.stop();
        RunningBench::end();
    }
    void open(const SampleProject& sample) { openFile(sample.writeTo(folder)); }
    void openFile(const std::string& path) { RunningBench::open(path); }

    /// Opens the code window of a component.
    workbench::CodeEditor& editor(const std::string& name) {
        component(name)->CodeModule()->CodePane()->Show();
        settle(); // commands are drawn as enabled when the loop turns
        return *window().code().editorOf(component(name));
    }
    QsciScintilla& code(const std::string& name) { return editor(name).scintilla(); }
    std::string held(const std::string& name) {
        return workbench::codeOf(*component(name)->CodeModule()).toStdString();
    }
    /// Answers each window until the next call: records the text of boxes and calls `box`, or calls `form` for other
    /// dialogs.
    void answer(
        std::function<void(QMessageBox&)> box, std::function<void(QDialog&)> form = [](QDialog&) {}) {
        boxes.clear();
        answers_.disconnect();
        QObject::connect(&answers_, &QTimer::timeout, [this, box, form] {
            auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || dialog->findChildren<QAbstractButton*>().isEmpty()) return;
            auto* const asked = dynamic_cast<QMessageBox*>(dialog);
            if (!asked) return form(*dialog);
            expectPlainText(*asked);
            boxes.push_back(asked->text().toStdString() + asked->informativeText().toStdString());
            box(*asked);
        });
        answers_.start(10);
    }
    /// Presses the button with this text in each box.
    void answerWith(const QString& button) {
        answer([button](QMessageBox& box) { press(box, button); });
    }
    static void press(QMessageBox& box, const QString& words) {
        for (auto* button : box.buttons())
            if (button->text().remove('&') == words) return button->click();
        ADD_FAILURE() << "no button " << words.toStdString() << " in: " << box.text().toStdString();
        box.reject();
    }

    /// The texts of the boxes since the last call of answer().
    std::vector<std::string> boxes;

private:
    QTimer answers_;
};

} // namespace test
