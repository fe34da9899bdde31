#include "Components/QLPipe/package/entry_source.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_texts.h"
#include <cerrno>
#include <cstring>
#include <utility>

namespace qlpipe {

namespace {

zip_int64_t readError(void* data, zip_uint64_t length) noexcept {
    constexpr int kCodes[] = {ZIP_ER_READ, EIO};
    if (length < sizeof kCodes) return -1;
    std::memcpy(data, kCodes, sizeof kCodes);
    return sizeof kCodes;
}

} // namespace

zip_int64_t EntrySource::serve(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<EntrySource*>(self)->answer(data, length, command);
}

zip_int64_t EntrySource::answer(void* data, zip_uint64_t length, zip_source_cmd_t command) noexcept {
    switch (command) {
    case ZIP_SOURCE_OPEN: return kept([&] { return begin(); });
    case ZIP_SOURCE_READ: return kept([&] { return read(static_cast<char*>(data), length); });
    case ZIP_SOURCE_CLOSE: reader_.reset(); return 0;
    case ZIP_SOURCE_STAT: return state(static_cast<zip_stat_t*>(data));
    case ZIP_SOURCE_ERROR: return readError(data, length);
    case ZIP_SOURCE_FREE: return 0;
    case ZIP_SOURCE_SUPPORTS: return ZIP_SOURCE_SUPPORTS_READABLE;
    default: return -1;
    }
}

template <class Step>
zip_int64_t EntrySource::kept(Step&& step) noexcept {
    try {
        return step();
    } catch (...) {
        if (!failure_) failure_ = std::current_exception();
        return -1;
    }
}

zip_int64_t EntrySource::begin() {
    reader_ = file_.open();
    checksum_ = {};
    ended_ = false;
    progress_.setStatus(fillIn(pipe_texts::kPacking, {{"file", std::string(file_.title())}}));
    return 0;
}

/// Fails if the file no longer matches the checksum in the manifest, which was written first.
zip_int64_t EntrySource::read(char* data, zip_uint64_t length) {
    const auto count = reader_->read({data, std::size_t(length)});
    checksum_.add({data, count});
    const bool ends = count == 0 && !std::exchange(ended_, true);
    if (ends && checksum_.hex() != file_.sha256) throw transferError(kFileChanged, {{"file", file_.place}});
    progress_.moved(std::int64_t(count));
    return zip_int64_t(count);
}

zip_int64_t EntrySource::state(zip_stat_t* stat) const noexcept {
    *stat = {};
    stat->valid = ZIP_STAT_SIZE;
    stat->size = zip_uint64_t(file_.size);
    return sizeof *stat;
}

} // namespace qlpipe
