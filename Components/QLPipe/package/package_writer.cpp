#include "Components/QLPipe/package/package_writer.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_texts.h"
#include "Components/QLPipe/base/progress.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/entry_source.h"
#include "Components/QLPipe/package/unfinished_package.h"
#include "Components/QLPipe/package/zip_library.h"
#include <deque>
#include <exception>
#include <sys/stat.h>

namespace qlpipe {
namespace {

/// 1980-01-01 00:00, the earliest time in the zip format.
constexpr zip_uint16_t kDosTime = 0, kDosDate = (1 << 5) | 1;
constexpr zip_uint32_t kAttributes = zip_uint32_t{S_IFREG | 0644} << 16;

/// Bytes in memory.
class TextReader final : public ByteReader {
public:
    explicit TextReader(const std::string& text) : rest_(text) {}
    std::size_t read(std::span<char> buffer) override {
        const auto count = rest_.copy(buffer.data(), buffer.size());
        rest_.remove_prefix(count);
        return count;
    }

private:
    std::string_view rest_;
};

BundleFile manifestEntry(const std::string& text) {
    Sha256 checksum;
    checksum.add(text);
    return {FileKind::File, kManifestName, std::int64_t(text.size()), checksum.hex(),
            [&text] { return std::make_unique<TextReader>(text); }};
}

class PackageWriter {
public:
    PackageWriter(const std::string& target, PackedBlocks& blocks, Progress& progress)
        : target_(target), blocks_(blocks), progress_(progress), unfinished_(target) {
        std::string reason;
        archive_ = openZip(unfinished_.path(), ZIP_CREATE | ZIP_TRUNCATE, reason);
        if (!archive_) packageNotWritten(target_, reason);
    }

    /// `file` must outlive this object. Files are added in the order of their blocks.
    void add(const BundleFile& file) {
        auto& entry = sources_.emplace_back(file, blocks_, progress_, failure_);
        zip_source_t* source = zip_.source_function(archive_.get(), EntrySource::serve, &entry);
        if (!source) fail();
        const auto index = zip_.file_add(archive_.get(), file.place.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_.source_free(source);
            fail();
        }
        const auto at = zip_uint64_t(index);
        if (zip_.file_set_dostime(archive_.get(), at, kDosTime, kDosDate, 0) != 0 ||
            zip_.file_set_external_attributes(archive_.get(), at, 0, ZIP_OPSYS_UNIX, kAttributes) != 0)
            fail();
    }

    /// Makes libzip write all entries.
    void finish() {
        if (zip_.close(archive_.get()) != 0) fail();
        archive_.release();
        unfinished_.finish();
    }

private:
    [[noreturn]] void fail() {
        if (failure_) std::rethrow_exception(failure_);
        packageNotWritten(target_, zipReason(archive_.get()));
    }

    const ZipLibrary& zip_ = zipLibrary();
    std::string target_;
    PackedBlocks& blocks_;
    Progress& progress_;
    UnfinishedPackage unfinished_;
    std::exception_ptr failure_;
    std::deque<EntrySource> sources_; // libzip keeps their addresses
    ZipArchive archive_;
};

} // namespace

std::string packageName(const Bundle& bundle) { return bundle.project + "." + bundle.device + ".qlpkg"; }

void writePackage(const std::string& path, Bundle bundle, IQLPipeEvents* sink, unsigned threads) {
    needReadable(bundle);
    Progress progress{sink, 2 * bundle.bytes() + manifestSize(bundle)};
    addChecksums(
        bundle.files, threads,
        [&](const BundleFile& file) {
            progress.setStatus(fillIn(pipe_texts::kReading, {{"file", std::string(file.title())}}));
        },
        [&](std::int64_t bytes) { progress.moved(bytes); });
    const auto manifest = writeManifest(bundle);
    const auto first = manifestEntry(manifest);
    std::vector<const BundleFile*> files{&first};
    for (const auto& file : bundle.files) files.push_back(&file);
    PackedBlocks blocks{threads, blocksOf(files)};
    PackageWriter writer{path, blocks, progress};
    for (const auto* file : files) writer.add(*file);
    writer.finish();
}

} // namespace qlpipe
