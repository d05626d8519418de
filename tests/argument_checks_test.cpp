// Which arguments are checked, in which order, and what a refused call leaves behind: of every export, by the rule of
// its section. Who deviates is taken from the table of exceptions. Null pointers come first, then sizes, then entries
// of tables, then `count`; entries of lists are checked when the object's turn comes.
#include "support/family_test.h"
#include "support/fill.h"

#include <array>
#include <bit>

namespace {

using namespace literal::names;
using literal::allMembers;
using literal::fill;

// ---- The rules of the sections

enum class OfSingleTable { upFront, beforeEachElement, asSumsReachThem }; // when entries of one object's are checked
enum class OfEntries { checked, unchecked, addressStops, addressPassesOver };

struct Rule {
    OfSingleTable single = OfSingleTable::upFront;
    OfEntries entries = OfEntries::checked; // the address of an object in a list is its entry with the shift added
    bool sizes = true;                      // a size of 0 is vonkErrSize
};

const Rule &ruleOf(const Function &function) {
    using enum OfSingleTable;
    using enum OfEntries;
    static const Rule usual{};
    static const std::map<std::string_view, Rule> others{
        {"vector-constant", {.single = beforeEachElement}},
        {"vector-vector", {.single = beforeEachElement}},
        {"saxpy", {.single = beforeEachElement}},
        {"linear-combination", {.single = beforeEachElement}},
        {"matrix-matrix", {.single = beforeEachElement}},
        {"matrix-constant", {.single = beforeEachElement}},
        {"transpose", {.single = beforeEachElement}},
        {"trace", {.single = asSumsReachThem}},
        {"matrix-product", {.single = asSumsReachThem}},
        {"matrix-vector", {.single = asSumsReachThem}},
        {"gaxpy", {.single = asSumsReachThem}},
        {"copy", {.entries = unchecked}},
        {"extract", {.entries = unchecked}},
        {"identity", {.entries = unchecked, .sizes = false}},
        {"cholesky-decomposition", {.entries = addressStops}},
        {"cholesky-back-substitution", {.entries = addressPassesOver}},
    };
    const auto found = others.find(function.section->id);
    return found == others.end() ? usual : found->second;
}

bool hasList(const Operand &operand) { return catalogue::isList(operand.layout) && operand.array; }
bool hasTable(const Operand &operand) { return catalogue::isTable(operand.layout); }

// ---- Calls that succeed

constexpr std::uint32_t runTimeSize = 5;

struct Objects {
    std::vector<std::vector<double>> elements;
    std::vector<std::vector<std::uint32_t>> pivots;
};

Objects objectsOf(Call &call) {
    Objects found;
    const bool isDense = !call.hasPlainResult() && !call.function().operands.back().written;
    const std::vector<double> all = isDense ? call.results() : std::vector<double>{};
    const auto size = static_cast<std::ptrdiff_t>(all.size() / call.count());
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        if (isDense) found.elements.emplace_back(all.begin() + n * size, all.begin() + (n + 1) * size);
        else found.elements.push_back(call.get("dst", n));
        found.pivots.push_back(call.pivots(n));
    }
    return found;
}

// What a call without a fault leaves.
Objects completed(const Function &function, std::uint32_t count) {
    Call call(function.name, runTimeSize, count);
    fill(call);
    EXPECT_EQ(call.run(), vonkOk) << function.name;
    return objectsOf(call);
}

void expectObject(const Objects &expected, const Objects &found, std::uint32_t n) {
    literal::expectSame(expected.elements[n], found.elements[n], "object " + std::to_string(n));
    EXPECT_EQ(found.pivots[n], expected.pivots[n]) << "object " << n;
}

// The first `done` objects are complete, and no byte of the others or beside them has changed. The ones of later
// identities lie beside them by the rule.
void expectDone(Call &call, const Objects &whole, std::uint32_t done) {
    const Objects found = objectsOf(call);
    for (std::uint32_t n = 0; n < call.count(); ++n)
        if (n < done) expectObject(whole, found, n);
        else EXPECT_FALSE(call.changedObject(n)) << "object " << n;
    if (call.function().section->id == "identity") return;
    if (const literal::Stray stray = call.strayWrites()) ADD_FAILURE() << stray.what;
}

void passZeroSizesAndCount(Call &call) {
    for (const catalogue::Parameter &parameter : call.function().parameters)
        if (parameter.kind == Kind::size || parameter.kind == Kind::count) call.pass(parameter.name, 0);
}

