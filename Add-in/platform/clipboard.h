#pragma once
#include <string>
#include <vector>

namespace fernwick {

/// The clipboard, in all the formats that its owner offers.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual std::vector<std::string> Formats() const = 0;
    /// "" for a format that is not there.
    virtual std::string GetData(const std::string& format) const = 0;
    virtual void SetData(const std::string& format, const std::string& data) = 0;
    virtual void Clear() = 0;
};

} // namespace fernwick
