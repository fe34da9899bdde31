#include "Components/QLToolkit/insight/built_in_libraries.h"
#include "Components/QLToolkit/names/declare_program.h"

namespace qltoolkit {

namespace {

std::string_view plainName(std::string_view name) {
    return name.starts_with('[') ? name.substr(1, name.size() - 2) : name;
}

} // namespace

void addMembers(DescribedMembers& members, const Program& program,
                const std::vector<const language::Library*>& libraries, std::size_t first) {
    for (std::size_t i = 0; i < libraries.size(); ++i) {
        for (const auto& group : libraries[i]->groups) {
            const Entity* type =
                program.libraries[first + i]->types.find(program.symbols.intern(plainName(group.name)));
            if (!type || !type->inner) continue;
            for (const auto& member : group.members) {
                const Symbol name = program.symbols.intern(plainName(member.name));
                const auto& map = member.kind == language::MemberKind::Event ? type->inner->events : type->inner->names;
                if (const Entity* found = map.find(name)) members.emplace(found, &member);
            }
        }
    }
}

BuiltInLibraries::BuiltInLibraries() {
    addLibraries(program, ProgramOptions{});
    addMembers(members, program, librariesOf({}));
}

BuiltInLibraries& BuiltInLibraries::shared() {
    static BuiltInLibraries libraries;
    return libraries;
}

} // namespace qltoolkit
