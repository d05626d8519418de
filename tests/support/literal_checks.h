// Expectations that families share: results in every geometry, and the tests of pointers, sizes, entries and count in
// their order. A family says how it fills a call and what it expects of an object; everything else is the same.
#pragma once

#include "literal.h"

#include "vonkk3.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <vector>

namespace literal {

struct Example {
    std::function<void(Call &)> fill;                        // all operands but `dst`
    std::function<void(Call &, std::uint32_t n)> expectDone; // object n of `dst` and what else is written
};

inline void expectSame(double expected, double actual, const std::string &where) {
    EXPECT_TRUE(same(expected, actual)) << where << " is " << actual << " and should be " << expected;
}

inline void expectSame(const std::vector<double> &expected, const std::vector<double> &actual,
                       const std::string &where) {
    ASSERT_EQ(expected.size(), actual.size()) << where;
    for (std::size_t k = 0; k < expected.size(); ++k)
        expectSame(expected[k], actual[k], where + ", element " + std::to_string(k));
}

inline void expectAllDone(Call &call, const Example &example) {
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        SCOPED_TRACE("object " + std::to_string(n));
        example.expectDone(call, n);
    }
    if (const Stray stray = call.strayWrites()) ADD_FAILURE() << stray.what;
}

inline void expectResults(const catalogue::Function &function, const Example &example,
                          const std::vector<std::uint32_t> &runTimeSizes,
                          const std::vector<Geometry> &geometries = {packed, spread, backward}) {
    for (const Geometry geometry : geometries)
        for (const std::uint32_t size : sizesOf(function, runTimeSizes))
            for (const std::uint32_t count : {1U, 2U, 4U}) {
                SCOPED_TRACE(function.name + ", size " + std::to_string(size) + ", count " + std::to_string(count) +
                             ", direction " + std::to_string(geometry.direction) + ", padding " +
                             std::to_string(geometry.padding));
                Call call(function.name, size, count, geometry);
                example.fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                expectAllDone(call, example);
                if (!function.array()) break;
            }
}

inline void expectInPlaceResults(const catalogue::Function &function, const Example &example, const std::string &source,
                                 const std::vector<std::uint32_t> &runTimeSizes,
                                 const std::vector<Geometry> &geometries = {packed, spread, backward}) {
    for (const Geometry geometry : geometries)
        for (const std::uint32_t size : sizesOf(function, runTimeSizes)) {
            SCOPED_TRACE(function.name + ", size " + std::to_string(size) + ", dst over " + source);
            Call call(function.name, size, 3, geometry);
            call.layOver(source);
            example.fill(call);
            ASSERT_EQ(call.run(), vonkOk);
            expectAllDone(call, example);
        }
}

inline bool has(const catalogue::Function &function, catalogue::Kind kind) {
    return std::ranges::any_of(function.parameters, [kind](const auto &parameter) { return parameter.kind == kind; });
}

inline std::string parameterOf(const catalogue::Function &function, catalogue::Kind kind) {
    for (const catalogue::Parameter &parameter : function.parameters)
        if (parameter.kind == kind) return parameter.name;
    throw std::out_of_range("a parameter of " + function.name);
}

// A null pointer comes first: a zero size, a zero count and null entries beside it change nothing.
inline void expectNullPointersAreCaught(const catalogue::Function &function, const Example &example) {
    using catalogue::Kind;
    for (const catalogue::Parameter &parameter : function.parameters) {
        if (!isPointer(parameter.kind)) continue;
        for (const bool alsoZero : {false, true}) {
            SCOPED_TRACE(function.name + ", null " + parameter.name + (alsoZero ? ", sizes and count zero" : ""));
            Call call(function.name, 3, 2);
            example.fill(call);
            call.pass(parameter.name, 0);
            if (alsoZero && has(function, Kind::size)) call.pass(parameterOf(function, Kind::size), 0);
            if (alsoZero && has(function, Kind::count)) call.pass("count", 0);
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            EXPECT_TRUE(call.changedNothing());
        }
    }
}

// Five gathers from a table take their pointers as they are.
inline bool trustsPointers(const catalogue::Function &function) {
    return function.family->operation == "Extract" && function.layout == "P" && function.name != "vonkExtract_v_32f_P";
}

// Without objects most functions have nothing to do; for some the count is a size.
inline std::int32_t statusOfNoObjects(const catalogue::Function &function) {
    const std::string_view operation = function.family->operation;
    const bool countsObjectsAsSize =
        operation == "Extract" || operation == "LoadIdentity" || operation.starts_with("Cholesky");
    return countsObjectsAsSize ? vonkErrSize : vonkOk;
}

