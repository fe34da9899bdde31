// The keys of the messages window.
#include "Add-in/build/messages/udocCompileMsgs.h"
#include "Basic/code_page.h"
#include "Basic/conversions.h"
#include "Basic/text_search.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr char kHelpFile[] = "VB Toolkit\\doc\\Quinloft_Error_Codes.chm";
/// The pages of the help file are in the folder of its name, each under its number.
constexpr char kHelpPage[] = "VB Toolkit\\doc\\Quinloft_Error_Codes\\{}.html";
std::string inCodePage(const std::string& text) {
    const auto page = basic::CodePage::windows1252();
    return page.encode(page.replaceMissing(text));
}

} // namespace

void udocCompileMsgs::msgGrid_KeyDown(int KeyCode, int Shift) {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.msgGrid_KeyDown"};
    if (KeyCode == vbKeyF1 && Shift == 0) showHelp(here);
    if (KeyCode == vbKeyC && Shift == vbCtrlMask && selectedRow_ > 0) copyRow(here);
}

void udocCompileMsgs::showHelp(Procedure& here) {
    std::int32_t number = 0;
    if (!here([&] { number = basic::CLng(grid_.cell(selectedRow_, ErrorColumn)); })) return;
    const auto services = *services_; // the box processes events
    const auto page = fmt::format(kHelpPage, number);
    if (!here.test([&] { return services.platform.files.FileExists(services.install.installed(page)); }))
        here([&] { box(basic::Replace(build_texts::kNoHelpPage, "{number}", fmt::to_string(number)), vbInformation); });
    here([&] {
        services.platform.shell.Start(
            fmt::format("Hh.exe -mapid {} {}", number, services.install.requireInstalled(kHelpFile)));
    });
}

std::string udocCompileMsgs::copyText(std::int32_t row) const {
    const auto& cells = message(row).cells;
    return "File Title: " + cells[TitleColumn] + ", Line: " + cells[LineColumn] +
           ", Error Number: " + cells[ErrorColumn] + ", Message: " + cells[MessageColumn];
}

/// Plain text on the clipboard ends with a NUL character. If it has characters beyond the code page, the full
/// text is copied too.
void udocCompileMsgs::copyRow(Procedure& here) {
    auto& clipboard = services_->platform.clipboard;
    const auto text = copyText(selectedRow_);
    here([&] { clipboard.Clear(); });
    here([&] { clipboard.SetData(kAnsiTextFormat, inCodePage(text) + '\0'); });
    const bool isWhole = basic::CodePage::windows1252().tryEncode(text).has_value();
    if (!isWhole) here([&] { clipboard.SetData(kTextFormat, text); });
}

} // namespace fernwick
