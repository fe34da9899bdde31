#pragma once
// An object of a class of the program: its fields follow it.
#include "Components/Tamarik/values/object.h"
#include "Components/Tamarik/values/shapes.h"
#include <string_view>

namespace tamarik {

class Instance final : public Object {
public:
    Instance(std::string_view name, const RecordShape& shape) : name_(name), shape_(shape) {}

    [[nodiscard]] std::string_view className() const override { return name_; }
    void releaseMembers(Heap& heap) override;
    [[nodiscard]] Slot* fields() { return reinterpret_cast<Slot*>(this + 1); }

private:
    std::string_view name_;
    const RecordShape& shape_;
};

/// The shape and name must outlive the object.
[[nodiscard]] Instance* makeInstance(Heap& heap, std::uint32_t classNumber, std::string_view name,
                                     const RecordShape& shape);

} // namespace tamarik
