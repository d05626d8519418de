// Expectations that families share: results in every geometry. A family says how it fills a call and what it expects of
// an object; everything else is the same.
#pragma once

#include "exceptional.h"
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

// Every object of an operand.
inline void setObjects(Call &call, std::string_view operand, const std::vector<double> &values) {
    for (std::uint32_t n = 0; n < call.objectsOf(operand); ++n) call.set(operand, n, values);
}

// Off its origin at a multiple of 16, or off where it has been moved.
inline void moveBy(Call &call, std::string_view operand, std::ptrdiff_t bytes) {
    Place &place = call[operand];
    place.moveTo(place.origin + bytes);
}

// Runs the call, which makes the same of every element of every object.
inline void expectEverywhere(Call &call, double expected) {
    ASSERT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const std::vector<double> found = call.get("dst", n);
        expectSame(std::vector<double>(found.size(), expected), found, "object " + std::to_string(n));
    }
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

// Blocks of objects and what is left over.
inline void expectResultsOfAnyCount(const catalogue::Function &function, const Example &example, std::uint32_t size) {
    for (std::uint32_t count = 1; count <= 13; ++count)
        for (const Geometry geometry : {packed, Geometry{1, 4, false}, spread, backward}) {
            Call call(function.name, size, count, geometry);
            example.fill(call);
            ASSERT_EQ(call.run(), vonkOk);
            expectAllDone(call, example);
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

// Without objects most functions have nothing to do; for some the count is a size.
inline std::int32_t statusOfNoObjects(const catalogue::Function &function) {
    return hasExceptionOf(function, "-count-zero", catalogue::ExceptionClass::status) ? vonkErrSize : vonkOk;
}

inline void blankEntries(Call &call, std::string_view operand) {
    for (std::byte *&entry : call[operand].entries) entry = nullptr;
}

inline void blankEntries(Call &call) {
    for (const catalogue::Operand &operand : call.function().operands) blankEntries(call, operand.name);
}

} // namespace literal
