#include "Host/registry/registry_handles.h"
#include "Host/registry/reg_status.h"

namespace host {
namespace {

constexpr std::uint32_t kFirstRoot = 0x80000000, kLastRoot = 0x80000002;

} // namespace

RegistryHandles::RegistryHandles() {
    for (auto root = kFirstRoot; root <= kLastRoot; ++root)
        open_[root] = {placeOfRegRoot(root).value(), fernwick::KEY_ALL_ACCESS, {}, {}};
}

bool RegistryHandles::isRoot(std::uint32_t key) { return key >= kFirstRoot; }

OpenRegKey& RegistryHandles::at(std::uint32_t key) {
    const auto found = open_.find(key);
    requireReg(found != open_.end(), RegStatus::InvalidHandle);
    return found->second;
}

OpenRegKey& RegistryHandles::at(std::uint32_t key, std::uint32_t access) {
    auto& found = at(key);
    requireReg((found.access & access) == access, RegStatus::AccessDenied);
    return found;
}

std::uint32_t RegistryHandles::add(RegPlace place, std::uint32_t access) {
    do lastHandle_ = lastHandle_ % (kFirstRoot - 1) + 1;
    while (open_.count(lastHandle_));
    open_[lastHandle_] = {std::move(place), access, {}, {}};
    return lastHandle_;
}

void RegistryHandles::close(std::uint32_t key) {
    at(key);
    if (!isRoot(key)) open_.erase(key);
}

void RegistryHandles::endEnumerations() {
    for (auto& [handle, key] : open_) key.subkeys.reset(), key.values.reset();
}

} // namespace host
