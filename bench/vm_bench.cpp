// Speed of the machine: programs assembled by hand, timed by processor time. Compare with bench/vm_bench.lua.
// Usage: vm_bench [switch]
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/machine.h"
#include "tests/support/code_builder.h"
#include <cstdio>
#include <ctime>
#include <string_view>

using namespace code_builder;

namespace {

/// The answer is stored in the first global.
struct Kernel : Builder {
    Kernel() : main(procedure("Main")), answer(global(kDoubleSlot)) {}

    Code& main;
    std::uint32_t answer;

    void number(std::uint32_t slot, std::int32_t value) {
        main.op1(Op::LoadLong, static_cast<std::uint32_t>(value), slot);
    }
    void finish(std::uint32_t slot) { main.op1(Op::StoreGlobal, answer, slot).op(Op::Return); }
    void finishLong(std::uint32_t slot) {
        const auto f = main.add(kDoubleSlot);
        main.op(Op::LongToFloat, f, slot);
        finish(f);
    }
    void newArray(std::uint32_t array, std::int32_t last) {
        const auto lower = main.add(kLongSlot), upper = main.add(kLongSlot);
        number(lower, 0);
        number(upper, last);
        main.op(Op::ReDim, array, 0, 1).slots({lower, upper});
    }
};

void fibByValue(Kernel& k, std::int32_t count) {
    Code& fib = k.procedure("Fib");
    const auto n = fib.parameter(kLongSlot), result = fib.result(kLongSlot), a = fib.add(kLongSlot);
    const auto deeper = fib.label();
    fib.jump(Op::JumpGreaterEqualLongK, deeper, n, 2).op(Op::Move, result, n).op(Op::Return).here(deeper);
    fib.op(Op::AddLongK, a, n, 0xFF).call(Op::Call, fib.number(), result, {{Pass::Number, a}});
    fib.op(Op::AddLongK, a, n, 0xFE).call(Op::Call, fib.number(), a, {{Pass::Number, a}});
    fib.op(Op::AddLong, result, result, a).op(Op::Return);
    const auto x = k.main.add(kLongSlot);
    k.number(x, count);
    k.main.call(Op::Call, fib.number(), x, {{Pass::Number, x}});
    k.finishLong(x);
}

void fibByReference(Kernel& k, std::int32_t count) {
    Code& fib = k.procedure("Fib");
    const auto p = fib.parameter(refTo(BaseType::Long)), result = fib.result(kLongSlot), n = fib.add(kLongSlot),
               a = fib.add(kLongSlot);
    const auto deeper = fib.label();
    fib.op(Op::LoadLongRef, n, p).jump(Op::JumpGreaterEqualLongK, deeper, n, 2);
    fib.op(Op::LoadLongRef, result, p).op(Op::Return).here(deeper);
    fib.op(Op::LoadLongRef, n, p).op(Op::AddLongK, a, n, 0xFF);
    fib.call(Op::Call, fib.number(), result, {{Pass::Address, a}});
    fib.op(Op::LoadLongRef, n, p).op(Op::AddLongK, a, n, 0xFE);
    fib.call(Op::Call, fib.number(), n, {{Pass::Address, a}}).op(Op::AddLong, result, result, n).op(Op::Return);
    const auto x = k.main.add(kLongSlot), y = k.main.add(kLongSlot);
    k.number(x, count);
    k.main.call(Op::Call, fib.number(), y, {{Pass::Address, x}});
    k.finishLong(y);
}

void sieve(Kernel& k, std::int32_t size) {
    Code& m = k.main;
    const auto n = m.add(kLongSlot), a = m.add(arrayOf(BaseType::Byte)), i = m.add(kLongSlot), j = m.add(kLongSlot),
               count = m.add(kLongSlot), t = m.add(kLongSlot), one = m.add(kLongSlot);
    const auto top = m.label(), skip = m.label(), inner = m.label();
    k.newArray(a, size);
    k.number(n, size);
    k.number(i, 2);
    k.number(one, 1);
    m.here(top).op(Op::LoadByteAt, t, a, i).jump(Op::JumpNotEqualLongK, skip, t, 0);
    m.op(Op::AddLongK, count, count, 1).op(Op::AddLong, j, i, i).jump(Op::JumpLessLong, skip, n, j);
    m.here(inner).op(Op::StoreByteAt, one, a, j).jump(Op::ForLongStep, inner, j, n, i);
    m.here(skip).jump(Op::ForLong, top, i, n, 1);
    k.finishLong(count);
}

void mandelbrot(Kernel& k, std::int32_t size) {
    Code& m = k.main;
    const auto n = m.add(kLongSlot), total = m.add(kLongSlot), y = m.add(kLongSlot), x = m.add(kLongSlot),
               count = m.add(kLongSlot), last = m.add(kLongSlot);
    const auto ci = m.add(kDoubleSlot), cr = m.add(kDoubleSlot), zr = m.add(kDoubleSlot), zi = m.add(kDoubleSlot),
               w = m.add(kDoubleSlot), fn = m.add(kDoubleSlot), s = m.add(kDoubleSlot), t = m.add(kDoubleSlot);
    const auto two = m.floating(2), one = m.floating(1), three = m.floating(3), four = m.floating(4),
               zero = m.floating(0);
    const auto row = m.label(), point = m.label(), again = m.label(), out = m.label();
    k.number(n, size);
    k.number(y, 0);
    m.op(Op::AddLongK, last, n, 0xFF).op(Op::LongToFloat, fn, n);
    m.here(row).op(Op::LongToFloat, s, y).op(Op::MultiplyFloatK, s, s, two).op(Op::DivideFloat, s, s, fn);
    m.op(Op::SubtractFloatK, ci, s, one);
    k.number(x, 0);
    m.here(point).op(Op::LongToFloat, s, x).op(Op::MultiplyFloatK, s, s, three).op(Op::DivideFloat, s, s, fn);
    m.op(Op::SubtractFloatK, cr, s, two).wide(Op::LoadFloat, zr, zero).wide(Op::LoadFloat, zi, zero);
    k.number(count, 0);
    m.here(again).op(Op::MultiplyFloat, s, zr, zr).op(Op::MultiplyFloat, t, zi, zi).op(Op::SubtractFloat, s, s, t);
    m.op(Op::AddFloat, w, s, cr).op(Op::MultiplyFloatK, s, zr, two).op(Op::MultiplyFloat, s, s, zi);
    m.op(Op::AddFloat, zi, s, ci).op(Op::Move, zr, w);
    m.op(Op::MultiplyFloat, s, zr, zr).op(Op::MultiplyFloat, t, zi, zi).op(Op::AddFloat, s, s, t);
    m.jump(Op::JumpGreaterFloatK, out, s, four).op(Op::AddLongK, count, count, 1);
    m.jump(Op::JumpLessLongK, again, count, 50);
    m.here(out).op(Op::AddLong, total, total, count).jump(Op::ForLong, point, x, last, 1);
    m.jump(Op::ForLong, row, y, last, 1);
    k.finishLong(total);
}

void nbody(Kernel& k, std::int32_t steps) {
    Code& m = k.main;
    const auto n = m.add(kLongSlot), step = m.add(kLongSlot), i = m.add(kLongSlot), j = m.add(kLongSlot),
               five = m.add(kLongSlot);
    std::uint32_t a[7], d[3];
    for (auto& array : a) array = m.add(arrayOf(BaseType::Double));
    for (auto& difference : d) difference = m.add(kDoubleSlot);
    const auto distance = m.add(kDoubleSlot), s = m.add(kDoubleSlot), t = m.add(kDoubleSlot), u = m.add(kDoubleSlot);
    const double scales[] = {1.5, 0.7, 0.3, 0.01, 0.02, 0.005, 1};
    k.number(five, 20);
    for (const auto array : a) k.newArray(array, 20);
    const auto fill = m.label(), all = m.label(), outer = m.label(), inner = m.label(), moved = m.label(),
               end = m.label();
    k.number(i, 0);
    m.here(fill).op(Op::LongToFloat, s, i);
    for (int q = 0; q < 7; ++q) {
        m.op(Op::MultiplyFloatK, t, s, m.floating(scales[q])).op(Op::AddFloatK, t, t, m.floating(0.25 * q + 0.1));
        m.op(Op::StoreFloatAt, t, a[q], i);
    }
    m.jump(Op::ForLong, fill, i, five, 1);
    k.number(n, steps);
    k.number(step, 1);
    const auto soft = m.floating(0.5), dt = m.floating(0.0001);
    m.here(all);
    k.number(i, 0);
    m.here(outer).op(Op::AddLongK, j, i, 1).jump(Op::JumpLessLong, end, five, j).here(inner);
    for (int q = 0; q < 3; ++q)
        m.op(Op::LoadFloatAt, s, a[q], i).op(Op::LoadFloatAt, t, a[q], j).op(Op::SubtractFloat, d[q], s, t);
    m.op(Op::MultiplyFloat, distance, d[0], d[0]);
    for (int q = 1; q < 3; ++q) m.op(Op::MultiplyFloat, s, d[q], d[q]).op(Op::AddFloat, distance, distance, s);
    m.op(Op::AddFloatK, distance, distance, soft).op(Op::SqrFloat, s, distance).op(Op::MultiplyFloat, s, distance, s);
    m.op(Op::DivideKFloat, distance, dt, s);
    for (int side = 0; side < 2; ++side)
        for (int q = 0; q < 3; ++q) {
            const auto self = side == 0 ? i : j, other = side == 0 ? j : i;
            m.op(Op::LoadFloatAt, s, a[3 + q], self)
                .op(Op::LoadFloatAt, t, a[6], other)
                .op(Op::MultiplyFloat, u, d[q], t);
            m.op(Op::MultiplyFloat, u, u, distance).op(side == 0 ? Op::SubtractFloat : Op::AddFloat, s, s, u);
            m.op(Op::StoreFloatAt, s, a[3 + q], self);
        }
    m.jump(Op::ForLong, inner, j, five, 1).here(end).jump(Op::ForLong, outer, i, five, 1);
    k.number(i, 0);
    m.here(moved);
    for (int q = 0; q < 3; ++q) {
        m.op(Op::LoadFloatAt, s, a[3 + q], i).op(Op::MultiplyFloatK, s, s, dt).op(Op::LoadFloatAt, t, a[q], i);
        m.op(Op::AddFloat, s, t, s).op(Op::StoreFloatAt, s, a[q], i);
    }
    m.jump(Op::ForLong, moved, i, five, 1).jump(Op::ForLong, all, step, n, 1);
    k.number(i, 0);
    m.op(Op::LoadFloatAt, s, a[0], i);
    k.finish(s);
}

double runOnce(const std::shared_ptr<const tamarik::Program>& program, bool usesSwitch, double& answer) {
    tamarik::MachineOptions options;
    options.usesSwitch = usesSwitch;
    tamarik::Machine machine(program, tamarik::standardNatives(), options);
    const std::clock_t before = std::clock();
    machine.start();
    if (machine.run() != tamarik::RunState::Finished) std::printf("failed: %s\n", machine.error()->text.c_str());
    answer = machine.globals()[0].fraction;
    return static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

void measure(const char* name, void (*write)(Kernel&, std::int32_t), std::int32_t size, bool usesSwitch) {
    Kernel kernel;
    write(kernel, size);
    const auto program = kernel.build();
    double best = 1e9, answer = 0;
    for (int i = 0; i < 5; ++i) best = std::min(best, runOnce(program, usesSwitch, answer));
    std::printf("%-10s %9d  %.3f s  %.9g\n", name, size, best, answer);
}

} // namespace

int main(int argc, char** argv) {
    const bool usesSwitch = argc > 1 && std::string_view(argv[1]) == "switch";
    measure("fib", fibByValue, 32, usesSwitch);
    measure("fib ByRef", fibByReference, 32, usesSwitch);
    measure("sieve", sieve, 4000000, usesSwitch);
    measure("nbody", nbody, 5000, usesSwitch);
    measure("mandelbrot", mandelbrot, 500, usesSwitch);
    return 0;
}
