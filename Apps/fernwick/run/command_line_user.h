#pragma once
// The add-in's user interface on the command line.
#include "Add-in/platform/controls.h"
#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/shown_box.h"
#include <functional>
#include <vector>

namespace cli {

/// The facts that answers depend on.
struct UserContext {
    /// Whether the host has unsaved changes.
    std::function<bool()> hostHasUnsaved = [] { return true; };
    /// The design target given by --device; "" for none.
    std::string device;
    /// The row of this design target in the device list, -1 for none.
    std::function<int(const std::string& device)> deviceRow = [](const std::string&) { return -1; };
};

/// Shows progress forms as a bar and message boxes as lines. Answers questions from the options, else at the terminal,
/// else from the table. Never blocks a script; a question that keeps being repeated ends the run.
class CommandLineUser : public fernwick::Interaction {
public:
    CommandLineUser(Console& console, Answers answers, UserContext context)
        : console_(console), answers_(std::move(answers)), context_(std::move(context)) {}

    void showModal(fernwick::Form& form) override;
    int MsgBox(const std::string& text, int buttons, const std::string& title) override;
    int ask(fernwick::Question question, const std::string& text, int buttons, const std::string& title) override;
    // File dialogs are cancelled.
    void ShowSave(fernwick::CommonDialog& dialog) override { cancel(dialog); }
    void ShowOpen(fernwick::CommonDialog& dialog) override { cancel(dialog); }
    void MessageBeep(int) override {}
    void SetCursor(fernwick::MousePointerShape) override {}

    UserContext& context() { return context_; }
    const std::vector<ShownBox>& shown() const { return shown_; }

private:
    int answerBox(const KnownQuestion* question, const std::string& text, int buttons, const std::string& title);
    void cancel(const fernwick::CommonDialog& dialog);
    void answerForm(fernwick::Form& form);
    void chooseDevice(fernwick::Form& form);
    Reply replyTo(const KnownQuestion* question, Reply otherwise, const std::string& prompt, bool canBeYes);
    void show(const std::string& title, const std::string& text, int buttons);
    void guardAgainstRepeats(const std::string& what, Reply& reply, Reply harmless);

    Console& console_;
    Answers answers_;
    UserContext context_;
    std::vector<ShownBox> shown_;
    std::string lastQuestion_;
    int repeats_ = 0;
};

} // namespace cli
