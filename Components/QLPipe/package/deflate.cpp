#include "Components/QLPipe/package/deflate.h"
#include "Components/QLPipe/base/late_library.h"
#include <memory>
#include <new>
#include <zlib.h>

namespace qlpipe {
namespace {

constexpr int kLevel = 6, kRawStream = -15, kUsualMemory = 8;
/// What a flush may add to zlib's bound.
constexpr std::size_t kFlushBytes = 16;

/// zlib, loaded for the first package. Members are named like the functions.
struct Zlib {
    LateLibrary library{"libz.so.1", "zlib1g"};
    decltype(&::deflateInit2_) init = library["deflateInit2_"];
    decltype(&::deflateSetDictionary) setDictionary = library["deflateSetDictionary"];
    decltype(&::deflateBound) bound = library["deflateBound"];
    decltype(&::deflate) deflate = library["deflate"];
    decltype(&::deflateEnd) end = library["deflateEnd"];
    decltype(&::crc32_z) crc32 = library["crc32_z"];
};

const Zlib& zlib() {
    static const Zlib loaded;
    return loaded;
}

struct StreamEnd {
    void operator()(z_stream* stream) const { zlib().end(stream); }
};

/// zlib's older functions take the input as non-const but do not change it.
Bytef* input(std::string_view bytes) { return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data())); }

} // namespace

void needDeflate() { (void)zlib(); }

std::string deflated(std::string_view before, std::string_view block, bool isLast) {
    z_stream stream{};
    if (zlib().init(&stream, kLevel, Z_DEFLATED, kRawStream, kUsualMemory, Z_DEFAULT_STRATEGY, ZLIB_VERSION,
                    sizeof stream) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, StreamEnd> end{&stream};
    if (!before.empty()) zlib().setDictionary(&stream, input(before), uInt(before.size()));
    std::string packed(zlib().bound(&stream, uLong(block.size())) + kFlushBytes, '\0');
    stream.next_in = input(block);
    stream.avail_in = uInt(block.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    zlib().deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    packed.resize(packed.size() - stream.avail_out);
    return packed;
}

std::uint32_t continuedCrc(std::uint32_t crc, std::string_view bytes) {
    return std::uint32_t(zlib().crc32(crc, input(bytes), bytes.size()));
}

} // namespace qlpipe
