#include "Apps/workbench/drawing/control_look.h"
#include "Apps/workbench/drawing/collection_look.h"
#include "Apps/workbench/properties/form_colours.h"
#include "Basic/case_folding.h"
#include <algorithm>
#include <array>

namespace workbench {

namespace {

constexpr std::int32_t kButtonFace = std::int32_t(0x8000000f), kButtonText = std::int32_t(0x80000012);
constexpr int kMostPenWidth = 200, kMostGridLines = 200;

template <class T, std::size_t N>
T entryOr(const std::array<T, N>& entries, int index, T otherwise) {
    return index >= 0 && std::size_t(index) < N ? entries.at(std::size_t(index)) : otherwise;
}

Qt::Alignment alignmentOf(int value) {
    constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    return entryOr(kAlignments, value, Qt::AlignLeft);
}

/// Device controls specify the border; the language's controls have a line, or a sunken edge if they are 3D.
ControlBorder borderOf(bool ofDevice, const PropertyReader& read, bool byDefault) {
    constexpr std::array kBorders{ControlBorder::None, ControlBorder::Single, ControlBorder::Raised,
                                  ControlBorder::Sunken};
    const int style = read.number("BorderStyle", byDefault ? 1 : 0);
    if (ofDevice) return entryOr(kBorders, style, ControlBorder::None);
    if (style == 0) return ControlBorder::None;
    return read.number("Appearance", 1) == 0 ? ControlBorder::Single : ControlBorder::Sunken;
}

void readColoursAndFont(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    look.back = read.colour("BackColor", formColour(kButtonFace));
    look.fore = read.colour("ForeColor", formColour(kButtonText));
    look.font = ofDevice ? read.deviceFont() : read.font();
    look.enabled = read.flag("Enabled", true);
}

void readPicture(ControlLook& look, const PropertyReader& read) {
    look.picture = read.picture("Picture");
    look.unreadable = look.picture.isNull() && read.hasPicture("Picture");
}

void readLabel(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    look.alignment = alignmentOf(read.number("Alignment"));
    look.border = borderOf(ofDevice, read, false);
    // 1 is opaque for the language, transparent for devices
    look.transparent = (read.number("BackStyle", ofDevice ? 0 : 1) == 0) != ofDevice;
    const bool autoSize = read.flag("AutoSize");
    look.wrapped = ofDevice ? read.flag("WordWrap", true) : !autoSize || read.flag("WordWrap");
    look.mnemonic = !ofDevice && read.flag("UseMnemonic", true);
}

void readField(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    constexpr int kAcross = 1, kDown = 2, kBoth = 3;
    look.text = read.text("Text");
    if (look.text.isEmpty()) look.text = read.text("Mask");
    look.border = borderOf(ofDevice, read, true);
    look.alignment = alignmentOf(read.number("Alignment"));
    look.wrapped = read.flag("MultiLine");
    const int bars = read.number("ScrollBars");
    look.barAcross = look.wrapped && (bars == kAcross || bars == kBoth);
    look.barDown = look.wrapped && (bars == kDown || bars == kBoth);
    if (const auto mask = read.text("PasswordChar"); !mask.isEmpty())
        look.text = QString(look.text.size(), mask.front());
}

void readChoice(ControlLook& look, const PropertyReader& read) {
    look.value = look.kind == ControlKind::OptionButton ? int(read.flag("Value")) : read.number("Value");
    look.boxRight = read.number("Alignment") == 1;
    look.wrapped = true;
}

void readButton(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    constexpr int kGraphical = 1;
    look.alignment = Qt::AlignHCenter;
    look.border = ofDevice ? borderOf(ofDevice, read, true) : ControlBorder::Raised;
    look.wrapped = true;
    if (ofDevice || read.number("Style") == kGraphical) return readPicture(look, read);
    look.back = formColour(kButtonFace);
    look.fore = formColour(kButtonText);
}

void readList(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    look.items = read.items("List");
    look.border = borderOf(ofDevice, read, true);
    look.barDown = true;
    look.checks = !ofDevice && look.kind == ControlKind::ListBox && read.number("Style") == 1;
    if (look.kind != ControlKind::ComboBox) return;
    constexpr int kSimpleCombo = 1;
    look.text = read.text("Text");
    look.arrow = ofDevice || read.number("Style") != kSimpleCombo;
    if (!ofDevice) look.border = ControlBorder::Sunken;
}

void readScrollBar(ControlLook& look, const PropertyReader& read) {
    const double first = read.real("Min"), last = read.real("Max"), value = read.real("Value");
    look.thumb = first == last ? 0 : std::clamp((value - first) / (last - first), 0.0, 1.0);
    look.back = formColour(kButtonFace);
}

void readPen(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    constexpr std::array kPens{Qt::NoPen,       Qt::SolidLine,      Qt::DashLine, Qt::DotLine,
                               Qt::DashDotLine, Qt::DashDotDotLine, Qt::SolidLine};
    look.fore = read.colour("BorderColor", Qt::black);
    look.penStyle = ofDevice ? Qt::SolidLine : entryOr(kPens, read.number("BorderStyle", 1), Qt::SolidLine);
    look.penWidth = std::clamp(read.number("BorderWidth", 1), 1, kMostPenWidth);
}

void readShape(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    constexpr std::array kBrushes{Qt::SolidPattern, Qt::NoBrush,      Qt::HorPattern,   Qt::VerPattern,
                                  Qt::FDiagPattern, Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    readPen(look, ofDevice, read);
    look.shape = read.number("Shape");
    look.brush = entryOr(kBrushes, read.number("FillStyle", 1), Qt::NoBrush);
    look.fill = read.colour("FillColor", Qt::black);
    look.back = read.colour("BackColor", Qt::white);
    look.transparent = ofDevice || read.number("BackStyle") == 0;
}

void readGrid(ControlLook& look, const PropertyReader& read) {
    const auto lines = [&](const char* name, int usual) {
        return std::clamp(read.number(name, usual), 0, kMostGridLines);
    };
    look.border = ControlBorder::Single;
    look.rows = lines("Rows", 2);
    look.columns = lines("Cols", 2);
    look.fixedRows = lines("FixedRows", 1);
    look.fixedColumns = lines("FixedCols", 0);
    look.gridLines = read.flag("GridLines", true);
    look.fill = read.colour("GridColor", Qt::lightGray);
    look.barAcross = (read.number("ScrollBars", 2) & 1) != 0;
    look.barDown = (read.number("ScrollBars", 2) & 2) != 0;
}

void readPictureBox(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    constexpr int kStretch = 1;
    readPicture(look, read);
    look.border = borderOf(ofDevice, read, !ofDevice);
    look.stretched = ofDevice ? read.number("Fit") == kStretch : read.flag("Stretch");
    if (ofDevice) look.text = read.text("PictureName") + read.text("FileName");
    look.transparent = look.kind == ControlKind::Image;
}

} // namespace

ControlLook lookOf(const std::string& className, const PropertyReader& read) {
    ControlLook look;
    look.kind = kindOfControl(className);
    const bool ofDevice = isDeviceControl(className);
    readColoursAndFont(look, ofDevice, read);
    look.text = read.text("Caption");
    switch (look.kind) {
    case ControlKind::Label: readLabel(look, ofDevice, read); break;
    case ControlKind::TextBox: readField(look, ofDevice, read); break;
    case ControlKind::Button: readButton(look, ofDevice, read); break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: readChoice(look, read); break;
    case ControlKind::Frame: look.border = borderOf(ofDevice, read, true); break;
    case ControlKind::ListBox:
    case ControlKind::ComboBox: readList(look, ofDevice, read); break;
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar: readScrollBar(look, read); break;
    case ControlKind::PictureBox:
    case ControlKind::Image: readPictureBox(look, ofDevice, read); break;
    case ControlKind::Shape: readShape(look, ofDevice, read); break;
    case ControlKind::Line: readPen(look, ofDevice, read); break;
    case ControlKind::Grid: readGrid(look, read); break;
    default: readCollection(look, ofDevice, read); break;
    }
    return look;
}

} // namespace workbench
