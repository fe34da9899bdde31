// Finding the place of the menu and other controls on the host's bars.
#include "Add-in/commands/modMenuManagement.h"
#include <fmt/format.h>

namespace fernwick {

namespace {
/// Ids of the host's menus View and Add-Ins.
constexpr int kViewMenuId = 30004;
constexpr int kAddInsMenuId = 30038;
/// Id of the host's command that saves the active project.
constexpr int kSaveProjectId = 3;
} // namespace

/// Returns the bar with the host's own menus, whatever its name; Nothing if there is none.
basic::Ref<office::CommandBar> modMenuManagement::menuBar(basic::Suppressed& quietly) {
    basic::Ref<office::CommandBar> bar;
    quietly([&] {
        const auto bars = services_.addIn.gVBInstance->CommandBars();
        auto known = bars->FindControl(kViewMenuId);
        if (!known) known = bars->FindControl(kAddInsMenuId);
        bar = known ? bars->Item(known->Parent()->Name()) : bars->ActiveMenuBar();
    });
    return bar;
}

modMenuManagement::Item modMenuManagement::AddSubMenu(const std::string& barName, const std::string& caption) {
    basic::Suppressed quietly;
    const auto bar = menuBar(quietly);
    if (!bar) return reportNoMenuBar(barName, quietly.Err), nullptr;
    quietly([&] { bar->Controls()->Item(caption)->Delete(); }); // from an earlier run

    int before = 0;
    for (const auto& control : bar->Controls()->items())
        if (control->Id() == kAddInsMenuId) before = control->Index();
    const auto menu = bar->Controls()->Add(office::msoControlPopup, before);
    menu->Caption(caption);
    menu->Tag(caption);
    return menu;
}

void modMenuManagement::reportNoMenuBar(const std::string& barName, const basic::ErrObject& error) {
    using namespace fmt::literals;
    services_.user.MsgBox(fmt::format(command_texts::kNoMenu, "bar"_a = barName, "description"_a = error.Description,
                                      "number"_a = error.Number),
                          vbCritical, command_texts::kNoMenuTitle);
}

modMenuManagement::Item modMenuManagement::saveProjectItem() const {
    return services_.addIn.gVBInstance->CommandBars()->FindControl(kSaveProjectId);
}

modMenuManagement::Item modMenuManagement::FindConverterMenuItem() {
    Procedure here{services_.errors, "modMenuManagement.FindConverterMenuItem"};
    if (!items_.gUtilitiesPopup) return items_.gConverterItem;
    for (const auto& control : here.value([&] { return items_.gUtilitiesPopup->Controls()->items(); })) {
        const auto isConverter = [&] {
            return control->Caption().find(command_texts::kConverterCaption) != std::string::npos;
        };
        if (here.test(isConverter)) items_.gConverterItem = control;
    }
    return items_.gConverterItem;
}

} // namespace fernwick
