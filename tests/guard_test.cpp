// No call touches a byte outside its operands: each row, element or run of objects lies against a page that cannot be
// touched, behind or before it, and sources lie in pages that cannot be written. The reads beyond an operand that
// callers have to allow for get their pages for reading only: the displaced look at the last pivot of LU decomposition,
// the fourth element behind rows of three in some sums of matrices, and the displaced triangle of
// vonkQRBackSubst_mava_64f in `L`.
#include "support/families.h"
#include "support/family_test.h"

#include <csetjmp>
#include <csignal>
#include <regex>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace literal::names;
using literal::Place;

// ---- Memory with guards

// Pages that are out of bounds until a chunk is taken. The test itself reaches all of them through a second mapping.
class GuardedMemory {
public:
    static constexpr std::size_t page = 4096;
    static constexpr std::size_t pages = 4096;
    static constexpr std::size_t slot = 2 * page; // from one chunk of a row of chunks to the next

    explicit GuardedMemory(int protection) : protection(protection) {
        const int file = memfd_create("guarded", 0);
        if (file < 0 || ftruncate(file, pages * page) != 0) throw std::runtime_error("no memory to guard");
        view = map(file, PROT_NONE);
        backing = map(file, PROT_READ | PROT_WRITE);
        close(file);
    }
    ~GuardedMemory() {
        munmap(view, pages * page);
        munmap(backing, pages * page);
    }
    GuardedMemory(const GuardedMemory &) = delete;
    GuardedMemory &operator=(const GuardedMemory &) = delete;

    // So many chunks a slot apart, each at the end of its page or at the start. Around them is room for a displaced
    // look.
    std::byte *take(const std::string &name, std::size_t chunks, std::size_t bytes, bool atEnd) {
        constexpr std::size_t room = 40;
        const std::size_t pagesEach = (bytes + page - 1) / page;
        if (chunks > 1 && pagesEach > 1) throw std::length_error("a chunk larger than a page");
        next += room;
        std::byte *const first = view + next * page + (atEnd ? pagesEach * page - bytes : 0);
        if (next + chunks * (pagesEach + 1) + room > pages) throw std::length_error("the guarded memory is used up");
        for (std::size_t k = 0; k < chunks; ++k) {
            open(next, pagesEach, protection);
            taken.push_back({name, first + k * slot, bytes});
            next += pagesEach + 1;
        }
        next += room;
        return first;
    }

    // Lets these bytes be read where they could not be touched.
    void expose(const std::byte *address, std::size_t bytes) {
        const auto first = static_cast<std::size_t>(address - view) / page;
        const auto last = (static_cast<std::size_t>(address - view) + bytes - 1) / page;
        if (first < 1 || last >= pages) throw std::length_error("beyond the guarded memory");
        for (std::size_t k = first; k <= last; ++k)
            if (!opened.contains(k)) open(k, 1, PROT_READ);
    }

    void giveBack() {
        if (mprotect(view, pages * page, PROT_NONE) != 0) throw std::runtime_error("mprotect");
        opened.clear();
        taken.clear();
        next = 1;
    }

    bool contains(const std::byte *address) const { return address >= view && address < view + pages * page; }
    std::ptrdiff_t alias() const { return backing - view; }
    std::byte *outOfBounds() const { return view + 64; } // the first page is never opened

    // "8 bytes behind chunk 2 of dst", of the chunk next to the address.
    std::string describe(const std::byte *address) const {
        const auto near = std::ranges::min_element(taken, {}, [&](const Chunk &c) { return distance(c, address); });
        if (near == taken.end()) return "no chunk is near";
        return std::to_string(distance(*near, address)) + " bytes off a chunk of " + near->name + ", " +
               std::to_string(address - near->first) + " from its start";
    }

private:
    struct Chunk {
        std::string name;
        const std::byte *first;
        std::size_t bytes;
    };

    static std::byte *map(int file, int protection) {
        void *const got = mmap(nullptr, pages * page, protection, MAP_SHARED, file, 0);
        if (got == MAP_FAILED) throw std::runtime_error("no memory to guard");
        return static_cast<std::byte *>(got);
    }

