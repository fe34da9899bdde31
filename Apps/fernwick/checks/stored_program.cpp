#include "Apps/fernwick/checks/stored_program.h"
#include "Apps/fernwick/checks/stored_text.h"
#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include <algorithm>

namespace cli {

namespace {

std::optional<StoredProgram> read(image::Reader in) {
    auto results = qltoolkit::resultsOf(readText(in));
    if (!results) return std::nullopt;
    StoredProgram program{std::move(*results), {}, {}};
    for (auto count = in.variable(); count > 0; --count) {
        auto& entry = program.entries.emplace_back();
        entry.module = readText(in);
        entry.name = readText(in);
        entry.number = in.variable();
    }
    program.code = image::decode(in.rest()).code;
    const auto& procedures = program.code.procedures;
    const bool canStart = std::all_of(program.entries.begin(), program.entries.end(), [&](const auto& entry) {
        return entry.number < procedures.size() && procedures[entry.number].parameters == 0;
    });
    if (!canStart) return std::nullopt;
    return program;
}

} // namespace

std::string bytesOf(const StoredProgram& program) {
    image::Writer out;
    writeText(out, qltoolkit::bytesOf(program.results));
    out.variable(static_cast<std::uint32_t>(program.entries.size()));
    for (const auto& entry : program.entries) {
        writeText(out, entry.module);
        writeText(out, entry.name);
        out.variable(entry.number);
    }
    image::Image whole;
    whole.code = program.code;
    out.raw(image::encode(whole));
    return out.bytes();
}

std::optional<StoredProgram> storedProgramOf(std::string_view bytes) {
    std::optional<StoredProgram> program;
    (void)basic::attempt([&] { program = read(image::Reader{bytes}); });
    return program;
}

} // namespace cli
