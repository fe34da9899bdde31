// The actions on messages.
#include "Add-in/build/messages/message_numbers.h"
#include "Add-in/build/messages/udocCompileMsgs.h"
#include "Basic/conversions.h"

namespace fernwick {

namespace {

/// Beyond the end of any line, so the whole line is selected.
constexpr int kEndOfLine = 9999;
constexpr char kPicturesHelpFile[] = "VB Toolkit\\doc\\Quinloft_Tamarik_and_Components.chm";
constexpr char kPicturesPage[] = "::/Quinloft_Tamarik_and_Components_Tamarik And PNG Files.html";

} // namespace

void udocCompileMsgs::msgGrid_DblClick() {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.msgGrid_DblClick"};
    if (selectedRow_ <= 0) return;
    const auto cells = message(selectedRow_).cells; // opening the source processes events, which may clear the rows
    openSource(here, cells);
    if (services_ && !cells[ErrorColumn].empty()) actOn(here, basic::CLng(cells[ErrorColumn]));
}

void udocCompileMsgs::showSource(std::int32_t row) {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.showSource"};
    if (!here([&] { select(row); }) || row == 0) return;
    const auto cells = message(row).cells;
    openSource(here, cells);
}

void udocCompileMsgs::openSource(Procedure& here, const Cells& cells) {
    const auto& title = cells[TitleColumn];
    const std::int32_t line = cells[LineColumn].empty() ? -1 : basic::CLng(cells[LineColumn]);
    if (title.empty() || line <= 0) return;
    const auto pane = here.value([&] {
        return services_->addIn.gVBInstance->ActiveVBProject()->VBComponents()->Item(title)->CodeModule()->CodePane();
    });
    if (!pane) return;
    here([&] { pane->Show(); });
    showLine(here, pane, line);
}

/// Redrawing of the host's window is suspended while the pane's window is resized, to avoid flicker.
void udocCompileMsgs::showLine(Procedure& here, const basic::Ref<vbide::CodePane>& pane, std::int32_t line) {
    if (!services_) return; // showing the pane processed events
    auto& user = services_->platform.interaction;
    here([&] { user.SetRedraw(false); });
    here([&] { pane->Window()->WindowState(vbide::vbext_ws_Normal); });
    here([&] { user.SetRedraw(true); });
    here([&] { pane->Window()->SetFocus(); });
    here([&] { pane->SetSelection(line, 1, line, kEndOfLine); });
}

void udocCompileMsgs::actOn(Procedure& here, std::int32_t errorNumber) {
    const auto services = *services_; // reports and dialogs process events
    switch (errorNumber) {
    case message_numbers::kComponentNotSupported:
        here([&] { services.platform.interaction.SetCursor(vbHourglass); });
        here([&] {
            services.settings.ShowQuinloftSettings(services.addIn.gVBInstance->ActiveVBProject(), kCompilerSettingsPage,
                                                   false);
        });
        break;
    case message_numbers::kFontMissing:
        if (!services.tools.OpenViewerConverter(kFontConverter))
            here([&] { box(build_texts::kNoFontConverter, vbCritical); });
        break;
    case message_numbers::kPictureHelp:
        here([&] {
            services.platform.shell.Start("Hh.exe ms-its:" + services.install.requireInstalled(kPicturesHelpFile) +
                                          kPicturesPage);
        });
        break;
    default: break;
    }
}

void udocCompileMsgs::box(const std::string& text, int icon) {
    services_->platform.interaction.MsgBox(text, icon, build_texts::kTitle);
}

} // namespace fernwick
