#include "Apps/fernwick/verbs/project_info.h"
#include "Host/model/project.h"
#include <fmt/format.h>
#include <numeric>

namespace cli {

namespace {

const char* kindName(vbide::vbext_ComponentType type) {
    switch (type) {
    case vbide::vbext_ct_StdModule: return "module";
    case vbide::vbext_ct_ClassModule: return "class";
    case vbide::vbext_ct_VBForm:
    case vbide::vbext_ct_MSForm: return "form";
    case vbide::vbext_ct_VBMDIForm: return "MDI form";
    case vbide::vbext_ct_PropPage: return "property page";
    case vbide::vbext_ct_UserControl: return "user control";
    case vbide::vbext_ct_DocObject: return "user document";
    case vbide::vbext_ct_ActiveXDesigner: return "designer";
    case vbide::vbext_ct_ResFile: return "resource file";
    case vbide::vbext_ct_RelatedDocument: break;
    }
    return "related document";
}

/// Returns the value, or an empty one if it cannot be read.
template <class Read>
auto valueOrEmpty(Read&& read) {
    decltype(read()) value{};
    (void)basic::attempt([&] { value = read(); });
    return value;
}

std::string startupOf(vbide::VBProject& project) {
    const auto startup = valueOrEmpty([&] { return project.VBComponents()->StartUpObject(); });
    if (startup.isSubMain) return "Sub Main";
    return startup.component ? startup.component->Name() : std::string();
}

std::vector<ComponentInfo> componentsOf(vbide::VBProject& project) {
    std::vector<ComponentInfo> list;
    for (const auto& component : project.VBComponents()->items())
        list.push_back({component->Name(), kindName(component->Type()), component->FileNames(1),
                        valueOrEmpty([&] { return component->CodeModule()->CountOfLines(); })});
    return list;
}

std::vector<ReferenceInfo> referencesOf(vbide::VBProject& project) {
    std::vector<ReferenceInfo> list;
    for (const auto& reference : project.References()->items())
        list.push_back({reference->Name(), reference->Guid(),
                        fmt::format("{}.{}", reference->Major(), reference->Minor()), reference->FullPath(),
                        reference->BuiltIn(), reference->IsBroken()});
    return list;
}

template <class Read>
std::vector<std::string> stepsOf(const fernwick::clsQLProject& project, Read read) {
    fernwick::Array<std::string> list;
    (project.*read)(list);
    return {list.begin(), list.end()};
}

} // namespace

ProjectInfo infoOf(Session& session) {
    const auto project = session.project();
    const auto settings = session.settings();
    ProjectInfo info;
    info.name = project->Name();
    info.file = session.path();
    if (const auto own = basic::cast<host::Project>(project)) {
        info.type = own->file().setting("Type").value_or("");
        info.title = own->file().setting("Title").value_or("");
    }
    info.version = valueOrEmpty([&] { return settings->version(); });
    info.startup = startupOf(*project);
    info.isFernwick = settings->IsQuinloftProject();
    if (info.isFernwick) {
        info.projectVersion = settings->ProjectVersion();
        info.device = settings->TargetDevice();
    }
    info.components = componentsOf(*project);
    info.references = referencesOf(*project);
    info.preCompileSteps = stepsOf(*settings, &fernwick::clsQLProject::GetPreCompileSteps);
    info.postCompileSteps = stepsOf(*settings, &fernwick::clsQLProject::GetPostCompileSteps);
    info.problems = session.host().loadProblems();
    return info;
}

std::size_t codeLinesOf(const ProjectInfo& info) {
    return std::accumulate(info.components.begin(), info.components.end(), std::size_t{0},
                           [](std::size_t sum, const ComponentInfo& one) { return sum + std::size_t(one.lines); });
}

std::size_t brokenReferencesOf(const ProjectInfo& info) {
    return std::size_t(std::count_if(info.references.begin(), info.references.end(),
                                     [](const ReferenceInfo& one) { return one.broken; }));
}

Json jsonOfInfo(const ProjectInfo& info) {
    Json json{{"name", info.name},
              {"file", info.file},
              {"type", info.type},
              {"title", info.title},
              {"version", info.version},
              {"startup", info.startup},
              {"isFernwick", info.isFernwick},
              {"projectVersion", info.projectVersion},
              {"device", info.device},
              {"components", Json::array()},
              {"references", Json::array()},
              {"preCompileSteps", info.preCompileSteps},
              {"postCompileSteps", info.postCompileSteps},
              {"problems", Json::array()}};
    for (const auto& one : info.components)
        json["components"].push_back(
            {{"name", one.name}, {"kind", one.kind}, {"file", one.file}, {"codeLines", one.lines}});
    for (const auto& one : info.references)
        json["references"].push_back({{"name", one.name},
                                      {"guid", one.guid},
                                      {"version", one.version},
                                      {"path", one.path},
                                      {"builtIn", one.builtIn},
                                      {"broken", one.broken}});
    for (const auto& one : info.problems) {
        json["problems"].push_back({{"file", one.file}, {"text", one.text}});
        if (one.line > 0) json["problems"].back()["line"] = one.line;
    }
    json["counts"] = {{"components", info.components.size()},
                      {"codeLines", codeLinesOf(info)},
                      {"references", info.references.size()},
                      {"brokenReferences", brokenReferencesOf(info)}};
    return json;
}

} // namespace cli