void expectRefused(Call &call, std::int32_t status) {
    EXPECT_EQ(call.run(), status);
    EXPECT_TRUE(call.changedNothing());
}

// ---- Pointers, sizes, count

TEST(ArgumentChecks, CatchNullPointersAheadOfSizesEntriesAndCount) {
    for (const Function &function : allMembers())
        for (const catalogue::Parameter &parameter : function.parameters) {
            if (!literal::isPointer(parameter.kind)) continue;
            SCOPED_TRACE(function.name + ", null " + parameter.name);
            const bool unchecked = isException(function, "extract-unchecked");
            Call call(function.name, runTimeSize, 2);
            fill(call);
            call.pass(parameter.name, 0);
            if (!unchecked) expectRefused(call, vonkErrNullPtr);
            passZeroSizesAndCount(call);
            literal::blankEntries(call);
            expectRefused(call, unchecked ? vonkOk : vonkErrNullPtr);
        }
}

TEST(ArgumentChecks, RefuseSizesOfZeroAheadOfEntriesAndCount) {
    for (const Function &function : allMembers())
        for (const catalogue::Parameter &parameter : function.parameters) {
            if (parameter.kind != Kind::size || !ruleOf(function).sizes) continue;
            SCOPED_TRACE(function.name + ", " + parameter.name + " 0");
            const bool passes = isException(function, "copy-empty-matrix") ||
                                isException(function, "extract-unchecked") ||
                                (isException(function, "product-no-columns") && parameter.name == "src2Cols");
            Call call(function.name, runTimeSize, 2);
            fill(call);
            call.pass(parameter.name, 0);
            expectRefused(call, passes ? vonkOk : vonkErrSize);
            if (isException(function, "product-no-columns") && passes) continue; // entries and count come next
            literal::blankEntries(call);
            if (function.array()) call.pass("count", 0);
            expectRefused(call, passes ? vonkOk : vonkErrSize);
        }
}

// Entries of tables come ahead of `count`, see below; lists are not looked at.
TEST(ArgumentChecks, LeaveAllAloneForNoObjects) {
    for (const Function &function : allMembers()) {
        if (!function.array() && !literal::has(function, Kind::count)) continue;
        Call call(function.name, runTimeSize, 2);
        fill(call);
        call.pass("count", 0);
        if (isException(function, "sum-count-zero")) {
            EXPECT_EQ(call.run(), vonkOk);
            expectDone(call, completed(function, 2), 1);
            continue;
        }
        expectRefused(call, literal::statusOfNoObjects(function));
        const bool checksTables = ruleOf(function).entries == OfEntries::checked;
        for (const Operand &operand : function.operands)
            if (!hasTable(operand) || !checksTables) literal::blankEntries(call, operand.name);
        expectRefused(call, literal::statusOfNoObjects(function));
    }
}

TEST(ArgumentChecks, TakeANegativeSizeForNoneWithoutAWordWhereItIsSigned) {
    for (const Function &function : allMembers())
        for (const std::string parameter : {"count", "order"}) {
            if (!literal::hasExceptionOf(function, "-signed-" + parameter, catalogue::ExceptionClass::arguments))
                continue;
            for (const std::uint32_t negative : {0x80000000U, 0xffffffffU}) {
                SCOPED_TRACE(function.name + ", " + parameter);
                Call call(function.name, runTimeSize, 2);
                fill(call);
                call.pass(parameter, negative);
                expectRefused(call, vonkOk);
                if (parameter == "count" || !function.array()) continue;
                call.pass("count", 0);
                expectRefused(call, literal::statusOfNoObjects(function));
            }
        }
}

TEST(ArgumentChecks, IgnoreAnIgnoredArgument) {
    for (const Function &function : allMembers()) {
        if (!literal::has(function, Kind::ignored)) continue;
        const Objects whole = completed(function, 3);
        for (const std::uint32_t garbage : {0U, 1U, 0x7fffffffU, 0x80000000U, 0xffffffffU}) {
            Call call(function.name, runTimeSize, 3);
            fill(call);
            call.pass(literal::parameterOf(function, Kind::ignored), garbage);
            EXPECT_EQ(call.run(), vonkOk) << garbage;
            expectDone(call, whole, 3);
        }
    }
}

