#include "Components/Tamarik/vm/connections.h"
#include <algorithm>

namespace tamarik {

void Connections::connect(Object& source, Connection connection) {
    disconnect(source, connection);
    const auto entry = sourcesOf_.emplace(connection.handler, &source);
    try {
        bySource_[&source].push_back(connection);
    } catch (...) {
        sourcesOf_.erase(entry);
        throw;
    }
}

void Connections::disconnect(Object& source, const Connection& connection) {
    const auto found = bySource_.find(&source);
    if (found == bySource_.end() || std::erase(found->second, connection) == 0) return;
    if (found->second.empty()) bySource_.erase(found);
    const auto [first, last] = sourcesOf_.equal_range(connection.handler);
    const auto entry = std::find_if(first, last, [&](const auto& each) { return each.second == &source; });
    if (entry != last) sourcesOf_.erase(entry);
}

std::vector<Connection> Connections::of(const Object& source) const {
    const auto found = bySource_.find(&source);
    return found == bySource_.end() ? std::vector<Connection>() : found->second;
}

bool Connections::has(const Object& source, const Connection& connection) const {
    const auto found = bySource_.find(&source);
    return found != bySource_.end() &&
           std::find(found->second.begin(), found->second.end(), connection) != found->second.end();
}

void Connections::forget(Object& object) {
    if (bySource_.empty()) return;
    for (auto found = bySource_.find(&object); found != bySource_.end(); found = bySource_.find(&object)) {
        if (found->second.empty()) {
            bySource_.erase(found);
            break;
        }
        const Connection last = found->second.back();
        disconnect(object, last);
    }
    for (auto entry = sourcesOf_.find(&object); entry != sourcesOf_.end(); entry = sourcesOf_.find(&object)) {
        auto& connections = bySource_.find(entry->second)->second;
        const auto isOfObject = [&](const Connection& each) { return each.handler == &object; };
        const Connection connection = *std::find_if(connections.begin(), connections.end(), isOfObject);
        disconnect(*entry->second, connection);
    }
}

} // namespace tamarik
