#pragma once
// The messages window without its drawing: the rows in their order, and the way from a message to its source.
#include "Add-in/build/build_texts.h"
#include "Add-in/build/compile_messages.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/property.h"
#include <array>
#include <deque>

namespace fernwick {

class udocCompileMsgs : public CompileMessages {
public:
    enum Column { FileNameColumn, PictureColumn, TitleColumn, LineColumn, ErrorColumn, MessageColumn, kColumns };
    struct Row {
        std::array<std::string, kColumns> cells;
        /// A tMessageType, or 0 for a row without a picture.
        int picture = 0;
    };

    udocCompileMsgs(AddIn& addIn, ErrorReport& errors) : addIn_(&addIn), errors_(&errors) {}

    /// Caption before the status.
    Property<std::string> lblStatus{build_texts::kStatusLabelAtFirst};
    Property<std::string> lblStatusText;
    /// The rows are other ones than before.
    Event<> refreshed;

    void SetStatusLabel(const std::string& newStatusLabel) override { lblStatus(newStatusLabel); }
    void SetStatusText(const std::string& newStatusText) override { lblStatusText(newStatusText); }
    void add(const std::string& aFileName, const std::string& aFiletitle, std::int32_t aLineNumber,
             const std::string& aMessage, int MsgType, std::int32_t errno_, bool AddToTop) override;
    void clearMessages() override;
    void gotoFirstError() override;
    void gotoMessage(std::int32_t MsgIndex) override;

    /// The header row included.
    std::int32_t rowCount() const { return std::int32_t(rows_.size()) + 1; }
    /// From 1. Error 30009 outside of the messages.
    const Row& message(std::int32_t row) const;
    /// 0 for the header.
    std::int32_t selectedRow() const { return selectedRow_; }
    void msgGrid_DblClick();

    /// The add-in goes while the host still has the window: the rows stay, and lead nowhere.
    void letGo() { addIn_ = nullptr; }

private:
    void openSource(Procedure& here, const std::string& title, std::int32_t line);

    AddIn* addIn_;
    ErrorReport* errors_;
    std::deque<Row> rows_;
    std::int32_t selectedRow_ = 0;
};

} // namespace fernwick
