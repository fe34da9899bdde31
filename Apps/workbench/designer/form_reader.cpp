#include "Apps/workbench/designer/form_reader.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/user_controls.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Basic/runtime_error.h"
#include "Host/model/forms/form_places.h"
#include <algorithm>

namespace workbench {

namespace {

/// The size of the square for a control that is invisible at run time.
constexpr double kHiddenSize = 28;
/// Coordinates beyond this are considered damaged.
constexpr double kLargestPixels = 16384;
/// Controls on hidden tabs are moved to the left by 5000 pixels.
constexpr double kFarLeft = -2500;
constexpr std::int32_t kFormColour = std::int32_t(0x8000000f);

using Controls = std::vector<vbide::Ref<vbide::VBControl>>;

double bounded(double pixels) { return std::clamp(pixels, -kLargestPixels, kLargestPixels); }

/// Reads the controls of one form.
class ControlsReader {
public:
    /// `depth` counts the user controls around this form.
    ControlsReader(FormPicture& picture, vbide::VBComponent& component, int depth)
        : picture_(picture), userControls_(component, depth) {}

    struct Space {
        QPointF origin;
        QRectF clip;
        host::TwipsPerUnit units;
        int container = -1;
        /// Controls that are not shown.
        std::vector<QString> absent = {};
    };

    void read(const Controls& controls, const Space& space) {
        // the first in the text is on top; windowless controls are below all windows
        for (const bool windowless : {true, false})
            for (auto at = controls.rbegin(); at != controls.rend(); ++at)
                (void)basic::attempt([&] { readOne(*at, space, windowless); });
    }

private:
    void readOne(const vbide::Ref<vbide::VBControl>& control, const Space& space, bool windowless) {
        const auto className = control->ProgId();
        const auto kind = kindOfControl(className);
        if (kind == ControlKind::Menu || isWindowless(kind) != windowless) return;
        const PropertyReader read(control->Properties());
        DrawnControl drawn;
        drawn.control = control;
        drawn.name = nameWithIndex(read);
        if (std::find(space.absent.begin(), space.absent.end(), drawn.name) != space.absent.end()) return;
        drawn.className = qt(control->ClassName());
        drawn.tabIndex = read.number("TabIndex");
        drawn.visible = read.flag("Visible", true);
        drawn.look = lookOf(className, read);
        if (kind == ControlKind::Other) userControls_.read(drawn.look, className);
        drawn.origin = space.origin;
        drawn.unitX = space.units.x / kTwipsPerPixel;
        drawn.unitY = space.units.y / kTwipsPerPixel;
        drawn.container = space.container;
        place(drawn, read);
        if (drawn.place.left() - space.origin.x() < kFarLeft) return;
        drawn.clip = space.clip & drawn.place.normalized().adjusted(-1, -1, 1, 1);
        picture_.controls.push_back(drawn);
        readWithin(control, drawn, space);
    }

    static QString nameWithIndex(const PropertyReader& read) {
        const int index = read.number("Index", -1);
        return index < 0 ? read.text("Name") : QString("%1(%2)").arg(read.text("Name")).arg(index);
    }

    static void place(DrawnControl& drawn, const PropertyReader& read) {
        const auto across = [&](const char* name) { return bounded(read.real(name) * drawn.unitX); };
        const auto down = [&](const char* name) { return bounded(read.real(name) * drawn.unitY); };
        auto& kind = drawn.look.kind;
        if (kind == ControlKind::Line) {
            drawn.place = {QPointF(across("X1"), down("Y1")), QPointF(across("X2"), down("Y2"))};
        } else {
            const bool hasSize = read.has("Width");
            if (kind == ControlKind::Other && !hasSize) kind = ControlKind::Hidden;
            const bool hidden = kind == ControlKind::Hidden;
            drawn.place = {across("Left"), down("Top"), hidden ? kHiddenSize : std::max(0.0, across("Width")),
                           hidden ? kHiddenSize : std::max(0.0, down("Height"))};
        }
        drawn.place.translate(drawn.origin);
    }

    /// Coordinates in a picture box begin inside its border, in a frame at its edge.
    static double borderWithin(const ControlLook& look) {
        if (look.kind != ControlKind::PictureBox || look.border == ControlBorder::None) return 0;
        return look.border == ControlBorder::Single ? 1 : 2;
    }

    void readWithin(const vbide::Ref<vbide::VBControl>& control, const DrawnControl& drawn, const Space& around) {
        const auto inner = control->ContainedVBControls();
        if (inner.empty()) return;
        Space space;
        const double border = borderWithin(drawn.look);
        const auto inside = drawn.place.adjusted(border, border, -border, -border);
        space.origin = inside.topLeft();
        space.clip = drawn.clip & inside;
        space.units = around.units;
        (void)basic::attempt([&] { space.units = host::unitsIn(control, around.units); });
        space.container = int(picture_.controls.size()) - 1;
        space.absent = drawn.look.absent;
        read(inner, space);
    }

    FormPicture& picture_;
    UserControls userControls_;
};

std::vector<DrawnMenu> menusOf(const Controls& controls) {
    std::vector<DrawnMenu> menus;
    for (const auto& control : controls) {
        if (kindOfControl(control->ProgId()) != ControlKind::Menu) continue;
        const PropertyReader read(control->Properties());
        menus.push_back({control, read.text("Caption"), read.flag("Visible", true), read.flag("Enabled", true),
                         read.flag("Checked"), menusOf(control->ContainedVBControls())});
    }
    return menus;
}

void readFrame(FormPicture& picture, const vbide::Ref<vbide::VBForm>& form, const PropertyReader& read) {
    constexpr int kFixedTool = 4, kDialog = 3;
    const auto extent = host::extentOf(form);
    const auto pixels = [](double twips) { return bounded(twips / kTwipsPerPixel); };
    picture.inner = {std::max(0.0, pixels(extent.width)), std::max(0.0, pixels(extent.height))};
    picture.frame = {pixels(extent.left), pixels(extent.top), pixels(extent.right), pixels(extent.bottom)};
    const int style = read.number("BorderStyle", 2);
    picture.smallTitle = style >= kFixedTool;
    picture.controlBox = read.flag("ControlBox", true);
    const bool hasSizeButtons = picture.controlBox && style < kDialog;
    picture.minButton = hasSizeButtons && read.flag("MinButton", true);
    picture.maxButton = hasSizeButtons && read.flag("MaxButton", true);
}

} // namespace

FormPicture pictureOfForm(vbide::VBComponent& component, int depth) {
    const auto form = component.Designer();
    const PropertyReader read(component.Properties());
    FormPicture picture;
    picture.caption = read.text("Caption");
    picture.back = read.colour("BackColor", formColour(kFormColour));
    picture.picture = read.picture("Picture");
    picture.isLocked = read.flag("LockControls");
    readFrame(picture, form, read);
    const auto controls = form->ContainedVBControls();
    picture.menus = menusOf(controls);
    ControlsReader(picture, component, depth).read(controls, {{}, QRectF({}, picture.inner), host::unitsOn(form), -1});
    return picture;
}

} // namespace workbench
