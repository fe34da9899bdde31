#include "Components/QLToolkit/source/diagnostic.h"
#include <algorithm>

namespace qltoolkit {

void Diagnostics::report(Message message, Pos at, std::string_view detail) {
    if (errors_ > kMaxErrors) throw TooManyErrors{};
    add(message, source_.locate(std::min(at, source_.size())), detail);
    if (errors_ < kMaxErrors) return;
    add(Message::TooManyErrors, source_.locate(std::min(at, source_.size())), std::to_string(kMaxErrors));
    throw TooManyErrors{};
}

void Diagnostics::reportFile(Message message, std::string_view detail) { add(message, {0, 0}, detail); }

void Diagnostics::add(Message message, Location where, std::string_view detail) {
    const auto severity = messageInfo(message).severity;
    if (severity == Severity::Error) ++errors_;
    all_.push_back(
        {severity, static_cast<int>(message), source_.name(), where.line, where.column, messageText(message, detail)});
}

std::vector<Diagnostic> Diagnostics::takeSorted() {
    std::stable_sort(all_.begin(), all_.end(), [](const Diagnostic& a, const Diagnostic& b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    return std::move(all_);
}

Diagnostic fileDiagnostic(Message message, std::string file, std::string_view detail) {
    return {messageInfo(message).severity, static_cast<int>(message), std::move(file), 0, 0,
            messageText(message, detail)};
}

} // namespace qltoolkit
