#include "Components/QLToolkit/check_results.h"
#include <cstdint>
#include <utility>

namespace qltoolkit {

namespace {

// Numbers have 4 bytes, the lowest first; texts follow their length.
class Writer {
public:
    void number(std::size_t value) {
        for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
    }
    void text(std::string_view text) {
        number(text.size());
        bytes += text;
    }

    std::string bytes;
};

class Reader {
public:
    explicit Reader(std::string_view rest) : rest_(rest) {}

    std::uint32_t number() {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char byte : take(4)) {
            value |= std::uint32_t(static_cast<unsigned char>(byte)) << shift;
            shift += 8;
        }
        return value;
    }
    std::string_view text() { return take(number()); }

    template <class Enumeration>
    Enumeration oneOf(Enumeration last) {
        const auto value = number();
        isGood_ &= value <= static_cast<std::uint32_t>(last);
        return isGood_ ? static_cast<Enumeration>(value) : last;
    }

    [[nodiscard]] bool isGood() const { return isGood_; }
    [[nodiscard]] bool isWhole() const { return isGood_ && rest_.empty(); }

private:
    std::string_view take(std::size_t size) {
        if (size > rest_.size()) isGood_ = false;
        if (!isGood_) return {};
        const auto taken = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return taken;
    }

    std::string_view rest_;
    bool isGood_ = true;
};

void write(Writer& writer, const Diagnostic& diagnostic) {
    writer.number(static_cast<std::size_t>(diagnostic.severity));
    writer.number(static_cast<std::size_t>(diagnostic.number));
    writer.text(diagnostic.file);
    writer.number(diagnostic.line);
    writer.number(diagnostic.column);
    writer.text(diagnostic.text);
    writer.number(static_cast<std::size_t>(diagnostic.lack));
    writer.text(diagnostic.lacking);
    writer.text(diagnostic.instead);
}

Diagnostic readDiagnostic(Reader& reader) {
    Diagnostic diagnostic;
    diagnostic.severity = reader.oneOf(Severity::Error);
    diagnostic.number = static_cast<int>(reader.number());
    diagnostic.file = reader.text();
    diagnostic.line = reader.number();
    diagnostic.column = reader.number();
    diagnostic.text = reader.text();
    diagnostic.lack = reader.oneOf(Lack::Printing);
    diagnostic.lacking = reader.text();
    diagnostic.instead = reader.text();
    return diagnostic;
}

CheckResult readResult(Reader& reader) {
    CheckResult result;
    result.lines = reader.number();
    result.errors = reader.number();
    for (auto left = reader.number(); left > 0 && reader.isGood(); --left)
        result.diagnostics.push_back(readDiagnostic(reader));
    return result;
}

} // namespace

std::string bytesOf(const CheckResults& results) {
    Writer writer;
    writer.number(results.size());
    for (const auto& result : results) {
        writer.number(result.lines);
        writer.number(result.errors);
        writer.number(result.diagnostics.size());
        for (const auto& diagnostic : result.diagnostics) write(writer, diagnostic);
    }
    return std::move(writer.bytes);
}

std::optional<CheckResults> resultsOf(std::string_view bytes) {
    Reader reader{bytes};
    CheckResults results;
    for (auto left = reader.number(); left > 0 && reader.isGood(); --left) results.push_back(readResult(reader));
    return reader.isWhole() ? std::optional(std::move(results)) : std::nullopt;
}

} // namespace qltoolkit
