#include "Apps/workbench/designer/selected_place.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/properties/property_reader.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

SelectedPlace placeOfControl(const DrawnControl& drawn, const QRectF& place) {
    const auto at = place.translated(-drawn.origin);
    return {at.left() / drawn.unitX, at.top() / drawn.unitY, at.width() / drawn.unitX, at.height() / drawn.unitY,
            drawn.look.kind != ControlKind::Hidden};
}

/// The size of a form includes its frame.
SelectedPlace placeOfForm(const FormView& view) {
    SelectedPlace place;
    (void)basic::attempt([&] { // fails for a removed form, whose window closes soon
        const PropertyReader read(view.component()->Properties());
        place.left = read.real("Left");
        place.top = read.real("Top");
    });
    const auto inner = view.shownPlace().size();
    const auto& frame = view.picture().frame;
    place.width = (inner.width() + frame.left() + frame.right()) * kTwipsPerPixel;
    place.height = (inner.height() + frame.top() + frame.bottom()) * kTwipsPerPixel;
    return place;
}

} // namespace

std::optional<SelectedPlace> placeOfSelection(const FormView& view) {
    if (const auto* drawn = view.drawnSelection()) return placeOfControl(*drawn, view.shownPlace());
    if (view.selected()) return {};
    return placeOfForm(view);
}

} // namespace workbench
