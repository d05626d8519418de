// The inner loops: from numpy's pointers, sizes and strides to calls of the library.
//
// Each operation takes the S2 forms, which take any strides and are the same bits on every machine; matrix products
// whose rows are contiguous, and sums of contiguous vectors, take the standard layout, which is faster, with the same
// bits but for signs of zeros in products of float32. A broadcast operand has an object stride of 0. numpy sees to
// broadcasting, types, alignment and byte order, and copies inputs that an output overlaps: within a loop no output
// overlaps an input, but for element-wise operations in place.
#include "loops.h"

#include "export_table.h"
#include "scaling.h"

#include <new>
#include <utility>

#include <xmmintrin.h>

namespace vonkk3 {

namespace {

constexpr std::int32_t ok = 0, errSize = -6, errSingular = -10, errNotPosDef = -179;
constexpr Size manyObjects = Size{1} << 24; // in one call; below the signed counts of Cholesky's families
constexpr Size blockOfObjects = 256;        // in one call that is followed by another over the same objects

thread_local Size failures = 0;

// The library does not promise the sticky exception flags; numpy would make warnings of them.
struct Flags {
    ~Flags() {
        __asm__ volatile("fnclex");
        _mm_setcsr(_mm_getcsr() & ~0x3fu);
    }
};

std::int32_t s(Size stride) { return static_cast<std::int32_t>(stride); }
std::uint32_t u(Size size) { return static_cast<std::uint32_t>(size); }

template <typename T> T *p(const View &view) { return reinterpret_cast<T *>(view.data); }

// `out` is an operand in which objects lie differently: broadcast, or with other core dimensions.
struct InPlace {};

// Hands out numpy's arguments one by one: dimensions and steps of the cores follow those of the loop.
//
// numpy copies an input that an output overlaps, but not one that an output IS. Such an input is copied here: few
// families work in place, and none of those that may fail, since objects are tried again.
template <typename T> class Arguments {
public:
    Arguments(char **data, const Size *dimensions, const Size *steps, int inputs, int outputs)
        : count(dimensions[0]), firstData(data), data(data), firstOutput(data + inputs), end(firstOutput + outputs),
          firstOuter(steps), outers(steps), cores(steps + inputs + outputs) {}

    const Size count;

    View matrix(Size rows, Size cols) {
        View view = next(sizeof(T));
        view.rows = rows, view.cols = cols;
        view.row = *cores++, view.elem = *cores++;
        return copiedIfInPlace(view);
    }
    View vector(Size cols, Size size = sizeof(T)) {
        View view = next(size);
        view.cols = cols, view.elem = *cores++;
        return copiedIfInPlace(view);
    }
    View scalar(Size size = sizeof(T)) { return next(size); } // always an output
    // A vector as a matrix of one column, or a matrix of `cols` columns.
    View columns(Size rows, Size cols, bool one) {
        if (!one) return matrix(rows, cols);
        View view = next(sizeof(T));
        view.rows = rows, view.row = *cores++, view.elem = view.size;
        return copiedIfInPlace(view);
    }

private:
    View next(Size size) {
        View view;
        view.written = data >= firstOutput;
        view.data = *data++, view.outer = *outers++, view.size = size, view.elem = size;
        return view;
    }
    View copiedIfInPlace(View view) {
        if (view.written) return view;
        char **const output = std::find(firstOutput, end, view.data);
        if (output == end) return view;
        // Objects lie differently in the two, so that one object's result may have overwritten another's input.
        if (count > 1 && view.outer != firstOuter[output - firstData]) throw InPlace();
        const Size objects = view.outer == 0 ? 1 : count, object = view.elements() * view.size;
        std::vector<char> &copy = copies.emplace_back(static_cast<std::size_t>(objects * object));
        char *to = copy.data();
        for (Size k = 0; k < objects; ++k)
            for (Size i = 0; i < view.rows; ++i)
                for (Size j = 0; j < view.cols; ++j, to += view.size)
                    std::memcpy(to, view.at(k) + i * view.row + j * view.elem, static_cast<std::size_t>(view.size));
        view.data = copy.data(), view.outer = objects == 1 ? 0 : object;
        view.row = view.cols * view.size, view.elem = view.size;
        return view;
    }

    char **const firstData;
    char **data;
    char **const firstOutput;
    char **const end;
    const Size *const firstOuter;
    const Size *outers;
    const Size *cores;
    std::vector<std::vector<char>> copies;
};

class Status {
public:
    explicit Status(const View &view) : view(view) {}
    void set(Size object, std::int32_t status) const {
        std::memcpy(view.at(object), &status, sizeof status);
        failures += status != ok;
    }
    void succeed(Size first, Size count) const {
        if (view.outer == sizeof(std::int32_t)) std::fill_n(p<std::int32_t>(view.from(first)), count, ok);
        else
            for (Size k = first; k < first + count; ++k) set(k, ok);
    }

private:
    View view;
};

template <typename T> constexpr T nan = std::numeric_limits<T>::quiet_NaN();

// Results that the library stores packed: in place if they are, else by a block on the stack.
// call(T *results, first, count)
template <typename T, class Call> void packedResults(const View &results, Size count, Call &&call) {
    if (results.outer == static_cast<Size>(sizeof(T)) || count == 1) return call(p<T>(results), 0, count);
    T block[blockOfObjects];
    for (Size first = 0; first < count; first += blockOfObjects) {
        const Size run = std::min(blockOfObjects, count - first);
        call(block, first, run);
        for (Size k = 0; k < run; ++k) std::memcpy(results.at(first + k), block + k, sizeof(T));
    }
}

template <typename T> void fillAll(const View &view, Size count, T value) {
    for (Size k = 0; k < count; ++k) fill(view.from(k), value);
}

// ---- Products and data movement

template <typename T> void matmul(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 1);
    const Size m = dimensions[1], k = dimensions[2], n = dimensions[3];
    const View a = arguments.matrix(m, k), b = arguments.matrix(k, n), c = arguments.matrix(m, n);
    if (m == 0 || n == 0) return;
    if (k == 0) return fillAll<T>(c, arguments.count, 0);
    inRuns<T>(std::array{a, b, c}, 0, arguments.count, manyObjects, [&](auto &v, Size, Size count) {
        const auto &[a, b, c] = v;
        // The array forms check src1Rows against src2Cols, and so take only results that are square.
        if (m == n && a.contiguous() && b.contiguous() && c.contiguous())
            return Exports<T>::Mul_mama(p<T>(a), s(a.outer), s(a.row), u(k), u(m), p<T>(b), s(b.outer), s(b.row), u(n),
                                        u(k), p<T>(c), s(c.outer), s(c.row), u(count));
        if (m == n)
            return Exports<T>::Mul_mama_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(k), u(m), p<T>(b), s(b.outer),
                                           s(b.row), s(b.elem), u(n), u(k), p<T>(c), s(c.outer), s(c.row), s(c.elem),
                                           u(count));
        if (b.outer == 0)
            return Exports<T>::Mul_mam_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(k), u(m), p<T>(b), s(b.row),
                                          s(b.elem), u(n), u(k), p<T>(c), s(c.outer), s(c.row), s(c.elem), u(count));
        for (Size i = 0; i < count; ++i)
            Exports<T>::Mul_mm_S2(p<T>(a.from(i)), s(a.row), s(a.elem), u(k), u(m), p<T>(b.from(i)), s(b.row),
                                  s(b.elem), u(n), u(k), p<T>(c.from(i)), s(c.row), s(c.elem));
        return ok;
    });
}

