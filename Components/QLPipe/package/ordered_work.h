#pragma once
// Tasks on several threads, with their results in the order of the tasks.
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace qlpipe {

/// The number of threads that a transfer uses: one per core, but few enough that the memory for their results is small.
inline unsigned usualThreads() { return std::clamp(std::thread::hardware_concurrency(), 1U, 8U); }

/// Runs tasks on threads and returns their results in order. A failed task stops the others; its exception takes the
/// place of its result, so that the caller sees the same results and the same error as without threads.
template <class Result>
class OrderedWork {
public:
    /// A long task ends early when a stop is requested; its result is not used then.
    using Task = std::function<Result(std::stop_token)>;
    /// Returns the next task, or an empty one at the end. Called by one thread at a time.
    using Source = std::function<Task()>;

    OrderedWork(unsigned threads, Source source) : source_(std::move(source)), most_(threads) {}
    OrderedWork(const OrderedWork&) = delete;
    OrderedWork& operator=(const OrderedWork&) = delete;
    ~OrderedWork() {
        {
            const std::lock_guard lock{mutex_}; // a thread about to wait would miss the stop
            stop_.request_stop();
        }
        changed_.notify_all();
        for (auto& thread : threads_) thread.join();
    }

    /// Waits for the next result; nothing at the end. Calls `whileWaiting` from time to time. The threads start with the
    /// first call. With a single thread, or if the system has no more threads, the caller's runs the tasks.
    template <class F>
    std::optional<Result> take(F&& whileWaiting) {
        if (!std::exchange(hasBegun_, true)) startThreads();
        if (threads_.empty()) runOne();
        std::unique_lock lock{mutex_};
        const auto isReady = [&] { return slots_.empty() ? ended_ : slots_.front().isDone; };
        while (!changed_.wait_for(lock, kPatience, isReady)) {
            lock.unlock();
            whileWaiting();
            lock.lock();
        }
        if (slots_.empty()) return {};
        auto slot = std::move(slots_.front());
        slots_.pop_front();
        lock.unlock();
        changed_.notify_all();
        if (slot.failure) std::rethrow_exception(slot.failure);
        return std::move(slot.result);
    }

private:
    static constexpr std::chrono::milliseconds kPatience{50};

    struct Slot {
        bool isDone = false;
        std::optional<Result> result;
        std::exception_ptr failure;
    };

    void startThreads() {
        try {
            while (most_ > 1 && threads_.size() < most_)
                threads_.emplace_back([this] {
                    while (runOne()) {}
                });
        } catch (const std::system_error&) {} // fewer are enough
    }

    bool runOne() {
        Slot* slot = nullptr;
        Task task;
        try {
            const std::lock_guard onlyOne{sourceMutex_};
            slot = newSlot();
            if (!slot) return false;
            task = source_();
            if (!task) return end();
        } catch (...) { return finish(*slot, {}, std::current_exception()); }
        try {
            return finish(*slot, task(stop_.get_token()), {});
        } catch (...) { return finish(*slot, {}, std::current_exception()); }
    }

    /// Null if the work is to stop. The address is valid until the slot is taken, because it is taken when it is done.
    Slot* newSlot() {
        std::unique_lock lock{mutex_};
        changed_.wait(lock, [&] { return isStopped() || slots_.size() < 2 * most_; });
        return isStopped() ? nullptr : &slots_.emplace_back();
    }
    bool isStopped() const { return ended_ || stop_.stop_requested(); }

    bool end() {
        const std::lock_guard lock{mutex_};
        slots_.pop_back();
        ended_ = true;
        changed_.notify_all();
        return false;
    }

    bool finish(Slot& slot, std::optional<Result> result, std::exception_ptr failure) {
        const std::lock_guard lock{mutex_};
        if (failure) stop_.request_stop();
        slot.result = std::move(result);
        slot.failure = std::move(failure);
        slot.isDone = true;
        changed_.notify_all();
        return true;
    }

    Source source_;
    std::size_t most_;
    bool hasBegun_ = false;
    std::stop_source stop_;
    std::mutex sourceMutex_, mutex_;
    std::condition_variable changed_;
    std::deque<Slot> slots_;
    bool ended_ = false;
    std::vector<std::thread> threads_;
};

} // namespace qlpipe
