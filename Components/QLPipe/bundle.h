#pragma once
// What is installed on a device as a whole: an application or the runtime.
#include "Components/QLPipe/byte_reader.h"
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qlpipe {

/// What a file is to the device.
enum class FileKind : std::uint8_t { Image, File, Font, Icon };

/// One file of a bundle.
struct BundleFile {
    FileKind kind = FileKind::File;
    /// Where it lies in the bundle, with "/" between the parts: "files/Data/prices.pdb", "fonts/Small.CMF", "icon.ico".
    std::string place;
    std::int64_t size = 0;
    /// 64 digits; "" as long as nobody has read the file.
    std::string sha256;
    /// The file's bytes from the beginning.
    std::function<std::unique_ptr<ByteReader>()> open;

    /// Without its folders, for users.
    std::string_view title() const { return std::string_view(place).substr(place.rfind('/') + 1); }
};

inline constexpr char kFilesFolder[] = "files/";
inline constexpr char kFontsFolder[] = "fonts/";
inline constexpr char kIconPlace[] = "icon.ico";
inline constexpr char kManifestName[] = "manifest.json";

struct Bundle {
    /// The runtime has a version and files only.
    bool isRuntime = false;
    std::string project;
    std::string displayName;
    std::string version;
    /// The design target's key.
    std::string device;
    /// Components that the device must have already.
    std::vector<std::string> references;
    /// In the order of their places.
    std::vector<BundleFile> files;

    std::int64_t bytes() const;
};

/// The manifest of a bundle whose files all have their checksums; docs/package-format.md tells its form.
std::string writeManifest(const Bundle& bundle);

/// How many bytes that is, before the checksums are known.
std::int64_t manifestSize(Bundle bundle);

/// What is wrong with a manifest.
struct ManifestProblem {
    enum Kind { Malformed, NewerVersion, UnsafeName } kind;
    /// The reason in words, the version, or the name.
    std::string what;
};

/// The bundle that a manifest tells of; its files can't be opened. Throws ManifestProblem. The text may be anybody's: every
/// place of the answer is a safe name in the folder of its kind, and none stands twice.
Bundle readManifest(std::string_view text);

} // namespace qlpipe
