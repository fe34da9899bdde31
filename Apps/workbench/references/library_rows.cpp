#include "Apps/workbench/references/library_rows.h"
#include "Host/files/library_reference.h"
#include "Host/model/component.h"
#include "Host/model/host.h"
#include "Host/model/project_references.h"
#include "Host/model/references/language_libraries.h"
#include <algorithm>

namespace workbench {

namespace {

using Kind = host::LibraryReference::Kind;

bool isControls(const vbide::Ref<vbide::Reference>& reference) {
    const auto own = basic::cast<host::ProjectReference>(reference);
    return own->line().kind == Kind::Control || own->line().kind == Kind::ControlProject;
}

LibraryRow rowOf(const vbide::Ref<vbide::Reference>& reference) {
    LibraryRow row;
    row.text = reference->Description().empty() ? reference->Name() : reference->Description();
    row.guid = reference->Guid();
    row.path = reference->FullPath();
    row.reference = reference;
    row.isTicked = true;
    row.isFixed = reference->BuiltIn();
    row.isMissing = reference->IsBroken();
    return row;
}

} // namespace

std::vector<LibraryRow> libraryRows(host::Project& project, LibraryKind kind) {
    const bool components = kind == LibraryKind::Components;
    std::vector<LibraryRow> rows;
    for (const auto& reference : project.references().items())
        if (isControls(reference) == components) rows.push_back(rowOf(reference));
    const auto& libraries = project.host()->libraries();
    const auto registered = components ? libraries.ofControls() : libraries.all();
    for (const auto& library : registered) {
        const bool isListed =
            std::any_of(rows.begin(), rows.end(), [&](const auto& row) { return row.guid == library.guid; });
        if (isListed || host::isAlwaysKnown(library.guid)) continue;
        LibraryRow row;
        row.text = library.description;
        row.guid = library.guid;
        row.path = library.path;
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string userOf(host::Project& project, const LibraryRow& row) {
    for (const auto& component : project.VBComponents()->items()) {
        const auto own = basic::cast<host::Component>(component);
        const auto form = own ? own->source().form() : nullptr;
        if (!form || row.guid.empty()) continue;
        for (const auto& line : form->objects())
            if (host::normalGuid(line.library.substr(0, line.library.find('#'))) == row.guid) return own->Name();
    }
    return {};
}

void applyRows(host::Project& project, LibraryKind kind, const std::vector<LibraryRow>& rows) {
    auto& references = project.references();
    for (const auto& row : rows)
        if (row.reference && !row.isTicked) references.Remove(row.reference);
    std::vector<vbide::Ref<vbide::Reference>> order;
    for (const auto& row : rows) {
        if (!row.isTicked) continue;
        if (row.reference)
            order.push_back(row.reference);
        else if (kind == LibraryKind::Components)
            row.guid.empty() ? references.addControlFile(row.path) : references.addControls(row.guid);
        else
            order.push_back(row.guid.empty() ? references.AddFromFile(row.path)
                                             : references.AddFromGuid(row.guid, 0, 0));
    }
    if (kind == LibraryKind::References) references.arrange(order);
}

} // namespace workbench
