#pragma once
#include "Add-in/platform/clipboard.h"
#include <QObject>
#include <optional>
#include <utility>

namespace workbench {

/// The desktop's clipboard. Formats are MIME types. What is changed here reaches the desktop when Qt's loop turns, and
/// not at all where it is by then as it was: the add-in's start, which puts the contents aside and back, leaves them with
/// the program that owns them, even with one that hangs and can't be asked for them.
class QtClipboard final : public fernwick::Clipboard {
public:
    QtClipboard() = default;
    QtClipboard(const QtClipboard&) = delete;
    ~QtClipboard() override { publish(); }

    std::vector<std::string> Formats() const override;
    std::string GetData(const std::string& format) const override;
    /// The formats that stand there stay. Text in the single-byte code page is there for other programs as plain text too.
    void SetData(const std::string& format, const std::string& data) override;
    void Clear() override;

private:
    using Contents = std::vector<std::pair<std::string, std::string>>;

    /// What other programs see, read once a turn.
    const Contents& desktops() const;
    const Contents& contents() const { return changed_ ? *changed_ : desktops(); }
    Contents& change();
    void publish() const;

    /// Until Qt's loop turns.
    mutable std::optional<Contents> read_, changed_;
    QObject context_;
};

} // namespace workbench
