#include "Components/Tamarik/files/open_file.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace tamarik {

namespace {

constexpr std::size_t kPiece = 16384;

} // namespace

OpenFile::~OpenFile() {
    const auto lost = basic::attempt([this] { flush(); });
    (void)lost;
}

std::uint64_t OpenFile::size() {
    flush();
    return file_->size();
}

void OpenFile::flush() {
    if (pending_.empty()) return;
    const std::string bytes = std::exchange(pending_, {});
    file_->write(pendingAt_, bytes);
}

/// Makes the cache begin at the position. False at the end.
bool OpenFile::fill() {
    if (position_ >= cacheAt_ && position_ - cacheAt_ < cache_.size()) return true;
    flush();
    cache_.resize(kPiece);
    cacheAt_ = position_;
    cache_.resize(file_->read(position_, cache_.data(), kPiece));
    return !cache_.empty();
}

int OpenFile::peek() {
    return fill() ? static_cast<unsigned char>(cache_[static_cast<std::size_t>(position_ - cacheAt_)]) : -1;
}

int OpenFile::next() {
    const int byte = peek();
    if (byte >= 0) ++position_;
    return byte;
}

std::string OpenFile::read(std::size_t count) {
    std::string bytes;
    while (bytes.size() < count && fill()) {
        const auto from = static_cast<std::size_t>(position_ - cacheAt_);
        const std::size_t length = std::min(count - bytes.size(), cache_.size() - from);
        bytes.append(cache_, from, length);
        position_ += length;
    }
    return bytes;
}

void OpenFile::write(std::string_view bytes) {
    cache_.clear();
    if (position_ != pendingAt_ + pending_.size() || pending_.size() > kPiece) flush();
    if (pending_.empty()) pendingAt_ = position_;
    pending_ += bytes;
    position_ += bytes.size();
}

} // namespace tamarik
