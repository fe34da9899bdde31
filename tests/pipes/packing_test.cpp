// Packing on several threads.
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/package/package_writer.h"
#include "tests/pipes/pipe_world.h"
#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using qlpipe::OrderedWork;
using Work = OrderedWork<int>;

constexpr unsigned kThreadCounts[] = {1, 2, 3, 8};

/// Returns a source of tasks, `count` in all, with the number of those that began.
Work::Source numbers(int count, std::atomic<int>& begun, std::function<int(int)> work) {
    return [count, &begun, work = std::move(work), at = 0]() mutable -> Work::Task {
        if (at == count) return {};
        ++begun;
        return [number = at++, work](std::stop_token) { return work(number); };
    };
}

TEST(OrderedWork, ReturnsTheResultsInTheOrderOfTheTasks) {
    for (const auto threads : kThreadCounts) {
        std::atomic<int> begun = 0;
        Work work{threads, numbers(100, begun, [](int number) {
                      std::this_thread::sleep_for(std::chrono::microseconds(number % 3 * 100));
                      return number;
                  })};
        for (int i = 0; i < 100; ++i) EXPECT_EQ(work.take([] {}), i);
        EXPECT_EQ(work.take([] {}), std::nullopt);
    }
}

TEST(OrderedWork, RunsFewTasksAhead) {
    std::atomic<int> begun = 0;
    Work work{4, numbers(1000, begun, [](int number) { return number; })};
    for (int taken = 1; taken <= 100; ++taken) {
        work.take([] {});
        EXPECT_LE(begun, taken + 8);
    }
}

TEST(OrderedWork, ThrowsTheFirstErrorInOrderAndStopsTheOthers) {
    for (const auto threads : kThreadCounts) {
        std::atomic<int> begun = 0;
        Work work{threads, numbers(1000, begun, [](int number) {
                      if (number == 5) std::this_thread::sleep_for(std::chrono::milliseconds(20));
                      if (number >= 5) throw basic::RuntimeError(number);
                      return number;
                  })};
        for (int i = 0; i < 5; ++i) EXPECT_EQ(work.take([] {}), i);
        EXPECT_EQ(basic::attempt([&] { work.take([] {}); }).Number, 5) << threads;
        EXPECT_LE(begun, int(5 + threads)) << "a thread begins nothing after a failure";
    }
}

TEST(OrderedWork, ThrowsTheErrorsOfItsSource) {
    for (const auto threads : kThreadCounts) {
        Work work{threads, []() -> Work::Task { throw basic::RuntimeError(75); }};
        EXPECT_EQ(basic::attempt([&] { work.take([] {}); }).Number, 75);
    }
}

TEST(OrderedWork, StopsLongTasksWhenItIsAbandoned) {
    Work work{3, []() -> Work::Task {
                  return [](const std::stop_token& stop) {
                      while (!stop.stop_requested()) std::this_thread::yield();
                      return 0;
                  };
              }};
    EXPECT_EQ(basic::attempt([&] { work.take([] { throw basic::RuntimeError(51); }); }).Number, 51);
}

