// docs/qlx-code.md is made from the instruction table.
#include "Components/Image/code/instruction.h"
#include "Components/Image/verify/operand_masks.h"
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

using image::Extra;
using image::Operand;

std::string shown(Operand operand) {
    switch (operand) {
    case Operand::None: return "";
    case Operand::ReadLong: return "Long";
    case Operand::WriteLong: return "=Long";
    case Operand::ReadDouble: return "Double";
    case Operand::WriteDouble: return "=Double";
    case Operand::ReadCurrency: return "Currency";
    case Operand::WriteCurrency: return "=Currency";
    case Operand::ReadText: return "Text";
    case Operand::WriteText: return "=Text";
    case Operand::ReadVariant: return "Variant";
    case Operand::WriteVariant: return "=Variant";
    case Operand::ReadObject: return "Object";
    case Operand::WriteObject: return "=Object";
    case Operand::ReadArray: return "Array";
    case Operand::WriteArray: return "=Array";
    case Operand::ReadRef: return "Reference";
    case Operand::WriteRef: return "=Reference";
    case Operand::VariantRef: return "Reference to Variant";
    case Operand::ReadValue: return "any";
    case Operand::WriteValue:
    case Operand::WriteAny: return "=any";
    case Operand::WriteNumber: return "=number";
    case Operand::SameAsA: return "as A";
    case Operand::SameOrAny: return "Object as A";
    case Operand::ByteArray: return "Bytes()";
    case Operand::LongArray: return "Longs()";
    case Operand::FloatArray: return "Doubles()";
    case Operand::CurrencyArray: return "Currencies()";
    case Operand::TextArray: return "Texts()";
    case Operand::ObjectArray: return "Objects()";
    case Operand::VariantArray: return "Variants()";
    case Operand::ElementOfA: return "Array";
    case Operand::Signed: return "-128..127";
    case Operand::Unsigned: return "0..255";
    case Operand::SignedBC: return "-32768..32767";
    case Operand::WideSlot: return "wide slot";
    case Operand::NumberB:
    case Operand::NumberC:
    case Operand::NumberBC: return "constant";
    case Operand::BaseType: return "type";
    case Operand::OffsetC:
    case Operand::FieldC: return "field";
    case Operand::CountC: return "count";
    case Operand::Result: return "=result";
    case Operand::ResultVariant: return "=Variant or 255";
    }
    return "?";
}

std::string shown(Extra extra) {
    switch (extra) {
    case Extra::None: return "";
    case Extra::Number: return "number";
    case Extra::Text: return "text";
    case Extra::Jump: return "distance";
    case Extra::Table: return "C distances";
    case Extra::Slots: return "slots";
    case Extra::TypeAndSlots: return "type, slots";
    case Extra::Operation: return "operator";
    case Extra::Array: return "array";
    case Extra::Global: return "global";
    case Extra::Field: return "field";
    case Extra::Offset: return "field";
    case Extra::Class: return "class";
    case Extra::Procedure: return "procedure, arguments";
    case Extra::Interface: return "class and member, arguments";
    case Extra::Import: return "import, arguments";
    case Extra::Event: return "event, arguments";
    case Extra::Late: return "name, use, names, slots";
    }
    return "?";
}

std::string bytesOf(std::size_t number) {
    const auto words = image::kOperandMasks[number].length;
    if (words != 0) return std::to_string(4 * words);
    switch (image::kInstructions[number].extra) {
    case Extra::Slots: return "4 and more";
    case Extra::Table: return "4 and 4 C";
    case Extra::Late: return "12 and more";
    default: return "8 and more";
    }
}

std::string cell(std::string text) {
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) text.insert(at, "\\");
    return " " + text + (text.empty() ? "|" : " |");
}

std::string rowOf(std::size_t number) {
    const auto& info = image::kInstructions[number];
    std::string row = "|" + cell(std::to_string(number)) + cell("`" + std::string(info.name) + "`");
    for (const auto operand : info.operands) row += cell(shown(operand));
    return row + cell(shown(info.extra)) + cell(bytesOf(number)) + cell(std::string(info.meaning)) + "\n";
}

/// The comments that begin a group of the table, by the first instruction of the group.
std::map<std::string, std::string> headings() {
    std::ifstream table(FERNWICK_SOURCE_DIR "/Components/Image/code/instructions.def");
    std::map<std::string, std::string> found;
    std::string line, comment;
    while (std::getline(table, line)) {
        const std::string begin = "INSTRUCTION(";
        if (line.empty()) comment.clear();
        if (line.starts_with("// ")) comment += (comment.empty() ? "" : " ") + line.substr(3);
        if (line.starts_with(begin)) {
            if (!comment.empty()) found[line.substr(begin.size(), line.find(',') - begin.size())] = comment;
            comment.clear();
        }
    }
    return found;
}

std::string page() {
    std::string text =
        "# The instructions of compiled code\n\n"
        "Made from `Components/Image/code/instructions.def` by `test_image_code` if `FERNWICK_APPROVE=1` is "
        "set.\n\n"
        "An instruction is a word of 32 bits, the number of the instruction in the lowest 8 and then A, B "
        "and C with 8\neach, and the words of the column *then*. A, B and C are slots of the type "
        "that is named, those with = are written, and\nempty ones are 0. Slots below 255 are reached "
        "directly; a *wide slot* has 16 bits in B and C. A *constant* is counted\nfrom the procedure's "
        "first, a *distance* in words from the instruction. Two *slots* or *arguments* are in one word, the "
        "first\nin the lower half, and the last half of an odd number is 0. An argument has the way "
        "it is passed in its highest 3 bits:\nNumber, Text, Object, Variant (copies), Take, TakePair "
        "(which leave the slot empty), Address (a reference to the slot) and\nRef (a copy of a "
        "reference). A *type* is as in [qlx-format.md](qlx-format.md).\n\n"
        "A slot has one type in the whole procedure, and zero is a value of each. A slot with a class holds "
        "objects of exactly\nthat class, or Nothing. A count of 0 is refused for indexes and bounds and "
        "means none for arguments and distances.\n"
        "\"Fails\" gives the number of the run-time error.\n";
    const auto begins = headings();
    for (std::size_t i = 0; i < image::kInstructionCount; ++i) {
        if (const auto heading = begins.find(std::string(image::kInstructions[i].name)); heading != begins.end())
            text += "\n## " + heading->second +
                    "\n\n| number | name | A | B | C | then | bytes | meaning |\n"
                    "|---|---|---|---|---|---|---|---|\n";
        text += rowOf(i);
    }
    return text;
}

const std::string kPage = FERNWICK_SOURCE_DIR "/docs/qlx-code.md";

TEST(InstructionPage, ShowsTheTable) {
    if (std::getenv("FERNWICK_APPROVE")) std::ofstream(kPage) << page();
    std::ostringstream found;
    found << std::ifstream(kPage).rdbuf();
    EXPECT_TRUE(found.str() == page()) << kPage << " is out of date: set FERNWICK_APPROVE=1";
}

/// A group without a comment would be part of the one before.
TEST(InstructionPage, HasEveryGroupOfTheTable) { EXPECT_GE(headings().size(), 14u); }

TEST(InstructionPage, SaysHowLongInstructionsAre) {
    for (std::size_t i = 0; i < image::kInstructionCount; ++i) {
        const std::uint32_t words[8] = {std::uint32_t(i)};
        const auto length = image::kOperandMasks[i].length;
        if (length == 0) continue;
        EXPECT_EQ(image::lengthOf(words, 8), length) << image::kInstructions[i].name;
    }
}

} // namespace
