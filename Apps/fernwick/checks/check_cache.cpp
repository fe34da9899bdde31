#include "Apps/fernwick/checks/check_cache.h"
#include "Basic/runtime_error.h"
#include "Host/files/text_file.h"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace cli {

namespace fs = std::filesystem;

namespace {

constexpr auto kKept = std::chrono::days(30);
/// A hit renews a file that is older than this, so that few of them write anything.
constexpr auto kRenewed = std::chrono::days(1);

/// The first line of a file: its format, the content's key, and a digest of the bytes that follow.
std::string headOf(std::uint64_t content, std::string_view bytes) {
    return fmt::format("fernwick check 1 {:016x} {:016x}\n", content, host::digestOf(bytes));
}

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool isOlder(const fs::path& file, std::chrono::hours age) {
    std::error_code failed;
    const auto written = fs::last_write_time(file, failed);
    return !failed && written < fs::file_time_type::clock::now() - age;
}

void renew(const fs::path& file) {
    std::error_code ignored;
    if (isOlder(file, kRenewed)) fs::last_write_time(file, fs::file_time_type::clock::now(), ignored);
}

// Not flushed to the disk: the digest detects what a crash of the system leaves.
bool write(const fs::path& file, std::string_view head, std::string_view bytes) {
    std::ofstream out(file, std::ios::binary);
    out << head << bytes;
    out.close();
    return !out.fail();
}

} // namespace

fs::path checkCacheFolder() {
    const auto cache = variable("XDG_CACHE_HOME"), home = variable("HOME");
    if (cache.starts_with('/')) return fs::path(cache) / "fernwick/checks";
    return home.starts_with('/') ? fs::path(home) / ".cache/fernwick/checks" : fs::path();
}

fs::path CheckCache::fileOf(const CheckKey& key) const { return folder_ / fmt::format("{:016x}", key.project); }

std::optional<std::string> CheckCache::find(const CheckKey& key) const {
    if (folder_.empty()) return std::nullopt;
    host::FileContent file;
    const auto failed = basic::attempt([&] { file = host::readFile(fileOf(key).string()); });
    if (failed.Number != 0) return std::nullopt;
    const auto head = std::min(file.bytes.find('\n'), file.bytes.size() - 1) + 1;
    if (!file.bytes.starts_with(headOf(key.content, std::string_view(file.bytes).substr(head)))) return std::nullopt;
    renew(fileOf(key));
    file.bytes.erase(0, head);
    return std::move(file.bytes);
}

void CheckCache::store(const CheckKey& key, std::string_view results) const {
    if (folder_.empty()) return;
    std::error_code failed;
    fs::create_directories(folder_, failed);
    const auto file = fileOf(key);
    const auto beside = fs::path(file) += fmt::format(".{}", ::getpid());
    if (write(beside, headOf(key.content, results), results)) fs::rename(beside, file, failed);
    fs::remove(beside, failed); // if it was not renamed
    removeOld();
}

// This includes what runs left that were killed while they wrote.
void CheckCache::removeOld() const {
    std::error_code failed, ignored;
    for (fs::directory_iterator at(folder_, failed), end; !failed && at != end; at.increment(failed))
        if (isOlder(at->path(), kKept)) fs::remove(at->path(), ignored);
}

} // namespace cli
