#pragma once
// The whole desktop with a small project on disk, for tests of what its user does with code.
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/scintilla.h"
#include "tests/workbench/running_bench.h"
#include <QMessageBox>
#include <QTest>
#include <gmock/gmock.h>

namespace test {

/// Milliseconds after which what was waited for does not come any more.
inline constexpr int kLongestWait = 20000;

class OpenDesktop : public RunningBench {
protected:
    /// With a place of its own for the user's state, or this one.
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

    /// The texts of the boxes that came since the last `answer`.
    std::vector<std::string> boxes;

private:
    QTimer answers_;
};

} // namespace test
