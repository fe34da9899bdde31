#include "Host/files/text_file.h"
#include "Host/files/native_path.h"
#include "Host/files/system_error.h"
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace host {
namespace {

[[noreturn]] void refuseToOpen(int error, const std::string& path) {
    const auto folder = folderOf(path);
    if (error == ENOENT && !folder.empty() && ::access(folder.c_str(), F_OK) != 0)
        throw missingFolder("cannot be opened", path);
    throw systemError(error, "cannot be opened", path);
}

class ReadDescriptor {
public:
    explicit ReadDescriptor(const std::string& path)
        : number_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
        if (number_ < 0) refuseToOpen(errno, path);
    }
    ReadDescriptor(const ReadDescriptor&) = delete;
    ReadDescriptor& operator=(const ReadDescriptor&) = delete;
    ~ReadDescriptor() { ::close(number_); }
    int number() const noexcept { return number_; }

private:
    int number_;
};

struct stat regularFileState(const ReadDescriptor& file, const std::string& path) {
    struct stat state {};
    if (::fstat(file.number(), &state) != 0) throw systemError(errno, "cannot be examined", path);
    if (S_ISDIR(state.st_mode)) throw systemError(EISDIR, "cannot be read", path);
    if (!S_ISREG(state.st_mode))
        throw hostError(basic::kPathFileAccessError, fmt::format("{}: is not a regular file", path));
    return state;
}

void refuseWhatIsTooLarge(const struct stat& state, const std::string& path) {
    if (std::uint64_t(state.st_size) > kLargestFile)
        throw hostError(basic::kOutOfMemory, fmt::format("{}: is too large ({} bytes)", path, state.st_size));
}

std::string readAll(int descriptor, std::size_t expected, const std::string& path) {
    constexpr std::size_t kSpare = 64; // a compiler puts NULs after a source, which would copy all of it
    std::string bytes;
    bytes.reserve(expected + kSpare);
    bytes.resize(expected);
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const auto got = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throw systemError(errno, "cannot be read", path);
        if (got == 0) break;
        filled += std::size_t(got);
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace

std::string_view bytesOf(LineEnd end) noexcept {
    switch (end) {
    case LineEnd::CrLf: return "\r\n";
    case LineEnd::Lf: return "\n";
    case LineEnd::Cr: return "\r";
    case LineEnd::None: break;
    }
    return {};
}

std::string_view takeLine(std::string_view& rest, LineEnd& end) noexcept {
    std::size_t at = 0;
    while (at < rest.size() && rest[at] != '\n' && rest[at] != '\r') ++at;
    const auto line = rest.substr(0, at);
    end = LineEnd::None;
    if (at == rest.size()) {
        rest = {};
        return line;
    }
    if (rest[at] == '\n')
        end = LineEnd::Lf;
    else
        end = at + 1 < rest.size() && rest[at + 1] == '\n' ? LineEnd::CrLf : LineEnd::Cr;
    rest.remove_prefix(at + bytesOf(end).size());
    return line;
}

std::vector<TextLine> splitLines(std::string_view bytes) {
    std::vector<TextLine> lines;
    LineEnd end = LineEnd::None;
    while (!bytes.empty()) {
        const auto text = takeLine(bytes, end);
        lines.push_back({std::string(text), end});
    }
    return lines;
}

std::string joinLines(const std::vector<TextLine>& lines) {
    std::size_t size = 0;
    for (const auto& line : lines) size += line.text.size() + bytesOf(line.end).size();
    std::string bytes;
    bytes.reserve(size);
    for (const auto& line : lines) bytes.append(line.text).append(bytesOf(line.end));
    return bytes;
}

LineEnd ownLineEnd(std::string_view bytes) noexcept {
    LineEnd end = LineEnd::None;
    takeLine(bytes, end);
    return end == LineEnd::None ? LineEnd::CrLf : end;
}

bool FileStamp::sameFileState(const FileStamp& other) const noexcept {
    return device == other.device && inode == other.inode && size == other.size &&
           modifiedSeconds == other.modifiedSeconds && modifiedNanoseconds == other.modifiedNanoseconds;
}

std::uint64_t digestOf(std::string_view bytes) noexcept { return std::hash<std::string_view>{}(bytes); }

FileStamp stampOf(const struct ::stat& state, std::string_view bytes) noexcept {
    return {std::uint64_t(state.st_dev), std::uint64_t(state.st_ino), std::uint64_t(state.st_size),
            state.st_mtim.tv_sec,        state.st_mtim.tv_nsec,       digestOf(bytes)};
}

FileContent readFile(const std::string& path) {
    const ReadDescriptor file(path);
    const auto state = regularFileState(file, path);
    refuseWhatIsTooLarge(state, path);
    FileContent content;
    content.bytes = readAll(file.number(), std::size_t(state.st_size), path);
    content.stamp = stampOf(state, content.bytes);
    return content;
}

const FileContent& FileContents::read(const std::string& path) {
    auto found = files_.find(path);
    if (found == files_.end()) found = files_.emplace(path, readFile(path)).first;
    return found->second;
}

FileContent FileContents::take(const std::string& path) {
    (void)read(path);
    return std::move(files_.extract(path).mapped());
}

std::string readFilePart(const std::string& path, std::uint64_t at, std::size_t most) {
    const ReadDescriptor file(path);
    const auto size = std::uint64_t(regularFileState(file, path).st_size);
    if (at >= size) return {};
    if (::lseek(file.number(), off_t(at), SEEK_SET) < 0) throw systemError(errno, "cannot be read", path);
    return readAll(file.number(), std::size_t(std::min<std::uint64_t>(most, size - at)), path);
}

} // namespace host
