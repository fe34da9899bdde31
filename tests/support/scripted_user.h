#pragma once
// A user who follows a script.
#include "Add-in/platform/controls.h"
#include "Add-in/platform/interaction.h"
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace test {

/// Expects boxes, forms and dialogs in order, with their exact texts. Anything unexpected is recorded and answered by
/// Cancel, never thrown; the test fails at the end. As in a window system, a form below a box is activated again.
class ScriptedUser final : public fernwick::Interaction {
public:
    ~ScriptedUser() {
        EXPECT_EQ(wrong, std::vector<std::string>{});
        for (const auto& step : script_) ADD_FAILURE() << "did not come: " << step.what;
    }

    void expectBox(const std::string& text, int answer = fernwick::vbOK, int buttons = fernwick::vbExclamation,
                   const std::string& title = "Fernwick") {
        script_.push_back({boxText(text, buttons, title), [answer](void*) { return answer; }});
    }
    /// `act` is what the user does while the form is open.
    void expectForm(const std::string& typeName, std::function<void(fernwick::Form&)> act = {}) {
        script_.push_back({"form " + typeName, [act](void* form) {
                               if (act) act(*static_cast<fernwick::Form*>(form));
                               return 0;
                           }});
    }
    void expectFormAndPress(const std::string& typeName, const std::string& button) {
        expectForm(typeName, [button](fernwick::Form& form) { press(form, button); });
    }
    /// Expects a save dialog; `act` returns the file name, "" for Cancel.
    void expectSave(std::function<std::string(const fernwick::CommonDialog&)> act) {
        script_.push_back({"save dialog", [act](void* given) {
                               auto& dialog = *static_cast<fernwick::CommonDialog*>(given);
                               const auto chosen = act(dialog);
                               if (!chosen.empty()) dialog.FileName = chosen;
                               return chosen.empty() ? 0 : 1;
                           }});
    }
    /// Expects an open dialog; `act` returns the file names, "" for Cancel.
    void expectOpen(std::function<std::string(const fernwick::CommonDialog&)> act) {
        script_.push_back({"open dialog", [act](void* given) {
                               auto& dialog = *static_cast<fernwick::CommonDialog*>(given);
                               const auto chosen = act(dialog);
                               if (!chosen.empty()) dialog.FileName = chosen;
                               return chosen.empty() ? 0 : 1;
                           }});
    }
    static void press(fernwick::Form& form, const std::string& button) {
        dynamic_cast<fernwick::CommandButton&>(form.control(button)).press();
    }

    /// Whether nothing was shown.
    bool sawNothing() const { return shownCount_ == 0; }
    std::vector<std::string> wrong;
    fernwick::MousePointerShape cursor = fernwick::vbDefault;
    int beeps = 0;

    void showModal(fernwick::Form& form) override {
        forms_.push_back(&form);
        struct Pop {
            std::vector<fernwick::Form*>& forms;
            ~Pop() { forms.pop_back(); }
        } pop{forms_};
        form.activate();
        next(std::string("form ") + form.typeName(), &form);
        if (form.Visible()) {
            wrong.push_back(std::string("left open: ") + form.typeName());
            form.Unload();
        }
    }
    int MsgBox(const std::string& text, int buttons, const std::string& title) override {
        const int answer = next(boxText(text, buttons, title), nullptr);
        if (!forms_.empty()) forms_.back()->activate();
        return answer;
    }
    void ShowSave(fernwick::CommonDialog& dialog) override {
        if (next("save dialog", &dialog) != 1)
            throw basic::RuntimeError(fernwick::kCancelWasSelected, "Cancel was selected.");
    }
    void ShowOpen(fernwick::CommonDialog& dialog) override {
        if (next("open dialog", &dialog) != 1 && dialog.CancelError)
            throw basic::RuntimeError(fernwick::kCancelWasSelected, "Cancel was selected.");
    }
    void MessageBeep(int) override { ++beeps; }
    void SetCursor(fernwick::MousePointerShape shape) override { cursor = shape; }

private:
    struct Step {
        std::string what;
        std::function<int(void*)> act;
    };
    static std::string boxText(const std::string& text, int buttons, const std::string& title) {
        return "box (" + std::to_string(buttons) + ") " + title + ": " + text;
    }
    int next(const std::string& what, void* subject) {
        ++shownCount_;
        if (script_.empty() || script_.front().what != what) {
            wrong.push_back("unexpected " + what);
            return fernwick::vbCancel;
        }
        const auto step = std::move(script_.front());
        script_.pop_front();
        return step.act(subject);
    }

    std::deque<Step> script_;
    std::vector<fernwick::Form*> forms_;
    int shownCount_ = 0;
};

} // namespace test
