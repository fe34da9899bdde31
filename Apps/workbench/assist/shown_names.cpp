#include "Apps/workbench/assist/shown_names.h"
#include "Apps/workbench/base/text.h"
#include "Host/model/component.h"
#include <algorithm>

namespace workbench {

std::vector<ShownName> shownNames(const qltoolkit::ProgramInput& input,
                                  const std::vector<qltoolkit::Reference>& names) {
    std::vector<ShownName> shown;
    for (const auto& name : names) {
        if (name.line == 0) continue;
        const auto& source = *input.sources[name.place.source];
        const auto line = source.lineOf(name.place.pos);
        const auto width = [&](qltoolkit::Pos begin, qltoolkit::Pos end) {
            return int(qt(source.decode(source.text(begin, end))).size());
        };
        const auto end = name.place.pos + name.place.length;
        shown.push_back({name.place.source, int(name.line) - 1, width(source.lineStart(line), name.place.pos),
                         width(name.place.pos, end), qt(source.decode(source.line(line))), name.isDeclaration});
    }
    return shown;
}

std::optional<qltoolkit::NamePlace> sourcePlace(const ProjectInsight::Program& program, const CodePlace& place) {
    const auto at = std::find(program.components.begin(), program.components.end(), place.component);
    const auto own = basic::cast<host::Component>(place.component);
    if (at == program.components.end() || !own) return {};
    const auto index = std::size_t(at - program.components.begin());
    const auto& source = *program.input.sources[index];
    const auto line =
        std::uint32_t(own->source().headLines() + own->source().code().physicalLine(std::size_t(place.line) + 1));
    if (line > source.lineCount()) return {};
    const auto before = qt(source.decode(source.line(line))).left(place.column);
    const auto bytes = source.codePage().tryEncode(text(before));
    return qltoolkit::NamePlace{index, source.lineStart(line) + qltoolkit::Pos(bytes ? bytes->size() : 0), 0};
}

} // namespace workbench
