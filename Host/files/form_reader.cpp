#include "Host/files/form_reader.h"
#include "Basic/case_folding.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/form_line.h"

namespace host {
namespace {

using LineKind = FormLine::Kind;

bool isAttribute(std::string_view line) { return beginsWithWord(line, kAttributeWord); }

} // namespace

void FormReader::read() {
    readBefore();
    if (file_.root_) readBlock();
    if (file_.root_) readBetween();
    while (isAttribute(peek())) file_.attributes_.emplace_back(take());
    file_.code_ = rest_;
}

std::string_view FormReader::peek() const {
    auto rest = rest_;
    return rest.empty() ? rest : takeWholeLine(rest);
}

std::string_view FormReader::take() {
    ++line_;
    return takeWholeLine(rest_);
}

void FormReader::problem(std::size_t line, std::string text) {
    if (file_.problems_.size() < FormFile::kMostProblems) file_.problems_.push_back({line, std::move(text)});
}

/// Reads up to and including the first Begin. Without a VERSION line the head has only Object lines and Begin.
void FormReader::readBefore() {
    bool versionSeen = false;
    while (!rest_.empty() && !file_.root_) {
        const auto line = line_ == 0 ? withoutByteOrderMark(peek()) : peek();
        const auto parts = parseFormLine(line);
        const bool version = beginsWithWord(line, kVersionWord);
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

void FormReader::begin() {
    const auto line = take();
    auto block = std::make_shared<FormBlock>(FormBlock::Kind::Object, std::string(line));
    file_.root_ = block;
    open_.push_back({std::move(block), line_});
}

void FormReader::readBlock() {
    while (!rest_.empty() && !open_.empty() && !isAttribute(peek())) readInside(take());
    for (; !open_.empty(); leave()) problem(open_.back().line, "This block has no end.");
}

void FormReader::readInside(std::string_view line) {
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

void FormReader::enter(FormBlock::Kind kind, std::string_view line) {
    if (open_.size() < FormFile::kDeepest) {
        open_.push_back({std::make_shared<FormBlock>(kind, std::string(line)), line_});
        return;
    }
    if (tooDeep_++ == 0) problem(line_, "Blocks are nested too deeply.");
    open_.back().block->appendLine(line);
}

bool FormReader::endsTooDeep(std::string_view line) {
    if (tooDeep_ == 0) return false;
    --tooDeep_;
    open_.back().block->appendLine(line);
    return true;
}

/// End also closes open Properties blocks within its object, whose EndProperty is missing.
void FormReader::endObject(std::string_view line) {
    if (endsTooDeep(line)) return;
    for (; open_.back().block->kind() == FormBlock::Kind::Properties; leave())
        problem(open_.back().line, "This block has no end.");
    open_.back().block->close(line);
    leave();
}

void FormReader::endProperties(std::string_view line) {
    if (endsTooDeep(line)) return;
    if (open_.back().block->kind() == FormBlock::Kind::Properties) {
        open_.back().block->close(line);
        return leave();
    }
    problem(line_, "\"EndProperty\" without \"BeginProperty\".");
    open_.back().block->appendLine(line);
}

void FormReader::leave() {
    auto closed = std::move(open_.back().block);
    open_.pop_back();
    if (!open_.empty()) open_.back().block->appendBlock(std::move(closed));
}

/// After a superfluous End the head continues with lines of the form, up to its attributes.
void FormReader::readBetween() {
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

} // namespace host
