#include "Apps/workbench/drawing/collection_look.h"
#include "Apps/workbench/base/twips.h"
#include "Apps/workbench/properties/form_colours.h"
#include <algorithm>

namespace workbench {

namespace {

constexpr int kMostParts = 100;
constexpr double kHundredthsPerInch = 2540, kScreenPerInch = 96;
constexpr std::int32_t kWindowColour = std::int32_t(0x80000005), kFaceColour = std::int32_t(0x8000000f);

double pixelsOfHundredths(double hundredths) { return hundredths * kScreenPerInch / kHundredthsPerInch; }

int countOf(const PropertyReader& read, const char* name, int usual = 0) {
    return std::clamp(read.number(name, usual), 0, kMostParts);
}

/// Calls `see` for each member of a collection. Some libraries write "Panel1", others "ColumnHeader(1)".
template <class See>
void eachMember(const PropertyReader& read, const char* collection, const char* counter, const QString& member,
                const See& see) {
    const auto group = read.group(collection);
    if (!group) return;
    for (int i = 1; i <= countOf(*group, counter); ++i) {
        auto one = group->group(QString("%1%2").arg(member).arg(i).toStdString());
        if (!one) one = group->group(QString("%1(%2)").arg(member).arg(i).toStdString());
        if (one) see(*one);
    }
}

void readTabStrip(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    look.tabHeight = pixelsOfHundredths(read.real("TabFixedHeight"));
    if (ofDevice)
        look.items = read.text("Tabs").split('|');
    else
        eachMember(read, "Tabs", "NumTabs", "Tab", [&](const auto& tab) { look.items << tab.text("Caption"); });
}

/// The form lists the controls of each tab and keeps those of hidden tabs far to the left.
void readTabbedBox(ControlLook& look, const PropertyReader& read) {
    constexpr int kUsualTabs = 3;
    const int tabs = countOf(read, "Tabs", kUsualTabs);
    look.current = std::clamp(read.number("Tab"), 0, std::max(0, tabs - 1));
    look.perRow = std::max(1, read.number("TabsPerRow", kUsualTabs));
    look.tabHeight = pixelsOfHundredths(read.real("TabHeight"));
    for (int tab = 0; tab < tabs; ++tab) {
        const auto text = [&](const QString& key) { return read.text(key.arg(tab).toStdString()); };
        const auto caption = text("TabCaption(%1)");
        look.items << (caption.isEmpty() ? QString("Tab %1").arg(tab) : caption);
        if (tab == look.current) continue;
        const int controls = countOf(read, QString("Tab(%1).ControlCount").arg(tab).toStdString().c_str(), kMostParts);
        for (int i = 0; i < controls; ++i) {
            const auto name = text(QString("Tab(%1).Control(") + QString::number(i) + ")");
            if (name.isEmpty()) break;
            look.absent.push_back(name);
        }
    }
}

void readColumns(ControlLook& look, const PropertyReader& read) {
    constexpr int kReport = 3;
    look.border = ControlBorder::Sunken;
    look.back = read.colour("BackColor", formColour(kWindowColour));
    if (read.number("View") != kReport || read.flag("HideColumnHeaders")) return;
    eachMember(read, "ColumnHeaders", "NumItems", "ColumnHeader", [&](const auto& column) {
        look.items << column.text("Text");
        look.widths.push_back(pixelsOfHundredths(column.real("Object.Width", kHundredthsPerInch)));
    });
}

void readToolBar(ControlLook& look, const PropertyReader& read) {
    eachMember(read, "Buttons", "NumButtons", "Button", [&](const auto& button) {
        constexpr int kSeparator = 3, kPlaceholder = 4;
        const int style = button.number("Style");
        look.items << button.text("Caption");
        look.widths.push_back(style == kPlaceholder ? pixelsOfHundredths(button.real("Object.Width")) : 0);
        look.checks = look.checks || style == kSeparator;
        if (style == kSeparator) look.items.back() = "-";
    });
}

void readStatusBar(ControlLook& look, const PropertyReader& read) {
    constexpr int kSimple = 1, kSpring = 1;
    if (read.number("Style") == kSimple) {
        look.items << read.text("SimpleText");
        return;
    }
    eachMember(read, "Panels", "NumPanels", "Panel", [&](const auto& panel) {
        look.items << panel.text("Text");
        const bool springs = panel.number("AutoSize") == kSpring;
        look.widths.push_back(springs ? 0 : pixelsOfHundredths(panel.real("Object.Width", kHundredthsPerInch)));
    });
}

void readSlider(ControlLook& look, const PropertyReader& read) {
    const double first = read.real("Min"), last = read.real("Max", look.kind == ControlKind::Slider ? 10 : 100);
    look.across = read.number("Orientation") == 0;
    look.thumb = first == last ? 0 : std::clamp((read.real("Value", first) - first) / (last - first), 0.0, 1.0);
    look.back = formColour(kFaceColour);
}

} // namespace

void readCollection(ControlLook& look, bool ofDevice, const PropertyReader& read) {
    switch (look.kind) {
    case ControlKind::TabStrip: readTabStrip(look, ofDevice, read); break;
    case ControlKind::TabbedBox: readTabbedBox(look, read); break;
    case ControlKind::ColumnList: readColumns(look, read); break;
    case ControlKind::Tree:
        look.border = ControlBorder::Sunken;
        look.back = formColour(kWindowColour);
        break;
    case ControlKind::ToolBar: readToolBar(look, read); break;
    case ControlKind::StatusBar: readStatusBar(look, read); break;
    case ControlKind::ProgressBar:
    case ControlKind::Slider: readSlider(look, read); break;
    case ControlKind::UpDown: look.across = read.number("Orientation") == 1; break;
    case ControlKind::DateBox: look.back = formColour(kWindowColour); break;
    default: break;
    }
}

} // namespace workbench