    static std::ptrdiff_t distance(const Chunk &chunk, const std::byte *address) {
        return std::max({chunk.first - address, address - (chunk.first + chunk.bytes) + 1, std::ptrdiff_t{0}});
    }

    void open(std::size_t first, std::size_t count, int access) {
        if (mprotect(view + first * page, count * page, access) != 0) throw std::runtime_error("mprotect");
        for (std::size_t k = first; k < first + count; ++k) opened.insert(k);
    }

    int protection;
    std::byte *view = nullptr;
    std::byte *backing = nullptr;
    std::size_t next = 1;
    std::set<std::size_t> opened;
    std::vector<Chunk> taken;
};

struct Guards {
    GuardedMemory readable{PROT_READ};
    GuardedMemory writable{PROT_READ | PROT_WRITE};

    GuardedMemory &holding(const std::byte *address) { return readable.contains(address) ? readable : writable; }
    void giveBack() {
        readable.giveBack();
        writable.giveBack();
    }
};

Guards &guards() {
    static Guards both;
    return both;
}

// ---- Faults

sigjmp_buf faultExit;
volatile std::sig_atomic_t faultExpected = 0;
const std::byte *volatile faultAddress = nullptr;

void onFault(int signal, siginfo_t *info, void *) {
    if (faultExpected == 0) { // not ours: fail as usual, at the same instruction again
        std::signal(signal, SIG_DFL);
        return;
    }
    faultAddress = static_cast<const std::byte *>(info->si_addr);
    siglongjmp(faultExit, 1);
}

// Makes the call; tells the address that it may not touch, if there was one. Leaves both units as they were.
std::optional<const std::byte *> faultOf(const std::function<void()> &call) {
    const support::SettingScope scope({});
    struct sigaction handler = {}, oldSegment = {}, oldBus = {};
    handler.sa_sigaction = onFault;
    handler.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &handler, &oldSegment);
    sigaction(SIGBUS, &handler, &oldBus);
    volatile bool faulted = true;
    if (sigsetjmp(faultExit, 1) == 0) {
        faultExpected = 1;
        call();
        faulted = false;
    }
    faultExpected = 0;
    sigaction(SIGSEGV, &oldSegment, nullptr);
    sigaction(SIGBUS, &oldBus, nullptr);
    if (!faulted) return std::nullopt;
    return faultAddress;
}

// ---- Calls between guards

struct Arrangement {
    bool apart;    // each row, element or run of objects between guards of its own; else the operand as a whole
    bool atEnd;    // the guard close behind, else close before
    int direction; // of the strides from chunk to chunk

    std::string describe() const {
        return std::string(apart ? "apart" : "packed") + (atEnd ? ", guards behind" : ", guards before") +
               (direction < 0 ? ", backward" : "");
    }
};

constexpr std::array arrangements = std::to_array<Arrangement>(
    {{false, true, 1}, {false, false, 1}, {true, true, 1}, {true, false, 1}, {true, true, -1}, {true, false, -1}});
constexpr std::span packedBothWays = std::span(arrangements).first(2);

// Puts a table of these entries into memory that can only be read.
void putTable(Place &place, const std::vector<std::byte *> &entries, bool atEnd) {
    GuardedMemory &readable = guards().readable;
    const std::size_t bytes = entries.size() * sizeof(std::byte *);
    std::byte *const put = readable.take("the table of " + place.operand->name, 1, bytes, atEnd);
    std::memcpy(put + readable.alias(), entries.data(), bytes);
    place.table = reinterpret_cast<std::byte *const *>(put);
}

