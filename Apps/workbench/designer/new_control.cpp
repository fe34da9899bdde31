#include "Apps/workbench/designer/new_control.h"
#include "Apps/workbench/properties/design_history.h"
#include "Apps/workbench/properties/property_reader.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/control_edits.h"
#include <algorithm>
#include <array>
#include <cmath>

namespace workbench {

namespace {

/// The pixels of the font that descriptions assume.
constexpr double kDescribedFont = 12;
constexpr double kSmallest = 8;

struct SizeOfKind {
    ControlKind kind;
    double width, height;
};
/// In pixels, for the fonts of a desktop. Kinds that are not listed have the size that the language gives to all.
constexpr std::array kSizes{
    SizeOfKind{ControlKind::Label, 81, 17},        SizeOfKind{ControlKind::TextBox, 81, 21},
    SizeOfKind{ControlKind::Button, 81, 25},       SizeOfKind{ControlKind::CheckBox, 97, 17},
    SizeOfKind{ControlKind::OptionButton, 97, 17}, SizeOfKind{ControlKind::Frame, 129, 89},
    SizeOfKind{ControlKind::ListBox, 97, 82},      SizeOfKind{ControlKind::ComboBox, 97, 21},
    SizeOfKind{ControlKind::PictureBox, 81, 65},   SizeOfKind{ControlKind::Image, 65, 65},
    SizeOfKind{ControlKind::Shape, 81, 49},        SizeOfKind{ControlKind::HScrollBar, 121, 17},
    SizeOfKind{ControlKind::VScrollBar, 17, 121},  SizeOfKind{ControlKind::Grid, 161, 97},
    SizeOfKind{ControlKind::TabStrip, 193, 121},   SizeOfKind{ControlKind::TabbedBox, 193, 121},
    SizeOfKind{ControlKind::ColumnList, 161, 97},  SizeOfKind{ControlKind::Tree, 121, 97},
    SizeOfKind{ControlKind::ToolBar, 193, 28},     SizeOfKind{ControlKind::StatusBar, 193, 21},
    SizeOfKind{ControlKind::ProgressBar, 121, 17}, SizeOfKind{ControlKind::Slider, 121, 33},
    SizeOfKind{ControlKind::DateBox, 97, 21},      SizeOfKind{ControlKind::UpDown, 17, 33},
    SizeOfKind{ControlKind::DataBar, 121, 21},     SizeOfKind{ControlKind::Line, 81, 33},
};

QSizeF sizeOfKind(const DrawnControl& drawn) {
    if (drawn.look.kind == ControlKind::UserControl) return drawn.look.picture.deviceIndependentSize();
    for (const auto& entry : kSizes)
        if (entry.kind == drawn.look.kind) return {entry.width, entry.height};
    return drawn.place.size();
}

DesignChange fontChange(const char* member, const PropertyReader& form) {
    const std::string name(member);
    if (name == "Name") return {name, form.text(name).toStdString()};
    if (name == "Size") return {name, form.real(name)};
    return {name, form.flag(name)};
}

} // namespace

QSizeF usualSize(const DrawnControl& drawn, const vbide::Ref<vbide::VBForm>& form, const QSizeF& room) {
    const auto described = host::describedSize(form, drawn.control);
    auto size = sizeOfKind(drawn);
    if (described.width > 0)
        size = QSizeF(described.width, described.height) * std::max(1.0, drawn.look.font.pixelSize() / kDescribedFont);
    const auto within = [](double wanted, double most) {
        return std::clamp(wanted, kSmallest, std::max(most, kSmallest));
    };
    return {within(std::round(size.width()), room.width()), within(std::round(size.height()), room.height())};
}

void setFontOfForm(const vbide::Ref<vbide::Properties>& form, const vbide::Ref<vbide::Properties>& control) {
    const auto font = PropertyReader(form).group("Font");
    if (!font) return;
    if (PropertyReader(control).has("FontName")) { // of a device
        constexpr int kBold = 1, kItalic = 2;
        const int style = (font->flag("Bold") ? kBold : 0) | (font->flag("Italic") ? kItalic : 0);
        control->Item("FontName")->Value(font->text("Name").toStdString());
        control->Item("FontSize")->Value(std::int32_t(std::lround(font->real("Size"))));
        if (PropertyReader(control).has("FontStyle")) control->Item("FontStyle")->Value(std::int32_t(style));
        return;
    }
    vbide::Ref<vbide::Properties> members;
    (void)basic::attempt([&] { members = control->Item("Font")->ObjectValue(); });
    if (!members) return;
    for (const auto* member : {"Name", "Size", "Bold", "Italic", "Underline", "Strikethrough"}) {
        const auto change = fontChange(member, *font);
        if (members->Item(change.property)->Value() != change.value)
            members->Item(change.property)->Value(change.value);
    }
}

} // namespace workbench
