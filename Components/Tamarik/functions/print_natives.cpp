// Debug.Print, in pieces: the compiler calls one function for each item and separator.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/natives/native_function.h"
#include "Components/Tamarik/values/encoding.h"
#include "Components/Tamarik/values/variant_text.h"

namespace tamarik {

namespace {

constexpr std::uint32_t kZone = 14;
constexpr std::int32_t kMostColumns = 32767;

void write(Session& session, std::string_view text) {
    if (session.output.print) session.output.print(text);
}

void writeBlanks(Session& session, std::uint32_t count) {
    write(session, std::string(count, ' '));
    session.printColumn += count;
}

void printItem(Session& session, const Variant& item) {
    const std::u16string text = printedText(item);
    write(session, toUtf8(text));
    const std::size_t lineEnd = text.find_last_of(u"\r\n");
    session.printColumn = static_cast<std::uint32_t>(lineEnd == std::u16string::npos ? session.printColumn + text.size()
                                                                                     : text.size() - lineEnd - 1);
}

void printLine(Session& session) {
    write(session, "\n");
    session.printColumn = 0;
}

void printZone(Session& session) { writeBlanks(session, kZone - session.printColumn % kZone); }

void printBlanks(Session& session, std::int32_t count) {
    if (count > kMostColumns) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    if (count > 0) writeBlanks(session, static_cast<std::uint32_t>(count));
}

void printTab(Session& session, std::int32_t column) {
    if (column > kMostColumns) throw basic::RuntimeError(basic::kInvalidProcedureCall);
    const auto wanted = static_cast<std::uint32_t>(column < 1 ? 0 : column - 1);
    if (session.printColumn > wanted) printLine(session);
    writeBlanks(session, wanted - session.printColumn);
}

void require(Session&, std::int32_t condition) {
    if (condition == 0) throw AssertionFailed();
}

} // namespace

void addPrintNatives(Natives& natives) {
    natives.add("Debug.PrintItem", native<&printItem>());
    natives.add("Debug.PrintZone", native<&printZone>());
    natives.add("Debug.PrintTab", native<&printTab>());
    natives.add("Debug.PrintBlanks", native<&printBlanks>());
    natives.add("Debug.PrintLine", native<&printLine>());
    natives.add("Debug.Assert", native<&require>());
}

} // namespace tamarik
