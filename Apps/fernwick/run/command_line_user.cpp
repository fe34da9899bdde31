#include "Apps/fernwick/run/command_line_user.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/deploy/deploy_texts.h"
#include "Apps/fernwick/run/form_controls.h"
#include "Apps/fernwick/run/interruption.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

using fernwick::Form;
using fernwick::Subscription;

namespace {

// How often the same question may be repeated before it gets the harmless answer, and before the run ends.
constexpr int kRepeatsToHarmless = 2;
constexpr int kRepeatsToEnd = 4;

/// Asks nothing, so it is closed without being activated.
constexpr std::string_view kIntroduction = "frmGettingStarted";

/// A project of an unknown device is opened; the commands that need the device refuse it.
constexpr std::string_view kUnknownDevice = "frmDesignTargetConverterWarning";

std::string oneLine(std::string text) {
    std::string line;
    for (const char c : text) {
        if (c == '\r') continue;
        line += c == '\n' ? ' ' : c;
    }
    return line;
}

/// Whether a prescribed text sends the user to the messages window, which the command line lacks.
bool namesMessagesWindow(std::string_view text) {
    constexpr std::string_view kTexts[] = {
        fernwick::build_texts::kCompileFailed, fernwick::deploy_texts::kValidationFailed,
        fernwick::deploy_texts::kNotDeployedSeeMessages, fernwick::deploy_texts::kNoPackageSeeMessages};
    return std::find(std::begin(kTexts), std::end(kTexts), text) != std::end(kTexts);
}

std::vector<Reply> repliesOf(int buttonSet) {
    switch (buttonSet) {
    case fernwick::vbYesNo: return {Reply::Yes, Reply::No};
    case fernwick::vbYesNoCancel: return {Reply::Yes, Reply::No, Reply::Cancel};
    case fernwick::vbOKCancel: return {Reply::Ok, Reply::Cancel};
    default: return {};
    }
}

/// --yes and --no answer boxes without such a button, too.
Reply offered(Reply reply, int buttonSet) {
    const bool asksYes = buttonSet == fernwick::vbYesNo || buttonSet == fernwick::vbYesNoCancel;
    if (reply == Reply::Cancel && buttonSet == fernwick::vbYesNo) return Reply::No;
    if (reply == Reply::No && buttonSet == fernwick::vbOKCancel) return Reply::Cancel;
    if (reply == Reply::Ok && asksYes) return Reply::Yes;
    return reply == Reply::Yes && buttonSet == fernwick::vbOKCancel ? Reply::Ok : reply;
}

} // namespace

void CommandLineUser::showModal(Form& form) {
    if (form.typeName() == kIntroduction) return cancelButton(form)->press();
    if (form.typeName() == kUnknownDevice) return button(form, "cmdOpenProject")->press();
    auto* bar = firstControl<fernwick::ProgressBar>(form);
    auto* status = firstControl<fernwick::StatusBar>(form);
    const auto redraw = [this, bar, status] {
        checkInterrupt();
        console_.progress(bar ? bar->percent() : 0, status ? status->SimpleText() : std::string());
    };
    Subscription percent, text;
    if (bar) percent = bar->Value.watch([redraw](float) { redraw(); });
    if (status) text = status->SimpleText.watch([redraw](const std::string&) { redraw(); });
    if (status) console_.progress(0, form.Caption());

    form.activate();
    if (form.Visible()) answerForm(form);
    console_.endProgress();
}

void CommandLineUser::answerForm(Form& form) {
    while (form.Visible()) {
        checkInterrupt();
        const auto* question = questionOfForm(form.typeName());
        if (question && question->name == "device") {
            chooseDevice(form);
            continue;
        }
        if (!question) console_.note(fmt::format("{}: cancelled, because it has no known answer", form.typeName()));
        const std::string text = oneLine(formText(form));
        show(form.Caption(), text, 0);
        Reply otherwise = question ? question->otherwise : Reply::Cancel;
        if (question && question->name == "save-files" && !context_.hostHasUnsaved()) otherwise = Reply::Yes;
        Reply reply = replyTo(question, {repliesOf(form), otherwise, Reply::Cancel});
        guardAgainstRepeats(form.typeName() + text, reply, Reply::Cancel);
        auto* pressed = buttonOf(form, reply);
        answered(pressed ? std::string(replyName(reply)) : "closed");
        if (pressed)
            pressed->press();
        else
            form.Unload();
    }
}

