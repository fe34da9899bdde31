#include "Apps/fernwick/verbs/round_trip.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/run/interruption.h"
#include "Basic/runtime_error.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/project_file.h"
#include "Host/files/property_value.h"
#include "Host/files/resource_file.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/source_file.h"
#include <algorithm>
#include <filesystem>
#include <unordered_set>

namespace cli {

namespace {

FileVerdict compared(const std::string& file, const std::string& before, const std::string& after) {
    const auto differs = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    if (differs.first == before.end() && differs.second == after.end()) return {file, FileVerdict::Kind::Same, 0, {}};
    return {file, FileVerdict::Kind::Changes, std::size_t(differs.first - before.begin()), {}};
}

FileVerdict unread(const std::string& file, const basic::ErrObject& error) {
    const bool missing = error.Number == basic::kFileNotFound || error.Number == basic::kPathNotFound;
    return {file, missing ? FileVerdict::Kind::Missing : FileVerdict::Kind::Unreadable, 0, error.Description};
}

class ProjectVerifier {
public:
    ProjectVerifier(const std::string& path, const std::optional<basic::CodePage>& given)
        : path_(path), folder_(apps::folderOf(path)), given_(given) {}

    std::vector<FileVerdict> run() {
        const auto content = host::readFile(path_);
        page_ = host::codePageOfProject(content.bytes, folder_, given_).page;
        lookup_ = host::PathLookup(page_);
        host::ProjectFile project{content.bytes, basic::codePageOfFile(content.bytes, page_)};
        if (!project.looksLikeProject())
            throw basic::RuntimeError(basic::kInvalidFileFormat, path_ + ": is not a Visual Basic project file");
        verdicts_.push_back(compared(path_, content.bytes, project.bytes()));
        for (const auto& member : project.members())
            if (host::isComponentKind(member.content.kind)) source(lookup_.find(folder_, member.content.value));
        return std::move(verdicts_);
    }

private:
    void source(const std::string& file) {
        checkInterrupt();
        if (!seen_.insert(file).second) return;
        host::FileContent content;
        const auto err = basic::attempt([&] { content = host::readFile(file); });
        if (err.Number != 0) return verdicts_.push_back(unread(file, err));
        host::SourceFile source{content.bytes, basic::codePageOfFile(content.bytes, page_)};
        const auto& form = source.form();
        source.code();
        verdicts_.push_back(compared(file, content.bytes, source.bytes()));
        resourcesOf(file, *form);
    }

    void resourcesOf(const std::string& file, const host::FormFile& form) {
        if (!form.root()) return;
        const auto folder = apps::folderOf(file);
        resource(lookup_.find(folder, std::filesystem::path(host::companionOf(file)).filename().string()), false);
        auto line = form.rootLine();
        form.root()->eachPropertyWithin(
            [&](const host::FormBlock&, std::string_view, std::string_view literal, std::size_t) {
                const auto value = host::parsePropertyValue(literal);
                if (value.kind == host::PropertyValue::Kind::Resource)
                    resource(lookup_.find(folder, value.resource.file), true);
            },
            line);
    }

    void resource(const std::string& file, bool isNamed) {
        if (seen_.count(file) > 0) return;
        host::FileContent content;
        const auto err = basic::attempt([&] { content = host::readFile(file); });
        if (err.Number == basic::kFileNotFound && !isNamed) return;
        seen_.insert(file);
        if (err.Number != 0) return verdicts_.push_back(unread(file, err));
        verdicts_.push_back(compared(file, content.bytes, host::ResourceFile{content.bytes}.bytes()));
    }

    std::string path_, folder_;
    const std::optional<basic::CodePage>& given_;
    basic::CodePage page_ = basic::CodePage::windows1252();
    host::PathLookup lookup_;
    std::unordered_set<std::string> seen_;
    std::vector<FileVerdict> verdicts_;
};

} // namespace

std::vector<FileVerdict> verifyProject(const std::string& path, const std::optional<basic::CodePage>& given) {
    return ProjectVerifier{host::absolutePath(path), given}.run();
}

FileVerdict verifyGroup(const std::string& path, const std::optional<basic::CodePage>& given) {
    const auto content = host::readFile(path);
    const auto page = host::codePageOfProject(content.bytes, apps::folderOf(path), given).page;
    const host::GroupFile group{content.bytes, basic::codePageOfFile(content.bytes, page)};
    return compared(path, content.bytes, group.bytes());
}

} // namespace cli
