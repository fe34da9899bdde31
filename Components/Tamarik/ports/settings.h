#pragma once
// The settings that a program stores, for SaveSetting and its relatives.
#include "Basic/case_folding.h"
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tamarik {

/// Names ignore case; all texts are UTF-8.
class Settings {
public:
    virtual ~Settings() = default;

    [[nodiscard]] virtual std::optional<std::string> find(std::string_view application, std::string_view section,
                                                          std::string_view key) const = 0;
    virtual void store(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view value) = 0;
    /// Removes a key, without one a section, and without that all of an application. False if there was none.
    virtual bool remove(std::string_view application, std::optional<std::string_view> section,
                        std::optional<std::string_view> key) = 0;
    /// The keys and values of a section.
    [[nodiscard]] virtual std::vector<std::pair<std::string, std::string>> all(std::string_view application,
                                                                               std::string_view section) const = 0;
};

/// Settings that end with the program.
class MemorySettings final : public Settings {
public:
    [[nodiscard]] std::optional<std::string> find(std::string_view application, std::string_view section,
                                                  std::string_view key) const override;
    void store(std::string_view application, std::string_view section, std::string_view key,
               std::string_view value) override;
    bool remove(std::string_view application, std::optional<std::string_view> section,
                std::optional<std::string_view> key) override;
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> all(std::string_view application,
                                                                       std::string_view section) const override;

private:
    template <class Value>
    using ByName = std::map<std::string, Value, basic::NoCaseLess>;
    using Section = ByName<std::string>;

    [[nodiscard]] const Section* sectionOf(std::string_view application, std::string_view section) const;

    ByName<ByName<Section>> applications_;
};

} // namespace tamarik
