#pragma once
// The messages window without its drawing: the rows in their order, and the actions on them.
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/compile_messages.h"
#include "Add-in/build/messages/message_grid.h"
#include "Add-in/commands/modViewConvertManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/procedure.h"
#include "Add-in/core/settings_dialog.h"
#include "Add-in/platform/platform.h"
#include "Add-in/platform/property.h"
#include <map>
#include <optional>

namespace fernwick {

/// The dependencies of the messages window.
struct CompileMsgsServices {
    const Platform& platform;
    ErrorReport& errors;
    AddIn& addIn;
    const modQLInstallInfo& install;
    SettingsDialog& settings;
    modViewConvertManagement& tools;
};

enum KeyCodeConstants : int { vbKeyC = 67, vbKeyF1 = 112 };
enum ShiftConstants : int { vbCtrlMask = 2 };

class udocCompileMsgs : public CompileMessages {
public:
    using enum MessageGrid::Column;
    using Row = MessageGrid::Row;

    /// The layout of the status line, in twips.
    struct StatusSizes {
        std::int32_t separatorWidth = 0, textLeft = 0, textWidth = 0;
    };

    explicit udocCompileMsgs(const CompileMsgsServices& services);

    /// Caption before the status.
    Property<std::string> lblStatus{build_texts::kStatusLabelAtFirst};
    Property<std::string> lblStatusText;
    /// Raised when a row has been added; the argument is true if it is right below the header.
    Event<bool> added;
    /// The messages were cleared.
    Event<> cleared;
    /// gotoMessage has selected another row.
    Event<> chosen;

    void SetStatusLabel(const std::string& newStatusLabel) override;
    void SetStatusText(const std::string& newStatusText) override { lblStatusText(newStatusText); }
    void add(const std::string& aFileName, const std::string& aFiletitle, std::int32_t aLineNumber,
             const std::string& aMessage, int MsgType, std::int32_t errno_, bool AddToTop) override;
    void clearMessages() override;
    void gotoFirstError() override;
    void gotoMessage(std::int32_t MsgIndex) override;

    const MessageGrid& msgGrid() const { return grid_; }
    /// Includes the header row.
    std::int32_t rowCount() const { return grid_.rowCount(); }
    /// Counts from 1. Error 30009 for a row that is not a message.
    const Row& message(std::int32_t row) const { return grid_.row(row); }
    /// 0 for the header.
    std::int32_t selectedRow() const { return selectedRow_; }
    const StatusSizes& statusSizes() const { return statusSizes_; }
    /// Returns a BMP file's bytes. An error for a number without a picture, and when the add-in is disconnected.
    std::shared_ptr<const std::string> pictureOf(int number);
    /// Returns the text that copying the row puts on the clipboard.
    std::string copyText(std::int32_t row) const;

    // Called by the window:
    /// Called when the user selects a row; 0 is the header. Error 30009 for a row that does not exist.
    void select(std::int32_t row);
    void msgGrid_DblClick();
    /// F1 shows the help on the selected row's number, Ctrl+C copies the row. `Shift` is a sum of ShiftConstants.
    void msgGrid_KeyDown(int KeyCode, int Shift);
    /// Selects the row and opens its source line, if it has one, without the message's double-click action, to step
    /// through the messages.
    void showSource(std::int32_t row);
    /// Sets the window's inner size and the grid's position in it, in twips.
    void UserDocument_Resize(std::int32_t width, std::int32_t height, std::int32_t gridTop);
    /// Sets the context that measures texts, null when the window is closed. Called again when its font changes.
    void drawWith(const DeviceContext* context);

    /// Called when the add-in is disconnected while the host keeps the window: the rows stay, but without actions.
    void disconnect() { services_.reset(); }

private:
    using Cells = std::array<std::string, MessageGrid::kColumns>;

    void SetStatusSizes();
    void openSource(Procedure& here, const Cells& cells);
    void showLine(Procedure& here, const basic::Ref<vbide::CodePane>& pane, std::int32_t line);
    void actOn(Procedure& here, std::int32_t errorNumber);
    void showHelp(Procedure& here);
    void copyRow(Procedure& here);
    void box(const std::string& text, int icon);

    /// Empty when the add-in is disconnected.
    std::optional<CompileMsgsServices> services_;
    MessageGrid grid_;
    std::int32_t documentWidth_ = 0, documentHeight_ = 0, gridTop_ = 0;
    StatusSizes statusSizes_;
    std::int32_t selectedRow_ = 0;
    /// Loaded pictures, by number.
    std::map<int, std::shared_ptr<const std::string>> pictures_;
};

} // namespace fernwick
