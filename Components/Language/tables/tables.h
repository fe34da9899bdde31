#pragma once
// The descriptions of the libraries that every program has, one text a subject. ../README.md explains the notation.
#include <string_view>

namespace language {

extern const std::string_view kStringsTable, kConversionTable, kDateTable, kMathTable, kFinancialTable,
    kInformationTable, kInteractionTable, kFilesTable, kHiddenTable, kConstantsTable, kEnumsTable, kCollectionTable;
extern const std::string_view kEventsTable, kSharedTable, kFormTable, kControlsTable, kFilesControlsTable, kGlobalTable;
extern const std::string_view kRunClassesTable, kRunEnumsTable, kRunMoreEnumsTable;
extern const std::string_view kPictureTable;
extern const std::string_view kScriptingTable, kForeignControlsTable, kForeignTable, kDeclaresTable;

} // namespace language
