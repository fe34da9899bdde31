#pragma once
#include "Add-in/platform/clipboard.h"
#include <utility>

namespace host {

/// A clipboard within this process, for use without a desktop. Formats are in the order in which they were set.
class Clipboard : public fernwick::Clipboard {
public:
    std::vector<std::string> Formats() const override;
    std::string GetData(const std::string& format) const override;
    void SetData(const std::string& format, const std::string& data) override;
    void Clear() override { contents_.clear(); }

private:
    std::vector<std::pair<std::string, std::string>> contents_;
};

} // namespace host
