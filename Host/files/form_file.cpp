#include "Host/files/form_file.h"
#include "Basic/case_folding.h"
#include "Host/files/encoding.h"
#include "Host/files/form_line.h"
#include "Host/files/property_value.h"
#include "Host/files/text_file.h"
#include <fmt/core.h>

namespace host {
namespace {

using LineKind = FormLine::Kind;

constexpr std::string_view kAttributeWord = "Attribute";

/// `Attribute Name = literal` taken apart, as a property line whose key begins behind the first word.
FormLine attributeParts(std::string_view line) {
    return beginsWithWord(line, kAttributeWord) ? parseFormLine(line.substr(kAttributeWord.size())) : FormLine{};
}

std::string joinedFormLines(const std::vector<std::string>& lines) {
    std::string out;
    for (const auto& line : lines) out += line;
    return out;
}

} // namespace

/// Reads the head of one file.
class FormReader {
public:
    FormReader(FormFile& file, std::string_view text) : file_(file), rest_(text) {}

    void read() {
        readBefore();
        if (file_.root_) readBlock();
        if (file_.root_) readBetween();
        while (isAttribute(peek())) file_.attributes_.emplace_back(take());
        file_.code_ = rest_;
    }

private:
    std::string_view peek() const {
        auto rest = rest_;
        return rest.empty() ? rest : takeWholeLine(rest);
    }
    std::string_view take() {
        ++line_;
        return takeWholeLine(rest_);
    }
    static bool isAttribute(std::string_view line) { return beginsWithWord(line, kAttributeWord); }

    void problem(std::size_t line, std::string text) {
        if (file_.problems_.size() < FormFile::kMostProblems) file_.problems_.push_back({line, std::move(text)});
    }

    /// Up to and with the first Begin. Without a VERSION line only Object lines and Begin belong to the head.
    void readBefore() {
        bool versionSeen = false;
        while (!rest_.empty() && !file_.root_) {
            auto line = peek();
            if (line_ == 0 && line.substr(0, 3) == kByteOrderMark) line.remove_prefix(3);
            const auto parts = parseFormLine(line);
            const bool version = beginsWithWord(line, "VERSION");
            const bool object = parts.kind == LineKind::Property && basic::equalNoCase(parts.name, "Object");
            const bool filler = parts.kind == LineKind::Blank || parts.kind == LineKind::Comment;
            versionSeen = versionSeen || version;
            if (parts.kind == LineKind::Begin) {
                begin();
            } else if (version || object || (filler && versionSeen)) {
                file_.before_.emplace_back(take());
            } else {
                break;
            }
        }
        if (versionSeen && !file_.root_) problem(line_, "The description of the form is missing.");
    }

    void begin() {
        const auto line = take();
        auto block = std::make_shared<FormBlock>(FormBlock::Kind::Object, std::string(line));
        file_.root_ = block;
        open_.push_back({std::move(block), line_});
    }

    void readBlock() {
        while (!rest_.empty() && !open_.empty() && !isAttribute(peek())) readInside(take());
        for (; !open_.empty(); leave()) problem(open_.back().line, "This block has no end.");
    }

    void readInside(std::string_view line) {
        const auto parts = parseFormLine(line);
        switch (parts.kind) {
        case LineKind::Begin: return enter(FormBlock::Kind::Object, line);
        case LineKind::BeginProperty: return enter(FormBlock::Kind::Properties, line);
        case LineKind::End: return endObject(line);
        case LineKind::EndProperty: return endProperties(line);
        case LineKind::Other: problem(line_, "This line is neither a property nor a block."); break;
        default: break;
        }
        open_.back().block->appendLine(line);
    }

    void enter(FormBlock::Kind kind, std::string_view line) {
        if (open_.size() < FormFile::kDeepest) {
            open_.push_back({std::make_shared<FormBlock>(kind, std::string(line)), line_});
            return;
        }
        if (tooDeep_++ == 0) problem(line_, "Blocks are nested too deeply.");
        open_.back().block->appendLine(line);
    }

    bool endsTooDeep(std::string_view line) {
        if (tooDeep_ == 0) return false;
        --tooDeep_;
        open_.back().block->appendLine(line);
        return true;
    }

    /// End closes what is open within its object too: there the EndProperty is missing.
    void endObject(std::string_view line) {
        if (endsTooDeep(line)) return;
        for (; open_.back().block->kind() == FormBlock::Kind::Properties; leave())
            problem(open_.back().line, "This block has no end.");
        open_.back().block->close(line);
        leave();
    }

