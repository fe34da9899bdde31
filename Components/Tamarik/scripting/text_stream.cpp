#include "Components/Tamarik/scripting/text_stream.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/text/codes.h"
#include <utility>

namespace tamarik {

namespace {

constexpr std::string_view kMark = "\xFF\xFE";
constexpr int kUtf8 = 65001;

/// A byte that is not a character alone: see basic::CodePage.
bool isIncomplete(char16_t unit) { return unit >= 0xF780 && unit <= 0xF7FF; }

std::string bytesOfUnits(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

} // namespace

TextStream::TextStream(Session& session, std::shared_ptr<OpenFile> file, bool isUnicode)
    : file_(std::move(file)), codePage_(session.codePage), isUnicode_(isUnicode) {
    if (file_->traits().writes) {
        if (isUnicode_ && file_->size() == 0) file_->write(kMark);
        return;
    }
    if (isUnicode_) {
        if (file_->read(kMark.size()) != kMark) file_->seek(0);
        return;
    }
    const basic::CodePage page(static_cast<int>(codePage_));
    for (std::size_t byte = 0; byte < single_.size(); ++byte)
        single_[byte] = fromBytes(std::string(1, static_cast<char>(byte)), page).front();
}

void TextStream::releaseMembers(Heap&) { file_.reset(); }

OpenFile& TextStream::file() const {
    if (!file_) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    return *file_;
}

OpenFile& TextStream::fileToRead() const {
    if (file().traits().writes) throw basic::RuntimeError(basic::kBadFileMode);
    return *file_;
}

std::int32_t TextStream::line() const {
    (void)file();
    return line_;
}

std::int32_t TextStream::column() const {
    (void)file();
    return column_;
}

void TextStream::close() {
    if (const auto closed = std::exchange(file_, nullptr)) closed->flush();
}

std::u16string TextStream::decoded(OpenFile& file) const {
    const int first = file.next();
    if (first < 0) return {};
    std::string bytes(1, static_cast<char>(first));
    if (isUnicode_) {
        const int second = file.next();
        return second < 0 ? std::u16string() : std::u16string(1, static_cast<char16_t>(first | second << 8));
    }
    const char16_t single = single_[static_cast<std::size_t>(first)];
    const basic::CodePage page(static_cast<int>(codePage_));
    const std::size_t longest = page.number() == kUtf8 ? 4 : page.isDoubleByte() ? 2 : 1;
    if (longest == 1 || !isIncomplete(single)) return {single};
    std::u16string text;
    do {
        const int more = file.next();
        if (more < 0) break;
        bytes += static_cast<char>(more);
        text = fromBytes(bytes, page);
    } while (isIncomplete(text.front()) && bytes.size() < longest);
    return text.empty() ? std::u16string{single} : text;
}

std::optional<char16_t> TextStream::peek() {
    if (ahead_.empty()) ahead_ = decoded(fileToRead());
    return ahead_.empty() ? std::nullopt : std::optional(ahead_.front());
}

std::optional<char16_t> TextStream::next() {
    const auto unit = peek();
    if (!unit) return unit;
    ahead_.erase(0, 1);
    pass(*unit);
    return unit;
}

void TextStream::pass(char16_t unit) {
    if (unit == u'\n') {
        ++line_;
        column_ = 1;
    } else {
        ++column_;
    }
}

bool TextStream::isAtEnd() {
    (void)fileToRead();
    return !peek();
}

bool TextStream::isAtEndOfLine() {
    (void)fileToRead();
    const auto unit = peek();
    return !unit || *unit == u'\r' || *unit == u'\n';
}

void TextStream::requireMore() {
    if (isAtEnd()) throw basic::RuntimeError(basic::kInputPastEndOfFile);
}

std::u16string TextStream::read(std::size_t count) {
    requireMore();
    std::u16string text;
    while (text.size() < count) {
        const auto unit = next();
        if (!unit) break;
        text += *unit;
    }
    return text;
}

std::u16string TextStream::readLine() {
    requireMore();
    std::u16string text;
    for (auto unit = next(); unit && *unit != u'\n'; unit = next()) text += *unit;
    if (text.ends_with(u'\r')) text.pop_back();
    return text;
}

void TextStream::write(std::u16string_view text) {
    if (!file().traits().writes) throw basic::RuntimeError(basic::kBadFileMode);
    if (isUnicode_) {
        file_->write(bytesOfUnits(text));
    } else {
        const basic::CodePage page(static_cast<int>(codePage_));
        const std::string bytes = toBytes(text, page);
        if (fromBytes(bytes, page) != text) throw basic::RuntimeError(basic::kInvalidProcedureCall);
        file_->write(bytes);
    }
    for (const char16_t unit : text) pass(unit);
}

} // namespace tamarik