// ---- Entries of tables of positions

// An entry that is not checked is followed: the shift leads to memory.
bool isChecked(const Function &function, const Operand &operand, std::uint32_t entry, std::uint32_t order) {
    if (ruleOf(function).entries != OfEntries::checked) return false;
    if (isException(function, "product-unchecked-entries")) return false;
    if (isException(function, "trace-checked-entries")) return entry < order;
    const bool ofEight = isException(function, "sum-position-8") || isException(function, "scale-position-8") ||
                         isException(function, "product-vector-position-8");
    return !(ofEight && operand.transposed && entry == 8);
}

bool isRead(const Function &function, std::uint32_t entry, std::uint32_t order) {
    return function.section->id != "trace" || entry % (order + 1) == 0;
}

// Two whose shift cannot be moved: one leaves it out, one uses it for another table.
bool hasOtherShift(const Function &function) {
    return isException(function, "extract-ignored-shift") || isException(function, "copy-other-table");
}

TEST(ArgumentChecks, CatchNullEntriesOfTablesAheadOfAllWorkAndTheCountOrElementByElement) {
    for (const Function &function : allMembers())
        for (const Operand &operand : function.operands) {
            if (!hasTable(operand) || hasOtherShift(function)) continue;
            const Objects whole = completed(function, 2);
            const OfSingleTable single = function.array() ? OfSingleTable::upFront : ruleOf(function).single;
            for (std::uint32_t entry = 0;; ++entry) {
                SCOPED_TRACE(function.name + ", " + operand.name + "[" + std::to_string(entry) + "] null");
                Call call(function.name, runTimeSize, 2);
                if (entry == call[operand.name].rows * call[operand.name].cols) break;
                fill(call);
                const bool refused = isChecked(function, operand, entry, call.size()) &&
                                     (single != OfSingleTable::asSumsReachThem || isRead(function, entry, call.size()));
                EXPECT_EQ(literal::runThroughNull(call, operand.name, entry), refused ? vonkErrNullPtr : vonkOk);
                if (!refused) expectDone(call, whole, call.count());
                else if (single == OfSingleTable::upFront) expectDone(call, whole, 0);
                if (!function.array()) continue;
                call.pass("count", 0);
                EXPECT_EQ(literal::runThroughNull(call, operand.name, entry),
                          refused ? vonkErrNullPtr : literal::statusOfNoObjects(function));
                EXPECT_TRUE(call.changedNothing());
            }
        }
}

// Ascending positions of many objects, with which fast paths begin.
TEST(ArgumentChecks, CatchNullEntriesAmongAscendingOnesOfManyObjects) {
    constexpr std::uint32_t many = 64;
    for (const Function &function : allMembers()) {
        if (!function.array()) continue;
        for (const Operand &operand : function.operands) {
            if (!hasTable(operand) || hasOtherShift(function)) continue;
            Call call(function.name, runTimeSize, many);
            fill(call);
            const std::uint32_t entries = call[operand.name].rows * call[operand.name].cols;
            for (const std::uint32_t entry : {0U, entries / 2, entries - 1}) {
                if (!isChecked(function, operand, entry, call.size())) continue;
                SCOPED_TRACE(function.name + ", " + operand.name + "[" + std::to_string(entry) + "] null");
                EXPECT_EQ(literal::runThroughNull(call, operand.name, entry), vonkErrNullPtr);
                EXPECT_TRUE(call.changedNothing());
            }
        }
    }
}

// Each entry leads a quarter of the address space beyond the one before it, the null one too.
TEST(ArgumentChecks, CatchANullEntryWhereTheAddressSpaceEnds) {
    std::array<float *, 9> table{};
    for (std::size_t k = 0; k < table.size(); ++k)
        table[k] = std::bit_cast<float *>(std::uintptr_t(k + 1) << (8 * sizeof(void *) - 2));
    EXPECT_EQ(vonkAdd_mama_32f_3x3_P(table.data(), 0, table.data(), 0, table.data(), 0, 64), vonkErrNullPtr);
}

