#include "Host/files/native_path.h"
#include "Host/files/project_code_page.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include "Host/model/project_references.h"
#include <fmt/format.h>

namespace host {

void Project::load() {
    const auto content = readFile(path_);
    readText(content.bytes);
    if (!file_->looksLikeProject())
        throw hostError(kInvalidFileFormat, fmt::format("{}: is not a Visual Basic project file", path_));
    stamp_ = content.stamp;
    loadMembers();
}

void Project::loadText(const std::string& text, const std::optional<FileStamp>& asRead) {
    readText(text);
    stamp_ = asRead;
    loadMembers();
    dirty_.set(true);
}

void Project::readText(const std::string& text) {
    codePage_ = codePageOfProject(text, folder(), host()->options().codePage);
    file_ = std::make_unique<ProjectFile>(text, basic::codePageOfFile(text, codePage_.page));
}

void Project::codePage(std::optional<int> page) {
    const auto host = this->host();
    if (page && !basic::CodePage::isKnown(*page)) throw hostError(basic::kInvalidProcedureCall);
    if (page)
        file_->setSetting(kCodePageKey, std::to_string(*page));
    else
        file_->removeSetting(kCodePageKey);
    changed();
    const auto bytes = file_->bytes();
    codePage_ = codePageOfProject(bytes, folder(), host->options().codePage);
    file_->codePage(basic::codePageOfFile(bytes, codePage_.page));
    const auto components = components_->list(); // handlers may remove components
    for (const auto& component : components) (void)basic::attempt([&] { component->decodeAgain(); });
}

void Project::loadMembers() {
    const auto members = file_->members();
    references_->load(members);
    PathLookup lookup(codePage_.page);
    std::unordered_set<std::string> seen;
    for (const auto& member : members)
        if (isComponentKind(member.content.kind)) loadMember(member, lookup, seen);
}

void Project::loadMember(const ProjectFile::Member& member, PathLookup& lookup, std::unordered_set<std::string>& seen) {
    const auto& [kind, listedName, value, line] = member.content;
    const auto path = lookup.find(folder(), value);
    if (!seen.insert(path).second) return problem(path_, line, fmt::format("{}: is listed twice", value));
    try {
        const auto component = readComponent(kind, path, listedName);
        if (!components_->insert(component))
            return problem(path_, line,
                           fmt::format("{}: another component is also named '{}'", value, component->Name()));
        component->member(member.place);
        if (!component->source().isWhole()) problem(path, 0, fmt::format("{}: ends inside its designer part", path));
    } catch (const basic::RuntimeError& error) { problem(path_, line, error.Description); }
}

std::shared_ptr<Component> Project::readComponent(MemberKind kind, const std::string& path,
                                                  const std::string& listedName) {
    auto loaded = readSource(kind, path, codePage_.page);
    if (loaded.name.empty()) loaded.name = listedName.empty() ? baseNameOf(path) : listedName;
    const auto stamp = loaded.stamp;
    return std::make_shared<Component>(shared_from_this(), std::move(loaded), ComponentOrigin{path, stamp, {}});
}

void Project::problem(const std::string& file, std::size_t line, std::string text) {
    problems_.push_back({file, line, std::move(text)});
}

} // namespace host
