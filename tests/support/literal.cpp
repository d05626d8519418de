// Laying out, making and judging one call. See literal.h.
#include "literal.h"

#include "both.h"
#include "invoke.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <span>
#include <stdexcept>
#include <unordered_map>

namespace literal {
namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Layout;
using catalogue::Type;

// Floats and doubles of these bytes are ordinary numbers, 0.747 and 0.000477, that no result here happens to be.
constexpr std::byte background{0x3f};
constexpr std::uint32_t untouchedPivot = 0xc0ffee01;
constexpr std::size_t pivotMargin = 8;
constexpr std::size_t workMargin = 64;

// Stands above every 32-bit word of a call, where nobody may look.
constexpr std::uint64_t rubbish = 0xa5c3'96e1'0000'0000;

struct Reach {
    std::ptrdiff_t low = 0;
    std::ptrdiff_t high = 0;
};

void *exportOf(const Function &function) {
    static const support::Library library(support::defaultLibrary());
    void *const address = library.find(function.name);
    if (address == nullptr) throw std::runtime_error("the library does not export " + function.name);
    return address;
}

bool isList(const Place &place) { return catalogue::isList(place.operand->layout) && place.operand->array; }

// From the origin to an element, with objects, rows and columns as the strides say.
std::ptrdiff_t offset(const Place &place, std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    const auto times = [](std::int32_t stride, std::uint32_t times) { return std::ptrdiff_t{stride} * times; };
    if (catalogue::isTable(place.operand->layout))
        return times(place.positionStride, i * place.cols + j) + times(place.objectStride, n);
    return times(place.objectStride, n) + times(place.rowStride, i) + times(place.elementStride, j);
}

// `objects` objects of the operand, also where it is a single one: a destination may be laid over it.
Reach reachOf(const Place &place, std::uint32_t objects) {
    Reach reach{0, place.elementSize};
    for (std::uint32_t n : {0U, objects - 1})
        for (std::uint32_t i = 0; i < place.rows; ++i)
            for (std::uint32_t j = 0; j < place.cols; ++j) {
                reach.low = std::min(reach.low, offset(place, n, i, j));
                reach.high = std::max(reach.high, offset(place, n, i, j) + place.elementSize);
            }
    return reach;
}

// Objects beyond `count` have room too, for destinations that lie one object behind a source.
void chooseStrides(Place &place, Geometry geometry, std::uint32_t count) {
    const int e = place.elementSize;
    const int cols = static_cast<int>(place.cols);
    const int objects = static_cast<int>(count) + 1;
    const Layout layout = place.operand->layout;
    const bool free = layout == Layout::strided || layout == Layout::stridedList;
    const int element = free ? e + geometry.padding : e;
    const int row = cols * element * (geometry.roomy ? objects : 1) + 2 * geometry.padding;
    const int object = static_cast<int>(place.rows) * row + 3 * geometry.padding;
    place.elementStride = free ? geometry.direction * element : e;
    place.rowStride = geometry.direction * row;
    place.objectStride = geometry.direction * object;
    if (!catalogue::isTable(layout)) return;
    const int step = layout == Layout::pointer ? e : e + geometry.padding;
    place.objectStride = layout == Layout::pointer ? e : geometry.direction * step;
    place.positionStride = geometry.direction * (objects * step + geometry.padding);
}

} // namespace

const std::vector<Function> &allMembers() {
    static const std::vector<Function> functions = catalogue::expand();
    return functions;
}

const Function &function(std::string_view name) {
    static const auto byName = [] {
        std::unordered_map<std::string_view, const Function *> map;
        for (const Function &member : allMembers()) map.emplace(member.name, &member);
        return map;
    }();
    const auto found = byName.find(name);
    if (found == byName.end()) throw std::out_of_range(std::string(name));
    return *found->second;
}

std::vector<const Function *> members(std::string_view section) {
    std::vector<const Function *> found;
    for (const Function &candidate : allMembers())
        if (candidate.section->id == section) found.push_back(&candidate);
    if (found.empty()) throw std::out_of_range(std::string(section));
    return found;
}

std::vector<const Function *> members(std::string_view section, const std::function<bool(const Function &)> &wanted) {
    std::vector<const Function *> found = members(section);
    std::erase_if(found, [&](const Function *candidate) { return !wanted(*candidate); });
    return found;
}

namespace {

const Function &functionFor(std::string_view name, const std::vector<std::uint64_t> &words) {
    const Function &called = function(name);
    if (words.size() != called.parameters.size()) throw std::length_error("words of " + called.name);
    return called;
}

} // namespace

