#pragma once
// Which objects handle the events of which.
#include "Components/Image/code/code_image.h"
#include "Components/Tamarik/values/instance.h"
#include <unordered_map>
#include <vector>

namespace tamarik {

/// The handlers that an object has for the events of what one of its WithEvents fields holds.
struct Connection {
    Instance* handler;
    const image::EventSink* sink;
    friend bool operator==(const Connection&, const Connection&) = default;
};

/// Does not keep objects alive: `forget` is called before one is destroyed.
class Connections {
public:
    /// Adds a connection at the end; the order is that of the calls.
    void connect(Object& source, Connection connection);
    void disconnect(Object& source, const Connection& connection);
    [[nodiscard]] std::vector<Connection> of(const Object& source) const;
    [[nodiscard]] bool has(const Object& source, const Connection& connection) const;
    void forget(Object& object);

private:
    std::unordered_map<const Object*, std::vector<Connection>> bySource_;
    std::unordered_multimap<const Object*, Object*> sourcesOf_; ///< by handler
};

} // namespace tamarik
