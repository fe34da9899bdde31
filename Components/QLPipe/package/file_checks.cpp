#include "Basic/case_folding.h"
#include "Basic/text.h"
#include "Components/Image/image.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/listed_files.h"
#include <algorithm>
#include <map>

namespace qlpipe {
namespace {

constexpr char kCompilerVersion[] = "3.5.0 (0624)";

/// Finds the problems of one listing.
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
    void error(std::int32_t number, MessageValues values, const std::string& source = {}) {
        listing_.findings.push_back({true, number, messageText(number, values), source});
    }
    void hint(PipeWarning number, MessageValues values, const std::string& source) {
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
                  {{"file", file.name},
                   {"length", std::to_string(basic::Len(file.name))},
                   {"platform", limits_.platform},
                   {"limit", std::to_string(*limits_.nameLength)}},
                  file.path);
        if (file.kind == FileKind::Image)
            checkImage(file);
        else
            checkOther(file);
    }

    void checkImage(const ListedFile& file) {
        const auto most = std::min(limits_.imageBytes.value_or(image::kLargestImage), image::kLargestImage);
        if (file.size > most)
            return error(kImageTooLarge,
                         {{"file", file.name},
                          {"size", bytesInWords(file.size)},
                          {"platform", limits_.platform},
                          {"limit", bytesInWords(most)}},
                         file.path);
        try {
            const std::string version = image::decode(readWhole(file)).compilerVersion;
            if (version != kCompilerVersion)
                error(kImageOfOtherCompiler,
                      {{"file", file.name}, {"version", version}, {"required", kCompilerVersion}}, file.path);
        } catch (const basic::RuntimeError& damage) {
            error(kImageDamaged, {{"file", file.name}, {"reason", damage.Description}}, file.path);
        } catch (const TransferError& failed) {
            listing_.findings.push_back({true, failed.number, failed.text, file.path});
        }
    }

    void checkOther(const ListedFile& file) {
        if (!isReadable(file))
            error(kKindNotTaken, {{"file", file.name}, {"platform", limits_.platform}, {"kinds", kindsInWords()}},
                  file.path);
        if (limits_.fileBytes && file.size > *limits_.fileBytes)
            error(kFileTooLarge,
                  {{"file", file.name},
                   {"size", bytesInWords(file.size)},
                   {"platform", limits_.platform},
                   {"limit", bytesInWords(*limits_.fileBytes)}},
                  file.path);
        else if (limits_.heapBytes && file.size > *limits_.heapBytes)
            hint(kFileLargerThanHeap,
                 {{"file", file.name},
                  {"size", bytesInWords(file.size)},
                  {"platform", limits_.platform},
                  {"limit", bytesInWords(*limits_.heapBytes)}},
                 file.path);
        if (file.size == 0) hint(kFileEmpty, {{"file", file.name}}, file.path);
    }

    /// Resources and their list belong to the compiler, so every platform reads them.
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

    /// A file must not have the name of a folder of another file either.
    void checkNames() {
        std::map<std::string, std::string, basic::NoCaseLess> names, folders;
        for (const auto& file : listing_.files)
            for (auto folder = folderOf(file.name); !folder.empty(); folder = folderOf(folder))
                folders.emplace(folder, file.name);
        for (const auto& file : listing_.files) {
            const auto [other, isNew] = names.emplace(file.name, file.path);
            if (!isNew) error(kNameTwice, {{"file", other->second}, {"other", file.path}}, file.path);
            if (const auto folder = folders.find(file.name); folder != folders.end())
                error(kNameTwice, {{"file", file.name}, {"other", folder->second}}, file.path);
        }
    }

    void checkTotal() {
        std::int64_t total = 0;
        for (const auto& file : listing_.files) total += file.size;
        if (limits_.storageBytes && total > *limits_.storageBytes)
            error(kTooLargeTogether, {{"size", bytesInWords(total)},
                                      {"platform", limits_.platform},
                                      {"limit", bytesInWords(*limits_.storageBytes)}});
    }

    static std::string readWhole(const ListedFile& file) {
        const auto reader = file.open();
        std::string bytes(std::size_t(file.size), '\0');
        for (std::size_t at = 0; at < bytes.size();) at += reader->read(std::span{bytes}.subspan(at));
        return bytes;
    }

    const TargetLimits& limits_;
    FileListing& listing_;
};

} // namespace

void checkFiles(const TargetLimits& limits, FileListing& listing) { FileChecks{limits, listing}.run(); }

} // namespace qlpipe