// Lays the operand into guarded memory.
void place(Call &call, Place &place, Arrangement arrangement) {
    const Layout layout = place.operand->layout;
    const bool matrixOfFour = literal::hasColumnsFourBytesApart(call.function()) && place.operand->matrix;
    const int e = place.elementSize;
    const int rows = static_cast<int>(place.rows);
    const int cols = static_cast<int>(place.cols);
    const int objects = place.operand->array ? static_cast<int>(call.count()) : 1;
    const bool table = catalogue::isTable(layout);
    const bool strided = layout == Layout::strided || layout == Layout::stridedList;
    const int step = arrangement.direction * static_cast<int>(GuardedMemory::slot);
    place.elementStride = matrixOfFour ? 4 : e;
    int chunks = 1;
    int bytes = 0;
    if (!arrangement.apart) {
        bytes = rows * cols * objects * e;
        place.rowStride = cols * e;
        place.objectStride = table ? e : rows * place.rowStride;
        place.positionStride = objects * e;
        if (matrixOfFour) bytes -= (cols - 1) * 4; // the last row ends earlier
    } else if (table) {
        const bool run = layout == Layout::pointer; // the objects of a position, packed
        bytes = run ? objects * e : e;
        chunks = rows * cols * (run ? 1 : objects);
        place.objectStride = run ? e : step;
        place.positionStride = run ? step : objects * step;
    } else {
        bytes = strided ? e : (cols - 1) * place.elementStride + e;
        chunks = rows * objects * (strided ? cols : 1);
        if (strided) place.elementStride = step;
        place.rowStride = strided ? cols * step : step;
        place.objectStride = rows * place.rowStride;
    }
    GuardedMemory &memory = place.operand->written ? guards().writable : guards().readable;
    std::byte *const first = memory.take(place.operand->name, static_cast<std::size_t>(chunks),
                                         static_cast<std::size_t>(bytes), arrangement.atEnd);
    place.origin = first;
    if (arrangement.apart && arrangement.direction < 0) place.origin -= std::ptrdiff_t{step} * (chunks - 1);
    place.alias = memory.alias();
    if (!place.tabled()) return;

    const std::ptrdiff_t between = table ? place.positionStride : place.objectStride;
    place.entries.clear();
    for (int k = 0; k < (table ? rows * cols : objects); ++k)
        place.entries.push_back(place.origin - place.shift + between * k);
    putTable(place, place.entries, arrangement.atEnd);
}

void placePivots(Call &call, Arrangement arrangement) {
    const bool written = call.function().family->operation == "LUDecomp";
    GuardedMemory &memory = written ? guards().writable : guards().readable;
    const std::size_t words = std::size_t{call.size()} * call.count();
    std::byte *const put = memory.take("pivots", 1, words * 4, arrangement.atEnd);
    for (std::uint32_t n = 0; n < call.count(); ++n) {
        const std::vector<std::uint32_t> rows = Factors(call.size(), n).permutation;
        std::memcpy(put + memory.alias() + std::size_t{4} * n * call.size(), rows.data(), 4 * rows.size());
    }
    call.putPivotsAt(reinterpret_cast<std::uint32_t *>(put));
}

void placeBlock(Call &call, const std::string &parameter, Arrangement arrangement) {
    if (parameter == "pivots") return placePivots(call, arrangement);
    if (parameter == "work") {
        const std::size_t bytes = call.rows() * static_cast<std::size_t>(call["dst"].elementSize);
        return call.putWorkAt(guards().writable.take("work", 1, bytes, arrangement.atEnd));
    }
    if (call.hasPlainResult()) return place(call, call[parameter], {false, arrangement.atEnd, 1});
    literal::Block &block = call.block(parameter);
    block.address = guards().writable.take(block.parameter, 1, block.bytes, arrangement.atEnd);
}

// What the elements are does not matter to the guards, but each call has to come to its end.
void fill(Call &call) {
    for (const Operand &operand : call.function().operands)
        for (std::uint32_t n = 0; n < call.objectsOf(operand.name); ++n) {
            const Place &at = call[operand.name];
            const Factors factors(call.size(), n);
            std::vector<double> values(std::size_t{at.rows} * at.cols, 1.0);
            const bool tall = call.rows() != call.size();
            if (operand.matrix && !operand.written && !tall)
                values = operand.name == "src" ? factors.matrix() : factors.factored();
            for (std::uint32_t k = 0; k < values.size(); ++k) {
                const std::uint32_t i = k / at.cols, j = k % at.cols;
                // Each row has its 3 in another column.
                if (tall) values[k] = i % at.cols == j ? 3 : 0;
                // Positive definite by its lower triangle, which a table of a larger matrix gets past the end of.
                if (call.function().family->operation == "CholeskyDecomp") values[k] = i == j ? 1 : i < j ? 9 : 0;
            }
            call.set(operand.name, n, values);
        }
}

