// The patterns of reading and writing one setting.
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/property_sections.h"
#include "Basic/conversions.h"

namespace fernwick {

std::string clsQLProject::readText(const char* key) const {
    std::string value;
    (void)basic::attempt([&] { value = project_->ReadProperty(kGlobalSection, key); });
    return value;
}

std::int32_t clsQLProject::readLong(const char* key) const {
    std::int32_t value = 0;
    (void)basic::attempt([&] { value = basic::CLng(project_->ReadProperty(kGlobalSection, key)); });
    return value;
}

float clsQLProject::readSingle(const char* key) const {
    float value = 0;
    (void)basic::attempt([&] { value = basic::CSng(project_->ReadProperty(kGlobalSection, key)); });
    return value;
}

bool clsQLProject::readBoolean(const char* key) const {
    bool value = false;
    (void)basic::attempt([&] { value = basic::CBool(project_->ReadProperty(kGlobalSection, key)); });
    return value;
}

void clsQLProject::write(const char* procedure, const char* key, const std::string& value) {
    Procedure here{services_.errors, std::string("clsQLProject.") + procedure};
    here([&] { project_->WriteProperty(kGlobalSection, key, value); });
}

template <class T, class Convert>
T clsQLProject::readOrReport(const char* property, T absent, Convert convert) const {
    try {
        return convert(project_->ReadProperty(kGlobalSection, property));
    } catch (const basic::RuntimeError& error) {
        reportUnlessAbsent(std::string("clsQLProject.Get_") + property, error);
        return absent;
    }
}

void clsQLProject::reportUnlessAbsent(const std::string& location, const basic::RuntimeError& error) const {
    if (error.Number != basic::kInvalidProcedureCall) services_.errors.Error_ShowAddInError(location, error);
}

std::string clsQLProject::LastCompileVersion() const {
    return readOrReport("LastCompileVersion", std::string{}, [](std::string text) { return text; });
}

bool clsQLProject::ScanReferences() const {
    return readOrReport("ScanReferences", true, [](const std::string& text) { return basic::CBool(text); });
}

bool clsQLProject::OpenedFromQLTemplate() const {
    return readOrReport("OpenedFromQLTemplate", false, [](const std::string& text) { return basic::CBool(text); });
}

} // namespace fernwick
