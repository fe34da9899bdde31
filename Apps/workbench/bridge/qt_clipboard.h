#pragma once
#include "Add-in/platform/clipboard.h"
#include <QObject>
#include <optional>
#include <utility>

namespace workbench {

/// The desktop's clipboard. Formats are MIME types. Changes reach the desktop when Qt's loop turns, and only if the
/// contents then differ. The add-in saves and restores the contents at its start; this leaves them with the program
/// that owns them, even if that program hangs.
class QtClipboard final : public fernwick::Clipboard {
public:
    QtClipboard() = default;
    QtClipboard(const QtClipboard&) = delete;
    ~QtClipboard() override { publish(); }

    std::vector<std::string> Formats() const override;
    std::string GetData(const std::string& format) const override;
    /// Keeps the other formats. Text in the single-byte code page is also offered to other programs as plain text.
    void SetData(const std::string& format, const std::string& data) override;
    void Clear() override;

private:
    using Contents = std::vector<std::pair<std::string, std::string>>;

    /// What other programs see, read once per turn of the loop.
    const Contents& desktops() const;
    const Contents& contents() const { return changed_ ? *changed_ : desktops(); }
    Contents& change();
    void publish() const;

    /// Valid until Qt's loop turns.
    mutable std::optional<Contents> read_, changed_;
    QObject context_;
};

} // namespace workbench
