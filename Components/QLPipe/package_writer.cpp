#include "Components/QLPipe/package_writer.h"
#include "Components/QLPipe/device_names.h"
#include "Components/QLPipe/pipe_messages.h"
#include "Components/QLPipe/pipe_texts.h"
#include "Components/QLPipe/progress.h"
#include "Components/QLPipe/sha256.h"
#include "Components/QLPipe/zip_library.h"
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <deque>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace qlpipe {
namespace {

/// 1980-01-01 00:00, the first time that the format knows.
constexpr zip_uint16_t kDosTime = 0, kDosDate = (1 << 5) | 1;
constexpr zip_uint32_t kAttributes = zip_uint32_t{S_IFREG | 0644} << 16;
constexpr zip_uint32_t kLevel = 6;

[[noreturn]] void notWritten(const std::string& path, const std::string& reason) {
    throw transferError(kPackageNotWritten, {path, reason});
}

/// An entry's bytes as libzip asks for them. No exception may pass through libzip, so the first one is kept for the writer.
class EntrySource {
public:
    EntrySource(const BundleFile& file, Progress& progress, std::exception_ptr& failure)
        : file_(file), progress_(progress), failure_(failure) {}

    static zip_int64_t serve(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        return static_cast<EntrySource*>(self)->answer(data, length, command);
    }

private:
    zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) noexcept {
        switch (command) {
        case ZIP_SOURCE_OPEN: return kept([&] { return begin(); });
        case ZIP_SOURCE_READ: return kept([&] { return read(static_cast<char*>(data), length); });
        case ZIP_SOURCE_CLOSE: reader_.reset(); return 0;
        case ZIP_SOURCE_STAT: return state(static_cast<zip_stat_t*>(data));
        case ZIP_SOURCE_ERROR: return error(data, length);
        case ZIP_SOURCE_FREE: return 0;
        case ZIP_SOURCE_SUPPORTS: return ZIP_SOURCE_SUPPORTS_READABLE;
        default: return -1;
        }
    }

    template <class Step>
    zip_int64_t kept(Step&& step) noexcept {
        try {
            return step();
        } catch (...) {
            if (!failure_) failure_ = std::current_exception();
            return -1;
        }
    }

    zip_int64_t begin() {
        reader_ = file_.open();
        checksum_ = {};
        ended_ = false;
        progress_.says(pipe_texts::kPacking + std::string(file_.title()) + pipe_texts::kDots);
        return 0;
    }

    /// What is packed must be what the manifest at the package's beginning says.
    zip_int64_t read(char* data, zip_uint64_t length) {
        const auto count = reader_->read({data, std::size_t(length)});
        checksum_.add({data, count});
        const bool ends = count == 0 && !std::exchange(ended_, true);
        if (ends && checksum_.hex() != file_.sha256) throw transferError(kFileChanged, {file_.place});
        progress_.moved(std::int64_t(count));
        return zip_int64_t(count);
    }

    zip_int64_t state(zip_stat_t* stat) const noexcept {
        *stat = {};
        stat->valid = ZIP_STAT_SIZE;
        stat->size = zip_uint64_t(file_.size);
        return sizeof *stat;
    }

    static zip_int64_t error(void* data, zip_uint64_t length) noexcept {
        constexpr int kCodes[] = {ZIP_ER_READ, EIO};
        if (length < sizeof kCodes) return -1;
        std::memcpy(data, kCodes, sizeof kCodes);
        return sizeof kCodes;
    }

    const BundleFile& file_;
    Progress& progress_;
    std::exception_ptr& failure_;
    std::unique_ptr<ByteReader> reader_;
    Sha256 checksum_;
    bool ended_ = false;
};

/// Bytes that are in memory already.
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

/// Without a name of its own a package under way could be taken for a whole one: ".<name>.<process>.part".
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& target)
        : target_(target), folder_(folderOf(target).empty() ? "." : folderOf(target)) {
        const auto begin = "." + lastPart(target) + ".";
        removeLeftovers(begin);
        path_ = folder_ + "/" + begin + std::to_string(::getpid()) + ".part";
    }
    ~UnfinishedFile() { ::unlink(path_.c_str()); }
    const std::string& path() const { return path_; }

    void finish() {
        const int file = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC);
        const bool stored = file >= 0 && ::fsync(file) == 0;
        const int error = errno;
        if (file >= 0) ::close(file);
        if (!stored) notWritten(target_, std::strerror(error));
        if (::rename(path_.c_str(), target_.c_str()) != 0) notWritten(target_, std::strerror(errno));
    }

