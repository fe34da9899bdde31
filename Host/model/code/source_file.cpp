#include "Host/model/code/source_file.h"
#include "Basic/case_folding.h"
#include "Host/files/text_parts.h"
#include <fmt/format.h>

namespace host {
namespace {

std::size_t lineCountOf(std::string_view bytes) noexcept {
    std::size_t count = 0;
    LineEnd end = LineEnd::None;
    for (; !bytes.empty(); ++count) takeLine(bytes, end);
    return count;
}

} // namespace

SourceFile::SourceFile(std::string bytes, basic::CodePage codePage)
    : codePage_(std::move(codePage)), ownEnd_(ownLineEnd(bytes)), bytes_(std::move(bytes)) {
    const auto parts = splitSource(bytes_);
    attributesAt_ = parts.designer.size();
    codeAt_ = attributesAt_ + parts.attributes.size();
    whole_ = parts.balanced;
}

std::string SourceFile::bytes() const {
    auto all = form_ ? codePage_.encode(form_->text()) : bytes_.substr(0, codeAt_);
    return code_ ? all + code_->bytes() : all + bytes_.substr(codeAt_);
}

std::string SourceFile::name() const {
    if (form_) return std::string(unquoted(form_->attribute("VB_Name").value_or("")));
    const auto attributes = std::string_view(bytes_).substr(attributesAt_, codeAt_ - attributesAt_);
    return codePage_.decode(attributeValue(attributes, "VB_Name").value_or(""));
}

void SourceFile::name(const std::string& name) {
    codePage_.encode(name);
    form()->attribute("VB_Name", fmt::format("\"{}\"", name));
    if (const auto& root = form()->root(); root && !root->name().empty()) root->name(name);
}

const std::shared_ptr<FormFile>& SourceFile::form() {
    if (!form_)
        form_ =
            std::make_shared<FormFile>(FormFile::parse(codePage_.decode(std::string_view(bytes_).substr(0, codeAt_))));
    return form_;
}

std::string SourceFile::designerClass() const {
    auto rest = std::string_view(bytes_).substr(0, attributesAt_);
    LineEnd end = LineEnd::None;
    while (!rest.empty()) {
        const auto line = trimBlanks(takeLine(rest, end));
        if (!basic::startsWithNoCase(line, "Begin ")) continue;
        const auto name = trimBlanks(line.substr(6));
        return std::string(name.substr(0, name.find(' ')));
    }
    return {};
}

void SourceFile::renameCompanion(const std::string& oldName, const std::string& newName) {
    codePage_.encode(newName);
    if (const auto& root = form()->root()) root->renameResources(oldName, newName);
}

CodeText& SourceFile::code() {
    if (!code_) {
        code_ = std::make_unique<CodeText>(std::string_view(bytes_).substr(codeAt_), codePage_, ownEnd_);
        bytes_.resize(codeAt_);
        bytes_.shrink_to_fit();
    }
    return *code_;
}

std::size_t SourceFile::headLines() const {
    return lineCountOf(form_ ? form_->text() : std::string_view(bytes_).substr(0, codeAt_));
}

} // namespace host
