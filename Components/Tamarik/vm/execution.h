#pragma once
// The state of a machine, shared by the interpreter and the parts of the machine that it calls.
#include "Basic/runtime_error.h"
#include "Components/Tamarik/natives/natives.h"
#include "Components/Tamarik/objects/library_object.h"
#include "Components/Tamarik/values/records.h"
#include "Components/Tamarik/vm/connections.h"
#include "Components/Tamarik/vm/frames.h"
#include "Components/Tamarik/vm/run_error.h"
#include "Components/Tamarik/vm/run_state.h"
#include "Components/Tamarik/vm/slot_tags.h"
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tamarik {

class WaitTask;

/// What the call at an instruction found the last time.
struct CallSite {
    const std::uint32_t* ip = nullptr;
    const LibraryMember* members = nullptr; ///< of the class
    FoundMember found;
};
inline constexpr std::size_t kCallSites = 256;

/// An import and what its arguments need.
struct BoundNative {
    void (*call)(NativeCall&) = nullptr;
    ValueKind result = ValueKind::None;
    std::uint32_t slots = 0;
    std::vector<ManagedSlot> managed;
};

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

struct Execution {
    Execution(std::shared_ptr<const Program> program, Session& session, std::size_t stackSlots);
    ~Execution();
    Execution(const Execution&) = delete;
    Execution& operator=(const Execution&) = delete;

    // frames
    Frame* frame = nullptr; ///< the top one
    Slot *stack = nullptr, *stackEnd = nullptr;
    std::int64_t budget = 0;
    std::size_t goSubs = 0; ///< return points of all frames

    std::shared_ptr<const Program> program;
    Session& session;
    Heap& heap;
    RunState state = RunState::Running;
    std::optional<RunError> failure;

    std::vector<TextBlock*> texts; ///< of the image, made when they are first used
    std::vector<Slot> globals;
    std::vector<BoundNative> imports;
    LibraryClasses libraryClasses;
    Connections connections;
    std::array<CallSite, kCallSites> callSites;
    std::unordered_map<std::uint64_t, const image::ClassMember*> memberCache; ///< by class, name and use
#ifdef FERNWICK_SLOT_TAGS
    SlotTags tags;
#endif
    WaitTask* waiting = nullptr;      ///< what the host has to answer, while the state is Waiting
    std::vector<std::uint32_t> toRun; ///< procedures that the host wants run, the next one last

    [[nodiscard]] RareFrame& rare(Frame& of);
    void dropRare(Frame& of) noexcept;
    /// Where the next frame begins.
    [[nodiscard]] Slot* nextBase() const { return frame->end; }
    [[nodiscard]] TextBlock* constantText(std::uint32_t number);

    // calls
    /// Makes the next frame and returns its slots. Error 28.
    Slot* pushFrame(const LoadedProcedure& procedure, FrameKind kind);
    void pushTask(std::unique_ptr<Task> task, std::uint8_t result = image::kNoSlot);
    /// Copies the arguments of a call instruction; if this fails, the slots are zero again.
    void passArguments(Slot* target, const std::uint32_t* words, std::uint32_t count,
                       std::span<const ManagedSlot> managed);
    /// Passes the arguments of a call instruction and makes the frame of the procedure.
    void enter(const LoadedProcedure& procedure, const std::uint32_t* words, std::uint32_t count, std::uint32_t result);
    void callNative(const std::uint32_t* ip);
    /// Makes a frame that waits, for a function that asked for it.
    void beginWait(const std::uint32_t* ip);
    /// Gives the result of the task on top to the frame below: a task, or the slot that the instruction named.
    void deliver(const Variant& result);
    void returnSlowly();
    void storeResult(Slot* target, ValueKind kind, const Slot* value);

    // release
    /// Releases what waits, runs the steps of tasks, and ends when a procedure's code is to run, which it reports by true.
    bool settle();

    // errors
    void fail(int number) noexcept;
    void fail(const basic::RuntimeError& error) noexcept;
    /// Finds the handler of the error that `fail` noted, or ends the run, which it reports by false. Without memory for that,
    /// the error becomes error 7.
    bool dispatchError() noexcept;
    /// Ends the storing back after a failed call: as dispatchError, with the call's error.
    bool raiseAgain() noexcept;
    /// Ends the run where a debugger would stop it: at a Debug.Assert or Stop.
    void stop(std::string_view reason);
    /// Where the program is, then the callers.
    [[nodiscard]] std::vector<RunError::Place> places() const;
    /// The statement that failed, or the next one; false outside of a handler.
    bool resume(bool next);
    bool goSub(const std::uint32_t* returnTo);
    /// Null without a GoSub.
    const std::uint32_t* returnSub();
    void unwind(Frame* to);
    /// Allocates nothing, so that it cannot fail.
    void leaveTop();
    void clearErr() { session.err = {}; }

    void finish(RunState how) { state = how; }

private:
    bool settleOnce();
    /// Releases the variables of the modules, whose Terminates run, then ends; false until then.
    bool finishNormally();
    void destroyNext();
    void destroyObject(Object* object);
    void finishTerminate(RareFrame& rare);
    bool findHandler();
    void describeFailure();
    void describeNoted() noexcept;
    [[nodiscard]] std::string errorSource() const;
    [[nodiscard]] RareFrame* newRare();
    [[nodiscard]] const std::uint32_t* statementAt(const Frame& of, const std::uint32_t* at, bool next) const;
    void enterHandler(Frame& of);
    /// Continues where the arguments of a failed call are stored back, in a frame above the handler's; false if there is none.
    bool storeBack(const Frame& handler);

    std::unique_ptr<Slot[], FreeMemory> values_;
    std::unique_ptr<Frame[], FreeMemory> frames_;
    std::unique_ptr<RareFrame> freeRares_;
    ErrorState noted_;
    bool areGlobalsReleased_ = false;
};

} // namespace tamarik