std::int32_t callWith(std::string_view name, const std::vector<std::uint64_t> &words) {
    const Function &called = functionFor(name, words);
    model::Outcome outcome;
    return support::invokeBoth(exportOf(called), called, words, outcome);
}

model::Outcome runWhereFixed(std::string_view name, const std::vector<std::uint64_t> &words) {
    const Function &called = functionFor(name, words);
    model::Outcome outcome;
    support::invokeBoth(exportOf(called), called, words, outcome, support::WhereOpen::leaveOut);
    return outcome;
}

bool isPointer(Kind kind) {
    return kind == Kind::base || kind == Kind::table || kind == Kind::list || kind == Kind::dense;
}

bool hasColumnsFourBytesApart(const Function &function) {
    return (function.family->operation == "LUBackSubst" || function.family->operation == "QRBackSubst") &&
           function.group == "mva" && function.type == Type::real64 && function.layout == "L";
}

std::vector<std::uint32_t> sizesOf(const Function &function, std::vector<std::uint32_t> runTimeSizes) {
    if (function.order == 0) return runTimeSizes;
    return {static_cast<std::uint32_t>(function.order)};
}

std::vector<Sized> sized(std::string_view section, const std::vector<std::uint32_t> &runTimeSizes,
                         const Wanted &wanted) {
    std::vector<Sized> list;
    for (const Function *member : members(section, wanted))
        for (const std::uint32_t size : sizesOf(*member, runTimeSizes)) list.push_back({member, size});
    return list;
}

std::vector<Sized> ofSize(std::string_view section, std::uint32_t size, const Wanted &wanted) {
    std::vector<Sized> list = sized(section, {size}, wanted);
    std::erase_if(list, [size](const Sized &member) { return member.size != size; });
    return list;
}

std::vector<double> diagonal(const std::vector<double> &elements) {
    std::vector<double> matrix(elements.size() * elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) matrix[i * (elements.size() + 1)] = elements[i];
    return matrix;
}

std::vector<double> diagonal(std::uint32_t order, double value) { return diagonal(std::vector<double>(order, value)); }

std::vector<double> zeros(std::uint32_t order) { return diagonal(order, 0); }

