#pragma once
// The constants of the image container, described in docs/qlx-format.md.
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace image {

inline constexpr std::string_view kMagic{"QLX\x1A", 4};
inline constexpr std::uint16_t kMajor = 2, kMinor = 0;
inline constexpr std::size_t kHeaderSize = 20;
inline constexpr std::size_t kSectionEntrySize = 12;
inline constexpr std::string_view kStrings = "STRS", kProject = "PROJ", kForms = "FORM", kModules = "MODS";
/// Of the code, all or none.
inline constexpr std::string_view kTypeSection = "TYPE", kClassSection = "CLAS", kProcedureSection = "PROC",
                                  kCodeSection = "CODE", kNumberSection = "CONS", kImportSection = "IMPT",
                                  kGlobalSection = "GLOB", kLineSection = "LINE", kStatementSection = "STMT";
inline constexpr std::string_view kCodeSections[] = {kGlobalSection,    kTypeSection, kClassSection,
                                                     kProcedureSection, kCodeSection, kNumberSection,
                                                     kImportSection,    kLineSection, kStatementSection};
/// Of code with resources.
inline constexpr std::string_view kResourceSection = "RESO";
/// Sections begin at multiples of this.
inline constexpr std::size_t kSectionAlignment = 8;

// A start of a line is one byte if the distances from the start before are small: words times kLineSteps, plus lines.
inline constexpr std::uint32_t kLineSteps = 7, kLongestLineStep = 35;
/// The distances follow as numbers of variable length, that of the lines with its sign in the lowest bit.
inline constexpr std::uint8_t kFarLine = 255;

/// Marks a temporary in the packed type of a variable.
inline constexpr std::uint32_t kTemporaryBit = 0x80;
// Of a member of a class.
inline constexpr std::uint8_t kPublicFlag = 1, kParamArrayFlag = 2;
/// Of classes, records and arrays, whose numbers are in packed types.
inline constexpr std::size_t kMostTypes = 65535;

} // namespace image
