#pragma once
// Finds controls of a form for answering it without a window.
#include "Add-in/platform/controls.h"
#include "Apps/fernwick/options/answers.h"
#include <vector>

namespace cli {

/// Returns the first control of this class; null if there is none.
template <class C>
C* firstControl(fernwick::Form& form) {
    for (auto* control : form.Controls())
        if (auto* found = dynamic_cast<C*>(control)) return found;
    return nullptr;
}

/// Null for an unknown name.
fernwick::CommandButton* button(fernwick::Form& form, const char* name);
/// Returns the button that Esc presses, else "btnCancel"; null if there is none.
fernwick::CommandButton* cancelButton(fernwick::Form& form);
/// Returns the button for a reply; No and Cancel fall back to the cancel button.
fernwick::CommandButton* buttonOf(fernwick::Form& form, Reply reply);
/// Returns the replies that the form has a button for.
std::vector<Reply> repliesOf(fernwick::Form& form);
/// Returns the text of the first label.
std::string formText(fernwick::Form& form);

} // namespace cli
