#include "Apps/fernwick/run/command_line_user.h"
#include "Apps/fernwick/run/form_controls.h"
#include "Apps/fernwick/run/interruption.h"
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

std::string oneLine(std::string text) {
    std::string line;
    for (const char c : text) {
        if (c == '\r') continue;
        line += c == '\n' ? ' ' : c;
    }
    return line;
}

} // namespace

void CommandLineUser::showModal(Form& form) {
    if (form.typeName() == kIntroduction) return cancelButton(form)->press();
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
        Reply otherwise = question ? question->otherwise : Reply::Cancel;
        if (question && question->name == "save-files" && !context_.hostHasUnsaved()) otherwise = Reply::Yes;
        Reply reply = replyTo(question, otherwise, text, button(form, "btnYes") != nullptr);
        guardAgainstRepeats(form.typeName() + text, reply, Reply::Cancel);
        auto* pressed = buttonOf(form, reply);
        show(form.Caption(), text, 0);
        shown_.back().answer = pressed ? replyName(reply) : "closed";
        console_.err(fmt::format("  answer: {}", shown_.back().answer), Tone::Faint);
        if (pressed)
            pressed->press();
        else
            form.Unload();
    }
}

void CommandLineUser::chooseDevice(Form& form) {
    auto* list = firstControl<fernwick::ListBox>(form);
    const int row = context_.device.empty() || !list ? -1 : context_.deviceRow(context_.device);
    show(form.Caption(), "Choose a device for the project.", 0);
    if (row >= 0 && row < list->ListCount()) {
        shown_.back().answer = list->List(row);
        console_.err(fmt::format("  answer: {}", list->List(row)), Tone::Faint);
        list->ListIndex(row);
        if (auto* ok = button(form, "btnOK")) ok->press();
    } else {
        shown_.back().answer = replyName(Reply::Cancel);
        console_.err(fmt::format("  answer: {}", shown_.back().answer), Tone::Faint);
        if (auto* cancel = cancelButton(form)) cancel->press();
    }
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
    const bool asksYes = set == fernwick::vbYesNo || set == fernwick::vbYesNoCancel;
    const Reply harmless = set == fernwick::vbYesNo ? Reply::No : Reply::Cancel;
    Reply reply = replyTo(question, question ? question->otherwise : harmless, "", asksYes);
    if (reply == Reply::Cancel && set == fernwick::vbYesNo) reply = Reply::No;
    if (reply == Reply::No && set == fernwick::vbOKCancel) reply = Reply::Cancel;
    if (reply == Reply::Ok && asksYes) reply = Reply::Yes;
    if (reply == Reply::Yes && set == fernwick::vbOKCancel) reply = Reply::Ok;
    guardAgainstRepeats(title + text, reply, harmless);
    shown_.back().answer = replyName(reply);
    console_.err(fmt::format("  answer: {}", replyName(reply)), Tone::Faint);
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

Reply CommandLineUser::replyTo(const KnownQuestion* question, Reply otherwise, const std::string& text, bool canBeYes) {
    if (const auto given = answers_.given(question)) return *given;
    if (!console_.canAsk() || !canBeYes) return otherwise;
    const std::string typed = console_.ask(
        fmt::format("{}{}[yes/no/cancel, Return for {}] ", text, text.empty() ? "" : " ", replyName(otherwise)));
    return replyNamed(typed).value_or(otherwise);
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
}

void CommandLineUser::guardAgainstRepeats(const std::string& what, Reply& reply, Reply harmless) {
    repeats_ = what == lastQuestion_ ? repeats_ + 1 : 0;
    lastQuestion_ = what;
    if (repeats_ >= kRepeatsToEnd) throw StuckQuestion("the same question is repeated without end: " + what);
    if (repeats_ >= kRepeatsToHarmless) reply = harmless;
}

} // namespace cli