// Pages of memory that begin at multiples of a distance, down to the distance itself: where the objects of an array lie
// whose last one is at address 0. None are to be had where something else lies there.
class PagesDownToNull {
public:
    PagesDownToNull(std::intptr_t distance, std::size_t count) {
        for (std::size_t k = count; k > 0; --k) {
            void *const wanted = reinterpret_cast<void *>(distance * static_cast<std::intptr_t>(k));
            void *const got =
                mmap(wanted, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
            if (got != wanted) throw std::runtime_error("no memory at a low address");
            pages_.push_back(static_cast<float *>(got));
        }
    }
    ~PagesDownToNull() {
        for (float *page : pages_) munmap(page, bytes);
    }
    PagesDownToNull(const PagesDownToNull &) = delete;
    PagesDownToNull &operator=(const PagesDownToNull &) = delete;

    float *operator[](std::size_t k) const { return pages_[k]; }

private:
    static constexpr std::size_t bytes = 4096;
    std::vector<float *> pages_;
};

inline void blankEntries(Call &call, std::string_view operand) {
    for (std::byte *&entry : call[operand].entries) entry = nullptr;
}

inline void blankEntries(Call &call) {
    for (const catalogue::Operand &operand : call.function().operands) blankEntries(call, operand.name);
}

// Next come the sizes, ahead of entries and count.
inline void expectZeroSizeIsRefused(const catalogue::Function &function, const Example &example) {
    if (!has(function, catalogue::Kind::size)) return;
    for (const bool alsoOthers : {false, true}) {
        SCOPED_TRACE(function.name + (alsoOthers ? ", entries null, count zero" : ""));
        Call call(function.name, 3, 2);
        example.fill(call);
        call.pass(parameterOf(function, catalogue::Kind::size), 0);
        if (alsoOthers) blankEntries(call);
        if (alsoOthers && function.array()) call.pass("count", 0);
        EXPECT_EQ(call.run(), vonkErrSize);
        EXPECT_TRUE(call.changedNothing());
    }
}

// Lists are not looked at for no objects.
inline void expectCountZeroDoesNothing(const catalogue::Function &function, const Example &example) {
    if (!function.array()) return;
    SCOPED_TRACE(function.name);
    Call call(function.name, 3, 2);
    example.fill(call);
    call.pass("count", 0);
    if (catalogue::isList(function.operands.back().layout)) blankEntries(call);
    EXPECT_EQ(call.run(), vonkOk);
    EXPECT_TRUE(call.changedNothing());
}

// Every entry of every table of positions is looked at ahead of all work, and ahead of the count.
inline void expectNullPositionsAreCaughtUpFront(const catalogue::Function &function, const Example &example) {
    if (!catalogue::isTable(function.operands.back().layout)) return;
    for (const catalogue::Operand &operand : function.operands) {
        Call call(function.name, 4, 2);
        example.fill(call);
        const std::size_t positions = std::size_t{call[operand.name].rows} * call[operand.name].cols;
        for (std::size_t entry = 0; entry < positions; ++entry)
            for (const std::uint64_t count : {2, 0}) {
                if (count == 0 && !function.array()) continue;
                SCOPED_TRACE(function.name + ", " + operand.name + "[" + std::to_string(entry) + "] null, count " +
                             std::to_string(count));
                std::byte *const kept = call[operand.name].entries[entry];
                call[operand.name].entries[entry] = nullptr;
                if (function.array()) call.pass("count", count);
                EXPECT_EQ(call.run(), vonkErrNullPtr);
                EXPECT_TRUE(call.changedNothing());
                call[operand.name].entries[entry] = kept;
            }
    }
}

// The entries of a single matrix are looked at as it is copied, so that scratch memory may be written.
inline void expectNullPositionsAreCaughtInTheCopy(const catalogue::Function &function, const Example &example) {
    for (const catalogue::Operand &operand : function.operands) {
        Call call(function.name, 4);
        example.fill(call);
        for (std::byte *&entry : call[operand.name].entries) {
            SCOPED_TRACE(function.name + ", a null in the table of " + operand.name);
            std::byte *const kept = entry;
            entry = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            entry = kept;
            EXPECT_FALSE(call.changedObject(0));
        }
    }
}

// The entries of an object are looked at when its turn comes.
inline void expectNullObjectsStopTheWalk(const catalogue::Function &function, const Example &example) {
    if (!catalogue::isList(function.operands.back().layout)) return;
    constexpr std::uint32_t count = 3;
    for (const catalogue::Operand &operand : function.operands)
        for (std::uint32_t entry = 0; operand.array && entry < count; ++entry) {
            SCOPED_TRACE(function.name + ", " + operand.name + "[" + std::to_string(entry) + "] null");
            Call call(function.name, 4, count);
            example.fill(call);
            std::byte *&slot = call[operand.name].entries[entry];
            std::byte *const kept = slot;
            slot = nullptr;
            EXPECT_EQ(call.run(), vonkErrNullPtr);
            slot = kept;
            for (std::uint32_t n = 0; n < entry; ++n) example.expectDone(call, n);
            for (std::uint32_t n = entry; n < count; ++n) EXPECT_FALSE(call.changedObject(n)) << "object " << n;
        }
}

} // namespace literal
