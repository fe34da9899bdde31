#include "Host/system/text_stream.h"
#include "Basic/code_page.h"
#include "Host/files/atomic_save.h"
#include "Host/files/system_error.h"
#include "Host/files/text_file.h"
#include "Host/system/file_error.h"

namespace host {
namespace {

constexpr int kBadFileMode = 54;

[[noreturn]] void throwBadFileMode() { throw hostError(kBadFileMode, "Bad file mode"); }

} // namespace

std::string TextReader::ReadLine() {
    if (rest_.empty()) throw hostError(basic::kInputPastEndOfFile);
    LineEnd end = LineEnd::None;
    return basic::CodePage::windows1252().decode(takeLine(rest_, end));
}

void TextReader::WriteLine(const std::string&) { throwBadFileMode(); }

TextWriter::~TextWriter() {
    // Released without Close: an error cannot be reported.
    static_cast<void>(basic::attempt([this] { Close(); }));
}

bool TextWriter::AtEndOfStream() const { throwBadFileMode(); }

std::string TextWriter::ReadLine() { throwBadFileMode(); }

void TextWriter::WriteLine(const std::string& line) {
    if (!open_) throwBadFileMode();
    bytes_ += basic::CodePage::windows1252().encode(line);
    bytes_ += "\r\n";
}

void TextWriter::Close() {
    if (!open_) return;
    open_ = false;
    withScriptErrors([this] { atomicSave(path_, bytes_); });
}

} // namespace host
