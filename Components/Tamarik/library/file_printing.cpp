// Print # and Write #, in pieces.
#include "Components/Tamarik/dates/calendar.h"
#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include <cmath>

namespace tamarik {

namespace {

constexpr std::uint32_t kZoneWidth = 14;
constexpr std::int32_t kLastColumn = 32767;

void endLine(OpenFile& file) {
    file.write("\r\n");
    file.column = 0;
    file.hasItems = false;
}

/// Lines end where the width of the file is reached.
void writeText(Session& session, OpenFile& file, std::u16string_view text) {
    while (!text.empty()) {
        if (file.width != 0 && file.column >= file.width) endLine(file);
        const std::size_t room = file.width == 0 ? text.size() : file.width - file.column;
        const auto piece = text.substr(0, room);
        file.write(encoded(session, piece));
        const std::size_t lineEnd = piece.find_last_of(u"\r\n");
        file.column = static_cast<std::uint32_t>(lineEnd == std::u16string::npos ? file.column + piece.size()
                                                                                 : piece.size() - lineEnd - 1);
        text.remove_prefix(piece.size());
    }
}

void printItemTo(Session& session, std::int32_t number, const Variant& item) {
    OpenFile& file = fileToPrint(session, number);
    const std::u16string text = printedText(item);
    session.charge(2 * std::uint64_t{text.size()});
    if (file.width != 0 && file.column != 0 && file.column + text.size() > file.width) endLine(file);
    writeText(session, file, text);
}

void blanksTo(Session& session, OpenFile& file, std::uint32_t count) {
    writeText(session, file, std::u16string(count, u' '));
}

void printZoneTo(Session& session, std::int32_t number) {
    OpenFile& file = fileToPrint(session, number);
    blanksTo(session, file, kZoneWidth - file.column % kZoneWidth);
}

std::uint32_t withinLine(const OpenFile& file, std::int32_t count) {
    requireArgument(count <= kLastColumn);
    const auto columns = static_cast<std::uint32_t>(count < 0 ? 0 : count);
    return file.width == 0 ? columns : columns % file.width;
}

void printBlanksTo(Session& session, std::int32_t number, std::int32_t count) {
    OpenFile& file = fileToPrint(session, number);
    blanksTo(session, file, withinLine(file, count));
}

void printTabTo(Session& session, std::int32_t number, std::int32_t column) {
    OpenFile& file = fileToPrint(session, number);
    const std::uint32_t wanted = withinLine(file, column < 1 ? 0 : column - 1);
    if (file.column > wanted) endLine(file);
    blanksTo(session, file, wanted - file.column);
}

void printLineTo(Session& session, std::int32_t number) { endLine(fileToPrint(session, number)); }

std::u16string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    std::u16string text(digits.begin(), digits.end());
    return text.size() < width ? std::u16string(width - text.size(), u'0') + text : text;
}

/// In the same form for all countries; without the part that is zero.
std::u16string writtenDate(double days) {
    const Moment moment = momentOf({days});
    const auto [year, month, day] = partsOf(moment.day);
    const std::u16string date = padded(year, 4) + u"-" + padded(month, 2) + u"-" + padded(day, 2);
    const std::u16string time = padded(moment.second / 3600, 2) + u":" + padded(moment.second / 60 % 60, 2) + u":" +
                                padded(moment.second % 60, 2);
    if (moment.second == 0) return u"#" + date + u"#";
    return u"#" + (moment.day == 0 ? time : date + u" " + time) + u"#";
}

std::u16string writtenText(Session& session, const Variant& item) {
    switch (item.kind) {
    case kEmpty: return {};
    case kNull: return u"#NULL#";
    case kBoolean: return item.number != 0 ? u"#TRUE#" : u"#FALSE#";
    case kDate: return writtenDate(item.fraction);
    case kString: return u"\"" + std::u16string(unitsOf(item.text)) + u"\"";
    default: break;
    }
    const HeldText held(session.heap, textOf(session.heap, item));
    const std::u16string text(unitsOf(held));
    return item.kind == kError ? u"#ERROR " + text.substr(6) + u"#" : text;
}

void writeItemTo(Session& session, std::int32_t number, const Variant& item) {
    OpenFile& file = fileToPrint(session, number);
    const std::u16string text = writtenText(session, item);
    session.charge(2 * std::uint64_t{text.size()});
    file.write((file.hasItems ? "," : "") + encoded(session, text));
    file.hasItems = true;
}

} // namespace

void addFilePrinting(Natives& natives) {
    natives.add("File.PrintItem", native<&printItemTo>());
    natives.add("File.PrintZone", native<&printZoneTo>());
    natives.add("File.PrintBlanks", native<&printBlanksTo>());
    natives.add("File.PrintTab", native<&printTabTo>());
    natives.add("File.PrintLine", native<&printLineTo>());
    natives.add("File.WriteItem", native<&writeItemTo>());
    natives.add("File.WriteLine", native<&printLineTo>());
}

} // namespace tamarik
