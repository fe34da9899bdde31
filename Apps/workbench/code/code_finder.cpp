#include "Apps/workbench/code/code_finder.h"
#include "Add-in/platform/host.h"
#include "Apps/workbench/code/code_text.h"
#include "Basic/runtime_error.h"
#include <QStringList>
#include <algorithm>
#include <limits>

namespace workbench {

namespace {

constexpr LineRange kAllLines{0, std::numeric_limits<int>::max()};

std::vector<CodePlace> hitsOf(const CodePattern& pattern, const Stretch& stretch) {
    const auto text = codeOf(*stretch.component->CodeModule());
    if (!pattern.mayOccurIn(text)) return {};
    return workbench::hitsOf(pattern, stretch, text.split('\n'));
}

void addProject(std::vector<Stretch>& all, const vbide::VBComponents& components) {
    for (const auto& component : components.items()) all.push_back({component, kAllLines});
}

bool isBefore(const CodePlace& a, int line, int column) {
    return std::pair(a.line, a.column) < std::pair(line, column);
}

/// Returns the first hit after the end of `from`, or the last one before it.
std::optional<CodePlace> beyond(const std::vector<CodePlace>& places, const CodePlace& from, bool backwards) {
    std::optional<CodePlace> before;
    for (const auto& place : places) {
        if (backwards && isBefore(place, from.line, from.column)) before = place;
        if (!backwards && !isBefore(place, from.line, from.column + from.length)) return place;
    }
    return before;
}

} // namespace

std::vector<Stretch> stretchesOf(FindScope scope, const CodePlace& from) {
    if (scope == FindScope::Module) return {{from.component, kAllLines}};
    if (scope == FindScope::Procedure)
        return {{from.component, procedureAround(*from.component->CodeModule(), from.line)}};
    std::vector<Stretch> all;
    if (scope == FindScope::Project) {
        addProject(all, *from.component->Collection());
        return all;
    }
    for (const auto& project : from.component->VBE()->VBProjects()->items()) addProject(all, *project->VBComponents());
    return all;
}

std::vector<CodePlace> hitsOf(const CodePattern& pattern, const Stretch& stretch, const QStringList& text) {
    std::vector<CodePlace> places;
    for (int line = stretch.lines.first; line <= stretch.lines.last && line < text.size(); ++line) {
        if (!pattern.mayOccurIn(text[line])) continue;
        for (const auto& hit : pattern.hitsIn(text[line]))
            places.push_back({stretch.component, line, hit.column, hit.length});
    }
    return places;
}

std::optional<Found> findNext(const CodePattern& pattern, FindScope scope, const CodePlace& from, bool backwards) {
    const auto stretches = stretchesOf(scope, from);
    const int count = int(stretches.size());
    const auto own = std::find_if(stretches.begin(), stretches.end(),
                                  [&](const auto& one) { return one.component == from.component; });
    const int start = int(own - stretches.begin());
    if (const auto place = beyond(hitsOf(pattern, *own), from, backwards)) return Found{*place, false};
    // the other modules in order, then the rest of the first one
    for (int step = 1; step <= count; ++step) {
        const int at = start + (backwards ? -step : step);
        const auto places = hitsOf(pattern, stretches[std::size_t((at + count) % count)]);
        if (!places.empty()) return Found{backwards ? places.back() : places.front(), at < 0 || at >= count};
    }
    return {};
}

std::vector<ModuleHits> findAll(const CodePattern& pattern, FindScope scope, const CodePlace& from) {
    std::vector<ModuleHits> all;
    for (const auto& stretch : stretchesOf(scope, from))
        if (auto places = hitsOf(pattern, stretch); !places.empty())
            all.push_back({stretch.component, std::move(places)});
    return all;
}

LineRange procedureAround(vbide::CodeModule& module, int line) {
    using namespace vbide;
    for (const auto& member : module.Members())
        for (const auto kind : {vbext_pk_Proc, vbext_pk_Get, vbext_pk_Let, vbext_pk_Set}) {
            int first = 0, count = 0;
            (void)basic::attempt([&] { // the member may not be a procedure of this kind
                first = module.ProcStartLine(member.Name, kind) - 1;
                count = module.ProcCountLines(member.Name, kind);
            });
            if (count > 0 && first <= line && line < first + count) return {first, first + count - 1};
        }
    return {0, std::max(0, module.CountOfDeclarationLines() - 1)};
}

} // namespace workbench
