#pragma once
// Texts that many parts of an image have in common.
#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace image {

/// A text that is shared by its copies, so that a decoded image is never much larger than its file.
class SharedText {
public:
    SharedText() = default;
    SharedText(std::string text) : text_(std::make_shared<const std::string>(std::move(text))) {}
    SharedText(const char* text) : SharedText(std::string(text)) {}

    const std::string& str() const {
        static const std::string empty;
        return text_ ? *text_ : empty;
    }
    operator const std::string&() const { return str(); }
    operator std::string_view() const { return str(); }

    friend bool operator==(const SharedText& a, const SharedText& b) { return a.str() == b.str(); }
    template <std::convertible_to<std::string_view> T>
    friend bool operator==(const SharedText& a, const T& b) {
        return a.str() == std::string_view(b);
    }

private:
    std::shared_ptr<const std::string> text_;
};

} // namespace image
