#pragma once
// A set of files that is installed on a device as a unit: an application or the runtime.
#include "Components/QLPipe/base/byte_reader.h"
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qlpipe {

/// The purpose of a file.
enum class FileKind : std::uint8_t { Image, File, Font, Icon };

/// One file of a bundle.
struct BundleFile {
    FileKind kind = FileKind::File;
    /// Path in the bundle, with "/" as separator: "files/Data/prices.pdb", "fonts/Small.CMF", "icon.ico".
    std::string place;
    std::int64_t size = 0;
    /// 64 hexadecimal digits; "" until the file has been read.
    std::string sha256;
    /// Opens the file at its beginning.
    std::function<std::unique_ptr<ByteReader>()> open;

    /// The name without folders, for users.
    std::string_view title() const { return std::string_view(place).substr(place.rfind('/') + 1); }
};

inline constexpr char kFilesFolder[] = "files/";
inline constexpr char kFontsFolder[] = "fonts/";
inline constexpr char kIconPlace[] = "icon.ico";
inline constexpr char kManifestName[] = "manifest.json";
/// Bytes; a larger manifest is neither written nor read.
inline constexpr std::int64_t kLargestManifest = 1024 * 1024;
/// Bytes of one file, for writers and readers.
inline constexpr std::int64_t kLargestFile = std::int64_t{1} << 40;

struct Bundle {
    /// The runtime has only a version and files.
    bool isRuntime = false;
    std::string project;
    std::string displayName;
    std::string version;
    /// The design target's key.
    std::string device;
    /// Components that must already be on the device.
    std::vector<std::string> references;
    /// Settings of the project, "" or nothing if not set: 4 characters, bytes, "Portrait" or "Landscape", and the
    /// command line of the application.
    std::string creatorId;
    std::optional<std::int64_t> memoryLimit;
    std::string orientation;
    std::string arguments;
    /// Sorted by place.
    std::vector<BundleFile> files;

    std::int64_t bytes() const;
};

/// Returns the manifest of a bundle, as described in docs/package-format.md. All files must have checksums.
std::string writeManifest(const Bundle& bundle);

/// Returns the size of the manifest in bytes. The checksums need not be known yet.
std::int64_t manifestSize(Bundle bundle);

/// Throws TransferError for a bundle that readers would refuse because of its size.
void needReadable(const Bundle& bundle);

/// Returns the place of a file that is also the folder of another file, regardless of letter case; "" for none.
std::string fileUsedAsFolder(const std::vector<BundleFile>& files);

/// Thrown for an invalid manifest.
struct ManifestProblem {
    enum Kind { Malformed, NewerVersion, UnsafeName } kind;
    /// The reason, the version or the name, depending on the kind.
    std::string what;
};

/// Returns the bundle described by a manifest; its files cannot be opened. Throws ManifestProblem. The text is not
/// trusted: all places in the result are unique, safe names in the folder of their kind.
Bundle readManifest(std::string_view text);

} // namespace qlpipe
