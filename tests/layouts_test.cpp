// The same objects in all layouts give the same bits, unless an exception or the family's rule tells the layouts apart.
//
// Objects are drawn once and laid out for every member of a function's layouts in turn, disjoint, with strides and
// tables of their own; status, results and blocks have to agree within each group of layouts that is promised to agree.
#include "support/arena.h"
#include "support/control.h"
#include "support/exceptional.h"
#include "support/invoke.h"
#include "support/literal.h"
#include "support/objects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

using catalogue::Function;
using catalogue::Type;

using literal::allMembers;

// --- which layouts agree

bool isOneOf(std::string_view what, std::initializer_list<std::string_view> these) {
    return std::ranges::find(these, what) != these.end();
}

// What a family's rule says of its layouts; of one object, the standard layout counts as any.
std::string ruleFor(const Function &function) {
    const std::string_view section = function.section->id;
    const bool wholeObjects = isOneOf(function.layout, {"", "L"});
    const bool sumsProducts = isOneOf(section, {"matrix-product", "matrix-vector", "gaxpy"});
    const bool fixed = function.order != 0;
    if (function.type == Type::real32 && fixed && wholeObjects &&
        (sumsProducts || isOneOf(section, {"trace", "frobenius-norm", "determinant", "inverse", "norm"})))
        return "in lanes";
    if (function.type == Type::real64 && sumsProducts && isOneOf(function.layout, {"", "S2"})) return "unrounded";
    if (function.type == Type::real64 && fixed && wholeObjects && section == "determinant") return "in lanes";
    if (section == "cholesky-decomposition" && isOneOf(function.layout, {"P", "PS2"})) return "read back";
    return "";
}

// Members with equal words agree. Exceptions about overlap, checks and reads change no result of disjoint operands.
std::string classOf(const Function &function) {
    using enum catalogue::ExceptionClass;
    std::string words = ruleFor(function);
    for (const catalogue::Exception *exception : literal::exceptionIndex().exceptionsOf(function))
        if (exception->what == arithmetic || exception->what == result || exception->what == status)
            words += " " + std::string(exception->id);
    return words;
}

using Group = std::vector<const Function *>; // members that agree

// Walks the single matrix with the row stride of the array, so that it reads another matrix where these differ.
bool borrowsStride(const Function &function) { return literal::isException(function, "sum-ignored-stride"); }

std::vector<Group> groupsOf(std::string_view section) {
    std::map<std::string, Group> groups;
    for (const Function &function : allMembers()) {
        if (function.section->id != section || borrowsStride(function)) continue;
        std::string name = function.name;
        if (!function.layout.empty()) name.resize(name.size() - function.layout.size() - 1);
        groups[name + ": " + classOf(function)].push_back(&function);
    }
    std::vector<Group> found;
    for (auto &[name, group] : groups)
        if (group.size() > 1) found.push_back(std::move(group));
    return found;
}

class Layouts : public testing::TestWithParam<std::string> {
protected:
    std::vector<std::uint64_t> call(const Function &function, const support::Objects &objects,
                                    support::Random &random) {
        arena.fill(1);
        return support::resultsOf(function, library.find(function.name), objects, arena.bytes(), random);
    }

    // Rows of a table are as long as the call says, not as the room that a rectangular operand gets.
    static bool isLaidAsMeant(const Function &function, const support::Sizes &sizes) {
        if (!isOneOf(function.section->id, {"matrix-product", "matrix-vector", "gaxpy", "transpose", "extract"}))
            return true;
        const auto hasTable = [](const catalogue::Operand &operand) {
            return isTable(operand.layout) && operand.matrix;
        };
        return std::ranges::none_of(function.operands, hasTable) ||
               std::ranges::all_of(sizes.dimensions, [&](const support::Sizes::Named &dimension) {
                   return dimension.value == sizes.largest();
               });
    }

    void expectAgreement(const Group &group, std::uint64_t trial) {
        support::Random random(5, group.front()->name, trial);
        arena.fill(2);
        const support::Objects objects = support::drawObjects(*group.front(), 21, arena.bytes(), random);
        const std::vector<std::uint64_t> first = call(*group.front(), objects, random);
        if (!isLaidAsMeant(*group.front(), objects.sizes)) return;
        for (const Function *member : std::span(group).subspan(1)) {
            if (!isLaidAsMeant(*member, objects.sizes)) continue;
            const std::vector<std::uint64_t> other = call(*member, objects, random);
            ++compared;
            if (first == other) continue;
            const auto [a, b] = std::ranges::mismatch(first, other);
            ADD_FAILURE() << group.front()->name << " and " << member->name << " differ in trial " << trial
                          << " from result " << a - first.begin() << " on: " << std::hex << (a == first.end() ? 0 : *a)
                          << ", " << (b == other.end() ? 0 : *b);
            return;
        }
    }

    const support::Library library{support::defaultLibrary()};
    const support::Arena &arena = support::sharedArena();
    std::uint64_t compared = 0;
};

TEST_P(Layouts, GiveTheSameBits) {
    for (const Group &group : groupsOf(GetParam()))
        for (std::uint64_t trial = 0; trial < 10; ++trial) expectAgreement(group, trial);
    EXPECT_GE(compared, 20U);
}

std::vector<std::string> sectionNames() {
    std::vector<std::string> names;
    for (const catalogue::Section &section : catalogue::sections()) names.emplace_back(section.id);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Families, Layouts, testing::ValuesIn(sectionNames()), [](const auto &info) {
    std::string name = info.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

} // namespace
