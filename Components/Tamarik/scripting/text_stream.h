#pragma once
// The TextStream class of the library Scripting: an open file of characters.
#include "Components/Tamarik/files/open_file.h"
#include "Components/Tamarik/objects/library_object.h"
#include <array>
#include <memory>
#include <optional>
#include <string>

namespace tamarik {

class TextStream final : public LibraryObject {
public:
    /// A file of UTF-16 begins with a mark, which is not a character of it. Other files are in the code page of the program.
    TextStream(Session& session, std::shared_ptr<OpenFile> file, bool isUnicode);

    [[nodiscard]] std::string_view className() const override { return "TextStream"; }
    [[nodiscard]] std::span<const LibraryMember> members() const override;
    void releaseMembers(Heap& heap) override;

    [[nodiscard]] std::int32_t line() const;
    [[nodiscard]] std::int32_t column() const;
    /// Does nothing for a file that is closed. All others are error 91 then.
    void close();

    // Error 54 for a file that is written.
    [[nodiscard]] bool isAtEnd();
    [[nodiscard]] bool isAtEndOfLine();
    /// At most so many characters; error 62 at the end.
    [[nodiscard]] std::u16string read(std::size_t count);
    /// Without the end of the line; error 62 at the end.
    [[nodiscard]] std::u16string readLine();

    /// Error 54 for a file that is read, 5 for characters that its code page lacks.
    void write(std::u16string_view text);

private:
    [[nodiscard]] OpenFile& file() const;
    [[nodiscard]] OpenFile& fileToRead() const;
    void requireMore();
    [[nodiscard]] std::optional<char16_t> peek();
    std::optional<char16_t> next();
    /// Decodes a character; nothing at the end.
    [[nodiscard]] std::u16string decoded(OpenFile& file) const;
    void pass(char16_t unit);

    std::shared_ptr<OpenFile> file_; ///< null after Close
    std::uint32_t codePage_;
    bool isUnicode_;
    std::u16string ahead_;               ///< decoded, but not read
    std::array<char16_t, 256> single_{}; ///< of each byte, its character
    std::int32_t line_ = 1, column_ = 1;
};

} // namespace tamarik
