#include "Components/Image/word_bytes.h"
#include "Components/Image/code/instruction.h"
#include <algorithm>
#include <array>
#include <utility>

namespace image {

namespace {

/// Room for the longest instruction: a late call with 255 arguments, all of them named.
using Words = std::array<std::uint32_t, 1 + kLateHeadWords + 255 + 128>;

constexpr std::uint32_t kHalf = 0xFFFF;

// Code is walked in the same way when it is written and when it is read: one stream takes what a variable holds, the other one
// stores there what it reads.
class OutStream {
public:
    void byte(std::uint32_t& value) { *next_++ = char(value); }
    void number(std::uint32_t& value) {
        auto rest = value;
        for (; rest > 0x7F; rest >>= 7) *next_++ = char(rest | 0x80);
        *next_++ = char(rest);
    }
    /// Makes room for an instruction.
    void begin() {
        if (next_ - room_.data() > kFlushedBytes) flush();
    }
    std::string finish() {
        flush();
        return std::move(bytes_);
    }

private:
    void flush() {
        bytes_.append(room_.data(), next_);
        next_ = room_.data();
    }

    static constexpr std::ptrdiff_t kFlushedBytes = 16 * 1024;
    /// A word has two halves of at most 3 bytes, or is a number of at most 5.
    std::array<char, kFlushedBytes + 6 * std::tuple_size_v<Words>> room_;
    char* next_ = room_.data();
    std::string bytes_;
};
struct InStream {
    Reader bytes;
    void byte(std::uint32_t& value) { value = bytes.u8(); }
    void number(std::uint32_t& value) { value = bytes.variable(); }
};

template <class Stream>
class InstructionWalk {
public:
    explicit InstructionWalk(Stream& stream, Words& words) : stream_(stream), words_(words) {}

    /// Returns the number of words.
    std::size_t run() {
        std::uint32_t op = words_[0] & 0xFF;
        stream_.byte(op);
        if (op >= kInstructionCount) imageIsDamaged("an instruction is unknown");
        const auto& info = kInstructions[op];
        std::uint32_t word = op;
        for (std::size_t i = 0; i < info.operands.size(); ++i) word |= operand(info.operands[i], i);
        words_[0] = word;
        extra(info.extra, static_cast<Op>(op));
        return at_;
    }

private:
    std::uint32_t operand(Operand kind, std::size_t index) {
        const auto shift = 8 * (index + 1);
        auto value = words_[0] >> shift;
        switch (kind) {
        case Operand::None: return 0;
        case Operand::SignedBC:
            value = withSignLast(std::uint32_t(std::int32_t(std::int16_t(value))));
            half(value);
            return (withSignFirst(value) & kHalf) << shift;
        case Operand::WideSlot:
        case Operand::NumberBC: half(value); return value << shift;
        default:
            value &= 0xFF;
            stream_.byte(value);
            return value << shift;
        }
    }

    void extra(Extra kind, Op op) {
        const std::size_t count = words_[0] >> 24;
        const auto slots = op == Op::ReDim || op == Op::ReDimVariant ? 2 * count : count;
        switch (kind) {
        case Extra::None: return;
        case Extra::Number:
        case Extra::Jump: return signedNumber();
        case Extra::Table:
            for (std::size_t i = 0; i < count; ++i) signedNumber();
            return;
        case Extra::Slots: return halves(slots, 0);
        case Extra::TypeAndSlots: number(); return halves(slots, 0);
        case Extra::Operation: return operation();
        case Extra::Procedure:
        case Extra::Import:
        case Extra::Event: number(); return halves(count, kPassBits);
        case Extra::Interface: {
            // The class and the member, which are both small.
            auto type = words_[at_] & kHalf, member = words_[at_] >> 16;
            half(type);
            half(member);
            words_[at_++] = type | member << 16;
            return halves(count, kPassBits);
        }
        case Extra::Late: return late(count);
        default: number();
        }
    }

    void half(std::uint32_t& value) {
        stream_.number(value);
        if (value > kHalf) imageIsDamaged("a number is too large");
    }
    void number() { stream_.number(words_[at_++]); }
    void signedNumber() {
        auto value = withSignLast(words_[at_]);
        stream_.number(value);
        words_[at_++] = withSignFirst(value);
    }
    /// Of a half, the lowest `highBits` bits of its number are its highest ones, so that small slots make small numbers.
    void halves(std::size_t count, unsigned highBits) {
        for (std::size_t i = 0; i < count; ++i) {
            auto& word = words_[at_ + i / 2];
            const auto shift = i % 2 * 16;
            const auto present = word >> shift & kHalf;
            auto value = (present << highBits | present >> (16 - highBits)) & kHalf;
            half(value);
            value = (value >> highBits | value << (16 - highBits)) & kHalf;
            word = (word & ~(kHalf << shift)) | value << shift;
        }
        at_ += (count + 1) / 2;
        if (count % 2 != 0) words_[at_ - 1] &= kHalf;
    }
    /// 5 bits for the operator, one for the comparison, and 4 for each type.
    void operation() {
        const auto packed = words_[at_];
        auto value = (packed & 0x1F) | (packed >> 8 & 1) << 5 | (packed >> 16 & 0xF) << 6 | (packed >> 24 & 0xF) << 10;
        stream_.number(value);
        words_[at_++] = (value & 0x1F) | (value >> 5 & 1) << 8 | (value >> 6 & 0xF) << 16 | (value >> 10 & 0xF) << 24;
    }
    void late(std::size_t count) {
        auto name = words_[1] + 1; // the default member has no name, and is 0
        stream_.number(name);
        words_[1] = name - 1;
        auto use = (words_[2] & 3) | words_[2] >> 8 << 2;
        stream_.number(use);
        const std::size_t named = use >> 2;
        if (named > count) imageIsDamaged("a call has more names than arguments");
        words_[2] = (use & 3) | std::uint32_t(named) << 8;
        at_ = 1 + kLateHeadWords;
        for (std::size_t i = 0; i < named; ++i) number();
        halves(count, 0);
    }

    static constexpr unsigned kPassBits = 3;
    Stream& stream_;
    Words& words_;
    std::size_t at_ = 1;
};

} // namespace

std::string encodeWords(std::span<const std::uint32_t> words) {
    OutStream out;
    Words buffer{};
    for (std::size_t at = 0; at < words.size();) {
        const auto length = lengthOf(&words[at], words.size() - at);
        const auto one = words.subspan(at, length);
        if (length == 0 || length > buffer.size()) imageIsRefused("The code has words that are no instruction.");
        out.begin();
        // Most instructions are one word, for which a copy of a range takes long.
        const auto rest = one.subspan(1);
        const auto copied = std::span{buffer}.subspan(1, rest.size());
        buffer[0] = one[0];
        if (!rest.empty()) std::ranges::copy(rest, copied.begin());
        // The walk leaves what a reader will find.
        const bool isWhole = InstructionWalk{out, buffer}.run() == length && buffer[0] == one[0];
        if (!isWhole || (!rest.empty() && !std::ranges::equal(rest, copied)))
            imageIsRefused("An instruction has bits that mean nothing.");
        at += length;
    }
    return out.finish();
}

std::vector<std::uint32_t> decodeWords(Reader bytes) {
    InStream in{bytes};
    std::vector<std::uint32_t> words;
    words.reserve(bytes.rest().size());
    Words buffer{};
    while (!in.bytes.atEnd()) {
        const auto length = InstructionWalk{in, buffer}.run();
        words.insert(words.end(), buffer.begin(), buffer.begin() + std::ptrdiff_t(length));
    }
    return words;
}

} // namespace image