// The tables are far shorter than the sizes say: what follows the null entry is not looked at.
TEST(ArgumentChecks, EndTheTestOfTablesAtANullEntryWhateverTheSize) {
    constexpr std::uint32_t huge = 0xF0000000, count = 64;
    float number = 1;
    double wide = 1;
    float *table[] = {&number, &number, nullptr};
    double *wideTable[] = {&wide, &wide, nullptr};
    EXPECT_EQ(vonkAdd_vac_32f_P(table, 0, 1, table, 0, huge, count), vonkErrNullPtr);
    EXPECT_EQ(vonkMul_vac_64f_P(wideTable, 0, 1, wideTable, 0, huge, count), vonkErrNullPtr);
    EXPECT_EQ(vonkSub_vava_32f_PS2(table, 0, 4, table, 0, 4, table, 0, 4, huge, count), vonkErrNullPtr);
    EXPECT_EQ(vonkSaxpy_vava_32f_P(table, 0, 2, table, 0, table, 0, huge, count), vonkErrNullPtr);
    EXPECT_EQ(vonkLComb_vava_32f_P(table, 0, 2, table, 0, 3, table, 0, huge, count), vonkErrNullPtr);
    EXPECT_EQ(vonkAdd_mama_32f_P(table, 0, table, 0, table, 0, huge, 1, count), vonkErrNullPtr);
    EXPECT_EQ(vonkMul_mac_32f_P(table, 0, 2, table, 0, huge, 1, count), vonkErrNullPtr);
    EXPECT_EQ(vonkTranspose_ma_32f_P(table, 0, huge, 1, table, 0, count), vonkErrNullPtr);
    EXPECT_EQ(vonkMul_mava_32f_P(table, 0, huge, 1, table, 0, huge, table, 0, count), vonkErrNullPtr);
    EXPECT_EQ(vonkDotProduct_vava_32f_P(table, 0, table, 0, &number, huge, count), vonkErrNullPtr);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(wide, 1);
}

TEST(ArgumentChecks, FindNullsInAllTablesOfASingleObjectAheadOfTheFirstStore) {
    for (const Function &function : allMembers()) {
        const bool stores = function.section->id == "trace"; // a zero, through no table
        if (function.layout != "P" || function.array() || ruleOf(function).entries != OfEntries::checked || stores)
            continue;
        Call call(function.name, runTimeSize);
        fill(call);
        literal::blankEntries(call);
        expectRefused(call, vonkErrNullPtr);
    }
}

// What a call on 2 elements or 2x2 leaves in `dst` where an entry is null; nothing is untouched.
struct Stopped {
    const char *function, *operand;
    std::uint32_t entry;
    std::vector<std::optional<double>> left;
};

TEST(ArgumentChecks, StopASingleTableAtTheElementWithItsSumAsFarAsItGot) {
    const std::map<std::string, std::vector<double>> matrices{
        {"src", {1, 2, 3, 4}}, {"src1", {1, 2, 3, 4}}, {"src2", {5, 6, 7, 8}}};
    const std::map<std::string, std::vector<double>> vectors{
        {"src", {1, 2}}, {"src1", {1, 2}}, {"src2", {5, 6}}, {"src3", {7, 8}}}; // and constants are 3
    const std::vector<Stopped> cases{
        {"vonkAdd_vc_32f_P", "src", 1, {1 + 3, {}}},
        {"vonkMul_vc_64f_P", "dst", 1, {1 * 3, {}}},
        {"vonkSub_vv_32f_P", "src2", 1, {1 - 5, {}}},
        {"vonkSaxpy_vv_32f_P", "src1", 1, {3 * 1 + 5, {}}},
        {"vonkLComb_vv_64f_P", "src2", 1, {3 * 1 + 3 * 5, {}}},
        {"vonkSub_mm_32f_P", "src1", 2, {1 - 5, 2 - 6, {}, {}}},
        {"vonkAdd_mTm_64f_P", "src1", 1, {1 + 5, 3 + 6, {}, {}}},
        {"vonkMul_mc_32f_P", "src", 3, {3 * 1, 3 * 2, 3 * 3, {}}},
        {"vonkTranspose_m_32f_P", "src", 2, {1, {}, 2, {}}},
        {"vonkTrace_m_32f_P", "src", 3, {1}},
        {"vonkMul_mm_32f_P", "src1", 3, {19, 22, 3 * 5, {}}},
        {"vonkMul_mm_64f_P", "src2", 2, {1 * 5, {}, {}, {}}},
        {"vonkMul_mm_64f_P", "dst", 2, {19, 22, {}, {}}},
        {"vonkMul_mv_32f_P", "src1", 1, {1 * 5, {}}},
        {"vonkMul_mv_64f_P", "src2", 1, {1 * 5, {}}},
        {"vonkGaxpy_v_64f_P", "src1", 3, {1 * 5 + 2 * 6 + 7, 3 * 5}},
        {"vonkGaxpy_v_32f_P", "src3", 1, {1 * 5 + 2 * 6 + 7, {}}},
    };
    for (const auto &[function, operand, entry, left] : cases) {
        Call call(function, 2);
        for (const Operand &source : call.function().operands)
            if (!source.written) call.set(source.name, 0, (source.matrix ? matrices : vectors).at(source.name));
        const double untouched = call.getAt(call.spareCell(0));
        EXPECT_EQ(literal::runThroughNull(call, operand, entry), vonkErrNullPtr);
        const std::vector<double> found = call.get("dst", 0);
        ASSERT_EQ(found.size(), left.size());
        for (std::size_t k = 0; k < found.size(); ++k) EXPECT_EQ(found[k], left[k].value_or(untouched)) << k;
    }
}