template <typename T> void matvec(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 1);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), x = arguments.vector(n), y = arguments.vector(m);
    if (m == 0) return;
    if (n == 0) return fillAll<T>(y, arguments.count, 0);
    inRuns<T>(std::array{a, x, y}, 0, arguments.count, manyObjects, [&](auto &v, Size, Size count) {
        const auto &[a, x, y] = v;
        return Exports<T>::Mul_mava_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), u(m), p<T>(x), s(x.outer),
                                       s(x.elem), u(n), p<T>(y), s(y.outer), s(y.elem), u(count));
    });
}

template <typename T> void gaxpy(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 3, 1);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), x = arguments.vector(n), y = arguments.vector(m), z = arguments.vector(m);
    if (m == 0) return;
    if (n == 0) { // an empty sum is +0, and added to y
        for (Size k = 0; k < arguments.count; ++k)
            for (Size i = 0; i < m; ++i)
                *reinterpret_cast<T *>(z.at(k) + i * z.elem) =
                    T{0} + *reinterpret_cast<const T *>(y.at(k) + i * y.elem);
        return;
    }
    inRuns<T>(std::array{a, x, y, z}, 0, arguments.count, manyObjects, [&](auto &v, Size, Size count) {
        const auto &[a, x, y, z] = v;
        if (a.outer == 0)
            return Exports<T>::Gaxpy_va_S2(p<T>(a), s(a.row), s(a.elem), p<T>(x), s(x.outer), s(x.elem), p<T>(y),
                                           s(y.outer), s(y.elem), p<T>(z), s(z.outer), s(z.elem), u(n), u(m), u(count));
        for (Size i = 0; i < count; ++i)
            Exports<T>::Gaxpy_v_S2(p<T>(a.from(i)), s(a.row), s(a.elem), p<T>(x.from(i)), s(x.elem), p<T>(y.from(i)),
                                   s(y.elem), p<T>(z.from(i)), s(z.elem), u(n), u(m));
        return ok;
    });
}

template <typename T> void transpose(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 1);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), b = arguments.matrix(n, m);
    if (m == 0 || n == 0) return;
    inRuns<T>(std::array{a, b}, 0, arguments.count, manyObjects, [&](auto &v, Size, Size count) {
        const auto &[a, b] = v;
        return Exports<T>::Transpose_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), u(m), p<T>(b), s(b.outer),
                                           s(b.row), s(b.elem), u(count));
    });
}

template <typename T> void cross(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 1);
    const View a = arguments.vector(3), b = arguments.vector(3), c = arguments.vector(3);
    inRuns<T>(std::array{a, b, c}, 0, arguments.count, manyObjects, [&](auto &v, Size, Size count) {
        const auto &[a, b, c] = v;
        return Exports<T>::CrossProduct_vava_S2(p<T>(a), s(a.outer), s(a.elem), p<T>(b), s(b.outer), s(b.elem), p<T>(c),
                                                s(c.outer), s(c.elem), u(count));
    });
}

// ---- One number for each object

template <typename T> void dot(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 1);
    const Size n = dimensions[1];
    const View a = arguments.vector(n), b = arguments.vector(n), result = arguments.scalar();
    if (n == 0) return fillAll<T>(result, arguments.count, 0);
    packedResults<T>(result, arguments.count, [&](T *results, Size start, Size total) {
        inRuns<T>(std::array{a, b}, start, total, manyObjects, [&](auto &v, Size first, Size count) {
            const auto &[a, b] = v;
            return Exports<T>::DotProduct_vava_S2(p<T>(a), s(a.outer), s(a.elem), p<T>(b), s(b.outer), s(b.elem),
                                                  results + (first - start), u(n), u(count));
        });
    });
}

template <typename T> void norm(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 1);
    const Size n = dimensions[1];
    const View a = arguments.vector(n), result = arguments.scalar();
    if (n == 0) return fillAll<T>(result, arguments.count, 0);
    packedResults<T>(result, arguments.count, [&](T *results, Size start, Size total) {
        inRuns<T>(std::array{a}, start, total, manyObjects, [&](auto &v, Size first, Size count) {
            const auto &[a] = v;
            return Exports<T>::L2Norm_va_S2(p<T>(a), s(a.outer), s(a.elem), results + (first - start), u(n), u(count));
        });
    });
}

template <typename T> void frobenius(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 1);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), result = arguments.scalar();
    if (m == 0 || n == 0) return fillAll<T>(result, arguments.count, 0);
    packedResults<T>(result, arguments.count, [&](T *results, Size start, Size total) {
        inRuns<T>(std::array{a}, start, total, manyObjects, [&](auto &v, Size first, Size count) {
            const auto &[a] = v;
            return Exports<T>::FrobNorm_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), u(m),
                                              results + (first - start), u(count));
        });
    });
}

template <typename T> void trace(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 1);
    const Size n = dimensions[1];
    const View a = arguments.matrix(n, n), result = arguments.scalar();
    if (n == 0) return fillAll<T>(result, arguments.count, 0);
    packedResults<T>(result, arguments.count, [&](T *results, Size start, Size total) {
        inRuns<T>(std::array{a}, start, total, manyObjects, [&](auto &v, Size first, Size count) {
            const auto &[a] = v;
            return Exports<T>::Trace_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), results + (first - start),
                                           u(count));
        });
    });
}