// Lays out and fills everything that the call is given.
void layBetweenGuards(Call &call, Arrangement arrangement) {
    guards().giveBack();
    // Elements that are reached without a shift, or by way of another table, lie where the others do.
    const std::string &name = call.function().name;
    if (name == "vonkExtract_mT_32f_P" || name == "vonkExtract_mT_64f_P") call["src"].shift = 0;
    if (name == "vonkCopy_va_32f_PP" || name == "vonkCopy_va_64f_PP") call["src"].shift = call["dst"].shift;
    for (const Operand &operand : call.function().operands) place(call, call[operand.name], arrangement);
    for (const catalogue::Parameter &parameter : call.function().parameters)
        if (parameter.kind == Kind::dense) placeBlock(call, parameter.name, arrangement);
    fill(call);
}

// What slots behind the positions of a table of `dst` lead to, in object 0.
using Slots = std::map<std::size_t, std::byte *>;

// A slot may serve the looks of two objects.
std::byte *slotBehindTable(Place &destination, std::size_t slot, Slots &slots) {
    const auto [found, isNew] = slots.try_emplace(slot, nullptr);
    if (!isNew) return found->second;
    GuardedMemory &readable = guards().readable;
    found->second = readable.take("the displaced pivot", 1, static_cast<std::size_t>(destination.elementSize), true);
    const std::byte *const entry = found->second - destination.shift;
    auto *const where = const_cast<std::byte *>(reinterpret_cast<const std::byte *>(destination.table + slot));
    readable.expose(where, sizeof entry);
    std::memcpy(where + readable.alias(), &entry, sizeof entry);
    return found->second;
}

// The displaced look of object n: an element as many columns behind the last pivot, or a slot of the table as many rows
// down and the element that it leads to. All of it is for reading only, and is 1.
void allowDisplacedLook(Call &call, std::uint32_t n, Slots &slots) {
    Place &destination = call["dst"];
    const std::uint32_t order = call.size();
    const std::uint32_t row = Factors(order, n).permutation.back();
    std::byte *look = destination.address(n, row, order - 1) + std::ptrdiff_t{destination.elementStride} * n * order;
    if (catalogue::isTable(destination.operand->layout)) {
        const std::size_t slot = std::size_t{row + n} * order + order - 1;
        if (slot < destination.entries.size()) return; // an element of the object itself, in the last column of U
        look = slotBehindTable(destination, slot, slots) + std::ptrdiff_t{destination.objectStride} * n;
    }
    GuardedMemory &memory = guards().holding(look);
    memory.expose(look, static_cast<std::size_t>(destination.elementSize));
    call.setAt(look + memory.alias(), 1);
}

bool sumsThreeInLanes(const Function &function) {
    const std::string_view operation = function.family->operation;
    return (operation == "Add" || operation == "Sub") && function.order == 3 && hasLanes(function);
}

// Sums of an array and a single matrix of three rows in lanes fetch four elements of each row of the one that is
// transposed. Where that one is single, the forms in lists do not.
bool fetchesFourOfThree(const Function &function, const Operand &operand) {
    return sumsThreeInLanes(function) && operand.transposed &&
           (function.group == "maTm" || (function.group == "mamT" && function.layout.empty()));
}

void allowFourthElements(Call &call) {
    for (const Operand &operand : call.function().operands) {
        if (!fetchesFourOfThree(call.function(), operand)) continue;
        for (std::uint32_t n = 0; n < call.objectsOf(operand.name); ++n)
            for (std::uint32_t i = 0; i < 3; ++i) guards().readable.expose(call[operand.name].address(n, i, 2) + 4, 4);
    }
}

bool displacesTriangle(const Function &function) {
    return function.family->operation == "QRBackSubst" && function.group == "mava" && function.type == Type::real64 &&
           function.layout == "L";
}

