-- The programs of vm_bench.cpp.
local function fib(n)
    if n < 2 then return n end
    return fib(n - 1) + fib(n - 2)
end

local function sieve(n)
    local a, count = {}, 0
    for i = 0, n do a[i] = 0 end
    for i = 2, n do
        if a[i] == 0 then
            count = count + 1
            for j = i + i, n, i do a[j] = 1 end
        end
    end
    return count
end

local function nbody(steps)
    local n, dt, soft = 20, 0.0001, 0.5
    local x, y, z, vx, vy, vz, m = {}, {}, {}, {}, {}, {}, {}
    local all, scales = {x, y, z, vx, vy, vz, m}, {1.5, 0.7, 0.3, 0.01, 0.02, 0.005, 1}
    for i = 0, n do
        for q = 1, 7 do all[q][i] = i * scales[q] + (0.25 * (q - 1) + 0.1) end
    end
    local sqrt = math.sqrt
    for _ = 1, steps do
        for i = 0, n do
            for j = i + 1, n do
                local dx, dy, dz = x[i] - x[j], y[i] - y[j], z[i] - z[j]
                local d = dx * dx + dy * dy + dz * dz + soft
                d = dt / (d * sqrt(d))
                vx[i] = vx[i] - dx * m[j] * d
                vy[i] = vy[i] - dy * m[j] * d
                vz[i] = vz[i] - dz * m[j] * d
                vx[j] = vx[j] + dx * m[i] * d
                vy[j] = vy[j] + dy * m[i] * d
                vz[j] = vz[j] + dz * m[i] * d
            end
        end
        for i = 0, n do
            x[i] = x[i] + vx[i] * dt
            y[i] = y[i] + vy[i] * dt
            z[i] = z[i] + vz[i] * dt
        end
    end
    return x[0]
end

local function mandelbrot(n)
    local total = 0
    for py = 0, n - 1 do
        local ci = py * 2.0 / n - 1.0
        for px = 0, n - 1 do
            local cr = px * 3.0 / n - 2.0
            local zr, zi, k = 0.0, 0.0, 0
            repeat
                local w = zr * zr - zi * zi + cr
                zi = 2.0 * zr * zi + ci
                zr = w
                if zr * zr + zi * zi > 4.0 then break end
                k = k + 1
            until k >= 50
            total = total + k
        end
    end
    return total
end

local function measure(name, f, size)
    local best, answer = 1e9, nil
    for _ = 1, 5 do
        local before = os.clock()
        answer = f(size)
        best = math.min(best, os.clock() - before)
    end
    print(string.format("%-10s %9d  %.3f s  %.9g", name, size, best, answer))
end

measure("fib", fib, 32)
measure("sieve", sieve, 4000000)
measure("nbody", nbody, 5000)
measure("mandelbrot", mandelbrot, 500)
