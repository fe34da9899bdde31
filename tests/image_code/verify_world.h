#pragma once
// A program that the verifier accepts, to be changed in one place by each test.
#include "Components/Image/verify/verify.h"
#include "tests/image_code/code_parts.h"
#include <functional>
#include <gtest/gtest.h>

namespace code_parts {

using image::encode;
using image::encodeArgument;
using image::encodeWide;
using image::Pass;

/// Slots of Main, one of each type. Pairs take two.
enum Slot : std::uint32_t {
    kL = 0,      // Long
    kL2 = 1,     //
    kD = 2,      // Double
    kC = 3,      // Currency
    kT = 4,      // Text
    kV = 5,      // Variant
    kO = 7,      // Object of any class
    kShape = 8,  // Object of class Shape, 1
    kCircle = 9, // Object of class Circle, 2
    kBytes = 10, // arrays
    kLongs = 11,
    kIntegers = 12,
    kDoubles = 13,
    kCurrencies = 14,
    kTexts = 15,
    kObjects = 16,
    kShapes = 17,
    kVariants = 18,
    kPoints = 19,
    kRefLong = 20, // references
    kRefInteger = 22,
    kRefByte = 24,
    kRefDouble = 26,
    kRefCurrency = 28,
    kRefText = 30,
    kRefObject = 32,
    kRefShape = 34,
    kRefVariant = 36,
    kRefPoint = 38,
    kRefLine = 40,
    kRefLongs = 42,
    kPoint = 44, // Record 0: Integer, Text, Variant, Array of Long
    kLine = 49,  // Record 1: two Points, then an Object
    kWide = 300, // Long, after many others
    kSlots = 301
};

inline std::vector<SlotType> mainVariables() {
    const SlotType byte{BaseType::Byte}, integer{BaseType::Integer};
    std::vector<SlotType> variables{kLong, kLong, kDouble, kCurrency, kText, kVariant, kObject, object(1), object(2)};
    for (const auto element :
         {byte, kLong, integer, kDouble, kCurrency, kText, kObject, object(1), kVariant, record(0)})
        variables.push_back(arrayOf(element));
    for (const auto target : {kLong, integer, byte, kDouble, kCurrency, kText, kObject, object(1), kVariant, record(0),
                              record(1), arrayOf(kLong)})
        variables.push_back(referenceTo(target));
    variables.push_back(record(0));
    variables.push_back(record(1));
    variables.insert(variables.end(), kSlots - kLine - 11, kLong);
    return variables;
}

/// Two classes of which the second implements the first and handles its event, and procedures of many signatures.
struct Program {
    CodeImage code;
    std::uint32_t main = 0, add = 0, take = 0, draw = 0, drawCircle = 0, handler = 0, next = 0;
    std::uint32_t left = 0, beep = 1; ///< imports

    Program() {
        code.modules = {{text("Module1"), text("Module1.bas"), image::kNone},
                        {text("Shape"), text("Shape.cls"), image::kNone},
                        {text("Circle"), text("Circle.cls"), image::kNone}};
        code.numbers = {0x3FF0000000000000, 10000, 0x7FF0000000000000}; // 1.0, 1 as Currency, infinity
        code.arrays = {{kLong, 0, {{0, 9}}}, {record(0), 0, {{1, 2}, {-1, 1}}}, {kText, 20, {{0, 0}}}};
        code.records = {{{{{BaseType::Integer}}, {kText, image::kNone, 8}, {kVariant}, {arrayOf(kLong), 0}}},
                        {{{record(0)}, {record(0)}, {object(1)}}}};
        code.globals = {{kLong}, {kVariant}, {record(1)}, {object(1)}, {arrayOf(kText)}};
        code.imports = {{text("Left"), kText, {kText, kLong}}, {text("Beep"), kNothing, {}}};
        addProcedures();
        addClasses();
        code.start = main;
        code.modules[0].prepare = addProcedure(code, {"Prepare"});
    }
    std::uint32_t text(const std::string& value) { return textOf(code, value); }

    /// Replaces the code of Main, with a Return after it unless it is left out.
    Program& runs(std::vector<std::uint32_t> words, bool returns = true) {
        auto& procedure = code.procedures[main];
        if (returns) words.push_back(encode(Op::Return));
        const auto begin = code.code.begin() + procedure.code;
        code.code.erase(begin, begin + procedure.words);
        code.code.insert(code.code.begin() + procedure.code, words.begin(), words.end());
        const auto grown = std::uint32_t(words.size()) - procedure.words;
        procedure.words += grown;
        for (auto& each : code.procedures)
            if (each.code > procedure.code) each.code += grown;
        return *this;
    }
    [[nodiscard]] std::string problem() const {
        const auto found = image::verify(code);
        return found ? found->text : "";
    }

private:
    void addProcedures() {
        main = addProcedure(code, {"Main", mainVariables()});
        add = addProcedure(code, {"Add", {kLong, kText, kVariant, object(1), arrayOf(kLong), kDouble}, 5, 0});
        take = addProcedure(code, {"Take",
                                   {referenceTo(kLong), referenceTo(kText), referenceTo(arrayOf(kLong)),
                                    referenceTo(record(0)), kObject},
                                   5});
        draw = addProcedure(code, {"Draw", {object(1), kLong, kText}, 2, 2});
        drawCircle = addProcedure(code, {"Shape_Draw", {object(2), kLong, kText}, 2, 2});
        handler = addProcedure(code, {"shape_Moved", {object(2), kLong, referenceTo(kText)}, 3});
        next = addProcedure(code, {"NewEnum", {object(2), kObject}, 1, 1});
    }
    void addClasses() {
        image::ClassInfo shape;
        shape.name = text("Shape");
        shape.module = 1;
        shape.fields = {{kLong}, {kVariant}, {record(0)}, {kObject}};
        shape.members = {{text("Draw"), image::MemberUse::Method, true, draw, {{BaseType::Integer}}, BaseType::Text},
                         {text("Size"), image::MemberUse::Field, true, 0, {}, BaseType::Integer}};
        shape.events = {{text("Moved"), {kLong, referenceTo(kText)}}};
        shape.initialize = addProcedure(code, {"Class_Initialize", {object(1)}, 1});
        shape.predeclared = 3 + 11;
        image::ClassInfo circle;
        circle.name = text("Circle");
        circle.module = 2;
        circle.fields = {{object(1)}, {kText}};
        circle.members = {
            {text("Paint"), image::MemberUse::Method, true, drawCircle, {{BaseType::Long}}, BaseType::Text}};
        circle.implementations = {{1, {drawCircle, image::kNone}}};
        circle.sinks = {{0, 1, {{0, handler}}}};
        circle.enumerator = next;
        circle.defaultMember = text("Paint");
        code.classes = {shape, circle};
    }
};

} // namespace code_parts