private:
    /// A process that was killed left its file, and libzip's beside it.
    void removeLeftovers(const std::string& begin) const {
        std::error_code failed;
        for (const auto& entry : std::filesystem::directory_iterator(folder_, failed)) {
            const auto name = entry.path().filename().string();
            if (!name.starts_with(begin) || name.find(".part", begin.size()) == std::string::npos) continue;
            pid_t process = 0;
            std::from_chars(name.data() + begin.size(), name.data() + name.size(), process);
            if (process > 0 && ::kill(process, 0) != 0 && errno == ESRCH) std::filesystem::remove(entry, failed);
        }
    }

    std::string target_, folder_, path_;
};

class PackageWriter {
public:
    PackageWriter(const std::string& target, Progress& progress)
        : target_(target), progress_(progress), unfinished_(target) {
        std::string reason;
        archive_ = openZip(unfinished_.path(), ZIP_CREATE | ZIP_TRUNCATE, reason);
        if (!archive_) notWritten(target_, reason);
    }

    /// `file` lives as long as this.
    void add(const BundleFile& file) {
        auto& entry = sources_.emplace_back(file, progress_, failure_);
        zip_source_t* source = zip_.source_function(archive_.get(), EntrySource::serve, &entry);
        if (!source) fail();
        const auto index = zip_.file_add(archive_.get(), file.place.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_.source_free(source);
            fail();
        }
        const auto at = zip_uint64_t(index);
        if (zip_.set_file_compression(archive_.get(), at, ZIP_CM_DEFLATE, kLevel) != 0 ||
            zip_.file_set_dostime(archive_.get(), at, kDosTime, kDosDate, 0) != 0 ||
            zip_.file_set_external_attributes(archive_.get(), at, 0, ZIP_OPSYS_UNIX, kAttributes) != 0)
            fail();
    }

    /// Here libzip reads, packs and writes.
    void finish() {
        if (zip_.close(archive_.get()) != 0) fail();
        archive_.release();
        unfinished_.finish();
    }

private:
    [[noreturn]] void fail() {
        if (failure_) std::rethrow_exception(failure_);
        notWritten(target_, zipReason(archive_.get()));
    }

    const ZipLibrary& zip_ = zipLibrary();
    std::string target_;
    Progress& progress_;
    UnfinishedFile unfinished_;
    std::exception_ptr failure_;
    std::deque<EntrySource> sources_; // libzip keeps their addresses
    ZipArchive archive_;
};

void addChecksum(BundleFile& file, std::span<char> buffer, Progress& progress) {
    progress.says(pipe_texts::kReading + std::string(file.title()) + pipe_texts::kDots);
    const auto reader = file.open();
    Sha256 checksum;
    while (const auto count = reader->read(buffer)) {
        checksum.add({buffer.data(), count});
        progress.moved(std::int64_t(count));
    }
    file.sha256 = checksum.hex();
}

} // namespace

std::string packageName(const Bundle& bundle) { return bundle.project + "." + bundle.device + ".qlpkg"; }

void writePackage(const std::string& path, Bundle bundle, IQLPipeEvents* sink) {
    Progress progress{sink, 2 * bundle.bytes() + manifestSize(bundle)};
    std::vector<char> buffer(kChunkBytes);
    for (auto& file : bundle.files) addChecksum(file, buffer, progress);
    const auto manifest = writeManifest(bundle);
    const auto first = manifestEntry(manifest);
    PackageWriter writer{path, progress};
    writer.add(first);
    for (const auto& file : bundle.files) writer.add(file);
    writer.finish();
}

} // namespace qlpipe