    void endProperties(std::string_view line) {
        if (endsTooDeep(line)) return;
        if (open_.back().block->kind() == FormBlock::Kind::Properties) {
            open_.back().block->close(line);
            return leave();
        }
        problem(line_, "\"EndProperty\" without \"BeginProperty\".");
        open_.back().block->appendLine(line);
    }

    void leave() {
        auto closed = std::move(open_.back().block);
        open_.pop_back();
        if (!open_.empty()) open_.back().block->appendBlock(std::move(closed));
    }

    /// After an End too many the head goes on with lines of the form, up to its attributes.
    void readBetween() {
        auto ahead = rest_;
        std::size_t count = 0;
        for (; !ahead.empty(); ++count) {
            const auto line = takeWholeLine(ahead);
            if (isAttribute(line)) break;
            if (parseFormLine(line).kind == LineKind::Other || ahead.empty()) return;
        }
        if (count > 0) problem(line_ + 1, "The form ends before this line.");
        while (count-- > 0) file_.between_.emplace_back(take());
    }

    struct Open {
        std::shared_ptr<FormBlock> block;
        std::size_t line;
    };
    FormFile& file_;
    std::string_view rest_;
    std::size_t line_ = 0; // of the line taken last
    std::vector<Open> open_;
    std::size_t tooDeep_ = 0;
};

FormFile FormFile::parse(std::string_view text) {
    FormFile file;
    FormReader(file, text).read();
    return file;
}

std::string FormFile::head() const {
    auto out = joinedFormLines(before_);
    if (root_) root_->writeTo(out);
    return out + joinedFormLines(between_) + joinedFormLines(attributes_);
}

std::size_t FormFile::firstCodeLine() const {
    return before_.size() + (root_ ? root_->lineCount() : 0) + between_.size() + attributes_.size() + 1;
}

std::string FormFile::version() const {
    for (std::string_view line : before_) {
        if (line.substr(0, 3) == kByteOrderMark) line.remove_prefix(3);
        if (!beginsWithWord(line, "VERSION")) continue;
        const auto text = lineText(line).substr(8);
        return std::string(text.substr(0, text.find_last_not_of(" \t") + 1));
    }
    return {};
}

std::vector<ObjectLine> FormFile::objects() const {
    std::vector<ObjectLine> out;
    for (const auto& line : before_) {
        const auto parts = parseFormLine(line);
        if (parts.kind != LineKind::Property) continue;
        const auto semicolon = parts.value.find("\";");
        const auto first = semicolon == std::string_view::npos ? parts.value : parts.value.substr(0, semicolon + 1);
        auto second = parts.value.substr(std::min(first.size() + 1, parts.value.size()));
        second.remove_prefix(std::min(second.find_first_not_of(" \t"), second.size()));
        out.push_back({parsePropertyValue(first).string, parsePropertyValue(second).string});
    }
    return out;
}

void FormFile::addObject(const ObjectLine& line) {
    const auto known = objects();
    if (std::any_of(known.begin(), known.end(),
                    [&](const auto& o) { return basic::equalNoCase(o.library, line.library); }))
        return;
    const auto text = fmt::format("Object = {}; {}{}", stringLiteral(line.library), stringLiteral(line.file),
                                  bytesOf(ownLineEnd(head())));
    // behind the lines of its kind, which stand behind the version
    auto at = before_.end();
    while (at != before_.begin() && !beginsWithWord(*(at - 1), "Object") && !beginsWithWord(*(at - 1), "VERSION")) --at;
    before_.insert(at, text);
}

std::optional<std::string> FormFile::attribute(std::string_view name) const {
    for (const auto& line : attributes_)
        if (const auto parts = attributeParts(line); basic::equalNoCase(parts.name, name))
            return std::string(parts.value);
    return std::nullopt;
}

bool FormFile::attribute(std::string_view name, std::string_view literal) {
    for (auto& line : attributes_) {
        const auto parts = attributeParts(line);
        if (!basic::equalNoCase(parts.name, name)) continue;
        if (parts.value == literal) return false;
        const auto from = std::size_t(parts.value.data() - line.data());
        line.replace(from, parts.value.size(), literal);
        return true;
    }
    const auto before = head();
    const auto end = bytesOf(ownLineEnd(before));
    if (!before.empty() && before.back() != '\n' && before.back() != '\r') {
        if (attributes_.empty())
            between_.emplace_back(end);
        else
            attributes_.back() += end;
    }
    attributes_.push_back(fmt::format("{} {} = {}{}", kAttributeWord, name, literal, end));
    return true;
}

} // namespace host