// One determinant, whatever the order and the size of the elements. Orders 1 and 2 are those of 3 by 3 matrices with
// ones added to the diagonal. At run-time orders the library's tolerance is absolute, so the matrix is equilibrated: a
// pivot below it is then within the rounding of an elimination.
template <typename T> T oneDeterminant(const View &a) {
    const Size n = a.rows;
    T result = 0;
    if (n < 3) {
        T block[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
        for (Size i = 0; i < n; ++i)
            for (Size j = 0; j < n; ++j) std::memcpy(block + 3 * i + j, a.data + i * a.row + j * a.elem, sizeof(T));
        Exports<T>::Det_m(block, 3 * sizeof(T), 3, nullptr, &result);
        return result;
    }
    Room<T> room(2 * n * n + n);
    T *const matrix = room.data();
    pack(a, matrix);
    if (n <= 6) {
        Exports<T>::Det_m(matrix, s(n * static_cast<Size>(sizeof(T))), u(n), nullptr, &result);
        return result;
    }
    Scaling scaling;
    if (!equilibrate(matrix, n, n, scaling, 0, true))
        return std::all_of(matrix, matrix + n * n, [](T x) { return std::isfinite(x); }) ? T{0} : nan<T>;
    Exports<T>::Det_m(matrix, s(n * static_cast<Size>(sizeof(T))), u(n), matrix + n * n, &result);
    long exponent = 0;
    for (Size i = 0; i < n; ++i)
        exponent += scaling.row[static_cast<std::size_t>(i)] + scaling.col[static_cast<std::size_t>(i)];
    return std::ldexp(result, static_cast<int>(std::clamp(exponent, -100000L, 100000L)));
}

template <typename T> void det(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 1);
    const Size n = dimensions[1];
    const View a = arguments.matrix(n, n), result = arguments.scalar();
    if (n == 0) return fillAll<T>(result, arguments.count, 1);
    packedResults<T>(result, arguments.count, [&](T *results, Size start, Size total) {
        inRuns<T>(std::array{a}, start, total, blockOfObjects, [&](auto &v, Size first, Size count) {
            const View &a = v[0];
            T *const block = results + (first - start);
            if (n < 3 || n > 6) {
                for (Size k = 0; k < count; ++k) block[k] = oneDeterminant<T>(a.from(k));
                return ok;
            }
            Exports<T>::Det_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), nullptr, block, u(count));
            // S2 rounds each operation of `32f` to float: products of such elements neither overflow nor become
            // subnormal. All others take the form that works in the 80-bit type.
            if constexpr (std::is_same_v<T, float>) {
                constexpr int least = -20, most = 20;
                const Size size = n * n * a.size;
                if (a.packed() && (a.outer == size || count == 1) && inRange(p<float>(a), n * n * count, least, most))
                    return ok;
                for (Size k = 0; k < count; ++k)
                    if (!inRange(a.from(k), least, most)) block[k] = oneDeterminant<T>(a.from(k));
            }
            return ok;
        });
    });
}

// ---- LU decomposition
//
// The array forms check the last pivot of an object at another place, so each matrix is decomposed by a single call;
// but for many float systems of order 5 and 6, which go through a workspace in which that place holds a 1.

// The library refuses a pivot below 2^-23. Scaled to 2^luTarget, that is 2^-23 of the largest elements in float32 and
// 2^-48 in float64, both a little above the rounding errors of an elimination.
template <typename T> constexpr int luTarget = std::is_same_v<T, float> ? 0 : 25;

// The packed factors of one matrix. One that the library's absolute tolerance refuses is equilibrated, and what that
// gives is scaled back to the factors of the matrix itself, if that is exact.
template <typename T> std::int32_t decompose(const View &a, T *factors, std::uint32_t *pivots) {
    const Size n = a.rows, row = n * static_cast<Size>(sizeof(T));
    std::int32_t status;
    if (a.contiguous() && narrow(a.row))
        status = Exports<T>::LUDecomp_m(p<T>(a), s(a.row), pivots, factors, s(row), u(n));
    else if (coreNarrow(a))
        status = Exports<T>::LUDecomp_m_S2(p<T>(a), s(a.row), s(a.elem), pivots, factors, s(row), sizeof(T), u(n));
    else {
        pack(a, factors);
        status = Exports<T>::LUDecomp_m(factors, s(row), pivots, factors, s(row), u(n));
    }
    if (status == ok) return ok;
    Scaling scaling;
    pack(a, factors);
    if (!equilibrate(factors, n, n, scaling, luTarget<T>, true)) return errSingular;
    if (Exports<T>::LUDecomp_m(factors, s(row), pivots, factors, s(row), u(n)) != ok) return errSingular;
    for (Size i = 0; i < n; ++i)
        for (Size j = 0; j < n; ++j) {
            const int by = j < i ? -scaling.row[pivots[j]] : scaling.col[static_cast<std::size_t>(j)];
            if (!scaleExactly(factors[static_cast<Size>(pivots[i]) * n + j], scaling.row[pivots[i]] + by))
                return errSingular;
        }
    return ok;
}

// Many at a time. The array form checks for object n not the last pivot, which lies in a row r, but the element n order
// columns further on, of packed objects at n order^2 + r order + (order - 1) + n order. From object `order` on that is
// past the object, in one that is not written yet or past them all, where all elements are 1 here. Before come as many
// identities: of the first it is the last pivot, 1, and of the others it lies past the object, too.
class LuBlock {
public:
    static constexpr Size most = 32, least = 32; // matrices
    static constexpr bool takes(const View &a, Size count) {
        return a.rows >= 5 && a.rows <= 6 && count >= least && count <= most;
    }

