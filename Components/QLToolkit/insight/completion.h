#pragma once
// The names that can be written at a place.
#include "Components/QLToolkit/insight/probe.h"
#include <cstdint>

namespace qltoolkit {

enum class NameKind : std::uint8_t {
    Keyword,
    Variable,
    Constant,
    Procedure,
    Property,
    Event,
    Control,
    Enum,
    Type,
    Module,
    Class,
    Form,
    Library,
    Label
};

struct OfferedName {
    std::string name;
    NameKind kind;
    friend bool operator==(const OfferedName&, const OfferedName&) = default;
};

/// What the names are offered for.
enum class OfferKind : std::uint8_t {
    Nothing, ///< inside strings, comments and numbers, and where a name is declared
    Names,
    Members,
    Values, ///< of an enumeration: the members alone
    Types,
    Labels,
    Events
};

struct Offer {
    OfferKind kind = OfferKind::Nothing;
    std::string partial;            ///< the beginning of the name before the cursor
    std::vector<OfferedName> names; ///< sorted regardless of case, each once
};

/// What is asked for while the user types, and on request.
enum class Wanted : std::uint8_t {
    Special, ///< names only where the place says of which kind they are; the values of an enumeration instead of all names
    All
};

/// Returns the names that are possible at a place, whatever the partial name is. `rest` is the procedure's text after the
/// cursor, in which labels are found.
[[nodiscard]] Offer namesAt(Snapshot& snapshot, const CodePlace& place, std::string_view rest = {},
                            Wanted wanted = Wanted::All);

} // namespace qltoolkit