// Row i of the triangle lies i + 1 bytes behind where a row ahead of the matrix would.
void allowDisplacedTriangle(Call &call, std::uint32_t n) {
    const Place &matrix = call["src1"];
    const std::byte *const first = matrix.address(n, 0, 0) + 1 - matrix.rowStride;
    guards().readable.expose(first, std::size_t{9} * call.size());
}

// Positions above the diagonal of a Cholesky factor are none of the call's business, nor is what lies there.
void closeUpperTriangle(Call &call) {
    if (!call.function().family->operation.starts_with("Cholesky")) return;
    for (const Operand &operand : call.function().operands) {
        if (!operand.matrix || !catalogue::isTable(operand.layout)) continue;
        Place &at = call[operand.name];
        for (std::uint32_t i = 0; i < at.rows; ++i)
            for (std::uint32_t j = i + 1; j < at.cols; ++j) {
                const std::byte *const nowhere = guards().readable.outOfBounds() - at.shift;
                auto *const entry = reinterpret_cast<const std::byte *>(at.table + i * at.cols + j);
                std::memcpy(const_cast<std::byte *>(entry) + guards().readable.alias(), &nowhere, sizeof nowhere);
            }
    }
}

// The inverse of a single element reads anywhere in place of a minor, and the ones of identities run on behind the
// first.
bool leavesItsOperands(const Function &function, std::uint32_t size, std::uint32_t count) {
    if (function.family->operation == "Invert") return size == 1;
    return function.family->operation == "LoadIdentity" && count > 1;
}

// All that calls read beside their operands, as far as they get to so many objects.
void allowReads(Call &call, std::uint32_t objects) {
    Slots slots;
    if (call.function().family->operation == "LUDecomp")
        for (std::uint32_t n = 1; n < objects; ++n) allowDisplacedLook(call, n, slots);
    if (displacesTriangle(call.function()))
        for (std::uint32_t n = 0; n < objects; ++n) allowDisplacedTriangle(call, n);
    allowFourthElements(call);
}

void expectNoFault(Call &call, std::int32_t expected) {
    std::int32_t status = 1;
    const auto fault = faultOf([&] { status = call.run(); });
    if (fault) ADD_FAILURE() << "touched memory " << guards().holding(*fault).describe(*fault);
    else EXPECT_EQ(status, expected);
}

using Numbers = std::vector<std::uint32_t>;

// `rows` is 0 where matrices are as high as their size.
void expectNoFaults(const Function &function, const Numbers &sizes, const Numbers &counts,
                    std::span<const Arrangement> in, const Numbers &rows = {0}) {
    for (const Arrangement arrangement : in)
        for (const std::uint32_t size : literal::sizesOf(function, sizes))
            for (const std::uint32_t count : counts)
                for (const std::uint32_t height : rows) {
                    if (leavesItsOperands(function, size, count)) continue;
                    SCOPED_TRACE(arrangement.describe());
                    Call call(function.name, size, count, literal::packed, height);
                    layBetweenGuards(call, arrangement);
                    allowReads(call, call.count());
                    closeUpperTriangle(call);
                    expectNoFault(call, vonkOk);
                }
}

// ---- The guards themselves

TEST(GuardsThemselves, CatchAReadBehindAndAReadBefore) {
    for (const bool atEnd : {true, false}) {
        guards().giveBack();
        GuardedMemory &memory = guards().readable;
        std::byte *const bytes = memory.take("bytes", 3, 12, atEnd);
        volatile std::byte sink{};
        const auto readAll = [&](std::ptrdiff_t from, std::ptrdiff_t to) {
            for (std::ptrdiff_t k = from; k < to; ++k)
                sink = bytes[static_cast<std::ptrdiff_t>(GuardedMemory::slot) + k];
        };
        EXPECT_FALSE(faultOf([&] { readAll(0, 12); }));
        const auto fault = faultOf([&] { readAll(atEnd ? 0 : -1, atEnd ? 13 : 12); });
        ASSERT_TRUE(fault);
        EXPECT_EQ(*fault, bytes + GuardedMemory::slot + (atEnd ? 12 : -1));
        EXPECT_EQ(memory.describe(*fault).substr(0, 27), "1 bytes off a chunk of byte");
    }
}

