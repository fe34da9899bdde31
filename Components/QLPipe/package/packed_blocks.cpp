#include "Components/QLPipe/package/packed_blocks.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/package/deflate.h"
#include <atomic>

namespace qlpipe {
namespace {

/// Large enough that the 5 bytes for the end of a block don't matter.
constexpr std::size_t kBlockBytes = 512 * 1024;

/// Reads a file in blocks and verifies its checksum at the end.
class BlockReader {
public:
    explicit BlockReader(const BundleFile& file) : file_(file), reader_(file.open()) {}

    PackedBlocks::Task next() {
        std::string bytes = readBlock(), before = std::move(window_);
        checksum_.add(bytes);
        crc_ = continuedCrc(crc_, bytes);
        left_ -= std::int64_t(bytes.size());
        if (ends()) verify();
        window_ = bytes.substr(bytes.size() - std::min(bytes.size(), kDeflateWindow));
        return [bytes = std::move(bytes), before = std::move(before), isLast = ends(), crc = crc_](std::stop_token) {
            return PackedBlock{deflated(before, bytes, isLast), std::int64_t(bytes.size()), isLast, crc};
        };
    }
    bool ends() const { return left_ <= 0; }

private:
    std::string readBlock() {
        std::string bytes(std::size_t(std::min(std::int64_t(kBlockBytes), left_)), '\0');
        for (std::size_t done = 0; done < bytes.size();) {
            const auto count = reader_->read(std::span{bytes}.subspan(done));
            if (count == 0) changed();
            done += count;
        }
        return bytes;
    }
    /// The manifest was written first.
    void verify() {
        char more = 0;
        if (reader_->read({&more, 1}) != 0 || checksum_.hex() != file_.sha256) changed();
    }
    [[noreturn]] void changed() const { throw transferError(kFileChanged, {{"file", file_.place}}); }

    const BundleFile& file_;
    std::unique_ptr<ByteReader> reader_;
    std::int64_t left_ = file_.size;
    Sha256 checksum_;
    std::uint32_t crc_ = 0;
    std::string window_;
};

class BlockSource {
public:
    explicit BlockSource(std::vector<const BundleFile*> files) : files_(std::move(files)) {}

    PackedBlocks::Task operator()() {
        if (!reader_ && at_ == files_.size()) return {};
        if (!reader_) reader_ = std::make_shared<BlockReader>(*files_[at_++]);
        auto task = reader_->next();
        if (reader_->ends()) reader_.reset();
        return task;
    }

private:
    std::vector<const BundleFile*> files_;
    std::size_t at_ = 0;
    std::shared_ptr<BlockReader> reader_; // the source is copied before its first call
};

std::string checksumOf(const BundleFile& file, const std::stop_token& stop, std::atomic<std::int64_t>& read) {
    std::vector<char> buffer(kChunkBytes);
    const auto reader = file.open();
    Sha256 checksum;
    while (const auto count = reader->read(buffer)) {
        if (stop.stop_requested()) return {};
        checksum.add({buffer.data(), count});
        read += std::int64_t(count);
    }
    return checksum.hex();
}

} // namespace

PackedBlocks::Source blocksOf(std::vector<const BundleFile*> files) {
    needDeflate();
    return BlockSource{std::move(files)};
}

void addChecksums(std::vector<BundleFile>& files, unsigned threads,
                  const std::function<void(const BundleFile&)>& started,
                  const std::function<void(std::int64_t)>& moved) {
    std::atomic<std::int64_t> read = 0;
    OrderedWork<std::string> work{threads, [&, at = std::size_t{0}]() mutable -> OrderedWork<std::string>::Task {
                                      if (at == files.size()) return {};
                                      return [&read, &file = files[at++]](const std::stop_token& stop) {
                                          return checksumOf(file, stop, read);
                                      };
                                  }};
    const auto report = [&] { moved(read.exchange(0)); };
    for (auto& file : files) {
        started(file);
        file.sha256 = *work.take(report);
        report();
    }
}

} // namespace qlpipe