    // The factors of `count` matrices and their pivots, packed; false if one of them cannot be decomposed.
    bool decompose(const View &a, Size count, float *factors, std::uint32_t *pivots) {
        const Size n = a.rows, area = n * n, row = n * static_cast<Size>(sizeof(float)), objects = n + count;
        for (Size k = 0; k < n; ++k)
            for (Size i = 0; i < area; ++i)
                source[static_cast<std::size_t>(k * area + i)] = i % (n + 1) == 0 ? 1.0F : 0.0F;
        for (Size k = 0; k < count; ++k) pack(a.from(k), &source[static_cast<std::size_t>((n + k) * area)]);
        std::fill_n(results.begin(), (objects - 1) * (area + n) + area, 1.0F);
        if (Exports<float>::LUDecomp_ma(source.data(), s(n * row), s(row), places.data(), results.data(), s(n * row),
                                        s(row), u(n), u(objects)) != ok)
            return false;
        std::copy_n(&results[static_cast<std::size_t>(n * area)], count * area, factors);
        std::copy_n(&places[static_cast<std::size_t>(area)], count * n, pivots);
        bool allPass = true;
        for (Size k = 0; k < count; ++k) { // a NaN does not
            const float last = factors[k * area + static_cast<Size>(pivots[k * n + n - 1]) * n + n - 1];
            allPass = allPass && std::fabs(last) >= 0x1p-23F;
        }
        return allPass;
    }

private:
    static constexpr std::size_t order = 6, objects = order + most;
    std::array<float, objects * order * order> source;
    std::array<float, (objects - 1) * (order * order + order) + order * order> results;
    std::array<std::uint32_t, objects * order> places;
};

// Of `count` matrices, packed; outcome[k] tells of matrix k.
template <typename T>
void decomposeEach(const View &a, Size count, T *factors, std::uint32_t *pivots, std::int32_t *outcome) {
    const Size n = a.rows;
    if constexpr (std::is_same_v<T, float>) {
        LuBlock block;
        for (Size k = 0; k < count;) {
            const Size run = std::min(block.most, count - k);
            if (!block.takes(a, run) || !block.decompose(a.from(k), run, factors + k * n * n, pivots + k * n))
                for (Size each = k; each < k + run; ++each)
                    outcome[each] = decompose(a.from(each), factors + each * n * n, pivots + each * n);
            else std::fill_n(outcome + k, run, ok);
            k += run;
        }
    } else
        for (Size k = 0; k < count; ++k) outcome[k] = decompose(a.from(k), factors + k * n * n, pivots + k * n);
}

// Matrices whose factors go through a workspace together.
constexpr Size objectsOfBlock(Size elements) {
    return std::clamp<Size>(2304 / std::max<Size>(elements, 1), 1, blockOfObjects);
}

template <typename T> void lu(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 3);
    const Size n = dimensions[1];
    const View a = arguments.matrix(n, n), factors = arguments.matrix(n, n);
    const View pivots = arguments.vector(n, sizeof(std::uint32_t));
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    const bool packed = factors.packed();
    Room<T> room(packed ? 0 : n * n);
    Room<std::uint32_t> places(n);
    for (Size k = 0; k < arguments.count; ++k) {
        T *const to = packed ? p<T>(factors.from(k)) : room.data();
        const std::int32_t done = decompose(a.from(k), to, places.data());
        status.set(k, done);
        if (done != ok) {
            std::fill_n(to, n * n, nan<T>);
            for (Size i = 0; i < n; ++i) places.data()[i] = u(i);
        }
        if (!packed) unpack(to, factors.from(k));
        unpack(places.data(), pivots.from(k));
    }
}

// ---- Solvers

// What all solvers share: x from factors that `factor` makes, for blocks of objects.
//   factor(object, count, T *packed, first): makes the factors, and for each object calls status.set
//   substitute(packed, single, b, x, column, first, count): one column of the right-hand sides
template <typename T, class Factor, class Substitute>
void solveBlocks(bool single, Size factorSize, const View &b, const View &x, Size count, const Status &status,
                 Factor &&factor, Substitute &&substitute) {
    const Size block = objectsOfBlock(factorSize);
    Room<T> room(block * factorSize);
    std::array<std::int32_t, blockOfObjects> outcome;
    T *const factors = room.data();
    if (single) factor(0, 1, factors, outcome.data());
    const Size most = single ? blockOfObjects : block;
    for (Size start = 0; start < count; start += most) {
        const Size run = std::min(most, count - start);
        if (!single) factor(start, run, factors, outcome.data());
        inRuns<T>(std::array{b, x}, start, run, run, [&](auto &v, Size first, Size number) {
            for (Size column = 0; column < b.cols; ++column) {
                View from = v[0], to = v[1];
                from.data += column * from.elem, to.data += column * to.elem;
                substitute(factors + (single ? 0 : (first - start) * factorSize), single ? 0 : first - start, from, to,
                           number);
            }
            return ok;
        });
        for (Size k = 0; k < run; ++k) {
            status.set(start + k, outcome[single ? 0 : k]);
            if (outcome[single ? 0 : k] != ok) fill(x.from(start + k), nan<T>);
        }
    }
}

template <typename T> void makeIdentity(T *matrix, Size n) {
    std::fill_n(matrix, n * n, T{0});
    for (Size i = 0; i < n; ++i) matrix[i * n + i] = 1;
}

template <typename T>
void substituteLu(Size n, const T *factors, const std::uint32_t *pivots, bool single, const View &b, const View &x,
                  Size count) {
    const Size row = n * static_cast<Size>(sizeof(T));
    if (single)
        Exports<T>::LUBackSubst_mva_S2(factors, 0, s(row), sizeof(T), pivots, p<T>(b), s(b.outer), s(b.row), p<T>(x),
                                       s(x.outer), s(x.row), u(n), u(count));
    else
        Exports<T>::LUBackSubst_mava_S2(factors, s(n * row), s(row), sizeof(T), pivots, p<T>(b), s(b.outer), s(b.row),
                                        p<T>(x), s(x.outer), s(x.row), u(n), u(count));
}

template <typename T, bool oneColumn> void solve(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 2);
    const Size n = dimensions[1], columns = oneColumn ? 1 : dimensions[2];
    const View a = arguments.matrix(n, n), b = arguments.columns(n, columns, oneColumn);
    const View x = arguments.columns(n, columns, oneColumn);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    Room<std::uint32_t> places(n * blockOfObjects);
    solveBlocks<T>(
        a.outer == 0, n * n, b, x, arguments.count, status,
        [&](Size first, Size count, T *factors, std::int32_t *outcome) {
            decomposeEach(a.from(first), count, factors, places.data(), outcome);
            for (Size k = 0; k < count; ++k) {
                if (outcome[k] == ok) continue;
                makeIdentity(factors + k * n * n, n);
                for (Size i = 0; i < n; ++i) places.data()[k * n + i] = u(i);
            }
        },
        [&](const T *factors, Size index, const View &from, const View &to, Size count) {
            substituteLu(n, factors, places.data() + index * n, a.outer == 0, from, to, count);
        });
}