TEST(GuardsThemselves, CatchAWriteToASource) {
    guards().giveBack();
    std::byte *const source = guards().readable.take("source", 1, 4, true);
    std::byte *const destination = guards().writable.take("destination", 1, 4, true);
    EXPECT_EQ(faultOf([&] { *static_cast<volatile std::byte *>(source) = std::byte{1}; }), source);
    EXPECT_FALSE(faultOf([&] { *static_cast<volatile std::byte *>(destination) = std::byte{1}; }));
}

TEST(GuardsThemselves, ExposeForReadingOnly) {
    guards().giveBack();
    GuardedMemory &memory = guards().writable;
    std::byte *const behind = memory.take("bytes", 1, 4, true) + 4;
    volatile std::byte sink{};
    EXPECT_EQ(faultOf([&] { sink = *behind; }), behind);
    memory.expose(behind, 4);
    EXPECT_FALSE(faultOf([&] { sink = *behind; }));
    EXPECT_EQ(faultOf([&] { *static_cast<volatile std::byte *>(behind) = std::byte{1}; }), behind);
}

// An export that is told of one element more than there is goes too far.
TEST(GuardsThemselves, CatchAnExportThatIsToldOfTooManyElements) {
    std::size_t told = 0;
    for (const Function &function : literal::allMembers()) {
        if (!literal::has(function, Kind::size)) continue;
        ++told;
        Call call(function.name, 3, 1);
        layBetweenGuards(call, {true, true, 1});
        for (const catalogue::Parameter &parameter : function.parameters)
            if (parameter.kind == Kind::size) call.pass(parameter.name, 4);
        EXPECT_TRUE(faultOf([&] { call.run(); }));
    }
    const auto runTime = std::ranges::count(literal::allMembers(), 0, &Function::order);
    EXPECT_EQ(told, static_cast<std::size_t>(runTime));
}

// Without its page the displaced look is caught too, at the very address: of packed objects, that of the last goes
// beyond the array, and the first one past the middle of the order beyond the table.
TEST(GuardsThemselves, CatchTheDisplacedLook) {
    for (const Function &function : literal::allMembers()) {
        if (function.family->operation != "LUDecomp" || !function.array()) continue;
        for (const std::uint32_t order : literal::sizesOf(function, {2, 3, 7})) {
            Call call(function.name, order, order);
            layBetweenGuards(call, {false, true, 1});
            const Place &destination = call["dst"];
            const bool table = catalogue::isTable(destination.operand->layout);
            const std::uint32_t n = table ? (order + 1) / 2 : order - 1;
            const std::uint32_t row = Factors(order, n).permutation.back();
            ASSERT_EQ(row, n);
            const std::byte *expected =
                destination.address(n, row, order - 1) + std::size_t{n} * order * destination.elementSize;
            if (table)
                expected =
                    reinterpret_cast<const std::byte *>(destination.table + std::size_t{2} * n * order + order - 1);
            EXPECT_EQ(faultOf([&] { call.run(); }), expected);
        }
    }
}

// So is the displaced triangle: of matrices at the start of a page the last element begins before it.
TEST(GuardsThemselves, CatchTheDisplacedTriangle) {
    std::size_t displaced = 0;
    for (const Function &function : literal::allMembers()) {
        if (!displacesTriangle(function)) continue;
        ++displaced;
        for (const std::uint32_t order : literal::sizesOf(function, {1, 2, 7})) {
            Call call(function.name, order, 2);
            layBetweenGuards(call, {false, false, 1});
            const Place &matrix = call["src1"];
            EXPECT_EQ(faultOf([&] { call.run(); }), matrix.address(0, 0, order - 1) + order - matrix.rowStride);
        }
    }
    EXPECT_EQ(displaced, 5U);
}

// ---- All exports

TEST(Guards, FindNoCallOutsideItsOperands) {
    for (const Function &function : literal::allMembers())
        expectNoFaults(function, {1, 2, 3, 6, 7}, function.array() ? Numbers{1, 3} : Numbers{1}, arrangements);
}

bool isOnVectors(const Function &function) { return std::ranges::none_of(function.operands, &Operand::matrix); }

// Lengths around the blocks of eight and at all alignments that the end of a page gives.
const Numbers lengths{10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 24, 27, 40};

