#include "Add-in/project/stored/application_info.h"
#include "Basic/arithmetic.h"
#include "Basic/conversions.h"
#include "Basic/ref.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

constexpr std::string_view kMajor = "MajorVer=", kMinor = "MinorVer=", kRevision = "RevisionVer=",
                           kAutoIncrement = "AutoIncrementVer=";

/// Reads the number after a key, if the line begins with the key.
bool takeNumber(const std::string& line, std::string_view key, std::int32_t& number) {
    if (!line.starts_with(key)) return false;
    number = basic::CLng(line.substr(key.size()));
    return true;
}

/// Each end is tested by itself.
void stripQuotes(std::string& text) {
    if (!text.empty() && text.front() == '"') text.erase(0, 1);
    if (!text.empty() && text.back() == '"') text.pop_back();
}

std::string* fieldOf(AppInfo& info, std::string_view key) {
    static constexpr struct {
        std::string_view key;
        std::string AppInfo::*field;
    } kFields[] = {
        {"VersionProductName", &AppInfo::ProductName},
        {"MajorVer", &AppInfo::Major},
        {"MinorVer", &AppInfo::Minor},
        {"RevisionVer", &AppInfo::Revision},
        {"Title", &AppInfo::Title},
        {"VersionComments", &AppInfo::Comments},
        {"VersionCompanyName", &AppInfo::CompanyName},
        {"Name", &AppInfo::ExeName},
        {"VersionLegalCopyright", &AppInfo::LegalCopyright},
        {"VersionLegalTrademarks", &AppInfo::LegalTrademarks},
        {"VersionFileDescription", &AppInfo::FileDescription},
    };
    for (const auto& row : kFields)
        if (row.key == key) return &(info.*row.field);
    return nullptr;
}

} // namespace

std::string ApplicationInfo::version() const {
    std::int32_t major = 0, minor = 0, revision = 0;
    const auto file = files_.OpenTextFile(path_);
    while (!file->AtEndOfStream()) {
        const auto line = file->ReadLine();
        takeNumber(line, kMajor, major) || takeNumber(line, kMinor, minor) || takeNumber(line, kRevision, revision);
    }
    file->Close();
    return basic::CStr(major) + "." + basic::CStr(minor) + "." + basic::CStr(revision);
}

AppInfo ApplicationInfo::read() const {
    AppInfo info;
    const auto file = files_.OpenTextFile(path_);
    while (!file->AtEndOfStream()) {
        const auto line = file->ReadLine();
        const auto divider = line.find('=');
        if (divider == std::string::npos) continue;
        auto* field = fieldOf(info, std::string_view(line).substr(0, divider));
        if (!field) continue;
        *field = basic::Trim(std::string_view(line).substr(divider + 1));
        stripQuotes(*field);
    }
    file->Close();
    return info;
}

bool ApplicationInfo::incrementsRevision() const {
    std::int32_t number = 0;
    const auto file = files_.OpenTextFile(path_);
    while (!file->AtEndOfStream() && !takeNumber(file->ReadLine(), kAutoIncrement, number)) {}
    file->Close();
    return number > 0;
}

void ApplicationInfo::incrementRevision() const {
    const auto copyPath = path_ + ".temp";
    basic::Ref<TextStream> file, copy;
    basic::Suppressed quietly;
    quietly([&] { file = files_.OpenTextFile(path_); });
    quietly([&] { copy = files_.CreateTextFile(copyPath, true); });
    if (!file || !copy) return;

    while (!file->AtEndOfStream()) {
        auto line = file->ReadLine();
        std::int32_t revision = 0;
        if (takeNumber(line, kRevision, revision)) line = std::string(kRevision) + basic::CStr(basic::Add(revision, 1));
        copy->WriteLine(line);
    }
    file->Close();
    copy->Close();
    files_.CopyFile(copyPath, path_, true);
    files_.DeleteFile(copyPath, true);
}

} // namespace fernwick