template <typename T, bool oneColumn> void luSolve(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 3, 2);
    const Size n = dimensions[1], columns = oneColumn ? 1 : dimensions[2];
    const View a = arguments.matrix(n, n), pivots = arguments.vector(n, sizeof(std::uint32_t));
    const View b = arguments.columns(n, columns, oneColumn), x = arguments.columns(n, columns, oneColumn);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    Room<std::uint32_t> places(n * blockOfObjects);
    const bool single = a.outer == 0 && pivots.outer == 0;
    solveBlocks<T>(
        single, n * n, b, x, arguments.count, status,
        [&](Size first, Size count, T *factors, std::int32_t *outcome) {
            for (Size k = 0; k < count; ++k) {
                std::uint32_t *const rows = places.data() + k * n;
                pack(a.from(first + k), factors + k * n * n);
                pack(pivots.from(first + k), rows);
                outcome[k] = std::all_of(rows, rows + n, [&](std::uint32_t row) { return row < u(n); }) ? ok : errSize;
                if (outcome[k] != ok)
                    for (Size i = 0; i < n; ++i) rows[i] = u(i);
            }
        },
        [&](const T *factors, Size index, const View &from, const View &to, Size count) {
            substituteLu(n, factors, places.data() + index * n, single, from, to, count);
        });
}

// ---- Cholesky decomposition

template <typename T> void cholesky(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 2);
    const Size n = dimensions[1];
    const View a = arguments.matrix(n, n), l = arguments.matrix(n, n);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    auto attempt = [&](Size first, Size count) {
        const std::int32_t done = inRuns<T>(std::array{a, l}, first, count, count, [&](auto &v, Size, Size run) {
            const auto &[a, l] = v;
            return Exports<T>::CholeskyDecomp_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), p<T>(l), s(l.outer),
                                                    s(l.row), s(l.elem), u(n), s(run));
        });
        if (done != ok) return done;
        status.succeed(first, count);
        // The library leaves reciprocals on the diagonal, and does not touch what is above it.
        for (Size k = first; k < first + count; ++k)
            for (Size i = 0; i < n; ++i) {
                char *const row = l.at(k) + i * l.row;
                T &diagonal = *reinterpret_cast<T *>(row + i * l.elem);
                diagonal = 1 / diagonal;
                for (Size j = i + 1; j < n; ++j) *reinterpret_cast<T *>(row + j * l.elem) = 0;
            }
        return ok;
    };
    auto failed = [&](Size object, std::int32_t done) {
        status.set(object, done);
        fill(l.from(object), nan<T>);
    };
    for (Size first = 0; first < arguments.count; first += blockOfObjects)
        eachObject(first, std::min(blockOfObjects, arguments.count - first), attempt, failed);
}

template <typename T>
void substituteCholesky(Size n, const T *factors, bool single, const View &b, const View &x, Size count) {
    const Size row = n * static_cast<Size>(sizeof(T));
    if (single)
        Exports<T>::CholeskyBackSubst_mva_S2(factors, s(row), sizeof(T), p<T>(b), s(b.outer), s(b.row), p<T>(x),
                                             s(x.outer), s(x.row), s(n), s(count));
    else
        Exports<T>::CholeskyBackSubst_mava_S2(factors, s(n * row), s(row), sizeof(T), p<T>(b), s(b.outer), s(b.row),
                                              p<T>(x), s(x.outer), s(x.row), s(n), s(count));
}

// factored: `a` is what cholesky gives; else a matrix to decompose.
template <typename T, bool oneColumn, bool factored>
void choleskySolve(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 2);
    const Size n = dimensions[1], columns = oneColumn ? 1 : dimensions[2];
    const View a = arguments.matrix(n, n), b = arguments.columns(n, columns, oneColumn);
    const View x = arguments.columns(n, columns, oneColumn);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    const Size row = n * static_cast<Size>(sizeof(T));
    solveBlocks<T>(
        a.outer == 0, n * n, b, x, arguments.count, status,
        [&](Size start, Size total, T *factors, std::int32_t *outcome) {
            if constexpr (factored) {
                for (Size k = 0; k < total; ++k) {
                    T *const to = factors + k * n * n;
                    outcome[k] = ok;
                    for (Size i = 0; i < n; ++i) {
                        const char *const from = a.at(start + k) + i * a.row;
                        for (Size j = 0; j <= i; ++j) std::memcpy(to + i * n + j, from + j * a.elem, sizeof(T));
                        if (!(to[i * n + i] > 0)) outcome[k] = errNotPosDef;
                        to[i * n + i] = 1 / to[i * n + i];
                    }
                }
            } else {
                auto attempt = [&](Size begin, Size count) {
                    const std::int32_t done =
                        inRuns<T>(std::array{a}, begin, count, count, [&](auto &v, Size first, Size run) {
                            const View &a = v[0];
                            return Exports<T>::CholeskyDecomp_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem),
                                                                    factors + (first - start) * n * n, s(n * row),
                                                                    s(row), sizeof(T), u(n), s(run));
                        });
                    if (done == ok) std::fill_n(outcome + (begin - start), count, ok);
                    return done;
                };
                auto failed = [&](Size object, std::int32_t done) {
                    outcome[object - start] = done;
                    makeIdentity(factors + (object - start) * n * n, n);
                };
                eachObject(start, total, attempt, failed);
            }
        },
        [&](const T *factors, Size, const View &from, const View &to, Size count) {
            substituteCholesky(n, factors, a.outer == 0, from, to, count);
        });
}

// ---- Inverse