TEST(Guards, FindNoLongVectorOutsideItsOperands) {
    for (const Function &function : literal::allMembers()) {
        if (!isOnVectors(function) || function.order != 0) continue;
        expectNoFaults(function, lengths, {2}, packedBothWays);
        expectNoFaults(function, {1030}, {2}, packedBothWays);
    }
}

// Matrices higher than wide, and right-hand sides of lengths around blocks of eight.
TEST(Guards, FindNoTallMatrixOutsideItsOperands) {
    for (const Function &function : literal::allMembers()) {
        if (function.section->header != std::string_view("qr") || function.order != 0) continue;
        expectNoFaults(function, {3}, {2}, arrangements, {4, 5, 8});
        expectNoFaults(function, {2}, {2}, packedBothWays, lengths);
    }
}

// Families that work batches of four or eight objects, and the remainder. A batch loads three elements as four; these
// are aligned to 16 bytes, so that the fourth is never on another page.
TEST(Guards, FindNoBlockOfObjectsOutsideItsOperands) {
    static const std::set<std::string_view> ofVectors{"dot-product", "norm", "cross-product"};
    static const std::regex ofMatrices("frobenius-norm|matrix-product|matrix-vector|gaxpy|cholesky-.*|qr-.*");
    for (const Function &function : literal::allMembers()) {
        if (!function.array() || function.order == 0) continue;
        const std::string_view section = function.section->id;
        if (ofVectors.contains(section) || (isOnVectors(function) && function.group == "vava" && function.order == 3))
            expectNoFaults(function, {0}, {1, 2, 3, 4, 5, 6, 7, 8, 9}, arrangements);
        if (std::regex_match(std::string(section), ofMatrices) && isFloat(function))
            expectNoFaults(function, {0}, {4, 9, 14}, arrangements);
    }
}

// ---- Lists that end at a null entry

// Sums that load an object ahead do one even where there are none.
bool doesOneForNone(const Function &function) {
    return sumsThreeInLanes(function) && (function.group == "mam" || function.group == "mamT");
}

// Leaves the list so many entries, at the end of a page, the last of them null if it is to be.
void cutList(Call &call, const Operand &operand, std::size_t entries, bool endsInNull) {
    Place &place = call[operand.name];
    std::vector<std::byte *> kept(place.entries.begin(), place.entries.begin() + static_cast<std::ptrdiff_t>(entries));
    if (endsInNull)
        kept.back() = reinterpret_cast<std::byte *>(
            static_cast<std::uintptr_t>(support::families::nullEntry(call.function(), place.shift)));
    putTable(place, kept, true);
}

// The entries lead to the objects themselves.
void unshift(Place &place) {
    for (std::byte *&entry : place.entries) entry += place.shift;
    place.shift = 0;
}

void expectNothingReadBehindNull(const Function &function, const Operand &nullOperand, std::uint32_t null,
                                 bool isShifted) {
    SCOPED_TRACE(function.name + ", entry " + std::to_string(null) + " of " + nullOperand.name +
                 (isShifted ? "" : ", without shifts"));
    Call call(function.name, 3, 9);
    layBetweenGuards(call, {false, true, 1});
    for (const Operand &operand : function.operands)
        if (operand.array && catalogue::isList(operand.layout)) {
            if (!isShifted) unshift(call[operand.name]);
            cutList(call, operand, null + 1, operand.name == nullOperand.name);
        }
    allowReads(call, null);
    expectNoFault(call, vonkErrNullPtr);
}

// A null entry that is tested ends the call, so it may end the lists too; but a member that loads ahead looks at the
// last entry of its destination first, norms of 3x3 and 4x4 look at the entries of four objects together, and Cholesky
// back substitution passes over the object.
bool looksBehindNull(const Function &function) {
    return doesOneForNone(function) || function.section->id == "cholesky-back-substitution" ||
           (function.section->id == "frobenius-norm" && function.layout == "L" && function.order <= 4);
}