// ---- Entries of lists

constexpr std::array<std::uint32_t, 3> counts{1, 3, 9}; // 9 make a batch of eight or two of four, and one more

// How many of `count` objects are complete where this entry is null; none if it is followed.
std::optional<std::uint32_t> completeBefore(const Function &function, const Operand &operand, std::uint32_t entry,
                                            std::uint32_t count) {
    if (ruleOf(function).entries != OfEntries::checked) return {};
    for (const char *id :
         {"dot-unchecked-entries", "norm-unchecked-entries", "product-unchecked-entries", "inverse-unchecked-entries"})
        if (isException(function, id)) return {};
    if (isException(function, "inverse-entries-first")) return 0;
    if (isException(function, "frobenius-unchecked-entries")) {
        if (entry >= count / 4 * 4) return {};
        return entry / 4 * 4;
    }
    if (isException(function, "sum-pipelined-entries")) {
        if (operand.written && entry == count - 1) return 0;
        if (operand.written && entry == 0) return {};
        return entry == 0 ? 0 : entry - 1;
    }
    return entry;
}

// check(call, operand, entry, whole) for calls that are filled, and what they leave without a fault.
template <class Check> void forEachListEntry(Check check) {
    for (const Function &function : allMembers())
        for (const std::uint32_t count : counts) {
            if (!function.array() || !std::ranges::any_of(function.operands, hasList)) continue;
            const Objects whole = completed(function, count);
            for (const Operand &operand : function.operands)
                for (std::uint32_t entry = 0; entry < count; ++entry) {
                    if (!hasList(operand)) continue;
                    SCOPED_TRACE(operand.name + "[" + std::to_string(entry) + "] null");
                    Call call(function.name, runTimeSize, count);
                    fill(call);
                    check(call, operand, entry, whole);
                }
        }
}

TEST(ArgumentChecks, CatchNullEntriesOfListsWhenTheObjectsTurnComes) {
    forEachListEntry([](Call &call, const Operand &operand, std::uint32_t entry, const Objects &whole) {
        const std::optional<std::uint32_t> done = completeBefore(call.function(), operand, entry, call.count());
        EXPECT_EQ(literal::runThroughNull(call, operand.name, entry), done ? vonkErrNullPtr : vonkOk);
        expectDone(call, whole, done.value_or(call.count()));
    });
}

TEST(ArgumentChecks, StopAtOrPassOverAnObjectWhoseAddressIsNullInTheCholeskyFamilies) {
    forEachListEntry([](Call &call, const Operand &operand, std::uint32_t entry, const Objects &whole) {
        const OfEntries rule = ruleOf(call.function()).entries;
        const bool stops = rule == OfEntries::addressStops;
        if (!stops && rule != OfEntries::addressPassesOver) return;
        literal::Place &place = call[operand.name];
        std::byte *const kept = place.entries[entry];
        place.entries[entry] = reinterpret_cast<std::byte *>(-std::intptr_t{place.shift});
        EXPECT_EQ(call.run(), stops ? vonkErrNullPtr : vonkOk);
        place.entries[entry] = kept;
        const Objects found = objectsOf(call);
        for (std::uint32_t n = 0; n < call.count(); ++n)
            if (n == entry || (stops && n > entry)) EXPECT_FALSE(call.changedObject(n)) << "object " << n;
            else expectObject(whole, found, n);
    });
}

} // namespace
