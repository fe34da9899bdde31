#include "Components/QLToolkit/source/diagnostic.h"
#include "Components/QLToolkit/source/ignored_warnings.h"
#include <algorithm>

namespace qltoolkit {

void Diagnostics::report(Message message, Pos at, std::string_view detail) {
    if (errors_ > kMaxErrors) throw TooManyErrors{};
    add(message, source_.locate(std::min(at, source_.size())), detail);
    if (errors_ < kMaxErrors) return;
    add(Message::TooManyErrors, source_.locate(std::min(at, source_.size())), std::to_string(kMaxErrors));
    throw TooManyErrors{};
}

void Diagnostics::reportLack(Lack lack, Pos at, std::string_view name, std::string_view instead) {
    report(Message::NotOnDevices, at, name);
    all_.back().lack = lack;
    all_.back().lacking = name;
    all_.back().instead = instead;
}

void Diagnostics::reportFile(Message message, std::string_view detail) { add(message, {0, 0}, detail); }

void Diagnostics::add(Message message, Location where, std::string_view detail) {
    if (messageInfo(message).severity == Severity::Error) ++errors_;
    Diagnostic& made = all_.emplace_back(fileDiagnostic(message, source_.name(), detail));
    made.line = where.line;
    made.column = where.column;
}

std::vector<Diagnostic> Diagnostics::takeSorted() {
    const auto isWarning = [](const Diagnostic& each) { return each.severity == Severity::Warning; };
    if (std::ranges::any_of(all_, isWarning)) IgnoredWarnings{source_}.removeFrom(all_);
    std::stable_sort(all_.begin(), all_.end(), [](const Diagnostic& a, const Diagnostic& b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    return std::move(all_);
}

Diagnostic fileDiagnostic(Message message, std::string file, std::string_view detail) {
    Diagnostic made;
    made.severity = messageInfo(message).severity;
    made.number = static_cast<int>(message);
    made.file = std::move(file);
    made.text = messageText(message, detail);
    return made;
}

} // namespace qltoolkit
