#include "Apps/workbench/search/reference_search.h"
#include "Apps/workbench/assist/shown_names.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/search/search_texts.h"

namespace workbench {

namespace {

struct Answer {
    bool isKnown = false;
    std::vector<ShownName> names;
};

/// One row for each line.
std::vector<Match> matchesOf(const Answer& answer, const std::vector<ProjectInsight::Component>& components) {
    std::vector<Match> matches;
    for (const auto& name : answer.names) {
        const auto& component = components[name.source];
        const bool isSame =
            !matches.empty() && matches.back().place.component == component && matches.back().place.line == name.line;
        if (!isSame) matches.push_back({{component, name.line, name.column, name.length}, name.text});
        matches.back().isDeclaration |= name.isDeclaration;
    }
    return matches;
}

} // namespace

bool ReferenceSearch::start(const CodePlace& place) {
    const auto program = insight_.programOf(projectOf(place.component));
    const auto at = sourcePlace(program, place);
    if (!at) return false;
    const auto name = qt(qltoolkit::nameAround(*program.input.sources[at->source], at->pos));
    results_.begin({name, search_texts::kReading, search_texts::kReferencesStopped}, [this] { task_.stop(); });
    const auto answer = std::make_shared<Answer>();
    task_.progress = [this](int done, int all) { results_.found({}, done, all); };
    task_.start(
        [answer, input = program.input, at = *at](const auto& following) {
            const qltoolkit::References found{input, at.source, at.pos, following};
            *answer = {found.meaning() != nullptr, shownNames(input, found.all())};
        },
        [this, answer, components = program.components] {
            results_.found(matchesOf(*answer, components), 1, 1);
            results_.ended(answer->isKnown ? search_texts::kReferences : search_texts::kNotKnown);
        });
    return true;
}

} // namespace workbench
