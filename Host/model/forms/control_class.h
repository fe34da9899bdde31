#pragma once
// What a class of forms or controls tells of its properties: their kinds and what an absent one is.
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// What a property's literal means, and how a value is written.
enum class PropertyKind : char {
    Unknown = '?', ///< as the literal itself says
    Boolean = 'B',
    Integer = 'I',
    Enumeration = 'E', ///< an integer with a word behind it
    Single = 'S',
    Colour = 'C',
    Text = 'T',
    LongText = 'L', ///< a text that a resource file holds with a length of one byte
    Font = 'F',
    Picture = 'P',
};

/// A value of an enumeration.
struct PropertyChoice {
    long value = 0;
    std::string word;
};

struct ClassProperty {
    std::string name;
    PropertyKind kind = PropertyKind::Unknown;
    std::string fallback;           ///< the literal that an absent property stands for
    std::vector<std::string> words; ///< Enumeration: the words of 0, 1, 2, ...
    /// The names of an integer's values where a type library describes them; they never stand in a form.
    std::vector<PropertyChoice> named = {};
    bool isColour = false; ///< an integer that a type library calls a colour

    /// The values that there are to choose from, for one that is no enumeration none.
    std::vector<PropertyChoice> choices() const;
    bool showsColour() const { return isColour || kind == PropertyKind::Colour; }
};

struct ControlClass {
    std::vector<ClassProperty> properties;
    /// Null for a name that the class does not have; letter case is ignored.
    const ClassProperty* find(std::string_view name) const;
    /// The word that the designer writes behind a value; "" for none.
    static std::string_view word(const ClassProperty& property, long value);
};

/// The language's own classes ("VB.Form", "VB.TextBox"). For any other class what every control has.
std::shared_ptr<const ControlClass> builtInClass(std::string_view className);

} // namespace host
