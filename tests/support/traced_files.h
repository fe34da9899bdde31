#pragma once
// Files in memory, with "/" as separator. Each read counts as a call and may fail.
#include "Add-in/platform/files.h"
#include "Basic/case_folding.h"
#include "trace.h"
#include <algorithm>
#include <map>

namespace test {

class TracedFiles : public fernwick::FileSystemObject {
public:
    explicit TracedFiles(Trace& trace) : trace_(trace) {}

    struct File {
        std::string bytes;
        int attributes = 0;
        std::int64_t time = 1;
    };
    std::map<std::string, File> files;
    /// Number of whole files read.
    mutable int reads = 0;
    /// Number of folders listed, and of beginnings of files read.
    mutable int listings = 0, partsRead = 0;

    /// Never fails.
    bool FileExists(const std::string& path) const override { return files.count(Canonical(path)) > 0; }
    bool FolderExists(const std::string& path) const override {
        const auto at = files.lower_bound(Canonical(path) + "/");
        return at != files.end() && at->first.starts_with(Canonical(path) + "/");
    }
    int GetAttributes(const std::string& path) const override { return at(path).attributes; }
    std::int64_t GetSize(const std::string& path) const override { return std::int64_t(at(path).bytes.size()); }
    std::int64_t GetDateLastModified(const std::string& path) const override { return at(path).time; }
    std::string GetAbsolutePathName(const std::string& path) const override {
        trace_.read();
        return Canonical(path);
    }
    std::string GetParentFolderName(const std::string& path) const override {
        const auto slash = Canonical(path).rfind('/');
        return slash == std::string::npos ? "" : Canonical(path).substr(0, slash);
    }
    std::string GetFileName(const std::string& path) const override {
        return Canonical(path).substr(Canonical(path).rfind('/') + 1);
    }
    std::string GetBaseName(const std::string& path) const override {
        const auto name = GetFileName(path);
        return name.substr(0, name.rfind('.'));
    }
    std::string GetExtensionName(const std::string& path) const override {
        const auto name = GetFileName(path);
        const auto point = name.rfind('.');
        return point == std::string::npos ? "" : name.substr(point + 1);
    }
    std::string BuildPath(const std::string& folder, const std::string& name) const override {
        return folder.empty() || folder.ends_with('/') ? folder + name : folder + "/" + Canonical(name);
    }
    std::string Canonical(const std::string& path) const override {
        std::string native = path;
        std::replace(native.begin(), native.end(), '\\', '/');
        return native;
    }
    bool SamePath(const std::string& a, const std::string& b) const override { return Canonical(a) == Canonical(b); }
    bool SameFile(const std::string& a, const std::string& b) const override {
        return SamePath(a, b) && (FileExists(a) || FolderExists(a));
    }
    std::string WithSeparator(const std::string& folder) const override { return BuildPath(folder, ""); }
    bool IsAbsolute(const std::string& path) const override { return Canonical(path).starts_with('/'); }
    std::string GetSpecialFolder(fernwick::SpecialFolder) const override { return "/tmp"; }
    std::string HomeFolder() const override { return "/home"; }
    std::vector<std::string> Files(const std::string& folder) const override {
        trace_.read();
        ++listings;
        std::vector<std::string> names;
        for (const auto& [path, file] : files)
            if (GetParentFolderName(path) == Canonical(folder)) names.push_back(GetFileName(path));
        std::stable_sort(names.begin(), names.end(), basic::NoCaseLess{});
        return names;
    }

    basic::Ref<fernwick::TextStream> OpenTextFile(const std::string& path) override {
        return basic::make<Lines>(at(path).bytes);
    }
    basic::Ref<fernwick::TextStream> CreateTextFile(const std::string& path, bool) override {
        trace_.read();
        return basic::make<Writer>(files[Canonical(path)].bytes);
    }
    std::string ReadBytes(const std::string& path) const override {
        ++reads;
        return at(path).bytes;
    }
    std::string ReadPart(const std::string& path, std::uint64_t from, std::size_t most) const override {
        ++partsRead;
        const auto& bytes = at(path).bytes;
        return from < bytes.size() ? bytes.substr(from, most) : std::string();
    }
    void WriteBytes(const std::string& path, const std::string& bytes) override { files[Canonical(path)] = {bytes}; }
    void SetDateLastModified(const std::string& path, std::int64_t time) override {
        files[Canonical(path)].time = time;
    }
    void CopyFile(const std::string& from, const std::string& to, bool) override { files[Canonical(to)] = at(from); }
    void DeleteFile(const std::string& path, bool) override { files.erase(Canonical(path)); }
    /// A folder is what contains a file.
    void CreateFolder(const std::string& path) override { files[Canonical(path) + "/"] = {}; }
    bool refusesMoves = false;
    void MoveFile(const std::string& from, const std::string& to) override {
        if (refusesMoves) throw basic::RuntimeError(basic::kPermissionDenied);
        files[Canonical(to)] = at(from);
        files.erase(Canonical(from));
    }
    void MakeWritable(const std::string&) override { trace_.read(); }

private:
    /// Lines that end in CR LF.
    class Lines : public fernwick::TextStream {
    public:
        explicit Lines(std::string bytes) : rest_(std::move(bytes)) {}
        bool AtEndOfStream() const override { return rest_.empty(); }
        std::string ReadLine() override {
            const auto end = rest_.find("\r\n");
            const auto line = rest_.substr(0, end);
            rest_ = end == std::string::npos ? "" : rest_.substr(end + 2);
            return line;
        }
        void WriteLine(const std::string&) override { throw basic::RuntimeError(54); }
        void Close() override {}

    private:
        std::string rest_;
    };

    class Writer : public fernwick::TextStream {
    public:
        explicit Writer(std::string& bytes) : bytes_(bytes) { bytes_.clear(); }
        bool AtEndOfStream() const override { throw basic::RuntimeError(54); }
        std::string ReadLine() override { throw basic::RuntimeError(54); }
        void WriteLine(const std::string& line) override { bytes_ += line + "\r\n"; }
        void Close() override {}

    private:
        std::string& bytes_;
    };

    const File& at(const std::string& path) const {
        trace_.read();
        const auto file = files.find(Canonical(path));
        if (file == files.end()) throw basic::RuntimeError(basic::kFileNotFound);
        return file->second;
    }

    Trace& trace_;
};

} // namespace test
