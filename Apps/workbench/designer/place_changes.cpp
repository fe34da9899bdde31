#include "Apps/workbench/designer/place_changes.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/properties/property_reader.h"

namespace workbench {

std::vector<DesignChange> changesOfPlace(const DrawnControl& drawn, const QRectF& place) {
    const auto& was = drawn.place;
    std::vector<DesignChange> changes;
    const auto add = [&](const char* property, double before, double now, double unit) {
        if (before != now) changes.push_back({property, now / unit});
    };
    const auto at = place.translated(-drawn.origin), before = was.translated(-drawn.origin);
    if (drawn.look.kind == ControlKind::Line) {
        add("X1", before.left(), at.left(), drawn.unitX);
        add("Y1", before.top(), at.top(), drawn.unitY);
        add("X2", before.right(), at.right(), drawn.unitX);
        add("Y2", before.bottom(), at.bottom(), drawn.unitY);
        return changes;
    }
    add("Left", before.left(), at.left(), drawn.unitX);
    add("Top", before.top(), at.top(), drawn.unitY);
    add("Width", before.width(), at.width(), drawn.unitX);
    add("Height", before.height(), at.height(), drawn.unitY);
    return changes;
}

std::vector<DesignChange> changesOfNew(const DrawnControl& drawn, const QRectF& place) {
    const bool hasSize = place.width() > 0 && place.height() > 0 && drawn.look.kind != ControlKind::Hidden;
    auto there = place;
    if (!hasSize) there.setSize(drawn.place.size());
    auto changes = changesOfPlace(drawn, there);
    const PropertyReader read(drawn.control->Properties());
    for (const auto* shown : {"Caption", "Text"})
        if (read.has(shown) && read.text(shown).isEmpty()) changes.push_back({shown, text(drawn.name)});
    return changes;
}

std::vector<DesignChange> changesOfForm(const FormPicture& form, const QRectF& inner) {
    std::vector<DesignChange> changes;
    const auto add = [&](const char* property, double before, double now, double frame) {
        if (before != now) changes.push_back({property, (now + frame) * kTwipsPerPixel});
    };
    add("Width", form.inner.width(), inner.width(), form.frame.left() + form.frame.right());
    add("Height", form.inner.height(), inner.height(), form.frame.top() + form.frame.bottom());
    return changes;
}

} // namespace workbench
