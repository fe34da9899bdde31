// The members of the class TextStream, as programs call them.
#include "Components/Tamarik/scripting/guarded.h"
#include "Components/Tamarik/scripting/text_stream.h"
#include <limits>

namespace tamarik {

namespace {

/// One call must end soon, whatever its argument.
constexpr std::size_t kMostBlankLines = 65535;

TextStream& streamIn(LibraryObject& object) { return static_cast<TextStream&>(object); }

std::size_t countOf(const Variant& v) {
    const std::int32_t count = longOf(v);
    requireArgument(count >= 0);
    return static_cast<std::size_t>(count);
}

void readAll(LibraryObject& object, MemberCall& call) {
    returnText(call, streamIn(object).read(std::numeric_limits<std::size_t>::max()));
}
void readCharacters(LibraryObject& object, MemberCall& call) {
    returnText(call, streamIn(object).read(countOf(call[0])));
}
void readLineOf(LibraryObject& object, MemberCall& call) { returnText(call, streamIn(object).readLine()); }
void skipCharacters(LibraryObject& object, MemberCall& call) {
    call.session.charge(2 * std::uint64_t{streamIn(object).read(countOf(call[0])).size()});
}
void skipLineOf(LibraryObject& object, MemberCall& call) {
    call.session.charge(2 * std::uint64_t{streamIn(object).readLine().size()});
}

void writeCounted(LibraryObject& object, MemberCall& call, const std::u16string& text) {
    call.session.charge(2 * std::uint64_t{text.size()});
    streamIn(object).write(text);
}
void writeCharacters(LibraryObject& object, MemberCall& call) { writeCounted(object, call, textArgument(call, 0)); }
void writeLine(LibraryObject& object, MemberCall& call) { writeCounted(object, call, textArgument(call, 0) + u"\r\n"); }
void writeBlankLines(LibraryObject& object, MemberCall& call) {
    const std::size_t count = countOf(call[0]);
    requireArgument(count <= kMostBlankLines);
    for (std::size_t left = count; left != 0; --left) writeCounted(object, call, u"\r\n");
}

} // namespace

std::span<const LibraryMember> TextStream::members() const {
    using enum LibraryMember::Uses;
    static constexpr LibraryMember kMembers[] = {
        {"ReadLine", "", Read, &guarded<&readLineOf>},
        {"AtEndOfStream", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofBoolean(streamIn(object).isAtEnd()); }},
        {"WriteLine", "? Text", Read, &guarded<&writeLine>},
        {"Write", "Text", Read, &guarded<&writeCharacters>},
        {"ReadAll", "", Read, &guarded<&readAll>},
        {"Read", "Characters", Read, &guarded<&readCharacters>},
        {"Skip", "Characters", Read, &guarded<&skipCharacters>},
        {"SkipLine", "", Read, &guarded<&skipLineOf>},
        {"WriteBlankLines", "Lines", Read, &guarded<&writeBlankLines>},
        {"AtEndOfLine", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofBoolean(streamIn(object).isAtEndOfLine()); }},
        {"Line", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofNumber(streamIn(object).line()); }},
        {"Column", "", Read,
         [](LibraryObject& object, MemberCall& call) { call.result = ofNumber(streamIn(object).column()); }},
        {"Close", "", Read, &guarded<[](LibraryObject& object, MemberCall&) { streamIn(object).close(); }>},
    };
    return kMembers;
}

} // namespace tamarik
