#pragma once
// What functions of the runtime reach of the machine that calls them.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/files/open_files.h"
#include "Components/Tamarik/natives/identities.h"
#include "Components/Tamarik/natives/wait.h"
#include "Components/Tamarik/numbers/random.h"
#include "Components/Tamarik/ports/surroundings.h"
#include "Components/Tamarik/values/heap.h"
#include "Components/Tamarik/values/variant.h"
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tamarik {

/// The Err object's values.
struct ErrorState {
    std::int32_t number = 0;
    std::string description, source;
    std::int32_t lastDllError = 0;
    std::string helpFile;
    std::int32_t helpContext = 0;
};

/// An error that code raised, with all that Err shows of it.
class RaisedError : public basic::RuntimeError {
public:
    explicit RaisedError(ErrorState raised)
        : RuntimeError(raised.number, raised.description), state(std::move(raised)) {}
    ErrorState state;
};

/// Where a program's output goes; UTF-8. An empty function discards it.
struct Output {
    std::function<void(std::string_view)> print, error;
    std::function<bool(std::string&)> inputLine; ///< false at the end of the input
};

/// A failed Debug.Assert, which ends a run; no handler of the program takes it.
struct AssertionFailed {};

struct Session;
/// Makes an object of a class of the runtime.
using ObjectMaker = Object* (*)(Session&);
using LibraryClasses = std::unordered_map<std::string, ObjectMaker>;

struct Session {
    Session(std::uint64_t heapLimit, Output sinks, std::uint32_t codePageNumber)
        : heap(heapLimit), output(std::move(sinks)), codePage(codePageNumber) {}

    Heap heap;
    std::string project; ///< its name
    Output output;
    ErrorState err;
    std::int32_t erl = 0;
    Surroundings surroundings;
    OpenFiles files{surroundings.files};
    Random random;
    Identities identities;
    LibraryClasses classes;          ///< by name
    std::optional<WaitRequest> wait; ///< of the function that has just been called
    std::uint32_t codePage;
    std::uint32_t printColumn = 0; ///< of Debug.Print, from 0

    /// Counts what a function does in proportion to the size of its arguments, so that the budget bounds it.
    void charge(std::uint64_t bytes) { work_ += bytes / kBytesOfInstruction; }
    /// Returns what was counted, in instructions, and forgets it.
    [[nodiscard]] std::uint64_t takeWork() { return std::exchange(work_, 0); }

private:
    static constexpr std::uint64_t kBytesOfInstruction = 32;

    std::uint64_t work_ = 0;
};

} // namespace tamarik
