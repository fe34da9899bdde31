#include "Apps/fernwick/checks/source_list.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Basic/runtime_error.h"
#include "Host/files/group_file.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include <algorithm>
#include <filesystem>
#include <unordered_set>

namespace cli {

namespace fs = std::filesystem;

namespace {

using apps::folderOf;
using apps::hasExtension;

class SourceCollector {
public:
    SourceCollector(const std::optional<basic::CodePage>& given, host::FileContents& contents, const CleanChecks* clean)
        : given_(given), contents_(contents), clean_(clean) {}

    void add(const std::string& path) {
        std::error_code ignored;
        noteProblem(path, true, [&] {
            if (fs::is_directory(path, ignored))
                addFolder(path);
            else if (hasExtension(path, ".vbp"))
                addProject(path);
            else if (hasExtension(path, ".vbg"))
                addGroup(path);
            else
                addSource({path, given_, true});
        });
    }

    SourceList take() { return std::move(list_); }

private:
    /// `isNamed`: the command line names the file.
    template <class Read>
    void noteProblem(const std::string& path, bool isNamed, Read&& read) {
        const auto err = basic::attempt(read);
        if (err.Number == 0) return;
        addProblem(withFile(path, err.Description), isNamed ? statusOfNamedFile(path, err.Number) : kProjectErrors);
    }

    void addProblem(std::string text, int status) {
        list_.problems.push_back(std::move(text));
        list_.status = std::max(list_.status, status);
    }

    /// The first mention of a file counts.
    void addSource(SourceToCheck source) {
        if (seen_.insert(host::absolutePath(source.path)).second) list_.sources.push_back(std::move(source));
    }

    /// The projects first, since their constants apply to their sources; then the sources of no project.
    void addFolder(const std::string& folder) {
        std::vector<std::string> projects, sources;
        std::error_code failed;
        fs::recursive_directory_iterator at(folder, fs::directory_options::skip_permission_denied, failed), end;
        for (; !failed && at != end; at.increment(failed)) {
            const auto path = at->path().string();
            std::error_code ignored;
            if (at->path().filename().string().starts_with('.')) at.disable_recursion_pending();
            if (!at->is_regular_file(ignored)) continue;
            if (hasExtension(path, ".vbp")) projects.push_back(path);
            if (isSource(path)) sources.push_back(path);
        }
        if (failed) throw basic::RuntimeError(basic::kPathFileAccessError, failed.message());
        std::sort(projects.begin(), projects.end());
        std::sort(sources.begin(), sources.end());
        for (const auto& path : projects) noteProblem(path, false, [&] { addProject(path); });
        for (const auto& path : sources) addSource({path, given_, false});
        if (projects.empty() && sources.empty()) addProblem(folder + ": contains no sources", kWrongUse);
    }

    static bool isSource(const std::string& path) {
        const auto is = [&](const char* extension) { return hasExtension(path, extension); };
        return is(".bas") || is(".cls") || is(".frm") || is(".ctl");
    }

    void addProject(const std::string& path) {
        if (auto clean = clean_ ? clean_->find(path) : std::nullopt) return addCleanProject(std::move(*clean));
        auto project = apps::readProject(path, given_, contents_);
        if (!seen_.insert(host::absolutePath(path)).second) return;
        for (const auto& source : project.sources) seen_.insert(host::absolutePath(source));
        list_.projects.push_back({std::move(project)});
    }

    void addCleanProject(CleanCheck clean) {
        if (!seen_.insert(host::absolutePath(clean.project.path)).second) return;
        seen_.insert(clean.absoluteSources.begin(), clean.absoluteSources.end());
        list_.projects.push_back({std::move(clean.project), std::move(clean.lines)});
    }

    void addGroup(const std::string& path) {
        const auto content = host::readFile(path);
        if (!host::GroupFile::looksLikeGroup(content.bytes))
            throw basic::RuntimeError(basic::kInvalidProcedureCall, "not a Visual Basic project group");
        const auto page = host::codePageOfProject(content.bytes, folderOf(path), given_).page;
        const host::GroupFile group{content.bytes, basic::codePageOfFile(content.bytes, page)};
        host::PathLookup lookup(page);
        for (const auto& entry : group.entries()) {
            const auto project = lookup.find(folderOf(path), entry.path);
            noteProblem(project, false, [&] { addProject(project); });
        }
    }

    const std::optional<basic::CodePage>& given_;
    host::FileContents& contents_;
    const CleanChecks* clean_;
    SourceList list_;
    std::unordered_set<std::string> seen_;
};

} // namespace

SourceList listSources(const std::vector<std::string>& operands, const std::optional<basic::CodePage>& given,
                       host::FileContents& contents, const CleanChecks* clean) {
    SourceCollector collector{given, contents, clean};
    for (const auto& operand : operands) collector.add(operand);
    return collector.take();
}

} // namespace cli
