#pragma once
// Files in a folder of the disk.
#include "Components/Tamarik/ports/file_store.h"

#ifdef __linux__
namespace tamarik {

/// The kernel resolves each path below the folder, so that links and folders that other programs replace meanwhile do not
/// lead out of it.
class FolderStore final : public FileStore {
public:
    /// Stepwise is for kernels without openat2: it refuses all links.
    enum class Resolution : std::uint8_t { ByKernel, Stepwise };

    /// Error 76 if there is no such folder.
    explicit FolderStore(const std::string& folder, Resolution resolution = Resolution::ByKernel);
    FolderStore(const FolderStore&) = delete;
    FolderStore& operator=(const FolderStore&) = delete;
    ~FolderStore() override;

    [[nodiscard]] std::unique_ptr<StoredFile> open(const std::string& path, const FileUse& use) override;
    [[nodiscard]] std::optional<FileInfo> find(const std::string& path) const override;
    [[nodiscard]] std::vector<std::string> names(const std::string& folder) const override;
    void remove(const std::string& file) override;
    void rename(const std::string& from, const std::string& to) override;
    void makeFolder(const std::string& path) override;
    void removeFolder(const std::string& path) override;
    void setReadOnly(const std::string& path, bool isReadOnly) override;

private:
    [[nodiscard]] int openBeneath(const std::string& path, int flags, unsigned mode = 0) const;
    /// The folder of a path. Error 76.
    [[nodiscard]] int openParent(const std::string& path) const;

    int folder_;
    Resolution resolution_;
};

} // namespace tamarik
#endif
