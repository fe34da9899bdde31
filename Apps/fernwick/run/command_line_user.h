#pragma once
// The add-in's user interface on the command line.
#include "Add-in/platform/controls.h"
#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/shown_box.h"
#include "Apps/fernwick/run/terminal_reply.h"
#include <functional>
#include <vector>

namespace cli {

/// The facts that answers depend on.
struct UserContext {
    /// Whether the host has unsaved changes.
    std::function<bool()> hostHasUnsaved = [] { return true; };
    /// Whether messages are stored in the project, where another command finds them.
    bool storesMessages = true;
    /// The design target given by --device; "" for none.
    std::string device;
    /// The rows of the device list.
    std::function<std::vector<KeyedRow>()> deviceRows = [] { return std::vector<KeyedRow>(); };
    std::function<bool(const std::string& key)> isDevice = [](const std::string&) { return false; };
    /// Assigns the device with this key to the project.
    std::function<void(const std::string& key)> assignDevice = [](const std::string&) {};
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
    Reply replyTo(const KnownQuestion* question, const ReplyChoices& choices);
    /// Notes the answer to the last box, and prints it.
    void answered(const std::string& answer);
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
