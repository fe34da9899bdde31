// The mouse over the zoom window must not allocate memory.
#include "zoom_world.h"
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> counting = false;
std::atomic<int> allocations = 0;

void* counted(std::size_t size) {
    if (counting) ++allocations;
    if (void* const memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}

} // namespace

// Not inlined: the compiler would see the memory of one operator in the function of another one.
[[gnu::noinline]] void* operator new(std::size_t size) { return counted(size); }
[[gnu::noinline]] void* operator new[](std::size_t size) { return counted(size); }
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

class ZoomAllocations : public testing::Test, protected test::ZoomWorld {
protected:
    ZoomAllocations() {
        follow(300, 200);
        document->HScroll1.Value(30);
        loop.timersAreDue = false;
        loop.turn();
        windows.records = windows.postsMoves = false;
    }
    template <class Act>
    int allocated(const Act& act) {
        allocations = 0;
        counting = true;
        act();
        counting = false;
        return allocations;
    }
};

TEST_F(ZoomAllocations, TheCounterCounts) {
    std::string* text = nullptr;
    EXPECT_GT(allocated([&] { text = new std::string(100, 'x'); }), 0);
    delete text;
}

TEST_F(ZoomAllocations, AMoveAllocatesNothing) {
    EXPECT_EQ(allocated([&] {
                  windows.move(inZoom(100, 100));
                  windows.move(inZoom(124 - 2, 74));
              }),
              0);
}

TEST_F(ZoomAllocations, ARefreshAllocatesNothing) {
    EXPECT_EQ(allocated([&] { document->UpdateDisplay(); }), 0);
}

TEST_F(ZoomAllocations, AMoveOfAControlAllocatesNothing) {
    windows.press(inZoom(200, 150));
    EXPECT_EQ(allocated([&] {
                  windows.move(inZoom(100, 100));
                  windows.move(inZoom(110, 90));
              }),
              0);
    windows.release(inZoom(100, 100));
}

TEST_F(ZoomAllocations, AMoveOfAHandleAllocatesNothing) {
    windows.press(inZoom(124 - 2, 74));
    ASSERT_EQ(windows.hooks(), 1u);
    EXPECT_EQ(allocated([&] {
                  windows.move(inZoom(130, 100));
                  windows.move(inZoom(140, 90));
              }),
              0);
    windows.release(inZoom(100, 100));
}

} // namespace
