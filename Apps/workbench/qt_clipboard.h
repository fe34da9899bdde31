#pragma once
#include "Add-in/platform/clipboard.h"

namespace workbench {

/// The desktop's clipboard. Formats are MIME types.
class QtClipboard final : public fernwick::Clipboard {
public:
    std::vector<std::string> Formats() const override;
    std::string GetData(const std::string& format) const override;
    /// The formats that stand there stay. Text in the single-byte code page is there for other programs as plain text too.
    void SetData(const std::string& format, const std::string& data) override;
    void Clear() override;
};

} // namespace workbench
