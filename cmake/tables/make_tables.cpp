// Writes the tables of Basic/tables from ICU's data as C++. It runs on the machine that builds, so that the programs need
// no ICU where they run. Usage: make_tables FILE
#include "Basic/tables/character_table.h"
#include "Basic/tables/code_page_names.h"
#include "Basic/tables/code_page_table.h"
#include <array>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <unicode/uchar.h>
#include <unicode/ucnv.h>
#include <vector>

namespace {

/// ICU's converter, configured to stop at errors and not to use fallback mappings.
class StrictConverter {
public:
    explicit StrictConverter(const std::string& name) {
        UErrorCode status = U_ZERO_ERROR;
        converter_.reset(ucnv_open(name.c_str(), &status));
        if (U_FAILURE(status)) throw std::runtime_error(name + ": ICU has no such converter");
        ucnv_setFallback(converter_.get(), false);
        ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        if (U_FAILURE(status)) throw std::runtime_error(name + ": the converter cannot be configured");
    }

    /// The character that converts to these bytes and back; 0 for none.
    char16_t characterOf(std::string_view bytes) const {
        UErrorCode status = U_ZERO_ERROR;
        char16_t character[4] = {};
        const auto length = static_cast<std::int32_t>(bytes.size());
        if (ucnv_toUChars(converter_.get(), character, 4, bytes.data(), length, &status) != 1) return 0;
        char back[8] = {};
        const auto backLength = ucnv_fromUChars(converter_.get(), back, sizeof back, character, 1, &status);
        const bool same = U_SUCCESS(status) && bytes == std::string_view(back, static_cast<std::size_t>(backLength));
        return same && character[0] >= 0x80 && !basic::standsForByte(character[0]) ? character[0] : u'\0';
    }

private:
    struct Close {
        void operator()(UConverter* c) const { ucnv_close(c); }
    };
    std::unique_ptr<UConverter, Close> converter_;
};

using Numbers = std::vector<std::uint16_t>;

/// Blocks of numbers, each only once. Block 0 has only zeros.
class Blocks {
public:
    explicit Blocks(std::size_t size) : size_(size) { add(Numbers(size)); }

    /// Divides the numbers into blocks and returns the number of each.
    Numbers divide(const Numbers& numbers) {
        Numbers blocks;
        for (auto at = numbers.begin(); at != numbers.end(); at += static_cast<std::ptrdiff_t>(size_))
            blocks.push_back(add(Numbers(at, at + static_cast<std::ptrdiff_t>(size_))));
        return blocks;
    }

    const std::vector<Numbers>& all() const { return blocks_; }

private:
    std::uint16_t add(const Numbers& block) {
        const auto [found, isNew] = numbers_.try_emplace(block, static_cast<std::uint16_t>(blocks_.size()));
        if (isNew) blocks_.push_back(block);
        return found->second;
    }

    std::size_t size_;
    std::vector<Numbers> blocks_;
    std::map<Numbers, std::uint16_t> numbers_;
};

struct PageMaps {
    Numbers characters = Numbers(0x10000), bytes = Numbers(0x10000);

    bool add(const StrictConverter& converter, std::string_view sequence, unsigned number) {
        const auto character = converter.characterOf(sequence);
        if (!character) return false;
        characters[number] = character;
        bytes[character] = static_cast<std::uint16_t>(number);
        return true;
    }
};

PageMaps mapsOf(int page) {
    const StrictConverter converter("windows-" + std::to_string(page));
    PageMaps maps;
    for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
        char bytes[2] = {static_cast<char>(lead)};
        if (maps.add(converter, {bytes, 1}, lead)) continue;
        for (unsigned trail = 0x21; trail <= 0xFF; ++trail) {
            bytes[1] = static_cast<char>(trail);
            maps.add(converter, {bytes, 2}, lead << 8 | trail);
        }
    }
    return maps;
}

void write(std::ostream& out, const Numbers& numbers) {
    out << '{';
    for (std::size_t i = 0; i < numbers.size(); ++i) out << numbers[i] << (i % 32 == 31 ? ",\n" : ",");
    out << '}';
}

void writeBlocks(std::ostream& out, const Blocks& blocks) {
    for (const auto& block : blocks.all()) {
        write(out, block);
        out << ",\n";
    }
    out << "};\n";
}

void writeCodePages(std::ostream& out) {
    Blocks blocks(basic::kBlockSize);
    out << "const CodePageTable kCodePageTables[kCodePageTableCount] = {\n";
    for (const auto& page : basic::kCodePageNames) {
        if (!page.hasTable) continue;
        const auto maps = mapsOf(page.number);
        out << '{';
        write(out, blocks.divide(maps.characters));
        out << ',';
        write(out, blocks.divide(maps.bytes));
        out << "},\n";
    }
    out << "};\nconst std::uint16_t kCodePageBlocks[][kBlockSize] = {\n";
    writeBlocks(out, blocks);
}

using Forms = std::tuple<std::int32_t, std::int32_t, std::int32_t, bool>;

Forms formsOf(UChar32 c) {
    return {u_foldCase(c, U_FOLD_CASE_DEFAULT) - c, u_toupper(c) - c, u_tolower(c) - c, u_isalpha(c) != 0};
}

void writeCharacters(std::ostream& out) {
    std::map<Forms, std::uint16_t> numbers{{Forms{}, 0}};
    out << "const CharacterForms kCharacterForms[] = {{0, 0, 0, false},\n";
    Numbers ofCharacter;
    for (UChar32 c = 0; c <= 0x10FFFF; ++c) {
        const auto forms = formsOf(c);
        const auto [found, isNew] = numbers.try_emplace(forms, static_cast<std::uint16_t>(numbers.size()));
        ofCharacter.push_back(found->second);
        if (!isNew) continue;
        const auto [folded, upper, lower, letter] = forms;
        out << '{' << folded << ", " << upper << ", " << lower << ", " << (letter ? "true" : "false") << "},\n";
    }
    Blocks blocks(basic::kCharacterBlockSize);
    out << "};\nconst std::uint16_t kCharacterBlocks[kCharacterBlockCount] = ";
    write(out, blocks.divide(ofCharacter));
    out << ";\nconst std::uint16_t kFormsOfBlock[][kCharacterBlockSize] = {\n";
    writeBlocks(out, blocks);
}

} // namespace

int main(int count, char** arguments) try {
    if (count != 2) throw std::runtime_error("usage: make_tables FILE");
    std::ofstream out(arguments[1]);
    out << "// Generated by cmake/tables/make_tables.cpp from ICU " U_ICU_VERSION ".\n"
           "#include \"Basic/tables/character_table.h\"\n#include \"Basic/tables/code_page_table.h\"\n"
           "namespace basic {\n";
    writeCharacters(out);
    writeCodePages(out);
    out << "} // namespace basic\n";
    if (!out.flush()) throw std::runtime_error(std::string(arguments[1]) + ": cannot be written");
} catch (const std::exception& error) {
    std::cerr << "make_tables: " << error.what() << '\n';
    return 1;
}
