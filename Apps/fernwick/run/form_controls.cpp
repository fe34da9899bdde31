#include "Apps/fernwick/run/form_controls.h"

namespace cli {

using fernwick::CommandButton;
using fernwick::Form;

CommandButton* button(Form& form, const char* name) {
    for (auto* control : form.Controls())
        if (control->Name == name) return dynamic_cast<CommandButton*>(control);
    return nullptr;
}

CommandButton* cancelButton(Form& form) {
    for (auto* control : form.Controls())
        if (auto* found = dynamic_cast<CommandButton*>(control); found && found->Cancel) return found;
    return button(form, "btnCancel");
}

CommandButton* buttonOf(Form& form, Reply reply) {
    switch (reply) {
    case Reply::Yes:
        if (auto* yes = button(form, "btnYes")) return yes;
        return button(form, "btnOK");
    case Reply::Ok: return button(form, "btnOK");
    case Reply::No:
        if (auto* no = button(form, "btnNo")) return no;
        break;
    case Reply::Cancel: break;
    }
    return cancelButton(form);
}

std::vector<Reply> repliesOf(Form& form) {
    std::vector<Reply> replies;
    if (button(form, "btnYes")) replies.push_back(Reply::Yes);
    if (button(form, "btnOK")) replies.push_back(Reply::Ok);
    if (button(form, "btnNo")) replies.push_back(Reply::No);
    const auto* cancel = cancelButton(form);
    if (cancel && cancel->Name != "btnNo") replies.push_back(Reply::Cancel);
    return replies;
}

std::string formText(Form& form) {
    const auto* label = firstControl<fernwick::Label>(form);
    return label ? label->Caption() : std::string();
}

} // namespace cli
