#include "Add-in/build/messages/udocCompileMsgs.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

/// Between the status line and the document's edges, in twips.
constexpr std::int32_t kStatusMargin = 75;

std::string numberCell(std::int32_t number) { return number == 0 ? std::string{} : fmt::to_string(number); }

std::string withoutLineEnd(std::string message) {
    if (message.ends_with("\r\n")) message.resize(message.size() - 2);
    return message;
}

} // namespace

udocCompileMsgs::udocCompileMsgs(const CompileMsgsServices& services)
    : services_(services), grid_(services.platform.screen) {
    grid_.SetGridSizes(0, 0, 0);
}

void udocCompileMsgs::SetStatusLabel(const std::string& newStatusLabel) {
    lblStatus(newStatusLabel);
    SetStatusSizes();
}

void udocCompileMsgs::add(const std::string& aFileName, const std::string& aFiletitle, std::int32_t aLineNumber,
                          const std::string& aMessage, int MsgType, std::int32_t errno_, bool AddToTop) {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.add"};
    const auto row = grid_.insert(
        {aFileName, "", aFiletitle, numberCell(aLineNumber), numberCell(errno_), withoutLineEnd(aMessage)}, AddToTop);
    row->type = MsgType == ERROR_MSG || MsgType == WARNING_MSG ? MsgType : 0;
    grid_.measure(*row);
    grid_.fitHeight(*row);
    (void)basic::attempt([&] { row->picture = pictureOf(MsgType); }); // a row may lack its picture
    here([&] { added.raise(AddToTop); });
}

std::shared_ptr<const std::string> udocCompileMsgs::pictureOf(int number) {
    if (!services_) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    auto& picture = pictures_[number];
    if (!picture) picture = std::make_shared<const std::string>(services_->platform.resources.LoadBitmap(number));
    return picture;
}

void udocCompileMsgs::clearMessages() {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.clearMessages"};
    grid_.clear();
    selectedRow_ = 0;
    here([&] { cleared.raise(); });
}

void udocCompileMsgs::gotoFirstError() {
    for (std::int32_t row = MessageGrid::kFixedRows; row < rowCount(); ++row) {
        if (message(row).cells[LineColumn].empty()) continue;
        gotoMessage(row);
        return;
    }
}

void udocCompileMsgs::gotoMessage(std::int32_t MsgIndex) {
    if (!services_) return;
    Procedure here{services_->errors, "udocCompileMsgs.gotoMessage"};
    if (MsgIndex > MessageGrid::kFixedRows + rowCount()) return;
    here([&] {
        select(MsgIndex);
        chosen.raise();
    });
    msgGrid_DblClick();
}

void udocCompileMsgs::select(std::int32_t row) {
    if (row != 0) (void)message(row);
    selectedRow_ = row;
}

void udocCompileMsgs::UserDocument_Resize(std::int32_t width, std::int32_t height, std::int32_t gridTop) {
    documentWidth_ = width;
    documentHeight_ = height;
    gridTop_ = gridTop;
    grid_.SetGridSizes(width, height, gridTop);
    SetStatusSizes();
}

void udocCompileMsgs::SetStatusSizes() {
    const auto label = std::int32_t(float(grid_.measured(lblStatus()).width) * grid_.twipsX());
    statusSizes_.separatorWidth = documentWidth_;
    statusSizes_.textLeft = kStatusMargin + label;
    statusSizes_.textWidth = keepPositive(documentWidth_ - kStatusMargin - statusSizes_.textLeft);
}

void udocCompileMsgs::drawWith(const DeviceContext* context) {
    grid_.measureWith(context);
    grid_.measureAll();
    UserDocument_Resize(documentWidth_, documentHeight_, gridTop_);
}

} // namespace fernwick
