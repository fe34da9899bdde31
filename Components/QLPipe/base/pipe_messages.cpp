#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/ssh_messages.h"

namespace qlpipe {
namespace {

constexpr bool kError = true, kWarning = false;

/// The table has the numbers that are shown.
constexpr std::int32_t shown(PipeWarning warning) { return warning + kWarningOffset; }

// number, error, text, meaning, example, remedy
constexpr fernwick::MessageInfo kPipeMessages[] = {
    {shown(kRuntimeNotInstalled), kWarning,
     "The Tamarik runtime is not installed on {device}; the application needs it to run. Install it with: "
     "fernwick install-runtime --device {key}",
     "An application was sent to a device that does not have the runtime.",
     "fernwick deploy Hello.vbp --device PalmOS-DragonBall",
     "Choose Install Runtime in the Fernwick menu, or run fernwick install-runtime. This is needed once per device."},
    {shown(kFileEmpty), kWarning, "{file} is empty.", "A file without content is sent to the device.",
     "touch prices.pdb", "Fill the file, or remove it from the project's dependencies."},
    {shown(kFileLargerThanHeap), kWarning,
     "{file} has {size}; programs on {platform} can load at most {limit} into memory at once.",
     "The device can store the file, but an application cannot load it as a whole.", "a film of 20 MB",
     "Make sure that the application reads the file in parts, or use a smaller file."},
    {shown(kIconMissing), kWarning, "The icon {file} was not found; the device's default icon is used.",
     "The application's icon file did not exist when the project was sent.", "",
     "Choose the icon again on the Application page of the project's settings."},
    {shown(kCreatorInUse), kWarning,
     "The application {other} on {device} has the same creator ID {id}. The device can confuse the two. Set another "
     "one with: fernwick settings set {setting} ID",
     "Palm OS keeps the data and preferences of applications by their creator IDs, so each needs its own.",
     "fernwick settings set Hello.vbp PalmOSCreatorID Abcd", "Give one of the applications a different creator ID."},
    {shown(kProjectSettingsIgnored), kWarning,
     "The project's settings of the Linux handheld are ignored, except for its folder: {settings}. Only your own "
     "settings "
     "determine the connection. Set them with: fernwick devices set {device} NAME=VALUE",
     "A project file can come from someone else, so it cannot choose the machine, the user or the keys of a "
     "connection.",
     "Host=192.168.1.20 in the section Quinloft Linux Handheld of a project file",
     "Remove these lines from the project file. If they are right, set them with fernwick devices set."},

    {kLibraryMissing, kError, "The library {library} is not installed. Install it with: apt-get install {package}",
     "Packages and device connections need libraries that are optional for the rest of the system.",
     "fernwick package Hello.vbp", "Install the Debian package that the message names."},

    {kNoImage, kError, "There is no compiled application. Compile the project first.",
     "None of the files to be sent is a compiled application (.qlx).",
     "fernwick package --list Fonts.qlpkg\n"
     "HelloWorld 1.0.0 for PalmOS-DragonBall\n"
     "  fonts/QLP_12R.CMF        3880\n"
     "fernwick deploy Fonts.qlpkg",
     "Compile the project, then send it again. If a package has no application, make it again from the project."},
    {kImageDamaged, kError, "{file} is not a complete compiled application. {reason} Compile the project again.",
     "The file was truncated or changed after the compiler wrote it.", "", "Compile the project again."},
    {kImageOfOtherCompiler, kError,
     "{file} was compiled with version {version}; devices need version {required}. Compile the project again.",
     "The runtime only runs applications from the matching compiler version.", "", "Compile the project again."},
    {kImageTooLarge, kError, "{file} has {size}; {platform} accepts applications of at most {limit}.",
     "The platform limits the size of a compiled application.", "",
     "Move text and data from the code into dependency files, or split the project."},
    {kNameTooLong, kError,
     "The name {file} has {length} characters; {platform} allows at most {limit}. Rename the file.",
     "The platform limits the length of names. On Palm OS a file becomes a database, whose name has at most 31 "
     "characters.",
     "A list of all the customers of the shop.pdb", "Give the file a shorter name."},
    {kNameTwice, kError, "{file} and {other} would have the same name on the device. Rename one of them.",
     "Devices do not distinguish names that differ only in case, and all files of an application are stored in one "
     "folder tree.",
     "Data\\prices.pdb and data\\PRICES.PDB", "Rename one of the files."},
    {kKindNotTaken, kError, "{file} cannot be used on {platform}, which reads these file types: {kinds}.",
     "The platform cannot read files with this extension.", "manual.doc on Palm OS",
     "Convert the file with a converter from the Utilities menu, or remove it from the dependencies."},
    {kFileTooLarge, kError, "{file} has {size}; {platform} accepts files of at most {limit}.",
     "The platform limits the size of a file.", "", "Make the file smaller, or split it."},
    {kTooLargeTogether, kError, "The application has {size}; the memory of {platform} is only {limit}.",
     "The files of the application together do not fit even on an empty device of this kind.", "",
     "Remove files from the project's dependencies, or make them smaller."},
    {kUnsafeName, kError,
     "{file} cannot be sent to the device under the name \"{name}\". Copy the file into the project's folder and give "
     "it a simple name.",
     "Names on a device are relative to the application's folder and must stay inside it: drives, \"..\" and control "
     "characters are not allowed, nor are more than 255 bytes between two separators, 32 folders and names, or 1,024 "
     "bytes.",
     "..\\Shared\\prices.pdb", "Copy the file into the project's folder."},
    {kFileMissing, kError, "{file} no longer exists. Restore it, or remove it from the dependencies, and try again.",
     "The file was deleted or renamed after the list of files was made.", "", "Restore the file and try again."},
    {kFileUnreadable, kError, "{file} cannot be read: {reason}. Fix this and try again.",
     "The operating system refused to read the file.", "", "Check the file's permissions and the disk."},
    {kFileChanged, kError, "{file} changed while it was being sent. Try again when no other program is writing to it.",
     "The file no longer has the content that it had when the transfer began. The device is unchanged.", "",
     "Wait until the other program has finished, then try again."},
    {kListTooLong, kError,
     "The list of the application's files has {size}; packages and devices accept at most {limit}. Use fewer files or "
     "shorter names.",
     "The manifest of an application, which lists its files, has a maximum size.", "a project with 10,000 dependencies",
     "Use fewer files, or join small files into one."},
    {kSettingRefused, kError,
     "Invalid value \"{value}\" for the setting {setting}: {reason}. Correct it on the page {page} of the project's "
     "settings, or with: fernwick settings set {setting} VALUE",
     "The project file contains a value that the devices cannot use. Nothing was sent.",
     "PalmOSMemoryLimit=1024 for a device with 256 KB", "Correct the setting, or clear it for its default."},

    {kDeviceNotServed, kError,
     "{device} is not a device of the family {family}. Choose a design target of this family.",
     "Each family of devices has its own pipe. It serves the design targets whose keys begin with the family's name.",
     "fernwick install-runtime --device Phone-X", "Choose one of the devices listed by fernwick targets."},
    {kDeviceBusy, kError, "{device} is in use by another transfer. Try again when that transfer has finished.",
     "Only one transfer can use a device at a time. This one gave up waiting for the other.", "",
     "Wait until the other transfer has finished. If there is none, look for a Fernwick process that hangs."},
    {kDeviceFull, kError, "Not enough space on {device}: {required} needed, {free} free.",
     "The application does not fit beside what is already installed.", "",
     "Remove applications from the device, or make this one smaller."},
    {kDeviceDiskFull, kError, "The disk that holds {device} is full. Free some space and try again.",
     "The disk filled up during the transfer. The device's previous content is unchanged.", "",
     "Free some space on the disk and try again."},
    {kStorageFailed, kError, "The device's storage failed at {path}: {reason}. Fix this and try again.",
     "The operating system refused an operation in the folder that simulates the device.", "",
     "Check that the folder exists and is writable."},
    {kStorageLink, kError, "{path} is a link or not a folder. Remove it and try again.",
     "Links in the folder that simulates the device are not followed, so that a transfer cannot write outside it.", "",
     "Remove the link or file; the next transfer creates the folder."},
    {kStorageFileTooLarge, kError, "{path} on the device is too large to be a manifest. Remove it and try again.",
     "The description of an installed application was replaced by a different file.", "",
     "Remove the file named in the message, then install the application again."},
    {kRuntimeNotShipped, kError,
     "This installation has no runtime for {family}. Install the package for this platform.",
     "The installation's folder VB Toolkit/Runtime contains no runtime for the device's family.", "",
     "Repair the installation."},
    {kRuntimeUnusable, kError, "The runtime of this installation cannot be used: {reason}. Repair the installation.",
     "The list of the runtime's files is damaged, or names a file that does not exist.", "",
     "Repair the installation."},

    {kPackageNotWritten, kError, "The package {package} cannot be written: {reason}. Fix this and make it again.",
     "The operating system refused to write the package, or the disk is full.", "",
     "Check the folder's permissions and the free space."},
    {kPackageUnreadable, kError, "{package} is not a package, or it is damaged: {reason}. Rebuild or re-download it.",
     "The file cannot be read as a package: it is truncated, damaged or a different kind of file.", "",
     "Make the package again, or download it again."},
    {kPackageManifest, kError, "{package} is not a valid package: its manifest.json is invalid ({reason}).",
     "A package begins with a manifest that lists its content.", "", "Make the package again."},
    {kPackageVersion, kError,
     "{package} was made by a newer version of Fernwick (format version {version}). Update this installation.",
     "The version of the package format is newer than the versions that this installation knows.", "",
     "Update this installation."},
    {kPackageEntryMissing, kError, "{package} is damaged: {entry} is missing. Rebuild or re-download it.",
     "The manifest lists a file that the package does not contain.", "",
     "Make the package again, or download it again."},
    {kPackageEntryExtra, kError,
     "{package} was modified: it contains {entry}, which is not in its manifest. Do not use it.",
     "A file was added to the package after it was made.", "", "Get the package again from its source."},
    {kPackageEntryChanged, kError,
     "{package} was modified or damaged: {entry} does not match its manifest. Do not use it.",
     "The size or checksum of a file differs from the manifest.", "", "Get the package again from its source."},
    {kPackageUnsafeName, kError,
     "{package} was modified: it contains {name}, which is not a safe file name. Do not use it.",
     "Fernwick never writes such a name into a package.", "", "Get the package again from its source."},
    {kPackageOfOtherDevice, kError, "{package} was made for {device} and cannot be installed on {other}.",
     "A package is compiled and checked for one device.", "", "Make a package for this device."},
    {kPackageDeviceUnknown, kError,
     "{package} was made for {device}, a device family that is not available here. Install its pipe.",
     "This installation has no pipe for the device's family, or one that cannot send.", "",
     "Install the pipe of this family, or use a machine that has it."},
    {kPackageMemory, kError,
     "{package} lets its application use {size} of memory; {platform} has {limit}. Make the package again for the "
     "devices that are installed here.",
     "The memory limit in the package is larger than the memory of the device.", "",
     "Lower the project's memory limit and make the package again."},
};

} // namespace

std::vector<std::span<const fernwick::MessageInfo>> pipeMessages() { return {kPipeMessages, sshMessages()}; }

std::string messageText(std::int32_t number, MessageValues values) {
    std::string_view pattern;
    for (const auto table : pipeMessages())
        for (const auto& message : table)
            if (message.number == number) pattern = message.text;
    return fillIn(pattern, values);
}

TransferError transferError(std::int32_t number, MessageValues values) { return {number, messageText(number, values)}; }

std::string bytesInWords(std::int64_t bytes) {
    constexpr std::size_t kGroup = 3;
    std::string digits = std::to_string(bytes);
    for (std::size_t at = digits.size(); at > kGroup;) digits.insert(at -= kGroup, ",");
    return digits + (bytes == 1 ? " byte" : " bytes");
}

} // namespace qlpipe
