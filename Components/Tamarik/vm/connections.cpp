#include "Components/Tamarik/vm/connections.h"
#include <algorithm>

namespace tamarik {

void Connections::connect(Object& source, Connection connection) {
    disconnect(source, connection);
    bySource_[&source].push_back(connection);
    sourcesOf_.emplace(connection.handler, &source);
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
    if (const auto found = bySource_.find(&object); found != bySource_.end()) {
        for (const Connection& connection : std::vector<Connection>(found->second)) disconnect(object, connection);
    }
    std::vector<Object*> sources;
    const auto [first, last] = sourcesOf_.equal_range(&object);
    for (auto each = first; each != last; ++each) sources.push_back(each->second);
    for (Object* source : sources) {
        for (const Connection& connection : of(*source))
            if (connection.handler == &object) disconnect(*source, connection);
    }
}

} // namespace tamarik