// From LU factors: the columns of the identity are the right-hand sides. For all orders that have no unrolled form, and
// for matrices that the library's absolute tolerance for determinants refuses, or that are not plain.
template <typename T> std::int32_t invertByLu(const View &a, const View &x) {
    const Size n = a.rows;
    Room<T> room(3 * n * n);
    Room<std::uint32_t> pivots(n);
    T *const factors = room.data(), *const identity = factors + n * n, *const result = identity + n * n;
    if (const std::int32_t status = decompose(a, factors, pivots.data())) return status;
    makeIdentity(identity, n);
    View from, to;
    from.data = reinterpret_cast<char *>(identity), to.data = reinterpret_cast<char *>(result);
    from.outer = to.outer = sizeof(T), from.row = to.row = n * static_cast<Size>(sizeof(T));
    substituteLu(n, factors, pivots.data(), true, from, to, n);
    unpack(result, x);
    return ok;
}

// May the inverse of a matrix be taken as cofactors or blocks give it? Their errors grow with the square of the
// condition, those of order 6 the fastest, so that an elimination is better where it is large; the product of the
// largest elements is a lower bound of it. And the products of large elements may overflow, in float32.
template <typename T> bool isPlain(Size n, T ofMatrix, T ofInverse) {
    constexpr bool single = std::is_same_v<T, float>;
    constexpr double most = single ? 0x1p20 : std::numeric_limits<T>::max();
    const double condition = n < 6 ? (single ? 0x1p8 : 0x1p20) : (single ? 0x1p6 : 0x1p13);
    return ofMatrix <= most && static_cast<double>(ofMatrix) * ofInverse <= condition;
}

template <typename T> void inv(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 2);
    const Size n = dimensions[1];
    const View a = arguments.matrix(n, n), x = arguments.matrix(n, n);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    const bool fixed = n >= 3 && n <= 6;
    auto failed = [&](Size object, std::int32_t) {
        const std::int32_t done = invertByLu<T>(a.from(object), x.from(object));
        status.set(object, done);
        if (done != ok) fill(x.from(object), nan<T>);
    };
    auto attempt = [&](Size first, Size count) {
        const std::int32_t done = inRuns<T>(std::array{a, x}, first, count, count, [&](auto &v, Size, Size run) {
            const auto &[a, x] = v;
            return Exports<T>::Invert_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), u(n), nullptr, p<T>(x),
                                            s(x.outer), s(x.row), s(x.elem), u(run));
        });
        if (done != ok) return done;
        status.succeed(first, count);
        const auto packed = [&](const View &view) {
            return view.packed() && (view.outer == n * view.row || count == 1);
        };
        if (!packed(a) || !packed(x)) {
            for (Size k = first; k < first + count; ++k)
                if (!isPlain(n, largest<T>(a.from(k)), largest<T>(x.from(k)))) failed(k, ok);
            return ok;
        }
        // By blocks, and of a block that has one that is not plain, one by one.
        const auto plain = [&](Size k, Size objects) {
            return isPlain(n, largest(p<T>(a.from(k)), objects * n * n), largest(p<T>(x.from(k)), objects * n * n));
        };
        constexpr Size few = 16;
        for (Size start = first; start < first + count; start += few) {
            const Size end = std::min(start + few, first + count);
            if (plain(start, end - start)) continue;
            for (Size k = start; k < end; ++k)
                if (!plain(k, 1)) failed(k, ok);
        }
        return ok;
    };
    for (Size first = 0; first < arguments.count; first += blockOfObjects) {
        const Size count = std::min(blockOfObjects, arguments.count - first);
        if (fixed) eachObject(first, count, attempt, failed);
        else
            for (Size k = first; k < first + count; ++k) failed(k, ok);
    }
}

// ---- QR decomposition

// The library refuses a column that adds less than 2^-11.5 to those before it. Scaled to 2^qrTarget, that is about
// 2^-20 of the column's largest element in float32 and 2^-48 in float64.
template <typename T> constexpr int qrTarget = std::is_same_v<T, float> ? 8 : 36;

// Is the last element of a square R below the library's tolerance for the squared norm of a column? The library does
// not look at it: there is no reflection for the last column of a square matrix.
template <typename T> bool lastIsSingular(const T *factors, Size m, Size n) {
    const T last = factors[n * n - 1];
    return m == n && !(last * last >= T(0x1p-23));
}

// The packed compact factors of `count` objects, from `first` on. A matrix that the absolute tolerance refuses has its
// columns scaled, and R scaled back.
template <typename T> void decomposeQr(const View &a, Size first, Size count, T *factors, std::int32_t *outcome) {
    const Size m = a.rows, n = a.cols, row = n * static_cast<Size>(sizeof(T));
    Room<T> work(m);
    auto failed = [&](Size object, std::int32_t) {
        T *const to = factors + (object - first) * m * n;
        Scaling scaling;
        pack(a.from(object), to);
        std::int32_t &done = outcome[object - first];
        done = errSingular;
        if (equilibrate(to, m, n, scaling, qrTarget<T>, false) &&
            Exports<T>::QRDecomp_ma_S2(to, 0, s(row), sizeof(T), work.data(), to, 0, s(row), sizeof(T), u(n), u(m),
                                       1) == ok &&
            !lastIsSingular(to, m, n)) {
            done = ok;
            for (Size i = 0; i < n; ++i)
                for (Size j = i; j < n; ++j)
                    if (!scaleExactly(to[i * n + j], scaling.col[static_cast<std::size_t>(j)])) done = errSingular;
        }
        if (done == ok) return;
        std::fill_n(to, m * n, T{0});
        for (Size i = 0; i < n; ++i) to[i * n + i] = 1;
    };
    auto attempt = [&](Size begin, Size number) {
        const std::int32_t done = inRuns<T>(std::array{a}, begin, number, number, [&](auto &v, Size start, Size run) {
            const View &a = v[0];
            return Exports<T>::QRDecomp_ma_S2(p<T>(a), s(a.outer), s(a.row), s(a.elem), work.data(),
                                              factors + (start - first) * m * n, s(m * row), s(row), sizeof(T), u(n),
                                              u(m), u(run));
        });
        if (done != ok) return done;
        std::fill_n(outcome + (begin - first), number, ok);
        for (Size k = begin; k < begin + number; ++k)
            if (lastIsSingular(factors + (k - first) * m * n, m, n)) failed(k, ok);
        return ok;
    };
    eachObject(first, count, attempt, failed);
}

