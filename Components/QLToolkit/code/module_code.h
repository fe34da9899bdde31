#pragma once
// The code of one module, before it is joined with that of the others.
#include "Components/Image/code/code_image.h"
#include <map>
#include <string>
#include <unordered_map>

namespace qltoolkit {

/// What a word of code refers to by a number that counts in its module only.
enum class FixKind : std::uint8_t { Text, Import, Array, Static };

struct Fix {
    std::uint32_t word;
    FixKind kind;
};

/// Numbers of texts, imports, arrays and statics, `code` and `numbers` of procedures count in this module.
class ModuleCode {
public:
    std::uint32_t text(const std::string& text) {
        const auto [at, isNew] = textNumbers_.try_emplace(text, static_cast<std::uint32_t>(texts.size()));
        if (isNew) texts.push_back(text);
        return at->second;
    }
    /// Functions of one name may have several signatures, such as Put.
    std::uint32_t import(const std::string& name, image::SlotType result, std::vector<image::SlotType> parameters) {
        const image::Import wanted{text(name), result, std::move(parameters)};
        const auto [first, last] = importNumbers_.equal_range(wanted.name);
        for (auto at = first; at != last; ++at)
            if (imports[at->second] == wanted) return at->second;
        importNumbers_.emplace(wanted.name, static_cast<std::uint32_t>(imports.size()));
        imports.push_back(wanted);
        return static_cast<std::uint32_t>(imports.size() - 1);
    }

    struct NumberedProcedure {
        std::uint32_t number;
        image::Procedure procedure;
    };

    std::vector<std::uint32_t> code;
    std::vector<Fix> fixes;
    std::vector<std::uint64_t> numbers;
    std::vector<std::string> texts;
    std::vector<image::Import> imports; ///< their names are texts of this module
    std::vector<image::ArrayShape> arrays;
    std::vector<image::SlotVariable> statics; ///< variables of procedures that keep their values
    std::uint32_t staticSlots = 0;
    std::vector<NumberedProcedure> procedures;

private:
    std::unordered_map<std::string, std::uint32_t> textNumbers_;
    std::multimap<std::uint32_t, std::uint32_t> importNumbers_;
};

} // namespace qltoolkit
