#pragma once
// The programs of tests/language/programs that run with failing allocations: texts, arrays, objects, Variants, errors, files,
// classes and events.
#include <ostream>
#include <string_view>

namespace allocation_faults {

struct Chosen {
    std::string_view title;
    /// Leaves nothing that a second run would see: no open file, no variable of a module.
    bool runsAgain = true;

    friend void PrintTo(const Chosen& one, std::ostream* out) { *out << one.title; }
};

inline constexpr Chosen kChosen[] = {
    {"Building a text in a loop"},
    {"Split and Join"},
    {"Filter"},
    {"Replace"},
    {"Format of numbers in sections"},
    {"LSet and RSet"},
    {"Texts of a fixed length"},
    {"ReDim Preserve keeps the elements"},
    {"Arrays in arrays"},
    {"Assignment copies an array"},
    {"An array of arrays in a record"},
    {"An array of objects"},
    {"Arrays in records are copied"},
    {"Assignment copies all fields"},
    {"Texts of a fixed length in records"},
    {"Objects in records"},
    {"Initialize and Terminate"},
    {"As New makes the object when it is first used"},
    {"A chain is released from its head"},
    {"Implements"},
    {"Late bound methods and properties"},
    {"Late bound ByRef arguments are stored back"},
    {"A class with an array property"},
    {"Events"},
    {"An event with a ByRef argument"},
    {"Two listeners of one object"},
    {"Add before and after"},
    {"For Each in the order of the items"},
    {"Keys ignore case"},
    {"A Collection holds objects"},
    {"ParamArray is ByRef"},
    {"A function returns an array"},
    {"Decimal keeps its digits"},
    {"Two texts in Variants join"},
    {"The caller handles an error of a handler"},
    {"Err.Raise"},
    {"An error in a GoSub returns to its caller after Resume Next"},
    {"An object in an array ends with Erase"},
    {"Print and Line Input", false},
    {"Records in a random file", false},
    {"Arrays and Variants in a binary file", false},
    {"Dir and Kill", false},
};

} // namespace allocation_faults
