#include "Components/Image/listing/disassemble.h"
#include "Components/Image/code/record_shapes.h"
#include "Components/Image/listing/operand_text.h"
#include <algorithm>
#include <set>

namespace image {

namespace {

constexpr std::size_t kNumberWidth = 6, kNameWidth = 24, kSlotWidth = 12;

std::string rightAligned(const std::string& text) {
    return std::string(kNumberWidth - std::min(kNumberWidth, text.size()), ' ') + text;
}
std::string leftAligned(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, text.size()), ' ');
}

/// Writes one procedure.
class Listing {
public:
    Listing(const CodeImage& code, std::uint32_t number)
        : code_(code), number_(number), procedure_(code.procedures[number]) {
        const auto all = std::span(code.code);
        const auto begin = std::min<std::size_t>(procedure_.code, all.size());
        words_ = all.subspan(begin, std::min<std::size_t>(procedure_.words, all.size() - begin));
    }

    [[nodiscard]] std::string text() {
        addHead();
        addVariables();
        findLabels();
        for (std::size_t at = 0; at < words_.size();) at += addInstruction(static_cast<std::uint32_t>(at));
        return std::move(text_);
    }

private:
    void addHead() {
        text_ += procedureName(code_, number_);
        if (procedure_.module < code_.modules.size())
            text_ += ", " + textNumbered(code_, code_.modules[procedure_.module].file);
        text_ += ", " + std::to_string(words_.size() * sizeof(std::uint32_t)) + " bytes\n";
    }

    void addVariables() {
        const RecordShapes shapes{code_.records};
        std::uint64_t slot = 0;
        for (std::size_t i = 0; i < procedure_.variables.size(); ++i) {
            const auto& variable = procedure_.variables[i];
            const auto slots = shapes.slotsOf(variable.type);
            auto place = slotText(static_cast<std::uint32_t>(slot));
            if (slots > 1) place += "-" + std::to_string(slot + slots - 1);
            text_ += "  " + leftAligned(place, kSlotWidth) + describe(code_, variable.type);
            if (i < procedure_.parameters) text_ += ", parameter";
            if (slot == procedure_.resultSlot) text_ += ", result";
            if (variable.isTemporary) text_ += ", temporary";
            text_ += "\n";
            slot += slots;
        }
    }

    void findLabels() {
        for (std::size_t at = 0; at < words_.size();) {
            const auto length = lengthOf(&words_[at], words_.size() - at);
            const auto extra = length == 0 ? Extra::None : kInstructions[words_[at] & 0xFF].extra;
            if (extra == Extra::Jump || extra == Extra::Table)
                for (std::size_t i = 1; i < length; ++i)
                    labels_.insert(static_cast<std::int64_t>(at) + static_cast<std::int32_t>(words_[at + i]));
            at += std::max<std::size_t>(length, 1);
        }
    }

    std::size_t addInstruction(std::uint32_t at) {
        if (labels_.contains(at)) text_ += labelText(at) + ":\n";
        text_ += rightAligned(lineAt(at)) + rightAligned(std::to_string(at)) + "  ";
        const auto rest = words_.subspan(at);
        const auto length = lengthOf(rest.data(), rest.size());
        if (length == 0) {
            text_ += "?\n";
            return 1;
        }
        const std::string name{kInstructions[rest[0] & 0xFF].name};
        const auto operands = OperandText{code_, procedure_, rest.first(length), at}.text();
        text_ += (operands.empty() ? name : leftAligned(name, kNameWidth - 1) + " " + operands) + "\n";
        return length;
    }

    /// The line that begins at a word, or "".
    std::string lineAt(std::uint32_t at) {
        const auto& lines = procedure_.lines;
        while (nextLine_ < lines.size() && lines[nextLine_].code < at) ++nextLine_;
        if (nextLine_ == lines.size() || lines[nextLine_].code != at) return "";
        return std::to_string(lines[nextLine_].line);
    }

    const CodeImage& code_;
    std::uint32_t number_;
    const Procedure& procedure_;
    std::span<const std::uint32_t> words_;
    std::set<std::int64_t> labels_;
    std::size_t nextLine_ = 0;
    std::string text_;
};

} // namespace

std::string disassemble(const CodeImage& code, std::uint32_t procedure) {
    return procedure < code.procedures.size() ? Listing{code, procedure}.text() : "";
}

} // namespace image