/// The key given by --device need not be in the list, which has one row for each platform.
void CommandLineUser::chooseDevice(Form& form) {
    show(form.Caption(), "Choose a device for the project.", 0);
    auto key = context_.device;
    if (key.empty() && console_.canAsk()) key = askKey(console_, context_.deviceRows(), context_.isDevice);
    const bool usable = !key.empty() && context_.isDevice(key);
    answered(usable ? key : std::string(replyName(Reply::Cancel)));
    if (usable) context_.assignDevice(key);
    if (auto* cancel = cancelButton(form)) cancel->press();
    if (form.Visible()) form.Unload();
}

int CommandLineUser::MsgBox(const std::string& text, int buttons, const std::string& title) {
    return answerBox(nullptr, text, buttons, title);
}

int CommandLineUser::ask(fernwick::Question question, const std::string& text, int buttons, const std::string& title) {
    return answerBox(questionOfBox(question), text, buttons, title);
}

int CommandLineUser::answerBox(const KnownQuestion* question, const std::string& text, int buttons,
                               const std::string& title) {
    checkInterrupt();
    show(title, text, buttons);
    const int set = buttons & 7;
    if (set == fernwick::vbOKOnly) {
        shown_.back().answer = replyName(Reply::Ok);
        return fernwick::vbOK;
    }
    const Reply harmless = set == fernwick::vbYesNo ? Reply::No : Reply::Cancel;
    const ReplyChoices choices{repliesOf(set), question ? question->otherwise : harmless, harmless};
    Reply reply = offered(replyTo(question, choices), set);
    guardAgainstRepeats(title + text, reply, harmless);
    answered(std::string(replyName(reply)));
    switch (reply) {
    case Reply::Yes: return fernwick::vbYes;
    case Reply::No: return fernwick::vbNo;
    case Reply::Ok: return fernwick::vbOK;
    case Reply::Cancel: break;
    }
    return fernwick::vbCancel;
}

void CommandLineUser::cancel(const fernwick::CommonDialog& dialog) {
    show(dialog.DialogTitle, dialog.FileName, 0);
    shown_.back().answer = replyName(Reply::Cancel);
    if (dialog.CancelError)
        throw basic::RuntimeError(fernwick::kCancelWasSelected, "Cancel was selected.", "CommonDialog");
}

Reply CommandLineUser::replyTo(const KnownQuestion* question, const ReplyChoices& choices) {
    if (const auto given = answers_.given(question)) return *given;
    const bool canBeAsked = console_.canAsk() && choices.replies.size() > 1;
    return canBeAsked ? askReply(console_, choices) : choices.otherwise;
}

void CommandLineUser::answered(const std::string& answer) {
    shown_.back().answer = answer;
    console_.err(fmt::format("  answer: {}", answer), Tone::Faint);
}

void CommandLineUser::show(const std::string& title, const std::string& text, int buttons) {
    const bool critical = (buttons & 0x70) == fernwick::vbCritical;
    shown_.push_back({title, text, "", critical});
    const bool ends = !title.empty() && title.back() == '!';
    std::string line = title.empty() ? std::string() : title + (ends ? " " : ": ");
    for (const char c : text) {
        if (c == '\r') continue;
        line += c;
        if (c == '\n') line += "  ";
    }
    console_.errLines(line, critical ? Tone::Error : Tone::Warning);
    if (context_.storesMessages && namesMessagesWindow(text)) console_.note("  see fernwick messages", Tone::Faint);
}

void CommandLineUser::guardAgainstRepeats(const std::string& what, Reply& reply, Reply harmless) {
    repeats_ = what == lastQuestion_ ? repeats_ + 1 : 0;
    lastQuestion_ = what;
    if (repeats_ >= kRepeatsToEnd) throw StuckQuestion("the same question is repeated without end: " + what);
    if (repeats_ >= kRepeatsToHarmless) reply = harmless;
}

} // namespace cli
