#include "Host/files/project_code_page.h"
#include "Basic/runtime_error.h"
#include "Basic/utf8.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_file.h"
#include <charconv>
#include <unistd.h>

namespace host {
namespace {

/// The pages in which names are looked up, the most frequent ones first.
constexpr int kPagesOfNames[] = {1252, 936, 932, 950, 949, 1251, 1250};

bool isAscii(std::string_view bytes) noexcept { return basic::asciiRun(bytes, 0) == bytes.size(); }

bool isOnDisk(const std::string& path) noexcept { return ::access(path.c_str(), F_OK) == 0; }

std::optional<int> numberOf(std::string_view text) noexcept {
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc{} && read.ptr == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// Collects what a project file and the files that it names show.
class EvidenceReader {
public:
    EvidenceReader(const std::string& folder, FileContents& contents) : folder_(folder), contents_(contents) {}

    void project(std::string_view bytes) {
        ProjectFile file(bytes, kBytes);
        if (const auto page = numberOf(file.setting(kCodePageKey).value_or(""))) evidence.key(*page);
        evidence.addFile(bytes);
        for (const auto& member : file.members())
            if (isComponentKind(member.content.kind)) source(pathOf(kBytes.encode(member.content.value)));
    }

    /// Only the names of a group's projects count; each project has its own page.
    void group(std::string_view bytes) {
        const GroupFile file(bytes, kBytes);
        evidence.addFile(bytes);
        for (const auto& entry : file.entries()) (void)pathOf(kBytes.encode(entry.path));
    }

    basic::CodePageEvidence evidence;

private:
    /// Returns the path of a file on disk; the name counts if it has characters above 127.
    std::string pathOf(std::string_view written) {
        if (isAscii(written)) return lookup_.find(folder_, written);
        const auto utf8 = lookup_.find(folder_, written);
        if (isOnDisk(utf8)) return utf8;
        for (std::size_t i = 0; i < std::size(kPagesOfNames); ++i) {
            const auto path = lookup_.find(folder_, pageOfNames(i).decode(written));
            if (!isOnDisk(path)) continue;
            evidence.addNameOnDisk(kPagesOfNames[i]);
            return path;
        }
        return {};
    }

    void source(const std::string& path) {
        if (path.empty()) return;
        (void)basic::attempt([&] { evidence.addFile(contents_.read(path).bytes); });
    }

    /// A page is constructed when the first name needs it.
    const basic::CodePage& pageOfNames(std::size_t index) {
        while (pages_.size() <= index) pages_.emplace_back(kPagesOfNames[pages_.size()]);
        return pages_[index];
    }

    /// Has a character for each byte, so that the bytes of names can be restored.
    const basic::CodePage kBytes = basic::CodePage::windows1252();
    const std::string& folder_;
    FileContents& contents_;
    PathLookup lookup_;
    std::vector<basic::CodePage> pages_;
};

} // namespace

basic::DetectedCodePage codePageOfProject(std::string_view bytes, const std::string& folder,
                                          const std::optional<basic::CodePage>& given, FileContents& contents) {
    if (given) return {*given, basic::CodePageReason::Given, false};
    EvidenceReader reader(folder, contents);
    GroupFile::looksLikeGroup(bytes) ? reader.group(bytes) : reader.project(bytes);
    return reader.evidence.detect();
}

basic::DetectedCodePage codePageOfProject(std::string_view bytes, const std::string& folder,
                                          const std::optional<basic::CodePage>& given) {
    FileContents contents;
    return codePageOfProject(bytes, folder, given, contents);
}

basic::DetectedCodePage codePageOfSource(std::string_view bytes, const std::optional<basic::CodePage>& given) {
    if (given) return {*given, basic::CodePageReason::Given, false};
    basic::CodePageEvidence evidence;
    evidence.addFile(bytes);
    return evidence.detect();
}

std::string_view textOf(basic::CodePageReason reason) noexcept {
    switch (reason) {
    case basic::CodePageReason::Default: return "the default";
    case basic::CodePageReason::Given: return "given on the command line";
    case basic::CodePageReason::Key: return "according to its project file";
    case basic::CodePageReason::Utf8: return "according to all its files";
    case basic::CodePageReason::Charset: return "according to the Charset of its forms";
    case basic::CodePageReason::FileNames: return "according to the names of its files";
    case basic::CodePageReason::Text: return "according to its text";
    }
    return {};
}

} // namespace host