TEST(Guards, FindNoListReadBehindANullEntry) {
    std::set<std::string> tried;
    for (const Function &function : literal::allMembers()) {
        if (!function.array() || looksBehindNull(function)) continue;
        for (const Operand &operand : function.operands)
            for (const std::uint32_t null : {0U, 1U, 2U, 3U, 5U, 7U, 8U}) {
                if (!operand.array || !catalogue::isList(operand.layout)) continue;
                if (!support::families::testsEntry(function, operand, {{}, 9}, null)) continue;
                tried.insert(function.name);
                for (const bool isShifted : {true, false})
                    expectNothingReadBehindNull(function, operand, null, isShifted);
            }
    }
    EXPECT_GT(tried.size(), 1000U);
}

// ---- Calls that have nothing to do

// Every pointer leads out of bounds; a table of positions, which is looked at ahead of the count, has such entries.
void pointOutOfBounds(Call &call) {
    for (const catalogue::Parameter &parameter : call.function().parameters) {
        if (parameter.kind == Kind::table) {
            auto &entries = call[call.function().operands[static_cast<std::size_t>(parameter.operand)].name].entries;
            std::ranges::fill(entries, guards().readable.outOfBounds());
        } else if (literal::isPointer(parameter.kind)) {
            call.pass(parameter.name, reinterpret_cast<std::uintptr_t>(guards().readable.outOfBounds()));
        }
    }
}

TEST(Guards, FindOneObjectTouchedForNoneByWhoLoadsAhead) {
    for (const Function &function : literal::allMembers()) {
        if (!doesOneForNone(function) || !function.layout.empty()) continue;
        Call call(function.name, 3, 1);
        layBetweenGuards(call, {true, true, 1});
        allowFourthElements(call);
        call.pass("count", 0);
        expectNoFault(call, vonkOk);
    }
}

TEST(Guards, FindNothingTouchedForNoObjects) {
    for (const Function &function : literal::allMembers()) {
        if (!function.array() || doesOneForNone(function)) continue;
        guards().giveBack();
        Call call(function.name, 3, 2);
        pointOutOfBounds(call);
        call.pass("count", 0);
        expectNoFault(call, literal::statusOfNoObjects(function));
    }
}

// Sizes of zero that leave nothing to do, and that of the columns of an identity, which leaves the ones.
bool isEmptyAtZero(const Function &function) {
    return literal::isException(function, "extract-unchecked") || function.family->operation == "LoadIdentity" ||
           literal::isException(function, "copy-empty-matrix");
}

bool actsAtZero(const Function &function, const catalogue::Parameter &parameter) {
    if (literal::isPointer(parameter.kind)) return literal::isException(function, "extract-unchecked");
    return function.family->operation == "LoadIdentity" && parameter.name == "cols";
}

// Products of an array of matrices and one matrix let the columns of that one be 0, and then look at their tables and
// lists but at no element.
bool passesAsZero(const Function &function, const catalogue::Parameter &parameter) {
    return literal::isException(function, "product-no-columns") && parameter.name == "src2Cols";
}

TEST(Guards, FindNothingTouchedWhereAPointerIsNullOrTheSizeIsZero) {
    for (const Function &function : literal::allMembers())
        for (const catalogue::Parameter &parameter : function.parameters) {
            if (!literal::isPointer(parameter.kind) && parameter.kind != Kind::size) continue;
            if (actsAtZero(function, parameter)) continue;
            const bool isSize = parameter.kind == Kind::size;
            const bool passes = passesAsZero(function, parameter) || (isSize && isEmptyAtZero(function));
            const Layout layout = function.operands.back().layout;
            if (passesAsZero(function, parameter) && (catalogue::isTable(layout) || catalogue::isList(layout)))
                continue;
            SCOPED_TRACE(function.name + ", " + parameter.name + " is zero");
            guards().giveBack();
            Call call(function.name, 3, 2);
            for (const catalogue::Parameter &other : function.parameters)
                if (literal::isPointer(other.kind))
                    call.pass(other.name, reinterpret_cast<std::uintptr_t>(guards().readable.outOfBounds()));
            call.pass(parameter.name, 0);
            expectNoFault(call, passes ? vonkOk : isSize ? vonkErrSize : vonkErrNullPtr);
        }
}

} // namespace
