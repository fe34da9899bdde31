#pragma once
#include <optional>

namespace workbench {

class FormView;

struct SelectedPlace {
    double left = 0, top = 0, width = 0, height = 0;
    bool hasSize = true;
};

/// The place of what is selected, or dragged, on a form: of a control in the units of its container, of the form in
/// twips. None for a menu.
std::optional<SelectedPlace> placeOfSelection(const FormView& view);

} // namespace workbench
