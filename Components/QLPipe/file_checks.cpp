#include "Basic/case_folding.h"
#include "Basic/text.h"
#include "Components/Image/image.h"
#include "Components/QLPipe/device_names.h"
#include "Components/QLPipe/listed_files.h"
#include "Components/QLPipe/pipe_messages.h"
#include <algorithm>
#include <map>

namespace qlpipe {
namespace {

constexpr char kCompilerVersion[] = "3.5.0 (0624)";
/// An image that is larger than this is not read, whatever its platform takes.
constexpr std::int64_t kLargestImage = 256 * 1024 * 1024;

/// The findings of one listing.
class FileChecks {
public:
    FileChecks(const TargetLimits& limits, FileListing& listing) : limits_(limits), listing_(listing) {}

    void run() {
        checkImages();
        for (const auto& file : listing_.files) checkFile(file);
        checkNames();
        checkTotal();
    }

private:
    void error(std::int32_t number, std::initializer_list<std::string> values, const std::string& source = {}) {
        listing_.findings.push_back({true, number, messageText(number, values), source});
    }
    void hint(PipeWarning number, std::initializer_list<std::string> values, const std::string& source) {
        listing_.findings.push_back({false, number, messageText(number + kWarningOffset, values), source});
    }

    void checkImages() {
        const bool any = std::any_of(listing_.files.begin(), listing_.files.end(),
                                     [](const ListedFile& file) { return file.kind == FileKind::Image; });
        if (!any) error(kNoImage, {});
    }

    void checkFile(const ListedFile& file) {
        if (limits_.nameLength && basic::Len(file.name) > *limits_.nameLength)
            error(kNameTooLong,
                  {file.name, std::to_string(basic::Len(file.name)), limits_.platform,
                   std::to_string(*limits_.nameLength)},
                  file.path);
        if (file.kind == FileKind::Image)
            checkImage(file);
        else
            checkOther(file);
    }

    void checkImage(const ListedFile& file) {
        const auto most = std::min(limits_.imageBytes.value_or(kLargestImage), kLargestImage);
        if (file.size > most)
            return error(kImageTooLarge, {file.name, bytesInWords(file.size), limits_.platform, bytesInWords(most)},
                         file.path);
        try {
            const auto version = image::decode(readWhole(file)).compilerVersion;
            if (version != kCompilerVersion)
                error(kImageOfOtherCompiler, {file.name, version, kCompilerVersion}, file.path);
        } catch (const basic::RuntimeError& damage) {
            error(kImageDamaged, {file.name, damage.Description}, file.path);
        } catch (const TransferError& failed) {
            listing_.findings.push_back({true, failed.number, failed.text, file.path});
        }
    }

    void checkOther(const ListedFile& file) {
        if (!isReadable(file)) error(kKindNotTaken, {file.name, limits_.platform, kindsInWords()}, file.path);
        if (limits_.fileBytes && file.size > *limits_.fileBytes)
            error(kFileTooLarge,
                  {file.name, bytesInWords(file.size), limits_.platform, bytesInWords(*limits_.fileBytes)}, file.path);
        else if (limits_.heapBytes && file.size > *limits_.heapBytes)
            hint(kFileLargerThanHeap,
                 {file.name, bytesInWords(file.size), limits_.platform, bytesInWords(*limits_.heapBytes)}, file.path);
        if (file.size == 0) hint(kFileEmpty, {file.name}, file.path);
    }

    /// Resources and their list are the compiler's own, whatever the platform's programs read.
    bool isReadable(const ListedFile& file) const {
        const auto kind = kindOf(file.name);
        const auto& kinds = limits_.fileKinds;
        return kinds.empty() || kind == "RPP" || kind == "RSP" ||
               std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    }

    std::string kindsInWords() const {
        std::string words;
        for (const auto& kind : limits_.fileKinds) words += (words.empty() ? "" : ", ") + kind;
        return words;
    }

    /// A file under the name of another one's folder can't be stored either.
    void checkNames() {
        std::map<std::string, std::string, basic::NoCaseLess> names, folders;
        for (const auto& file : listing_.files)
            for (auto folder = folderOf(file.name); !folder.empty(); folder = folderOf(folder))
                folders.emplace(folder, file.name);
        for (const auto& file : listing_.files) {
            const auto [other, isNew] = names.emplace(file.name, file.path);
            if (!isNew) error(kNameTwice, {other->second, file.path}, file.path);
            if (const auto folder = folders.find(file.name); folder != folders.end())
                error(kNameTwice, {file.name, folder->second}, file.path);
        }
    }

    void checkTotal() {
        std::int64_t total = 0;
        for (const auto& file : listing_.files) total += file.size;
        if (limits_.storageBytes && total > *limits_.storageBytes)
            error(kTooLargeTogether, {bytesInWords(total), limits_.platform, bytesInWords(*limits_.storageBytes)});
    }

    static std::string readWhole(const ListedFile& file) {
        LocalFile reader{file.path, file.size};
        std::string bytes(std::size_t(file.size), '\0');
        for (std::size_t at = 0; at < bytes.size();) at += reader.read(std::span{bytes}.subspan(at));
        return bytes;
    }

    const TargetLimits& limits_;
    FileListing& listing_;
};

} // namespace

void checkFiles(const TargetLimits& limits, FileListing& listing) { FileChecks{limits, listing}.run(); }

} // namespace qlpipe
