#pragma once
// The properties of a class of forms or controls, with their kinds and defaults.
#include "Host/model/forms/class_events.h"
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// The meaning of a property's literal and the form in which values are written.
enum class PropertyKind : char {
    Unknown = '?', ///< determined by the literal
    Boolean = 'B',
    Integer = 'I',
    Enumeration = 'E', ///< an integer followed by a word as comment
    Single = 'S',
    Colour = 'C',
    Text = 'T',
    LongText = 'L', ///< a text that resource files store with a length of one byte
    Font = 'F',
    Picture = 'P',
    Shortcut = 'K', ///< the key of a menu: ^S or {F5}, without quotes; "" for none
};

/// A value of an enumeration.
struct PropertyChoice {
    long value = 0;
    std::string word;
};

struct ClassProperty {
    std::string name;
    PropertyKind kind = PropertyKind::Unknown;
    std::string fallback;           ///< the literal of the default
    std::vector<std::string> words; ///< Enumeration: the words of 0, 1, 2, ...
    /// The names of an integer's values in its type library. They are not written to forms.
    std::vector<PropertyChoice> named = {};
    bool isColour = false; ///< an integer that is a colour according to its type library
    std::string help = {}; ///< from its type library

    /// The values to choose from; none for a property that is not an enumeration.
    std::vector<PropertyChoice> choices() const;
    bool showsColour() const { return isColour || kind == PropertyKind::Colour; }
};

struct ControlClass {
    std::vector<ClassProperty> properties;
    std::vector<ClassEvent> events;
    int width = 0, height = 0; ///< of a new control in pixels; 0 if unknown
    /// Looks up a property, ignoring case. Null if the class does not have it.
    const ClassProperty* find(std::string_view name) const;
    /// The word that the designer writes after a value; "" for none.
    static std::string_view word(const ClassProperty& property, long value);
};

/// Returns a built-in class ("VB.Form", "VB.TextBox"); for any other class the properties that all controls have.
std::shared_ptr<const ControlClass> builtInClass(std::string_view className);

} // namespace host
