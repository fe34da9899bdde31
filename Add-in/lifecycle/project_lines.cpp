#include "Add-in/lifecycle/project_lines.h"
#include "Add-in/project/stored/project_store.h"
#include "Basic/case_folding.h"

namespace fernwick {

namespace {

std::string lineOf(const std::string& key, const std::string& value) { return key + "=" + value; }

} // namespace

ProjectLines readProjectLines(FileSystemObject& files, const std::string& path) {
    ProjectLines lines;
    const auto file = files.OpenTextFile(path);
    while (!file->AtEndOfStream()) lines.push_back(file->ReadLine());
    file->Close();
    return lines;
}

std::string keyOfLine(const std::string& line) { return line.substr(0, line.find('=')); }

std::string valueOfLine(const std::string& line) {
    const auto divider = line.find('=');
    return divider == line.npos ? std::string() : line.substr(divider + 1);
}

bool isSectionHeader(std::string_view line) { return line.starts_with('[') && line.ends_with(']'); }

bool GlobalSection::holds(std::string_view line) {
    static const auto header = "[" + std::string(kGlobalSection) + "]";
    if (inside_ && !isSectionHeader(line)) return true;
    inside_ = !inside_ && line == header;
    return false;
}

GlobalLines::GlobalLines(ProjectLines& lines) : lines_(lines), begin_(lines.size()), end_(lines.size()) {
    GlobalSection global;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool wasInside = global.isInside();
        (void)global.holds(lines[i]);
        if (!wasInside && global.isInside()) begin_ = i + 1;
        if (wasInside && !global.isInside()) {
            end_ = i;
            return;
        }
    }
}

std::string* GlobalLines::find(std::string_view key) {
    for (auto i = begin_; i < end_; ++i)
        if (basic::equalNoCase(keyOfLine(lines_[i]), key)) return &lines_[i];
    return nullptr;
}

std::string GlobalLines::value(std::string_view key) {
    const auto* line = find(key);
    return line ? valueOfLine(*line) : std::string();
}

void GlobalLines::set(const std::string& key, const std::string& value) {
    if (auto* line = find(key))
        *line = lineOf(key, value);
    else
        append(lineOf(key, value));
}

void GlobalLines::setIfMissing(const std::string& key, const std::string& value) {
    if (!has(key)) append(lineOf(key, value));
}

void GlobalLines::append(std::string line) {
    auto at = end_;
    while (at > begin_ && lines_[at - 1].empty()) --at;
    lines_.insert(lines_.begin() + std::ptrdiff_t(at), std::move(line));
    ++end_;
}

} // namespace fernwick