std::string noise(std::size_t size) {
    std::string bytes(size, '\0');
    std::uint32_t state = std::uint32_t(size);
    for (auto& byte : bytes) byte = char((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

/// Bundles of files in memory that may fail.
class PackedFiles : public testing::Test {
protected:
    class Reader final : public qlpipe::ByteReader {
    public:
        explicit Reader(std::string bytes) : bytes_(std::move(bytes)) {}
        std::size_t read(std::span<char> buffer) override {
            const auto count = bytes_.copy(buffer.data(), buffer.size(), at_);
            at_ += count;
            return count;
        }

    private:
        std::string bytes_;
        std::size_t at_ = 0;
    };

    void add(const std::string& name, const std::string& bytes) {
        bundle.files.push_back({qlpipe::FileKind::File, "files/" + name, std::int64_t(bytes.size()), {}, [this, bytes] {
                                    ++opened;
                                    return std::make_unique<Reader>(bytes);
                                }});
    }
    /// Adds a file that can be read once, for its checksum.
    void addVanishing(const std::string& name) {
        auto reads = std::make_shared<std::atomic<int>>(0);
        bundle.files.push_back({qlpipe::FileKind::File, "files/" + name, 1, {}, [name, reads] {
                                    if (++*reads > 1)
                                        throw qlpipe::transferError(qlpipe::kFileMissing, {{"file", name}});
                                    return std::make_unique<Reader>("x");
                                }});
    }
    std::string pack(unsigned threads) {
        qlpipe::writePackage(path, bundle, &sink, threads);
        return folder.read("x.qlpkg");
    }
    std::string failure(unsigned threads) {
        try {
            pack(threads);
            return {};
        } catch (const qlpipe::TransferError& error) { return error.text; }
    }

    test::TempFolder folder;
    std::string path = folder / "x.qlpkg";
    test::RecordingSink sink;
    qlpipe::Bundle bundle{false, "Hello", "", "1", "PocketPC-ARM", {}, {}, {}, {}, {}, {}};
    std::atomic<int> opened = 0;
};

TEST_F(PackedFiles, HaveTheSameBytesForAnyNumberOfThreads) {
    constexpr std::size_t kBlock = 512 * 1024;
    const std::string text = "the same words again and again, ";
    std::string large;
    while (large.size() < 3 * kBlock + 7) large += text + std::to_string(large.size());
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, kBlock - 1, kBlock, kBlock + 1, 2 * kBlock})
        add(std::to_string(size), noise(size));
    add("large", large);
    const auto serial = pack(1);
    for (const auto threads : kThreadCounts) EXPECT_EQ(pack(threads), serial) << threads;
    const qlpipe::Package package{path};
    package.verify();
    std::string unpacked(large.size(), '\0');
    const auto reader = package.bundle().files.back().open();
    for (std::size_t at = 0; at < unpacked.size();) at += reader->read(std::span{unpacked}.subspan(at));
    EXPECT_EQ(unpacked, large);
}

TEST_F(PackedFiles, ReportTheFirstErrorInTheirOrder) {
    add("a", noise(3'000'000));
    addVanishing("b");
    addVanishing("c");
    for (int i = 0; i < 500; ++i) add("d" + std::to_string(i), "x");
    const auto serial = failure(1);
    EXPECT_THAT(serial, testing::StartsWith("b no longer exists"));
    for (const auto threads : kThreadCounts) {
        opened = 0;
        bundle.files.clear();
        add("a", noise(3'000'000));
        addVanishing("b");
        addVanishing("c");
        for (int i = 0; i < 500; ++i) add("d" + std::to_string(i), "x");
        EXPECT_EQ(failure(threads), serial) << threads;
        EXPECT_LT(opened, 600) << "the others are not packed";
        EXPECT_FALSE(fs::exists(path));
    }
}

TEST_F(PackedFiles, RaiseEventsInTheCallingThreadOnly) {
    for (int i = 0; i < 50; ++i) add(std::to_string(i), noise(10'000));
    const auto caller = std::this_thread::get_id();
    sink.onProgress = [&] { EXPECT_EQ(std::this_thread::get_id(), caller); };
    pack(8);
    EXPECT_EQ(sink.percents.back(), 100);
}

/// As Ctrl+C does.
TEST_F(PackedFiles, AreAbandonedWhenTheSinkThrows) {
    for (int i = 0; i < 200; ++i) add(std::to_string(i), noise(100'000));
    for (const char* status : {"Reading", "Packing 1"}) {
        opened = 0;
        sink.onProgress = [&] {
            if (sink.statuses.back().starts_with(status)) throw basic::RuntimeError(51);
        };
        EXPECT_EQ(basic::attempt([&] { pack(8); }).Number, 51);
        EXPECT_LT(opened, 250);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 0);
    }
}

} // namespace
