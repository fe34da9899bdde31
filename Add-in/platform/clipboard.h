#pragma once
#include <string>
#include <vector>

namespace fernwick {

/// The format of pictures: a BMP file's bytes.
inline constexpr char kPictureFormat[] = "image/bmp";
/// Plain text in UTF-8.
inline constexpr char kTextFormat[] = "text/plain";
/// Plain text in the system's single-byte code page, terminated by a zero.
inline constexpr char kAnsiTextFormat[] = "text/plain;charset=windows-1252";

/// The clipboard in all formats that its owner offers. All members raise error 521 while another program blocks it.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual std::vector<std::string> Formats() const = 0;
    /// Returns "" for a format that is missing.
    virtual std::string GetData(const std::string& format) const = 0;
    virtual void SetData(const std::string& format, const std::string& data) = 0;
    virtual void Clear() = 0;
};

} // namespace fernwick
