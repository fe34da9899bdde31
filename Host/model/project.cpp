#include "Host/model/project.h"
#include "Basic/case_folding.h"
#include "Host/files/native_path.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project_references.h"

namespace host {
Project::Project(const std::shared_ptr<Host>& host, std::string path)
    : host_(host),
      path_(std::move(path)),
      file_(std::make_unique<ProjectFile>("", basic::CodePage::windows1252())),
      components_(std::make_shared<Components>(*this)),
      references_(std::make_shared<ProjectReferences>(*this)) {}

Project::~Project() { close(); }

std::shared_ptr<Host> Project::host() const {
    auto host = host_.lock();
    if (!host) throwRemoved();
    return host;
}

void Project::close() {
    components_->close();
    references_->close();
    host_.reset();
}

std::string Project::folder() const { return folderOf(path_); }

std::string Project::Name() const {
    host();
    const auto name = file_->setting("Name").value_or("");
    return name.empty() ? baseNameOf(path_) : name;
}

void Project::Name(const std::string& name) {
    const auto host = this->host();
    const auto oldName = Name();
    if (name == oldName) return;
    if (name.empty()) throw hostError(basic::kInvalidPropertyValue);
    for (const auto& other : host->VBProjects()->items())
        if (other != vbide::Ref<vbide::VBProject>(shared_from_this()) && basic::equalNoCase(other->Name(), name))
            throwNameTaken(name);
    file_->setSetting("Name", name);
    edited();
    host->raise(host->projectsEvents().ItemRenamed, shared_from_this(), oldName);
}

std::string Project::FileName() const {
    host();
    return path_;
}

bool Project::IsDirty() const {
    host();
    return dirty_.isSet(stamp_, [this] { return file_->bytes(); });
}

void Project::IsDirty(bool dirty) {
    host();
    dirty_.set(dirty);
}

bool Project::Saved() const { return !IsDirty(); }

void Project::changed() {
    dirty_.set(true);
    raiseEdited();
}

void Project::edited() {
    dirty_.edited();
    raiseEdited();
}

void Project::raiseEdited() {
    const auto host = this->host();
    host->raise(host->projectEdited, shared_from_this());
}

std::string Project::ReadProperty(const std::string& section, const std::string& key) const {
    host();
    return file_->readProperty(section, key);
}

void Project::WriteProperty(const std::string& section, const std::string& key, const std::string& value) {
    host();
    if (file_->writeProperty(section, key, value)) edited();
}

void Project::AddToolboxProgID(const std::string& progId) {
    host();
    references_->addControlLibrary(progId);
}

vbide::Ref<vbide::References> Project::References() {
    host();
    return references_;
}

vbide::Ref<vbide::VBComponents> Project::VBComponents() {
    host();
    return components_;
}

vbide::Ref<vbide::VBE> Project::VBE() const { return host(); }

void Project::followRename(const std::string& oldName, const std::string& newName) {
    for (const auto* key : {"Startup", "IconForm"})
        if (basic::equalNoCase(file_->setting(key).value_or(""), oldName)) file_->setSetting(key, newName);
}

void Project::becomeNew() {
    path_.clear();
    stamp_.reset();
    dirty_.set(true);
    for (const auto& component : components_->list()) {
        dropMember(*component);
        component->becomeNew();
    }
}

} // namespace host
