// Line Input #, Input # and the Input functions.
#include "Components/Tamarik/dates/date_text.h"
#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/text/values.h"
#include <cmath>

namespace tamarik {

namespace {

OpenFile& fileWithMore(Session& session, std::int32_t number) {
    OpenFile& file = fileToRead(session, number);
    if (file.peek() < 0) throw basic::RuntimeError(basic::kInputPastEndOfFile);
    return file;
}

void skipLineEnd(OpenFile& file) {
    if (file.peek() == '\r') (void)file.next();
    if (file.peek() == '\n') (void)file.next();
}

/// Up to a carriage return, which may be followed by a line feed.
TextBlock* lineInput(Session& session, std::int32_t number) {
    OpenFile& file = fileWithMore(session, number);
    std::string line;
    while (file.peek() >= 0 && file.peek() != '\r') line += static_cast<char>(file.next());
    skipLineEnd(file);
    return decoded(session, line);
}

bool isBlank(int byte) { return byte == ' ' || byte == '\t'; }
bool isEndOfItem(int byte) { return byte < 0 || byte == ',' || byte == '\r' || byte == '\n'; }

void skipBlanks(OpenFile& file) {
    while (isBlank(file.peek())) (void)file.next();
}

/// The end of an item: a comma, or the end of the line.
void skipSeparator(OpenFile& file) {
    skipBlanks(file);
    if (file.peek() == ',')
        (void)file.next();
    else
        skipLineEnd(file);
}

std::string quoted(OpenFile& file) {
    std::string text;
    (void)file.next();
    while (file.peek() >= 0 && file.peek() != '"') text += static_cast<char>(file.next());
    (void)file.next();
    while (!isEndOfItem(file.peek())) (void)file.next();
    return text;
}

std::string unquoted(OpenFile& file) {
    std::string text;
    while (!isEndOfItem(file.peek())) text += static_cast<char>(file.next());
    return text;
}

TextBlock* inputText(Session& session, std::int32_t number) {
    OpenFile& file = fileWithMore(session, number);
    skipBlanks(file);
    const std::string text = file.peek() == '"' ? quoted(file) : unquoted(file);
    skipSeparator(file);
    return decoded(session, text);
}

Variant numberIn(double number) {
    if (number != std::floor(number) || std::fabs(number) > 2147483647.0) return ofFraction(number);
    const auto whole = static_cast<std::int32_t>(number);
    return ofNumber(whole, whole == static_cast<std::int16_t>(whole) ? kInteger : kLong);
}

/// A value between number signs, as Write # writes it.
Variant marked(Session& session, const std::string& text) {
    const std::string inside = text.substr(1, text.size() - 2);
    if (basic::equalNoCase(inside, "NULL")) return null();
    if (basic::equalNoCase(inside, "TRUE") || basic::equalNoCase(inside, "FALSE"))
        return ofBoolean(basic::equalNoCase(inside, "TRUE"));
    if (basic::startsWithNoCase(inside, "ERROR ")) {
        const double number = basic::Val(std::string_view(inside).substr(6));
        if (number >= 0 && number <= 65535) return ofNumber(static_cast<std::int32_t>(number), kError);
    }
    const HeldText date(session.heap, decoded(session, inside));
    if (IsDate(unitsOf(date))) return ofFraction(CDate(unitsOf(date), today(session)).days, kDate);
    return ofText(decoded(session, text));
}

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// A blank ends a number, but not a text.
Variant inputItem(Session& session, std::int32_t number) {
    OpenFile& file = fileWithMore(session, number);
    skipBlanks(file);
    if (file.peek() == '"') {
        const std::string text = quoted(file);
        skipSeparator(file);
        return ofText(decoded(session, text));
    }
    std::string text;
    while (!isEndOfItem(file.peek()) && !isBlank(file.peek())) text += static_cast<char>(file.next());
    if (!basic::IsNumeric(text)) text += unquoted(file);
    skipSeparator(file);
    text = withoutBlanks(text);
    if (text.empty()) return {};
    if (basic::IsNumeric(text)) return numberIn(basic::CDbl(text));
    if (text.size() >= 2 && text.front() == '#' && text.back() == '#') return marked(session, text);
    return ofText(decoded(session, text));
}

/// A character of a double-byte page may take two bytes.
TextBlock* inputCharacters(Session& session, std::int32_t count, std::int32_t number) {
    const std::size_t wanted = requireCount(count);
    OpenFile& file = fileToRead(session, number);
    std::string bytes = file.read(wanted);
    if (bytes.size() < wanted) throw basic::RuntimeError(basic::kInputPastEndOfFile);
    std::u16string text = fromBytes(bytes, pageOf(session));
    while (text.size() < wanted && file.peek() >= 0) {
        bytes += file.read(wanted - text.size());
        text = fromBytes(bytes, pageOf(session));
    }
    return made(session, text);
}

TextBlock* inputBytes(Session& session, std::int32_t count, std::int32_t number) {
    const std::size_t wanted = requireCount(count);
    const std::string bytes = fileToRead(session, number).read(wanted);
    if (bytes.size() < wanted) throw basic::RuntimeError(basic::kInputPastEndOfFile);
    return madeOfBytes(session, bytes);
}

} // namespace

void addFileReading(Natives& natives) {
    natives.add("LineInput", native<&lineInput>());
    natives.add("InputText", native<&inputText>());
    natives.add("InputItem", native<&inputItem>());
    addPlainForms<&inputCharacters>(natives, "Input");
    addPlainForms<&inputBytes>(natives, "InputB");
}

} // namespace tamarik
