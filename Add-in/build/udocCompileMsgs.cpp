#include "Add-in/build/udocCompileMsgs.h"
#include "Add-in/build/build_texts.h"
#include "Basic/conversions.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr int kInvalidRowValue = 30009;
constexpr std::int32_t kFixedRows = 1;
/// Behind the end of any line: the whole line is selected.
constexpr int kEndOfLine = 9999;

std::string numberCell(std::int32_t number) { return number == 0 ? std::string{} : fmt::to_string(number); }

std::string withoutLineEnd(std::string message) {
    if (message.ends_with("\r\n")) message.resize(message.size() - 2);
    return message;
}

} // namespace

void udocCompileMsgs::add(const std::string& aFileName, const std::string& aFiletitle, std::int32_t aLineNumber,
                          const std::string& aMessage, int MsgType, std::int32_t errno_, bool AddToTop) {
    Row row{{aFileName, "", aFiletitle, numberCell(aLineNumber), numberCell(errno_), withoutLineEnd(aMessage)},
            MsgType == ERROR_MSG || MsgType == WARNING_MSG ? MsgType : 0};
    if (AddToTop)
        rows_.push_front(std::move(row));
    else
        rows_.push_back(std::move(row));
    refreshed.raise();
}

void udocCompileMsgs::clearMessages() {
    rows_.clear();
    selectedRow_ = 0;
    refreshed.raise();
}

const udocCompileMsgs::Row& udocCompileMsgs::message(std::int32_t row) const {
    if (row < kFixedRows || row >= rowCount()) throw basic::RuntimeError(kInvalidRowValue, "Invalid Row value");
    return rows_[std::size_t(row - kFixedRows)];
}

void udocCompileMsgs::gotoFirstError() {
    for (std::int32_t row = kFixedRows; row < rowCount(); ++row) {
        if (message(row).cells[LineColumn].empty()) continue;
        gotoMessage(row);
        return;
    }
}

void udocCompileMsgs::gotoMessage(std::int32_t MsgIndex) {
    if (!addIn_) return;
    Procedure here{*errors_, "udocCompileMsgs.gotoMessage"};
    if (MsgIndex > kFixedRows + rowCount()) return;
    here([&] {
        if (MsgIndex != 0) (void)message(MsgIndex);
        selectedRow_ = MsgIndex;
    });
    msgGrid_DblClick();
}

void udocCompileMsgs::msgGrid_DblClick() {
    if (!addIn_) return;
    Procedure here{*errors_, "udocCompileMsgs.msgGrid_DblClick"};
    if (selectedRow_ <= 0) return;
    const auto cells = message(selectedRow_).cells; // opening the source lets events in, which may clear the rows
    const std::int32_t line = cells[LineColumn].empty() ? -1 : basic::CLng(cells[LineColumn]);
    if (!cells[TitleColumn].empty() && line > 0) openSource(here, cells[TitleColumn], line);
}

void udocCompileMsgs::openSource(Procedure& here, const std::string& title, std::int32_t line) {
    const auto pane = here.value(
        [&] { return addIn_->gVBInstance->ActiveVBProject()->VBComponents()->Item(title)->CodeModule()->CodePane(); });
    if (!pane) return;
    here([&] { pane->Show(); });
    here([&] { pane->Window()->WindowState(vbide::vbext_ws_Normal); });
    here([&] { pane->Window()->SetFocus(); });
    here([&] { pane->SetSelection(line, 1, line, kEndOfLine); });
}

} // namespace fernwick