// Calls each(factors, object) with the compact factors of each object, or null, and stores the status.
template <typename T, class Each> void eachQr(const View &a, Size count, const Status &status, Each &&each) {
    const Size size = a.rows * a.cols, block = std::clamp<Size>(2304 / std::max<Size>(size, 1), 1, blockOfObjects);
    Room<T> room(block * size);
    std::array<std::int32_t, blockOfObjects> outcome;
    for (Size first = 0; first < count; first += block) {
        const Size run = std::min(block, count - first);
        decomposeQr(a, first, run, room.data(), outcome.data());
        for (Size k = 0; k < run; ++k) {
            status.set(first + k, outcome[static_cast<std::size_t>(k)]);
            each(outcome[static_cast<std::size_t>(k)] == ok ? room.data() + k * size : nullptr, first + k);
        }
    }
}

// Compact factors as they are.
template <typename T> void qrRaw(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 2);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), factors = arguments.matrix(m, n);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (m == 0 || n == 0) return status.succeed(0, arguments.count);
    eachQr<T>(a, arguments.count, status, [&](const T *from, Size k) {
        if (from) unpack(from, factors.from(k));
        else fill(factors.from(k), nan<T>);
    });
}

template <typename T> void storeR(const T *factors, const View &r) {
    if (!factors) return fill(r, nan<T>);
    for (Size i = 0; i < r.rows; ++i)
        for (Size j = 0; j < r.cols; ++j) {
            const T value = j < i ? T{0} : factors[i * r.cols + j];
            std::memcpy(r.data + i * r.row + j * r.elem, &value, sizeof(T));
        }
}

template <typename T> void qrR(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 2);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), r = arguments.matrix(n, n);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    eachQr<T>(a, arguments.count, status, [&](const T *factors, Size k) { storeR(factors, r.from(k)); });
}

// The first n columns of the product of the reflections I - 2 v v' / (v'v), applied to the identity from the last one
// on. Compact factors hold v below the diagonal, and its leading 1 is left out.
template <typename T, Size order> void formQ(const T *factors, Size rows, Size cols, T *q, T *sums) {
    const Size m = order ? order : rows, n = order ? order : cols; // fixed, loops are unrolled
    std::fill_n(q, m * n, T{0});
    for (Size i = 0; i < n; ++i) q[i * n + i] = 1;
    for (Size k = std::min(n, m - 1) - 1; k >= 0; --k) {
        T square = 1;
        std::copy(q + k * n + k, q + (k + 1) * n, sums);
        for (Size i = k + 1; i < m; ++i) {
            const T v = factors[i * n + k];
            square += v * v;
            for (Size j = k; j < n; ++j) sums[j - k] += v * q[i * n + j];
        }
        const T beta = -2 / square;
        for (Size j = k; j < n; ++j) q[k * n + j] += sums[j - k] *= beta;
        for (Size i = k + 1; i < m; ++i)
            for (Size j = k; j < n; ++j) q[i * n + j] += factors[i * n + k] * sums[j - k];
    }
}

template <typename T> void qr(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 1, 3);
    const Size m = dimensions[1], n = dimensions[2];
    const View a = arguments.matrix(m, n), q = arguments.matrix(m, n), r = arguments.matrix(n, n);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    Room<T> room(m * n + n);
    const auto form = m != n   ? formQ<T, 0>
                      : n == 3 ? formQ<T, 3>
                      : n == 4 ? formQ<T, 4>
                      : n == 6 ? formQ<T, 6>
                               : formQ<T, 0>;
    eachQr<T>(a, arguments.count, status, [&](const T *factors, Size k) {
        storeR(factors, r.from(k));
        if (!factors) return fill(q.from(k), nan<T>);
        form(factors, m, n, room.data(), room.data() + m * n);
        unpack(room.data(), q.from(k));
    });
}

template <typename T, bool oneColumn> void lstsq(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    Arguments<T> arguments(data, dimensions, steps, 2, 2);
    const Size m = dimensions[1], n = dimensions[2], columns = oneColumn ? 1 : dimensions[3];
    const View a = arguments.matrix(m, n), b = arguments.columns(m, columns, oneColumn);
    const View x = arguments.columns(n, columns, oneColumn);
    const Status status(arguments.scalar(sizeof(std::int32_t)));
    if (n == 0) return status.succeed(0, arguments.count);
    const bool single = a.outer == 0;
    const Size row = n * static_cast<Size>(sizeof(T));
    Room<T> work(m);
    solveBlocks<T>(
        single, m * n, b, x, arguments.count, status,
        [&](Size first, Size count, T *factors, std::int32_t *outcome) {
            decomposeQr(a, first, count, factors, outcome);
        },
        [&](const T *factors, Size, const View &from, const View &to, Size count) {
            if (single)
                Exports<T>::QRBackSubst_mva_S2(factors, 0, s(row), sizeof(T), work.data(), p<T>(from), s(from.outer),
                                               s(from.row), p<T>(to), s(to.outer), s(to.row), u(n), u(m), u(count));
            else
                Exports<T>::QRBackSubst_mava_S2(factors, s(m * row), s(row), sizeof(T), work.data(), p<T>(from),
                                                s(from.outer), s(from.row), p<T>(to), s(to.outer), s(to.row), u(n),
                                                u(m), u(count));
        });
}

// ---- Element by element: an inner loop is one long vector

constexpr Size longVector = Size{1} << 30;

// Calls work(first, count) so that a vector's length fits 32 bits; one by one where a step does not.
template <class Work> void inVectors(const Size *steps, int operands, Size count, Work &&work) {
    const Size most = std::all_of(steps, steps + operands, narrow) ? longVector : 1;
    for (Size first = 0; first < count; first += most) work(first, std::min(most, count - first));
}

template <typename T> T *element(char *data, Size step, Size index) {
    return reinterpret_cast<T *>(data + step * index);
}

template <typename T, bool subtracted> void sum(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    constexpr Size size = sizeof(T);
    inVectors(steps, 3, dimensions[0], [&](Size first, Size count) {
        T *const a = element<T>(data[0], steps[0], first), *const b = element<T>(data[1], steps[1], first);
        T *const c = element<T>(data[2], steps[2], first);
        if (steps[0] == size && steps[1] == size && steps[2] == size) {
            if constexpr (subtracted) Exports<T>::Sub_vv(a, b, c, u(count));
            else Exports<T>::Add_vv(a, b, c, u(count));
        } else {
            if constexpr (subtracted) Exports<T>::Sub_vv_S2(a, s(steps[0]), b, s(steps[1]), c, s(steps[2]), u(count));
            else Exports<T>::Add_vv_S2(a, s(steps[0]), b, s(steps[1]), c, s(steps[2]), u(count));
        }
    });
}

