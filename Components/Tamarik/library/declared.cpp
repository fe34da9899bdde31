// Functions of the desktop's operating system that programs declare, and that are harmless: clocks, names and the speaker.
#include "Components/Tamarik/dates/calendar.h"
#include "Components/Tamarik/library/library_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/library/stored_values.h"
#include "Components/Tamarik/values/encoding.h"
#include <cmath>
#include <limits>

namespace tamarik {

namespace {

enum SystemError : std::int32_t { BufferOverflow = 111, InsufficientBuffer = 122 };

std::int64_t milliseconds(Session& session) { return static_cast<std::int64_t>(session.surroundings.milliseconds()); }

/// The number is without a sign.
void sleep(Session& session, std::int32_t count) {
    WaitRequest& request = session.wait.emplace();
    request.wait.kind = Wait::Kind::Pause;
    request.wait.milliseconds = static_cast<std::uint32_t>(count);
}

/// 32 bits, which start again after 49 days.
std::int32_t tickCount(Session& session) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(milliseconds(session)));
}

/// The bits of a Currency are a whole number.
basic::Currency tickCount64(Session& session) { return {milliseconds(session)}; }

constexpr std::int64_t kCountsOfSecond = 10'000'000;

std::int64_t countsNow(Session& session) {
    return static_cast<std::int64_t>(session.surroundings.milliseconds() * (kCountsOfSecond / 1000.0));
}
std::int64_t countsOfSecond(Session&) { return kCountsOfSecond; }

template <std::int64_t (*Count)(Session&)>
std::int32_t storeCount(Session& session, std::int64_t& to) {
    to = Count(session);
    return 1;
}

/// The bytes of a number, the lowest first.
void addBytes(std::string& bytes, std::int64_t number, int count) {
    for (int i = 0; i < count; ++i, number >>= 8) bytes += static_cast<char>(number & 0xFF);
}

/// Stores bytes in the record that is the only argument.
void fillRecord(NativeCall& call, const std::string& bytes) {
    Slot* const slot = call.arguments[0].pointer;
    if (!slot) throw basic::RuntimeError(basic::kObjectVariableNotSet);
    MemoryStore store;
    OpenFile file(store.open("bytes", {true, true, true, false}), {});
    file.write(bytes);
    file.seek(0);
    ValueReader reader(call.session, *call.code, file, false, std::numeric_limits<std::uint64_t>::max());
    reader.read({{image::BaseType::Record, image::TypeForm::Value, call.import->parameters[0].id}, 0, slot});
}

template <std::int64_t (*Count)(Session&)>
void fillCount(NativeCall& call) {
    std::string bytes;
    addBytes(bytes, Count(call.session), 8);
    fillRecord(call, bytes);
    call.result[0].number = 1;
}

/// Year, month, day of the week from Sunday on as 0, day, hour, minute, second and milliseconds, each in 16 bits.
template <std::function<basic::Date()> Surroundings::*Clock>
void fillTime(NativeCall& call) {
    constexpr double kMillisecondsOfDay = 86'400'000;
    const double days = (call.session.surroundings.*Clock)().days;
    const auto day = static_cast<std::int64_t>(std::floor(days));
    const auto rest = static_cast<std::int64_t>((days - static_cast<double>(day)) * kMillisecondsOfDay);
    const YearMonthDay parts = partsOf(day);
    std::string bytes;
    for (const std::int64_t part :
         {std::int64_t{parts.year}, std::int64_t{parts.month}, std::int64_t{weekdayOf(day)} - 1,
          std::int64_t{parts.day}, rest / 3'600'000, rest / 60'000 % 60, rest / 1000 % 60, rest % 1000})
        addBytes(bytes, part, 2);
    fillRecord(call, bytes);
}

/// Writes a text and a character 0 over the start of a buffer. False if there is no room for them.
bool fillBuffer(Session& session, TextBlock*& buffer, std::int32_t size, std::u16string_view text) {
    std::u16string units(unitsOf(buffer));
    const std::size_t needed = text.size() + 1;
    if (size < 0 || needed > static_cast<std::size_t>(size) || needed > units.size()) return false;
    units.replace(0, needed, std::u16string(text) + u'\0');
    release(session.heap, std::exchange(buffer, made(session, units)));
    return true;
}

std::u16string variable(Session& session, std::string_view name) {
    return toUtf16(session.surroundings.variable(name));
}

/// The length of the text, or the room that it needs.
std::int32_t temporaryPath(Session& session, std::int32_t size, TextBlock*& buffer) {
    const std::u16string path = variable(session, "TEMP");
    const auto length = static_cast<std::int32_t>(path.size());
    return fillBuffer(session, buffer, size, path) ? length : length + 1;
}

/// The size becomes that of the text, which counts the character 0 if `countsEnd`.
std::int32_t fillName(Session& session, TextBlock*& buffer, std::int32_t& size, std::u16string_view name,
                      bool countsEnd, SystemError error) {
    const auto length = static_cast<std::int32_t>(name.size());
    const bool fits = fillBuffer(session, buffer, size, name);
    session.err.lastDllError = fits ? 0 : error;
    size = fits && !countsEnd ? length : length + 1;
    return fits ? 1 : 0;
}

std::int32_t computerName(Session& session, TextBlock*& buffer, std::int32_t& size) {
    return fillName(session, buffer, size, variable(session, "COMPUTERNAME"), false, BufferOverflow);
}

std::int32_t userName(Session& session, TextBlock*& buffer, std::int32_t& size) {
    return fillName(session, buffer, size, variable(session, "USERNAME"), true, InsufficientBuffer);
}

std::int32_t messageBeep(Session&, std::int32_t) { return 1; }

Native recordFunction(image::SlotType result, void (*call)(NativeCall&)) {
    return {result, {{image::BaseType::Record, image::TypeForm::Reference, kAnyId}}, call};
}

} // namespace

void addDeclared(Natives& natives) {
    constexpr image::SlotType kNumber{image::BaseType::Long};
    natives.add("Declared.Sleep", native<&sleep>());
    natives.add("Declared.GetTickCount", native<&tickCount>());
    natives.add("Declared.GetTickCount64", native<&tickCount64>());
    natives.add("Declared.timeGetTime", native<&tickCount>());
    natives.add("Declared.QueryPerformanceCounter", native<&storeCount<&countsNow>>());
    natives.addForm("Declared.QueryPerformanceCounter", recordFunction(kNumber, &fillCount<&countsNow>));
    natives.add("Declared.QueryPerformanceFrequency", native<&storeCount<&countsOfSecond>>());
    natives.addForm("Declared.QueryPerformanceFrequency", recordFunction(kNumber, &fillCount<&countsOfSecond>));
    natives.add("Declared.GetSystemTime", recordFunction({}, &fillTime<&Surroundings::universalNow>));
    natives.add("Declared.GetLocalTime", recordFunction({}, &fillTime<&Surroundings::now>));
    natives.add("Declared.GetTempPath", native<&temporaryPath>());
    natives.add("Declared.GetComputerName", native<&computerName>());
    natives.add("Declared.GetUserName", native<&userName>());
    natives.add("Declared.MessageBeep", native<&messageBeep>());
}

} // namespace tamarik
