#include "Components/Language/library.h"
#include "Components/Language/reader/library_reader.h"
#include "Components/Language/tables/tables.h"
#include <array>
#include <initializer_list>

namespace language {
namespace {

Library read(std::initializer_list<std::string_view> tables) {
    LibraryReader reader;
    for (const auto table : tables) reader.read(table);
    return std::move(reader).take();
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
    static const auto library = read({kSharedTable, kFormTable, kControlsTable, kFilesControlsTable, kGlobalTable});
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

const Group* findClass(std::string_view name) {
    const auto point = name.find('.');
    if (point == std::string_view::npos) return nullptr;
    for (const auto* library : builtInLibraries())
        if (library->name == name.substr(0, point))
            for (const auto& group : library->groups)
                if (group.kind == GroupKind::Class && group.name == name.substr(point + 1)) return &group;
    return nullptr;
}

} // namespace language
