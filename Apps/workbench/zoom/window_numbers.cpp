#include "Apps/workbench/zoom/window_numbers.h"
#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/zoom/designer_image.h"

namespace workbench {

using fernwick::Hwnd;

WindowNumbers::WindowNumbers() : main_(add({WindowKind::Main})) {}

WindowNumbers::~WindowNumbers() = default;

Hwnd WindowNumbers::add(const NumberedWindow& window) {
    windows_[++last_] = window;
    return last_;
}

NumberedWindow WindowNumbers::find(Hwnd number) const {
    const auto found = windows_.find(number);
    return found == windows_.end() ? NumberedWindow{} : found->second;
}

DesignerWindow& WindowNumbers::designerOf(FormView& view) {
    auto& designer = designers_[&view];
    if (designer) return *designer;
    designer = std::make_unique<DesignerWindow>();
    auto* const made = designer.get();
    made->view = &view;
    made->canvas = &view.canvas();
    made->image = std::make_unique<DesignerImage>(*made->canvas);
    made->window = add({WindowKind::Designer, made});
    made->surface = add({WindowKind::Surface, made});
    for (int grip = 0; grip < kGripCount; ++grip) made->grips[std::size_t(grip)] = add({WindowKind::Grip, made, grip});
    return *made;
}

void WindowNumbers::remove(const FormView& view) {
    const auto found = designers_.find(&view);
    if (found == designers_.end()) return;
    std::erase_if(windows_, [&](const auto& entry) { return entry.second.designer == found->second.get(); });
    designers_.erase(found);
}

Hwnd WindowNumbers::controlOf(DesignerWindow& designer, const vbide::Ref<vbide::VBControl>& control) {
    for (const auto& [known, number] : designer.controls)
        if (known == control) return number;
    const auto number = add({WindowKind::Control, &designer, 0, control});
    designer.controls.emplace_back(control, number);
    return number;
}

Hwnd WindowNumbers::documentOf(const fernwick::Object& document) {
    auto& number = documents_[&document];
    if (number == 0) number = add({WindowKind::Document});
    return number;
}

void WindowNumbers::draw(const fernwick::Object& document, DocumentWindow* window) {
    windows_[documentOf(document)].document = window;
}

void WindowNumbers::removeDocument(const fernwick::Object& document) {
    const auto found = documents_.find(&document);
    if (found == documents_.end()) return;
    windows_.erase(found->second);
    documents_.erase(found);
}

std::vector<Hwnd> WindowNumbers::documents() const {
    std::vector<Hwnd> drawn;
    for (const auto& [document, number] : documents_)
        if (find(number).document) drawn.push_back(number);
    return drawn;
}

} // namespace workbench
