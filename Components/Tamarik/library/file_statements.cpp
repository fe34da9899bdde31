// Open, Close and the statements that move in open files.
#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/encoding.h"
#include <algorithm>
#include <limits>

namespace tamarik {

namespace {

void openFile(Session& session, std::u16string_view path, std::int32_t number, std::int32_t mode, std::int32_t access,
              std::int32_t, std::int32_t recordLength) {
    requireArgument(mode >= 0 && mode <= static_cast<std::int32_t>(FileMode::Binary));
    requireArgument(access >= 0 && access <= static_cast<std::int32_t>(FileAccess::ReadWrite));
    session.files.open(toUtf8(path), number,
                       {static_cast<FileMode>(mode), static_cast<FileAccess>(access), recordLength});
}

void closeFile(Session& session, std::int32_t number) { session.files.close(number); }
void closeAll(Session& session) { session.files.closeAll(); }

void setPlace(Session& session, std::int32_t number, std::int32_t place) {
    OpenFile& file = session.files.at(number);
    if (place < 1) throw basic::RuntimeError(basic::kBadRecordNumber);
    const auto before = static_cast<std::uint64_t>(place) - 1;
    file.seek(file.isRandom() ? before * file.traits().recordLength : before);
    file.wasShort = false;
}

std::int32_t asLong(std::uint64_t number) {
    return static_cast<std::int32_t>(
        std::min(number, static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())));
}

std::int32_t place(Session& session, std::int32_t number) {
    const OpenFile& file = session.files.at(number);
    const std::uint64_t position = file.position();
    return asLong(1 + (file.isRandom() ? position / file.traits().recordLength : position));
}

/// The last record of Random, the last byte of Binary, and in pieces of 128 bytes for the others.
std::int32_t lastPlace(Session& session, std::int32_t number) {
    constexpr std::uint64_t kPiece = 128;
    const OpenFile& file = session.files.at(number);
    if (file.isRandom()) return asLong(file.lastRecord);
    if (file.traits().mode == FileMode::Binary) return asLong(file.position());
    return asLong((file.position() + kPiece - 1) / kPiece);
}

std::int32_t fileSize(Session& session, std::int32_t number) { return asLong(session.files.at(number).size()); }

bool isAtEnd(Session& session, std::int32_t number) {
    OpenFile& file = session.files.at(number);
    switch (file.traits().mode) {
    case FileMode::Input: return file.peek() < 0;
    case FileMode::Random:
    case FileMode::Binary: return file.wasShort;
    default: return true;
    }
}

std::int32_t freeFile(Session& session, const Variant& range) {
    const std::int32_t number = longOr(range, 0);
    requireArgument(number == 0 || number == 1);
    return number == 0 ? session.files.freeNumber(1, 255) : session.files.freeNumber(256, 511);
}

std::int32_t fileAttribute(Session& session, std::int32_t number, std::int32_t which) {
    const FileMode mode = session.files.at(number).traits().mode;
    requireArgument(which == 1);
    switch (mode) {
    case FileMode::Input: return 1;
    case FileMode::Output: return 2;
    case FileMode::Random: return 4;
    case FileMode::Append: return 8;
    default: return 32;
    }
}

/// A program is alone with its files, so a lock has no effect.
void lockFile(Session& session, std::int32_t number, std::int32_t from, std::int32_t to) {
    (void)session.files.at(number);
    if (from < 0 || to < 0) throw basic::RuntimeError(basic::kBadRecordNumber);
}

void setWidth(Session& session, std::int32_t number, std::int32_t width) {
    requireArgument(width >= 0 && width <= 255);
    session.files.at(number).width = static_cast<std::uint32_t>(width);
}

} // namespace

void addFileStatements(Natives& natives) {
    natives.add("Open", native<&openFile>());
    natives.add("Close", native<&closeFile>());
    natives.add("CloseAll", native<&closeAll>());
    natives.add("Reset", native<&closeAll>());
    natives.add("Seek", native<&place>());
    natives.addForm("Seek", native<&setPlace>());
    natives.add("Loc", native<&lastPlace>());
    natives.add("LOF", native<&fileSize>());
    natives.add("EOF", native<&isAtEnd>());
    natives.add("FreeFile", native<&freeFile>());
    natives.add("FileAttr", native<&fileAttribute>());
    natives.add("Lock", native<&lockFile>());
    natives.add("Unlock", native<&lockFile>());
    natives.add("Width", native<&setWidth>());
}

} // namespace tamarik
