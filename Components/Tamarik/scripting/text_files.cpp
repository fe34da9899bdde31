#include "Components/Tamarik/scripting/text_files.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/scripting/file_actions.h"

namespace tamarik {

namespace {

enum IOMode : std::int32_t { ForReading = 1, ForWriting = 2, ForAppending = 8 };
enum Tristate : std::int32_t { TristateUseDefault = -2, TristateTrue = -1, TristateFalse = 0 };

FileMode streamMode(const Variant& mode) {
    switch (longOr(mode, ForReading)) {
    case ForReading: return FileMode::Input;
    case ForWriting: return FileMode::Output;
    case ForAppending: return FileMode::Append;
    default: throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
}

/// The default of devices is the code page.
bool isUnicode(const Variant& format) {
    const std::int32_t tristate = longOr(format, TristateFalse);
    requireArgument(tristate >= TristateUseDefault && tristate <= TristateFalse);
    return tristate == TristateTrue;
}

TextStream* openedStream(Session& session, const std::string& path, FileMode mode, bool isUnicode) {
    return makeObject<TextStream>(session.heap, session, session.files.openStream(path, mode), isUnicode);
}

void requirePlace(Session& session, const std::string& path) {
    if (!isFolder(session, folderOf(path))) throw basic::RuntimeError(basic::kPathNotFound);
    if (isFolder(session, path)) throw basic::RuntimeError(basic::kPermissionDenied);
}

} // namespace

TextStream* openText(Session& session, const std::string& path, const Variant& mode, bool creates,
                     const Variant& format) {
    const FileMode wanted = streamMode(mode);
    const bool unicode = isUnicode(format);
    requirePlace(session, path);
    if (!isFile(session, path)) {
        if (!creates) throw basic::RuntimeError(basic::kFileNotFound);
        (void)session.files.openStream(path, FileMode::Output);
    }
    return openedStream(session, path, wanted, unicode);
}

TextStream* createText(Session& session, const std::string& path, bool replaces, bool isUnicode) {
    requirePlace(session, path);
    if (isFile(session, path) && !replaces) throw basic::RuntimeError(basic::kFileAlreadyExists);
    return openedStream(session, path, FileMode::Output, isUnicode);
}

} // namespace tamarik
