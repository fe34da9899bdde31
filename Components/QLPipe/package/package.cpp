#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/zip_headers.h"
#include "Components/QLPipe/package/zip_library.h"
#include <filesystem>
#include <fstream>
#include <map>
#include <utility>

namespace qlpipe {
namespace {

struct ZipFileClose {
    void operator()(zip_file_t* file) const { zipLibrary().fclose(file); }
};

} // namespace

/// The zip archive. Neither its sizes nor its names are trusted.
class Package::Archive {
public:
    explicit Archive(const std::string& path) : path_(path) {
        std::string reason;
        std::error_code ignored;
        // Reading from a FIFO could block forever.
        if (!std::filesystem::is_regular_file(path, ignored)) refuse("the file does not exist");
        archive_ = openZip(path, ZIP_RDONLY | ZIP_CHECKCONS, reason);
        if (!archive_) refuse(reason);
        entries_ = listEntries();
        std::ifstream file{path, std::ios::binary};
        if (!headersAgree(file, entries_)) refuse("its lists of entries do not agree");
    }

    /// Returns the entries in the order of the archive.
    const std::vector<ZipEntry>& entries() const { return entries_; }

    using File = std::unique_ptr<zip_file_t, ZipFileClose>;
    File openEntry(std::size_t index) const {
        File file{zip_.fopen_index(archive_.get(), index, 0)};
        if (!file) unreadable();
        return file;
    }
    std::size_t read(zip_file_t* file, std::span<char> buffer) const {
        const auto count = zip_.fread(file, buffer.data(), buffer.size());
        if (count < 0) refuse("an entry cannot be unpacked");
        return std::size_t(count);
    }

    const std::string& path() const { return path_; }

private:
    std::vector<ZipEntry> listEntries() const {
        std::vector<ZipEntry> found;
        const auto count = zip_.get_num_entries(archive_.get(), 0);
        for (zip_int64_t i = 0; i < count; ++i) {
            zip_stat_t state{};
            if (zip_.stat_index(archive_.get(), zip_uint64_t(i), ZIP_FL_ENC_RAW, &state) != 0) unreadable();
            constexpr auto kNeeded = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE;
            if ((state.valid & kNeeded) != kNeeded) unreadable();
            found.push_back({state.name, std::int64_t(state.size), std::int64_t(state.comp_size)});
        }
        return found;
    }
    [[noreturn]] void unreadable() const { refuse(zipReason(archive_.get())); }
    [[noreturn]] void refuse(const std::string& reason) const {
        throw transferError(kPackageUnreadable, {{"package", path_}, {"reason", reason}});
    }

    const ZipLibrary& zip_ = zipLibrary();
    std::string path_;
    ZipArchive archive_;
    std::vector<ZipEntry> entries_;
};

namespace {

using Archive = Package::Archive;

/// A file of a package. Unpacks at most the size in the manifest, regardless of what the archive claims.
class PackedFile final : public ByteReader {
public:
    PackedFile(std::shared_ptr<const Archive> archive, std::size_t index, const BundleFile& file)
        : archive_(std::move(archive)),
          entry_(archive_->openEntry(index)),
          place_(file.place),
          sha256_(file.sha256),
          left_(file.size) {}

    std::size_t read(std::span<char> buffer) override {
        const auto count = archive_->read(entry_.get(), buffer);
        left_ -= std::int64_t(count);
        checksum_.add({buffer.data(), count});
        const bool ends = count == 0 && !std::exchange(ended_, true);
        if (left_ < 0 || (ends && (left_ > 0 || checksum_.hex() != sha256_)))
            throw transferError(kPackageEntryChanged, {{"package", archive_->path()}, {"entry", place_}});
        return count;
    }

private:
    std::shared_ptr<const Archive> archive_;
    Archive::File entry_;
    std::string place_, sha256_;
    std::int64_t left_;
    Sha256 checksum_;
    bool ended_ = false;
};

std::string readManifestEntry(const Archive& archive) {
    const auto& entries = archive.entries();
    if (entries.empty() || entries.front().name != kManifestName)
        throw transferError(kPackageManifest, {{"package", archive.path()}, {"reason", "it is not the first entry"}});
    const auto size = entries.front().size;
    if (size < 0 || size > kLargestManifest)
        throw transferError(kPackageManifest, {{"package", archive.path()},
                                               {"reason", "it has more than " + bytesInWords(kLargestManifest)}});
    const auto file = archive.openEntry(0);
    // One byte more, so that the end is read, where libzip compares the checksum.
    std::string text(std::size_t(size) + 1, '\0');
    std::size_t done = 0;
    while (const auto count = archive.read(file.get(), std::span{text}.subspan(done))) done += count;
    if (done != std::size_t(size))
        throw transferError(kPackageEntryChanged, {{"package", archive.path()}, {"entry", kManifestName}});
    text.resize(done);
    return text;
}

TransferError packageError(const std::string& package, const ManifestProblem& problem) {
    switch (problem.kind) {
    case ManifestProblem::Malformed: break;
    case ManifestProblem::NewerVersion:
        return transferError(kPackageVersion, {{"package", package}, {"version", problem.what}});
    case ManifestProblem::UnsafeName:
        return transferError(kPackageUnsafeName, {{"package", package}, {"name", problem.what}});
    }
    return transferError(kPackageManifest, {{"package", package}, {"reason", problem.what}});
}

Bundle bundleOf(const Archive& archive) {
    Bundle bundle;
    try {
        bundle = readManifest(readManifestEntry(archive));
    } catch (const ManifestProblem& problem) { throw packageError(archive.path(), problem); }
    if (bundle.isRuntime)
        throw transferError(kPackageManifest, {{"package", archive.path()}, {"reason", "it describes a runtime"}});
    return bundle;
}

/// Returns the position of each file. Throws unless the entries match the files of the manifest.
std::map<std::string, std::size_t> matchEntries(const Archive& archive, const Bundle& bundle) {
    std::map<std::string, std::int64_t> sizes;
    for (const auto& file : bundle.files) sizes.emplace(file.place, file.size);
    std::map<std::string, std::size_t> positions;
    const auto& entries = archive.entries();
    for (std::size_t i = 1; i < entries.size(); ++i) {
        const auto& [name, size, packedSize] = entries[i];
        const auto named = sizes.find(name);
        if (named == sizes.end() || !positions.emplace(name, i).second)
            throw transferError(kPackageEntryExtra, {{"package", archive.path()}, {"entry", name}});
        if (named->second != size)
            throw transferError(kPackageEntryChanged, {{"package", archive.path()}, {"entry", name}});
    }
    for (const auto& file : bundle.files)
        if (!positions.contains(file.place))
            throw transferError(kPackageEntryMissing, {{"package", archive.path()}, {"entry", file.place}});
    return positions;
}

} // namespace

Package::Package(const std::string& path) : archive_(std::make_shared<Archive>(path)), bundle_(bundleOf(*archive_)) {
    const auto positions = matchEntries(*archive_, bundle_);
    for (auto& file : bundle_.files)
        file.open = [archive = std::shared_ptr<const Archive>(archive_), index = positions.at(file.place),
                     named = BundleFile{file.kind, file.place, file.size, file.sha256, {}}] {
            return std::make_unique<PackedFile>(archive, index, named);
        };
}

Package::~Package() = default;

const std::string& Package::path() const { return archive_->path(); }

void Package::verify(const std::function<void()>& pause) const {
    std::vector<char> buffer(kChunkBytes);
    for (const auto& file : bundle_.files)
        for (const auto reader = file.open(); reader->read(buffer) != 0;) pause();
}

} // namespace qlpipe