std::vector<std::uint32_t> identityPermutation(std::uint32_t order) {
    std::vector<std::uint32_t> rows(order);
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

double nextElement(const Function &function, double element, double direction) {
    if (function.type == Type::real64) return std::nextafter(element, direction);
    return std::nextafter(static_cast<float>(element), static_cast<float>(direction));
}

std::vector<double> unroundNumbers(std::uint32_t count, std::uint32_t variant) {
    std::vector<double> numbers;
    for (std::uint32_t k = 0; k < count; ++k)
        numbers.push_back(static_cast<double>(static_cast<float>(((k * k * 5 + k * 7 + variant * 3) % 23 - 10.7) / 3)));
    return numbers;
}

bool Place::tabled() const { return catalogue::isTable(operand->layout) || isList(*this); }

std::byte *Place::address(std::uint32_t n, std::uint32_t i, std::uint32_t j) const {
    const std::uint32_t object = operand->array ? n : 0;
    if (catalogue::isTable(operand->layout))
        return entries[i * cols + j] + shift + std::ptrdiff_t{objectStride} * object;
    if (isList(*this))
        return entries[object] + shift + std::ptrdiff_t{rowStride} * i + std::ptrdiff_t{elementStride} * j;
    return origin + offset(*this, object, i, j);
}

void Place::moveTo(std::byte *newOrigin) {
    for (std::byte *&entry : entries) entry += newOrigin - origin;
    if (before != nullptr) before += newOrigin - origin;
    origin = newOrigin;
}

Call::Call(std::string_view name, std::uint32_t size, std::uint32_t count, Geometry geometry, std::uint32_t rows)
    : function_(literal::function(name)),
      size_(function_.order == 0 ? size : static_cast<std::uint32_t>(function_.order)),
      rows_(function_.order == 0 && rows != 0 ? rows : size_), count_(function_.array() ? count : 1),
      pivots_(2 * pivotMargin + std::size_t{size_} * count_, untouchedPivot), pivotsWord_(pivots_.data() + pivotMargin),
      work_(2 * workMargin + std::size_t{8} * rows_, background), workWord_(work_.data() + workMargin),
      trace_(__FILE__, __LINE__,
             function_.name + ", size " + std::to_string(size_) + ", count " + std::to_string(count_)) {
    for (const catalogue::Operand &operand : function_.operands) {
        Place place;
        place.operand = &operand;
        shape(place);
        chooseStrides(place, geometry, count_);
        places_.push_back(place);
    }
    if (hasPlainResult()) addPlainResult();
    for (const catalogue::Parameter &parameter : function_.parameters)
        if (parameter.kind == Kind::dense && parameter.name != "pivots" && parameter.name != "work" &&
            (parameter.name != "dst" || !hasPlainResult()))
            blocks_.push_back({parameter.name, bytesOf(parameter.name), nullptr});
    layOut(geometry);
}

bool Call::hasPlainResult() const {
    const std::string_view operation = function_.family->operation;
    return operation == "DotProduct" || operation == "L2Norm" || operation == "Trace" || operation == "FrobNorm";
}

void Call::addPlainResult() {
    result_ = {"dst", false, true, false, true, Layout::standard};
    Place place;
    place.operand = &result_;
    place.elementSize = function_.type == Type::real32 ? 4 : 8;
    place.elementStride = place.rowStride = place.objectStride = place.elementSize;
    places_.push_back(place);
}

std::size_t Call::bytesOf(const std::string &block) const {
    const std::size_t element = function_.type == Type::real32 ? 4 : 8;
    const std::size_t order = size_;
    if (block == "scratch") return order * (order * element + 4);
    const bool extracts = function_.family->operation == "Extract";
    return count_ * element * (!extracts ? 1 : function_.operands.front().matrix ? order * order : order);
}

void Call::shape(Place &place) const {
    place.elementSize = function_.type == Type::real32 ? 4 : 8;
    place.rows = place.operand->matrix ? rows_ : 1;
    place.cols = place.operand->matrix || place.operand->written ? size_ : rows_;
}

// Operands lie behind one another at multiples of 16, far enough apart for reads of displaced pivots.
void Call::layOut(Geometry geometry) {
    const std::uint32_t objects = count_ + 1;
    std::size_t end = 0;
    std::vector<std::size_t> origins;
    for (const Place &place : places_) {
        const Reach reach = reachOf(place, objects);
        const std::size_t margin = 256 + static_cast<std::size_t>(std::abs(place.elementStride)) * objects * size_;
        const std::size_t start = end + margin + static_cast<std::size_t>(-reach.low);
        origins.push_back((start + 15) / 16 * 16);
        end = origins.back() + static_cast<std::size_t>(reach.high) + margin;
    }
    std::size_t blockEnd = end + 64 * (std::size_t{count_} + 2);
    std::vector<std::size_t> starts;
    for (Block &block : blocks_) {
        starts.push_back((blockEnd + 127) / 16 * 16);
        blockEnd = starts.back() + block.bytes + 128;
    }
    memory_.assign(blockEnd, background);
    spare_ = memory_.data() + end;
    for (std::size_t k = 0; k < blocks_.size(); ++k) blocks_[k].address = memory_.data() + starts[k];
    for (std::size_t k = 0; k < places_.size(); ++k) {
        Place &place = places_[k];
        place.origin = memory_.data() + origins[k];
        if (!place.tabled()) continue;
        place.shift = geometry.direction * (24 + 8 * static_cast<int>(k));
        const std::uint32_t entries = isList(place) ? count_ : place.rows * place.cols;
        for (std::uint32_t entry = 0; entry < entries; ++entry) {
            const std::ptrdiff_t step = isList(place) ? place.objectStride : place.positionStride;
            place.entries.push_back(place.origin + step * static_cast<std::ptrdiff_t>(entry) - place.shift);
        }
        place.before = place.entries.front();
        // The ones of an identity run on along the table, here to one cell.
        if (!isList(place) && function_.family->operation == "LoadIdentity")
            place.entries.insert(place.entries.end(), std::size_t{size_} * count_, spareCell(1) - place.shift);
        // The displaced look at the last pivot goes beyond the positions, to a cell of its own for each object.
        if (!isList(place) && writesPivots() && place.operand->written)
            for (std::uint32_t n = 1; n < count_; ++n)
                place.entries.insert(place.entries.end(), size_,
                                     spareCell(n) - place.shift - std::ptrdiff_t{place.objectStride} * n);
    }
}

std::uint32_t Call::objectsOf(std::string_view operand) { return (*this)[operand].operand->array ? count_ : 1; }

Place &Call::operator[](std::string_view operand) {
    for (Place &place : places_)
        if (place.operand->name == operand) return place;
    throw std::out_of_range(std::string(operand));
}

void Call::layOver(std::string_view source) {
    Place &destination = (*this)["dst"];
    const Place &target = (*this)[source];
    destination.moveTo(target.origin);
}

void Call::setAt(std::byte *address, double value) const {
    const auto narrow = static_cast<float>(value);
    if (function_.type == Type::real32) std::memcpy(address, &narrow, sizeof narrow);
    else std::memcpy(address, &value, sizeof value);
}

double Call::getAt(const std::byte *address) const {
    float narrow = 0;
    double wide = 0;
    if (function_.type == Type::real64) {
        std::memcpy(&wide, address, sizeof wide);
        return wide;
    }
    std::memcpy(&narrow, address, sizeof narrow);
    return narrow;
}

void Call::set(std::string_view operand, std::uint32_t n, std::uint32_t i, std::uint32_t j, double value) {
    const Place &place = (*this)[operand];
    setAt(place.address(n, i, j) + place.alias, value);
}

void Call::set(std::string_view operand, std::uint32_t n, const std::vector<double> &values) {
    const Place &place = (*this)[operand];
    if (values.size() != std::size_t{place.rows} * place.cols) throw std::length_error("values of an object");
    for (std::uint32_t k = 0; k < values.size(); ++k) set(operand, n, k / place.cols, k % place.cols, values[k]);
}

void Call::set(std::string_view operand, const std::vector<double> &values) {
    for (std::uint32_t n = 0; n < objectsOf(operand); ++n) set(operand, n, values);
}

double Call::get(std::string_view operand, std::uint32_t n, std::uint32_t i, std::uint32_t j) {
    const Place &place = (*this)[operand];
    return getAt(place.address(n, i, j) + place.alias);
}

std::vector<double> Call::get(std::string_view operand, std::uint32_t n) {
    const Place &place = (*this)[operand];
    std::vector<double> values;
    for (std::uint32_t k = 0; k < place.rows * place.cols; ++k)
        values.push_back(get(operand, n, k / place.cols, k % place.cols));
    return values;
}

void Call::setConstant(std::string_view parameter, double value) {
    std::byte bits[sizeof(std::uint64_t)] = {};
    setAt(bits, value);
    std::memcpy(&constants_[std::string(parameter)], bits, sizeof bits);
}

Block &Call::block(std::string_view parameter) {
    for (Block &block : blocks_)
        if (block.parameter == parameter) return block;
    throw std::out_of_range(std::string(parameter));
}

std::vector<double> Call::results() {
    const Block &found = block("dst");
    const std::size_t element = function_.type == Type::real32 ? 4 : 8;
    std::vector<double> values;
    for (std::size_t at = 0; at < found.bytes; at += element) values.push_back(getAt(found.address + at));
    return values;
}

std::vector<std::uint32_t> Call::pivots(std::uint32_t n) const {
    const std::uint32_t *const first = pivots_.data() + pivotMargin + std::size_t{n} * size_;
    return {first, first + size_};
}

void Call::setPivots(std::uint32_t n, const std::vector<std::uint32_t> &rows) {
    std::ranges::copy(rows, pivots_.begin() + static_cast<std::ptrdiff_t>(pivotMargin + std::size_t{n} * size_));
}

std::vector<double> Call::work() const {
    std::vector<double> elements;
    const std::size_t step = function_.type == Type::real32 ? 4 : 8;
    for (std::size_t i = 0; i < rows_; ++i) elements.push_back(getAt(work_.data() + workMargin + i * step));
    return elements;
}

bool Call::changedWork() const { return before_.work != after_.work; }

std::uint64_t Call::wordOf(const catalogue::Parameter &parameter) {
    const auto bytes = [](std::int32_t value) { return rubbish | static_cast<std::uint32_t>(value); };
    const auto pointer = [](const void *address) { return reinterpret_cast<std::uintptr_t>(address); };
    if (parameter.name == "work") return pointer(workWord_);
    if (parameter.name == "pivots") return pointer(pivotsWord_);
    if (parameter.kind == Kind::dense && hasPlainResult()) return pointer((*this)["dst"].origin);
    if (parameter.kind == Kind::dense) return pointer(block(parameter.name).address);
    if (parameter.kind == Kind::size) return rubbish | (parameter.name == "rows" ? rows_ : size_);
    if (parameter.kind == Kind::count) return rubbish | count_;
    if (parameter.kind == Kind::ignored) return rubbish;
    if (parameter.kind == Kind::constant) {
        if (!constants_.contains(parameter.name)) setConstant(parameter.name, 3);
        return constants_[parameter.name];
    }
    const Place &place = places_.at(static_cast<std::size_t>(parameter.operand));
    switch (parameter.kind) {
    case Kind::base: return pointer(place.origin);
    case Kind::table:
    case Kind::list: {
        if (place.table != nullptr) return pointer(place.table);
        std::vector<std::byte *> &fronted = fronted_[place.operand->name];
        fronted.assign(2, place.before); // one more, so that the table is aligned like the rest
        fronted.insert(fronted.end(), place.entries.begin(), place.entries.end());
        return pointer(fronted.data() + 2);
    }
    case Kind::shift: return bytes(place.shift);
    case Kind::objectStride: return bytes(place.objectStride);
    case Kind::rowStride: return bytes(place.rowStride);
    case Kind::elementStride: return bytes(place.elementStride);
    default: throw std::logic_error("no word for " + parameter.name);
    }
}

std::vector<std::uint64_t> Call::words() {
    std::vector<std::uint64_t> list;
    for (const catalogue::Parameter &parameter : function_.parameters) {
        const auto found = passed_.find(parameter.name);
        if (found == passed_.end()) list.push_back(wordOf(parameter));
        else list.push_back(isPointer(parameter.kind) ? found->second : rubbish | (found->second & 0xffffffff));
    }
    return list;
}

Call::Picture Call::picture() const {
    Picture taken{memory_, pivots_, work_, {}};
    for (const Place &place : places_) taken.tables.push_back(place.entries);
    for (const auto &[operand, entries] : fronted_) taken.tables.push_back(entries);
    return taken;
}

std::int32_t Call::run() {
    words_ = words();
    before_ = picture();
    model::Outcome outcome{0, {}, false, true, {}};
    // An operand of two mappings lies between guarded pages, which are there for the library's accesses.
    const bool guarded = std::ranges::any_of(places_, [](const Place &place) { return place.alias != 0; });
    const std::int32_t status = guarded ? support::invoke(exportOf(function_), function_, words_)
                                        : support::invokeBoth(exportOf(function_), function_, words_, outcome);
    after_ = picture();
    if (!outcome.open && wroteElsewhere(outcome))
        throw support::Disagreement(function_.name + " writes where the model does not");
    return status;
}

std::int32_t Call::run(support::Setting setting) {
    const support::SettingScope scope(setting);
    return run();
}

// A byte of the call's memory has changed that the model leaves alone; scratch memory is the library's own.
bool Call::wroteElsewhere(const model::Outcome &outcome) const {
    Picture expected = after_;
    const auto takeBack = [](auto &memory, const auto &now, const auto &then, const model::Write &write) {
        const auto first = reinterpret_cast<std::uintptr_t>(now.data());
        if (write.address - first >= std::as_bytes(std::span(now)).size()) return;
        std::memcpy(reinterpret_cast<std::byte *>(memory.data()) + (write.address - first),
                    reinterpret_cast<const std::byte *>(then.data()) + (write.address - first), write.size);
    };
    for (const model::Write &write : outcome.writes) {
        takeBack(expected.memory, memory_, before_.memory, write);
        takeBack(expected.pivots, pivots_, before_.pivots, write);
        takeBack(expected.work, work_, before_.work, write);
    }
    for (const Block &block : blocks_)
        if (block.parameter == "scratch") {
            const std::ptrdiff_t at = block.address - memory_.data();
            std::copy_n(before_.memory.begin() + at, block.bytes, expected.memory.begin() + at);
        }
    return expected.memory != before_.memory || expected.pivots != before_.pivots || expected.work != before_.work;
}

bool Call::changedNothing() const { return before_ == after_; }

bool Call::changed(const std::byte *address, std::size_t bytes) const {
    const std::ptrdiff_t at = address - memory_.data();
    const auto end = at + static_cast<std::ptrdiff_t>(bytes);
    return !std::equal(before_.memory.begin() + at, before_.memory.begin() + end, after_.memory.begin() + at);
}

bool Call::changedObject(std::uint32_t n) {
    if (!places_.back().operand->written) {
        const Block &results = block("dst");
        const std::size_t bytes = results.bytes / count_;
        return changed(results.address + n * bytes, bytes);
    }
    const Place &place = (*this)["dst"];
    for (std::uint32_t i = 0; i < place.rows; ++i)
        for (std::uint32_t j = 0; j < place.cols; ++j)
            if (changed(place.address(n, i, j), static_cast<std::size_t>(place.elementSize))) return true;
    if (!writesPivots()) return false;
    const auto first = static_cast<std::ptrdiff_t>(pivotMargin + std::size_t{n} * size_);
    return !std::equal(before_.pivots.begin() + first, before_.pivots.begin() + first + size_,
                       after_.pivots.begin() + first);
}

Stray Call::strayWrites() {
    Picture expected = before_;
    const auto allow = [&](const std::byte *address, std::size_t bytes) {
        const std::ptrdiff_t at = address - memory_.data();
        std::copy_n(after_.memory.begin() + at, bytes, expected.memory.begin() + at);
    };
    for (const Place &place : places_)
        for (std::uint32_t n = 0; place.operand->written && n < count_; ++n)
            for (std::uint32_t k = 0; k < place.rows * place.cols; ++k)
                allow(place.address(n, k / place.cols, k % place.cols), static_cast<std::size_t>(place.elementSize));
    for (const Block &block : blocks_) allow(block.address, block.bytes);
    if (writesPivots())
        std::copy_n(after_.pivots.begin() + pivotMargin, std::size_t{size_} * count_,
                    expected.pivots.begin() + pivotMargin);
    const std::size_t elementSize = function_.type == Type::real32 ? 4 : 8;
    std::copy_n(after_.work.begin() + workMargin, rows_ * elementSize, expected.work.begin() + workMargin);
    if (expected.work != after_.work) return {"a byte beside the work block was written"};
    if (expected.tables != after_.tables) return {"an entry of a table was written"};
    if (expected.pivots != after_.pivots) return {"a word of or beside the pivots was written"};
    if (expected.memory != after_.memory) return {"a byte outside the elements of dst was written"};
    return {};
}

void fillWithOrdinaryBytes(Call &call, std::string_view operand) {
    const Place &place = call[operand];
    std::uint32_t state = 1;
    for (std::uint32_t n = 0; n < call.objectsOf(operand); ++n)
        for (std::uint32_t i = 0; i < place.rows; ++i)
            for (int k = 0; k < place.elementSize * static_cast<int>(place.cols); ++k) {
                state = state * 1664525 + 1013904223;
                place.address(n, i, 0)[k] = std::byte{0x3e} | static_cast<std::byte>(state >> 31);
            }
}

bool same(double left, double right) {
    if (std::isnan(left) || std::isnan(right)) return std::isnan(left) && std::isnan(right);
    return left == right && std::signbit(left) == std::signbit(right);
}

Factors::Factors(std::uint32_t order, std::uint32_t variant) : order(order), variant(variant) {
    for (std::uint32_t i = 0; i < order; ++i) permutation.push_back((2 * order - 1 - i + variant) % order);
}

void Factors::leaveLastRow(std::uint32_t row) { std::swap(*std::ranges::find(permutation, row), permutation.back()); }

double Factors::lower(std::uint32_t i, std::uint32_t j) const {
    constexpr double choices[3] = {0.5, -0.5, 0.25};
    return i == j ? 1 : j > i ? 0 : choices[(i + 2 * j + variant) % 3];
}

double Factors::upper(std::uint32_t i, std::uint32_t j) const {
    if (i == j) return i + 1 == order ? lastPivot : 8;
    const double number = j < i ? 0 : static_cast<int>((i + 2 * j + variant) % 5) - 2;
    return number == 0 && j + 1 == order && j > i ? 3 : number; // the last column of U has no zero
}

std::vector<double> Factors::matrix() const {
    std::vector<double> product(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j)
            for (std::uint32_t k = 0; k < order; ++k) product[permutation[i] * order + j] += lower(i, k) * upper(k, j);
    return product;
}

std::vector<double> Factors::factored() const {
    std::vector<double> both(std::size_t{order} * order);
    for (std::uint32_t i = 0; i < order; ++i)
        for (std::uint32_t j = 0; j < order; ++j) both[permutation[i] * order + j] = j < i ? lower(i, j) : upper(i, j);
    return both;
}

std::vector<double> Factors::solution() const {
    constexpr double choices[5] = {1, -2, 3, -1, 2};
    std::vector<double> x;
    for (std::uint32_t j = 0; j < order; ++j) x.push_back(choices[(3 * j + variant) % 5]);
    return x;
}

} // namespace literal