// A factor that does not step is a constant, unless the result does not step either, as in a reduction.
template <typename T> void multiply(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    inVectors(steps, 3, dimensions[0], [&](Size first, Size count) {
        T *a = element<T>(data[0], steps[0], first), *b = element<T>(data[1], steps[1], first);
        T *const c = element<T>(data[2], steps[2], first);
        Size step = steps[0];
        if (steps[0] == 0 && steps[1] != 0) std::swap(a, b), step = steps[1];
        if ((steps[0] == 0 || steps[1] == 0) && steps[2] != 0) {
            if (step == sizeof(T) && steps[2] == sizeof(T)) Exports<T>::Mul_vc(a, *b, c, u(count));
            else Exports<T>::Mul_vc_S2(a, s(step), *b, c, s(steps[2]), u(count));
            return;
        }
        for (Size i = 0; i < count; ++i)
            Exports<T>::Mul_vc(element<T>(data[0], steps[0], first + i), *element<T>(data[1], steps[1], first + i),
                               element<T>(data[2], steps[2], first + i), 1);
    });
}

template <typename T> void saxpy(char **data, const Size *dimensions, const Size *steps, void *) {
    const Flags flags;
    constexpr Size size = sizeof(T);
    const bool packed = steps[1] == size && steps[2] == size && steps[3] == size;
    inVectors(steps, 4, dimensions[0], [&](Size start, Size total) {
        const Size most = steps[0] == 0 ? total : 1;
        for (Size first = start; first < start + total; first += most) {
            const T constant = *element<T>(data[0], steps[0], first);
            T *const x = element<T>(data[1], steps[1], first), *const y = element<T>(data[2], steps[2], first);
            T *const result = element<T>(data[3], steps[3], first);
            if (packed || most == 1) Exports<T>::Saxpy_vv(x, constant, y, result, u(most));
            else Exports<T>::Saxpy_vv_S2(x, s(steps[1]), constant, y, s(steps[2]), result, s(steps[3]), u(most));
        }
    });
}

// No exception passes through numpy.
template <Loop loop> void guarded(char **data, const Size *dimensions, const Size *steps, void *nothing) {
    try {
        loop(data, dimensions, steps, nothing);
    } catch (const std::bad_alloc &) {
        reportNoMemory();
    } catch (const InPlace &) {
        reportInPlace();
    }
}

#define BOTH(name) guarded<name<float>>, guarded<name<double>>
#define BOTH_OF(name, ...) guarded<name<float, __VA_ARGS__>>, guarded<name<double, __VA_ARGS__>>

constexpr Operation table[] = {
    {"matmul", "(m,k),(k,n)->(m,n)", 2, 1, "TTT", BOTH(matmul)},
    {"matvec", "(m,n),(n)->(m)", 2, 1, "TTT", BOTH(matvec)},
    {"gaxpy", "(m,n),(n),(m)->(m)", 3, 1, "TTTT", BOTH(gaxpy)},
    {"transpose", "(m,n)->(n,m)", 1, 1, "TT", BOTH(transpose)},
    {"cross", "(3),(3)->(3)", 2, 1, "TTT", BOTH(cross)},
    {"dot", "(n),(n)->()", 2, 1, "TTT", BOTH(dot)},
    {"trace", "(n,n)->()", 1, 1, "TT", BOTH(trace)},
    {"det", "(n,n)->()", 1, 1, "TT", BOTH(det)},
    {"add", nullptr, 2, 1, "TTT", BOTH_OF(sum, false)},
    {"subtract", nullptr, 2, 1, "TTT", BOTH_OF(sum, true)},
    {"multiply", nullptr, 2, 1, "TTT", BOTH(multiply)},
    {"saxpy", nullptr, 3, 1, "TTTT", BOTH(saxpy)},
    {"_norm", "(n)->()", 1, 1, "TT", BOTH(norm)},
    {"_frobenius", "(m,n)->()", 1, 1, "TT", BOTH(frobenius)},
    {"_inv", "(n,n)->(n,n),()", 1, 2, "TTs", BOTH(inv)},
    {"_lu", "(n,n)->(n,n),(n),()", 1, 3, "TTus", BOTH(lu)},
    {"_lu_solve", "(n,n),(n),(n,k)->(n,k),()", 3, 2, "TuTTs", BOTH_OF(luSolve, false)},
    {"_lu_solve1", "(n,n),(n),(n)->(n),()", 3, 2, "TuTTs", BOTH_OF(luSolve, true)},
    {"_solve", "(n,n),(n,k)->(n,k),()", 2, 2, "TTTs", BOTH_OF(solve, false)},
    {"_solve1", "(n,n),(n)->(n),()", 2, 2, "TTTs", BOTH_OF(solve, true)},
    {"_cholesky", "(n,n)->(n,n),()", 1, 2, "TTs", BOTH(cholesky)},
    {"_cho_solve", "(n,n),(n,k)->(n,k),()", 2, 2, "TTTs", BOTH_OF(choleskySolve, false, true)},
    {"_cho_solve1", "(n,n),(n)->(n),()", 2, 2, "TTTs", BOTH_OF(choleskySolve, true, true)},
    {"_solve_pos", "(n,n),(n,k)->(n,k),()", 2, 2, "TTTs", BOTH_OF(choleskySolve, false, false)},
    {"_solve_pos1", "(n,n),(n)->(n),()", 2, 2, "TTTs", BOTH_OF(choleskySolve, true, false)},
    {"_qr", "(m,n)->(m,n),(n,n),()", 1, 3, "TTTs", BOTH(qr)},
    {"_qr_r", "(m,n)->(n,n),()", 1, 2, "TTs", BOTH(qrR)},
    {"_qr_raw", "(m,n)->(m,n),()", 1, 2, "TTs", BOTH(qrRaw)},
    {"_lstsq", "(m,n),(m,k)->(n,k),()", 2, 2, "TTTs", BOTH_OF(lstsq, false)},
    {"_lstsq1", "(m,n),(m)->(n),()", 2, 2, "TTTs", BOTH_OF(lstsq, true)},
};

} // namespace

std::span<const Operation> operations() { return table; }

Size takeFailures() { return std::exchange(failures, 0); }

} // namespace vonkk3
