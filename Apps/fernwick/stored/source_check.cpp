#include "Apps/fernwick/stored/source_check.h"
#include "Host/files/text_file.h"
#include <system_error>

namespace cli {

qltoolkit::CheckResult unreadSource(const std::string& path, const basic::ErrObject& why) {
    const bool isOfSystem = why.LastDllError != 0;
    return qltoolkit::failedRead(path,
                                 isOfSystem ? std::generic_category().message(int(why.LastDllError)) : why.Description);
}

qltoolkit::CheckResult checkSourceFile(const std::string& path, const basic::CodePage& page) {
    host::FileContent content;
    const auto failed = basic::attempt([&] { content = host::readFile(path); });
    return failed.Number == 0 ? qltoolkit::checkSource(path, content.bytes, {}, page) : unreadSource(path, failed);
}

Message messageOfDiagnostic(const qltoolkit::Diagnostic& diagnostic) {
    Message message;
    message.isError = diagnostic.severity == qltoolkit::Severity::Error;
    message.number = diagnostic.number;
    message.text = diagnostic.text;
    message.file = diagnostic.file;
    message.line = int(diagnostic.line);
    message.column = int(diagnostic.column);
    return message;
}

} // namespace cli
