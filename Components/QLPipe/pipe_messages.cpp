#include "Components/QLPipe/pipe_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_messages.h"

namespace qlpipe {
namespace {

constexpr bool kError = true, kWarning = false;

/// Users see a warning's number with the offset, so the table has it with the offset.
constexpr std::int32_t shown(PipeWarning warning) { return warning + kWarningOffset; }

// number, error, text, meaning, example, remedy
constexpr fernwick::MessageInfo kPipeMessages[] = {
    {shown(kRuntimeNotInstalled), kWarning,
     "%1 has no Tamarik runtime, which the application needs to run. Install it with: fernwick install-runtime "
     "--device %2",
     "An application was sent to a device on which the runtime was never installed.",
     "fernwick deploy Hello.vbp --device PalmOS-DragonBall",
     "Choose Install Runtime in the Fernwick menu, or run fernwick install-runtime. Once a device is enough."},
    {shown(kFileEmpty), kWarning, "%1 is empty.", "A file without any bytes goes to the device.", "touch prices.pdb",
     "Fill the file, or take it out of the project's dependencies."},
    {shown(kFileLargerThanHeap), kWarning, "%1 has %2, more than a program on %3 can hold in memory at once (%4).",
     "The device can store the file, but a program that loads it as a whole fails there.", "a film of 20 MB",
     "Make sure that the application reads the file piece by piece, or send a smaller one."},
    {shown(kIconMissing), kWarning, "The icon %1 is not there; the device shows its own.",
     "The file of the application's icon could not be found when the project was sent.", "",
     "Choose the icon again on the page Application of the project's settings."},

    {kLibraryMissing, kError, "The library %1 is not installed. Install it with: apt-get install %2",
     "Packages and devices need libraries that the rest of the system does without.", "fernwick package Hello.vbp",
     "Install the Debian package that the message names."},

    {kNoImage, kError, "There is no compiled application. Compile the project first.",
     "None of the files that would go to the device is a compiled application (.qlx).", "fernwick deploy --no-build",
     "Compile the project, then send it."},
    {kImageDamaged, kError, "%1 is no whole compiled application (%2). Compile the project again.",
     "The file was cut short or changed after the compiler wrote it.", "", "Compile the project again."},
    {kImageOfOtherCompiler, kError,
     "%1 was made by compiler version %2, and devices take those of version %3. Compile the project again.",
     "The runtime runs what the compiler of its own version made.", "", "Compile the project again."},
    {kImageTooLarge, kError, "%1 has %2; %3 takes applications of %4 at most.",
     "The platform limits the size of a compiled application.", "",
     "Move texts and data from the code into dependency files, or split the project."},
    {kNameTooLong, kError, "The name %1 has %2 characters; %3 takes %4 at most. Rename the file.",
     "The platform limits the length of names. On Palm OS a file becomes a database, whose name has 31 characters at "
     "most.",
     "A list of all the customers of the shop.pdb", "Give the file a shorter name."},
    {kNameTwice, kError, "%1 and %2 would have the same name on the device. Rename one of them.",
     "Devices don't tell names apart that differ in letter case only, and the files of an application lie in one "
     "folder tree.",
     "Data\\prices.pdb and data\\PRICES.PDB", "Rename one of the two files."},
    {kKindNotTaken, kError, "%1 can't be used on %2, which reads these kinds of files: %3.",
     "The platform has nothing that reads files with this extension.", "manual.doc on Palm OS",
     "Convert the file with one of the converters of the Utilities menu, or take it out of the dependencies."},
    {kFileTooLarge, kError, "%1 has %2; %3 takes files of %4 at most.", "The platform limits the size of a file.", "",
     "Make the file smaller or split it."},
    {kTooLargeTogether, kError, "The application takes %1, more than the whole memory of %2 (%3).",
     "All files of the application together don't fit on a device of this kind, even an empty one.", "",
     "Take files out of the project's dependencies or make them smaller."},
    {kUnsafeName, kError,
     "%1 can't go to the device under the name \"%2\". Copy the file into the project's folder and give it a plain "
     "name.",
     "Names on a device are relative to the application's folder and lie below it: no drive, no \"..\", no control "
     "characters, at most 255 bytes between two separators.",
     "..\\Shared\\prices.pdb", "Copy the file into the project's folder."},
    {kFileMissing, kError, "%1 is not there any more. Put it back, or take it out of the dependencies, and send again.",
     "The file was deleted or renamed after the list of files was made.", "", "Put the file back and send again."},
    {kFileUnreadable, kError, "%1 can't be read: %2. Correct that and send again.",
     "The system refuses to read the file.", "", "Check the permissions of the file and whether its disk is in order."},
    {kFileChanged, kError, "%1 changed while it was sent. Send again when no other program writes it.",
     "The file has not the bytes that it had when the transfer began; what was on the device before is unchanged.", "",
     "Wait until the other program has ended, then send again."},

    {kDeviceNotServed, kError, "%1 is no device of the family %2. Choose a design target of this family.",
     "Each family of devices has a pipe of its own, which serves the design targets whose key begins with the "
     "family's name.",
     "fernwick install-runtime --device Phone-X", "Choose one of the devices that fernwick targets lists."},
    {kDeviceBusy, kError, "%1 is in use by another transfer. Send again when that one has ended.",
     "One transfer at a time goes to a device; the wait for the other one was given up.", "",
     "Wait until the other transfer has ended. If there is none, look for a fernwick that hangs."},
    {kDeviceFull, kError, "There is not enough room on %1: %2 are needed, %3 are free.",
     "The application and what is installed beside it are together more than the device's memory.", "",
     "Remove applications from the device, or make this one smaller."},
    {kDeviceDiskFull, kError, "The disk that holds %1 is full. Make room and send again.",
     "The disk became full in the middle of the transfer; what was on the device before is unchanged.", "",
     "Make room on the disk and send again."},
    {kStorageFailed, kError, "The device's storage failed: %1: %2. Correct that and send again.",
     "The system refused an operation in the folder that stands for the device.", "",
     "Check that the folder is there and may be written."},
    {kStorageLink, kError, "%1 is a link or no folder. Remove it and send again.",
     "Nothing may lead out of the folder that stands for the device, so no link in it is followed.", "",
     "Remove what stands there; the next transfer makes the folder."},
    {kStorageFileTooLarge, kError, "%1 on the device is larger than any manifest. Remove it and send again.",
     "What describes an installed application was replaced by something else.", "",
     "Remove the file that the message names, then install the application again."},
    {kRuntimeNotShipped, kError, "This installation has no runtime for %1. Install the package of this platform.",
     "The installation's folder VB Toolkit/Runtime has nothing for the family of the device.", "",
     "Repair the installation."},
    {kRuntimeUnusable, kError, "The runtime of this installation can't be used: %1. Repair the installation.",
     "The list of the runtime's files is damaged or names a file that is not there.", "", "Repair the installation."},

    {kPackageNotWritten, kError, "The package %1 can't be written: %2. Correct that and make it again.",
     "The system refuses to write the package, or the disk is full.", "",
     "Check the folder's permissions and the room on its disk."},
    {kPackageUnreadable, kError, "%1 is no package or a damaged one: %2. Make or fetch it again.",
     "The file can't be read as a package: it is cut short, damaged or something else.", "",
     "Make the package again, or fetch it again from where it came."},
    {kPackageManifest, kError, "%1 is no package: its manifest.json is not as it must be (%2).",
     "Each package begins with a manifest that names all that is in it.", "", "Make the package again."},
    {kPackageVersion, kError, "%1 was made by a newer version of Fernwick (its format is %2).",
     "The format of packages has a version, and this one is later than what is known here.", "",
     "Bring this installation up to date."},
    {kPackageEntryMissing, kError, "%1 is damaged: %2 is missing. Make or fetch it again.",
     "The manifest names a file that the package doesn't hold.", "", "Make or fetch the package again."},
    {kPackageEntryExtra, kError, "%1 was changed: it holds %2, which its manifest doesn't name. Don't use it.",
     "Somebody added to the package after it was made.", "", "Fetch the package from where it was made."},
    {kPackageEntryChanged, kError, "%1 was changed or damaged: %2 is not what its manifest says. Don't use it.",
     "Size or checksum of a file differ from those that the manifest gives.", "",
     "Fetch the package from where it was made."},
    {kPackageUnsafeName, kError, "%1 was changed: it names %2, which is no safe name on a device. Don't use it.",
     "No package that Fernwick makes holds such a name.", "", "Fetch the package from where it was made."},
    {kPackageOfOtherDevice, kError, "%1 was made for %2 and can't be installed on %3.",
     "A package holds what was compiled and checked for one device.", "", "Make a package for this device."},
    {kPackageDeviceUnknown, kError,
     "%1 was made for %2, and nothing here reaches devices of this family. Install its pipe.",
     "The family of the device has no pipe in this installation, or one that sends nothing.", "",
     "Install the pipe of this family, or use a machine that has it."},
};

} // namespace

std::vector<std::span<const fernwick::MessageInfo>> pipeMessages() { return {kPipeMessages, sshMessages()}; }

std::string messageText(std::int32_t number, std::initializer_list<std::string> values) {
    std::string_view pattern;
    for (const auto table : pipeMessages())
        for (const auto& message : table)
            if (message.number == number) pattern = message.text;
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const std::size_t value = i + 1 < pattern.size() ? std::size_t(pattern[i + 1] - '1') : values.size();
        if (pattern[i] == '%' && value < values.size()) {
            text += values.begin()[value];
            ++i;
        } else
            text += pattern[i];
    }
    return text;
}

TransferError transferError(std::int32_t number, std::initializer_list<std::string> values) {
    return {number, messageText(number, values)};
}

std::string bytesInWords(std::int64_t bytes) {
    constexpr std::size_t kGroup = 3;
    std::string digits = std::to_string(bytes);
    for (std::size_t at = digits.size(); at > kGroup;) digits.insert(at -= kGroup, ",");
    return digits + (bytes == 1 ? " byte" : " bytes");
}

} // namespace qlpipe
