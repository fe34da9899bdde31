#include "Components/Language/library.h"
#include "Components/Language/reader/library_reader.h"
#include "Components/Language/tables/tables.h"
#include <array>
#include <initializer_list>
#include <stdexcept>

namespace language {
namespace {

Library read(std::initializer_list<std::string_view> tables) {
    LibraryReader reader;
    for (const auto table : tables) reader.read(table);
    auto libraries = std::move(reader).take();
    if (libraries.size() != 1) throw std::invalid_argument("expected one library");
    return std::move(libraries.front());
}

} // namespace

Library readLibrary(std::string_view text) { return read({text}); }

const Library& languageLibrary() {
    static const auto library =
        read({kStringsTable, kConversionTable, kDateTable, kMathTable, kFinancialTable, kInformationTable,
              kInteractionTable, kFilesTable, kHiddenTable, kConstantsTable, kEnumsTable, kCollectionTable});
    return library;
}

const Library& formsLibrary() {
    static const auto library =
        read({kEventsTable, kSharedTable, kFormTable, kControlsTable, kFilesControlsTable, kGlobalTable});
    return library;
}

const Library& runtimeLibrary() {
    static const auto library = read({kRunClassesTable, kRunEnumsTable, kRunMoreEnumsTable});
    return library;
}

const Library& pictureLibrary() {
    static const auto library = read({kPictureTable});
    return library;
}

std::span<const Library* const> builtInLibraries() {
    static const std::array libraries{&languageLibrary(), &formsLibrary(), &runtimeLibrary(), &pictureLibrary()};
    return libraries;
}

} // namespace language
