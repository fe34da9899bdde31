#include "Apps/workbench/code/project_names.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/editing/block_line.h"
#include "Apps/workbench/editing/rest.h"
#include "Basic/runtime_error.h"
#include <algorithm>

namespace workbench {

namespace {

template <class Map>
void forget(Map& map, const ProjectNames::Component& component) {
    std::erase_if(map,
                  [&](const auto& entry) { return entry.first.expired() || entry.first.lock() == component.shared(); });
}

/// In lines. Reading fewer takes about as long as painting the window.
constexpr int kLongModule = 1000;
/// In lines; a longer procedure is read in part.
constexpr int kLongProcedure = 1000;

/// The parameters and local names of the procedure around a line (from 0), read from its lines.
Spellings procedureNames(vbide::CodeModule& module, int line) {
    const auto at = [&module](int index) { return qt(module.Lines(index + 1, 1)); };
    const int count = module.CountOfLines(), most = std::min(count, line + kLongProcedure);
    int first = line;
    while (first > std::max(0, line - kLongProcedure) && !blockLine(at(first)).beginsProcedure()) --first;
    QStringList lines;
    for (int index = first; index < most; ++index) {
        lines << at(index);
        if (index > first && blockLine(lines.last()).endsProcedure()) break;
    }
    const auto names = declaredNames(lines);
    return names.procedures.empty() ? Spellings() : names.procedures.front().names;
}

Spellings readControls(vbide::VBComponent& component) {
    Spellings names;
    (void)basic::attempt([&] { // a form may have no description
        const auto designer = component.Designer();
        if (!designer) return;
        for (const auto& control : designer->VBControls()->items()) {
            const auto name = qt(fernwick::asText(control->Properties()->Item("Name")->Value()));
            names.insert(name.toLower(), name);
        }
    });
    return names;
}

} // namespace

ProjectNames::ProjectNames(host::Host& host) {
    rest_.setSingleShot(true);
    rest_.setInterval(kMillisecondsOfRest);
    QObject::connect(&rest_, &QTimer::timeout, &rest_, [this] { readAgain(); });
    watches_.push_back(host.panes.codeChanged.connect([this](const auto& component) { changed(component); }));
    watches_.push_back(
        host.panes.designChanged.connect([this](const auto& component) { forget(controls_, component); }));
}

const ProjectNames::Known& ProjectNames::known(const Component& component) {
    const auto found = names_.find(component.shared());
    if (found != names_.end()) return found->second;
    const auto lines = codeOf(*component->CodeModule()).split('\n');
    return names_.emplace(component.shared(), Known{declaredNames(lines), lines.size() > kLongModule}).first->second;
}

void ProjectNames::changed(const Component& component) {
    const auto found = names_.find(component.shared());
    if (found == names_.end()) return;
    if (!found->second.isLong) return forget(names_, component);
    found->second.isStale = true;
    rest_.start();
}

void ProjectNames::readAgain() {
    std::vector<Component> stale;
    for (const auto& [key, known] : names_)
        if (const auto component = key.lock(); known.isStale && component) stale.push_back(Component(component));
    for (const auto& component : stale) {
        forget(names_, component);
        (void)basic::attempt([&] { known(component); }); // it may be removed
    }
}

Spellings ProjectNames::localNames(const Component& component, int line) {
    const auto& own = known(component);
    if (own.isStale) return procedureNames(*component->CodeModule(), line);
    for (const auto& procedure : own.names.procedures)
        if (procedure.first <= line && line <= procedure.last) return procedure.names;
    return {};
}

const Spellings& ProjectNames::controlsOf(const Component& component) {
    const auto known = controls_.find(component.shared());
    if (known != controls_.end()) return known->second;
    return controls_.emplace(component.shared(), readControls(*component.shared())).first->second;
}

ProjectNames::Lookup ProjectNames::at(const Component& component, int line) {
    return [this, component, line](const QString& name, const QString& object) {
        return object.isEmpty() ? unqualified(component, line, name.toLower())
                                : member(component, name.toLower(), object);
    };
}

QString ProjectNames::unqualified(const Component& component, int line, const QString& lower) {
    if (const auto local = localNames(component, line); local.contains(lower)) return local.value(lower);
    const auto& own = of(component);
    if (own.own.contains(lower)) return own.own.value(lower);
    if (controlsOf(component).contains(lower)) return controlsOf(component).value(lower);
    for (const auto& other : component->Collection()->items()) {
        const auto name = qt(other->Name());
        if (name.toLower() == lower) return name;
        if (const auto& shared = of(other).shared; shared.contains(lower)) return shared.value(lower);
    }
    return {};
}

QString ProjectNames::member(const Component& component, const QString& lower, const QString& object) {
    const bool isOwn = object.compare("Me", Qt::CaseInsensitive) == 0;
    for (const auto& owner : component->Collection()->items()) {
        const bool isOwner = isOwn ? owner == component : object.compare(qt(owner->Name()), Qt::CaseInsensitive) == 0;
        if (!isOwner) continue;
        const auto name = of(owner).shared.value(lower);
        return name.isEmpty() ? controlsOf(owner).value(lower) : name;
    }
    return {};
}

} // namespace workbench
