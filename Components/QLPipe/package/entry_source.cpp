#include "Components/QLPipe/package/entry_source.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/pipe_texts.h"
#include <cerrno>
#include <cstring>

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
    case ZIP_SOURCE_CLOSE: return 0;
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
    progress_.setStatus(fillIn(pipe_texts::kPacking, {{"file", std::string(file_.title())}}));
    return 0;
}

zip_int64_t EntrySource::read(char* data, zip_uint64_t length) {
    while (given_ == block_.bytes.size() && !block_.isLast) takeBlock();
    const auto count = block_.bytes.copy(data, std::size_t(length), given_);
    given_ += count;
    return zip_int64_t(count);
}

void EntrySource::takeBlock() {
    block_ = blocks_.take([] {}).value();
    given_ = 0;
    progress_.moved(block_.unpackedSize);
}

/// libzip writes the entry as it is if its method is known, and asks for the CRC at the end.
zip_int64_t EntrySource::state(zip_stat_t* stat) const noexcept {
    *stat = {};
    stat->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD;
    stat->size = zip_uint64_t(file_.size);
    stat->comp_method = ZIP_CM_DEFLATE;
    if (block_.isLast) {
        stat->valid |= ZIP_STAT_CRC;
        stat->crc = block_.crc;
    }
    return sizeof *stat;
}

} // namespace qlpipe
