#include "Basic/code_page_table.h"
#include "Basic/runtime_error.h"
#include <memory>
#include <unicode/ucnv.h>

namespace basic {

namespace {

/// ICU's converter, configured to stop at errors and not to use fallback mappings.
class StrictConverter {
public:
    explicit StrictConverter(const char* name) {
        UErrorCode status = U_ZERO_ERROR;
        converter_.reset(ucnv_open(name, &status));
        if (U_FAILURE(status)) throw RuntimeError(kInvalidProcedureCall);
        ucnv_setFallback(converter_.get(), false);
        ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        if (U_FAILURE(status)) throw RuntimeError(kInvalidProcedureCall);
    }

    /// The character that converts to these bytes and back; 0 for none.
    char16_t characterOf(std::string_view bytes) const {
        UErrorCode status = U_ZERO_ERROR;
        char16_t character[4] = {};
        const auto length = static_cast<std::int32_t>(bytes.size());
        if (ucnv_toUChars(converter_.get(), character, 4, bytes.data(), length, &status) != 1) return 0;
        char back[8] = {};
        const auto backLength = ucnv_fromUChars(converter_.get(), back, sizeof back, character, 1, &status);
        const bool same = U_SUCCESS(status) && bytes == std::string_view(back, static_cast<std::size_t>(backLength));
        return same && character[0] >= 0x80 && !standsForByte(character[0]) ? character[0] : u'\0';
    }

private:
    struct Close {
        void operator()(UConverter* c) const { ucnv_close(c); }
    };
    std::unique_ptr<UConverter, Close> converter_;
};

constexpr std::size_t pairIndex(unsigned char lead, unsigned char trail) { return (lead - 0x80U) * 0x100U + trail; }

} // namespace

CodePageTable::CodePageTable(const char* icuName) {
    const StrictConverter converter(icuName);
    for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
        char bytes[2] = {static_cast<char>(lead)};
        const char16_t alone = converter.characterOf({bytes, 1});
        ones_[lead - 0x80] = alone;
        if (alone) {
            bytesOf_[alone] = static_cast<std::uint16_t>(lead);
            continue;
        }
        for (unsigned trail = 0x21; trail <= 0xFF; ++trail) {
            bytes[1] = static_cast<char>(trail);
            const char16_t pair = converter.characterOf({bytes, 2});
            if (!pair) continue;
            if (twos_.empty()) twos_.resize(0x80 * 0x100);
            twos_[pairIndex(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail))] = pair;
            bytesOf_[pair] = static_cast<std::uint16_t>(lead << 8 | trail);
        }
    }
}

char32_t CodePageTable::next(std::string_view bytes, std::size_t& at) const noexcept {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80) return lead;
    if (const char16_t alone = ones_[lead - 0x80U]) return alone;
    if (!twos_.empty() && at < bytes.size()) {
        if (const char16_t pair = twos_[pairIndex(lead, static_cast<unsigned char>(bytes[at]))]) {
            ++at;
            return pair;
        }
    }
    return kBytePlane + lead;
}

bool CodePageTable::append(std::string& bytes, char32_t character) const {
    if (character < 0x80 || standsForByte(character)) {
        bytes += static_cast<char>(character & 0xFF);
        return true;
    }
    const unsigned code = character <= 0xFFFF ? bytesOf_[character] : 0;
    if (code == 0) return false;
    if (code > 0xFF) bytes += static_cast<char>(code >> 8);
    bytes += static_cast<char>(code & 0xFF);
    return true;
}

} // namespace basic
