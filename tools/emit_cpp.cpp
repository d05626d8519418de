// Which export a C++ call takes: for every operation and its operand kinds a table by element type, order and layout.
//
// The headers below include/vonkk3/exports/ hold nothing else; what a call passes is written by hand beside them.
#include "catalogue.h"
#include "emit.h"
#include "exceptions.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <stdexcept>
#include <vector>

namespace emit {
namespace {

using catalogue::Family;
using catalogue::Function;
using catalogue::Layout;

// Exports that the C++ operations do not take by themselves, by the exception that speaks against them: results that
// are not what the name says, accesses outside the operands, NaN for a zero vector. Their strided siblings have no such
// exception, and are taken instead.
constexpr std::array avoidedExceptions = std::to_array<std::string_view>(
    {"sub-repeated-row", "sub-other-elements", "sum-ignored-stride", "sum-count-zero", "sum-pipelined-entries",
     "sum-reads-next-element", "sum-entry-before-list", "norm-estimate", "frobenius-estimate", "lu-solve-column-step",
     "qr-solve-column-step", "qr-solve-displaced-triangle", "qr-solve-reads-before"});

using Members = std::vector<const Function *>;

// "va, mT": the kinds of a group's sources.
std::string kinds(const Function &function) {
    std::string group = function.group;
    if (function.family->operands == "m@@") group = "m" + group + group;
    std::string list;
    for (const char letter : group) {
        if (letter != 'a' && letter != 'T' && !list.empty()) list += ", ";
        list += letter;
    }
    return list;
}

// "Layout::S2"; vonkCopy and vonkLoadIdentity write their layouts as letters.
std::string layoutName(Layout layout) {
    return "Layout::" + (layout == Layout::standard ? "standard" : std::string(suffix(layout)));
}

bool isAvoided(const Function &function, const catalogue::ExceptionIndex &index) {
    return std::ranges::any_of(index.exceptionsOf(function), [](const catalogue::Exception *row) {
        return std::ranges::find(avoidedExceptions, row->id) != avoidedExceptions.end();
    });
}

template <class Word> auto valuesOf(const Members &members, Word word) {
    std::set<decltype(word(*members.front()))> values;
    for (const Function *member : members) values.insert(word(*member));
    return values;
}

// "order == 3 || order == 4" of numbers 3 and 4; nothing where all are meant.
template <class Values, class Spell>
void restrict(std::string &condition, const Values &some, const Values &all, Spell spell) {
    if (some == all) return;
    std::string choice;
    for (const auto &value : some) choice += (choice.empty() ? "" : " || ") + spell(value);
    condition += (condition.empty() ? "" : " && ") + (some.size() == 1 ? choice : "(" + choice + ")");
}

// The predicate of the exports that are not taken, which must be a product of types, orders and layouts.
std::string avoidance(const Members &members, const catalogue::ExceptionIndex &index) {
    Members avoided;
    for (const Function *member : members)
        if (isAvoided(*member, index)) avoided.push_back(member);
    if (avoided.empty()) return "";
    const auto type = [](const Function &f) { return f.type; };
    const auto order = [](const Function &f) { return f.order; };
    const auto layout = [](const Function &f) { return f.operands.front().layout; };
    const auto types = valuesOf(avoided, type);
    const auto orders = valuesOf(avoided, order);
    const auto layouts = valuesOf(avoided, layout);
    const bool haveSiblings =
        std::ranges::all_of(layouts, [](Layout l) { return l == Layout::standard || l == Layout::list; });
    if (types.size() * orders.size() * layouts.size() != avoided.size() || !haveSiblings)
        throw std::logic_error("no simple rule says when to avoid " + avoided.front()->name);
    std::string condition;
    restrict(condition, types, valuesOf(members, type),
             [](catalogue::Type t) { return std::string(t == catalogue::Type::real32 ? "is_float" : "!is_float"); });
    std::set<int> fixedOrders = valuesOf(members, order);
    fixedOrders.erase(0);
    if (orders == fixedOrders) condition += (condition.empty() ? "" : " && ") + std::string("order != 0");
    else restrict(condition, orders, valuesOf(members, order), [](int n) { return "order == " + std::to_string(n); });
    restrict(condition, layouts, valuesOf(members, layout), [](Layout l) { return "layout == " + layoutName(l); });
    const auto parameter = [&](std::string_view declaration, std::string_view name) {
        return std::string(declaration) + (condition.find(name) == std::string::npos ? "" : " " + std::string(name));
    };
    return "    static constexpr bool avoid(" + parameter("bool", "is_float") + ", " + parameter("Size", "order") +
           ", " + parameter("Layout", "layout") + ") {\n        return " + condition + ";\n    }\n";
}

// The macro that spells the names of a regular group; else an export a line.
std::string selection(const Family &family, const Members &members) {
    const std::string name = members.front()->name.substr(0, members.front()->name.find("_32f"));
    const std::string layouts = members.front()->array() ? "VONKK3_SIX_LAYOUTS" : "VONKK3_THREE_LAYOUTS";
    if (family.layouts.empty()) {
        const std::string sizes = family.sizes == "3x1"           ? "VONKK3_SIZE_3"
                                  : family.sizes.ends_with("6x1") ? "VONKK3_VECTOR_SIZES"
                                                                  : "VONKK3_MATRIX_SIZES";
        return "    template <class T, Size N, Layout L> static constexpr auto function() {\n        VONKK3_TYPES(" +
               sizes + ", " + layouts + ", " + name + ")\n    }\n";
    }
    const bool copies = family.operation == "Copy";
    std::string lines = copies ? "    template <class T, Layout From, Layout To> static constexpr auto function() {\n"
                               : "    template <class T, Size, Layout L> static constexpr auto function() {\n";
    for (const Function *member : members)
        lines += "        if constexpr (" +
                 std::string(member->type == catalogue::Type::real32 ? "is_float<T>" : "!is_float<T>") + " && " +
                 (copies ? "From == " : "L == ") + layoutName(member->operands.front().layout) +
                 (copies ? " && To == " + layoutName(member->operands.back().layout) : "") + ") return &" +
                 member->name + ";\n";
    return lines + "    }\n";
}

std::string opening(std::string_view header) {
    std::string guard = "VONKK3_EXPORTS_" + std::string(header) + "_HPP";
    std::ranges::transform(guard, guard.begin(), [](char c) { return char(std::toupper(c)); });
    return "// Which export of vonkk3/" + std::string(header) +
           ".h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.\n"
           "//\n// Generated from the catalogue of functions; do not edit.\n#ifndef " +
           guard + "\n#define " + guard + "\n\n#include \"../" + std::string(header) +
           ".h\"\n#include \"../select.hpp\"\n\nnamespace vonk::exports {\n";
}

} // namespace

std::map<std::string, std::string> cppExports() {
    const std::vector<Function> functions = catalogue::expand();
    const catalogue::ExceptionIndex index(catalogue::exceptions(), functions);
    std::map<std::string, std::string> result;
    std::set<std::string> declared;
    for (auto at = functions.begin(); at != functions.end();) {
        // All members of one operation and group, which may stand in two rows of the catalogue.
        Members members;
        const Function &first = *at;
        const std::string stem = first.name.substr(0, first.name.find("_32f"));
        for (; at != functions.end() && at->name.starts_with(stem + "_"); ++at) members.push_back(&*at);
        std::string &header = result["vonkk3/exports/" + std::string(first.section->header) + ".hpp"];
        if (header.empty()) header = opening(first.section->header);
        const std::string operation(first.family->operation);
        const std::string key = std::string(first.section->header) + operation;
        if (declared.insert(key).second) header += "\ntemplate <Kind...> struct " + operation + ";\n";
        header += "template <> struct " + operation + "<" + kinds(first) + "> {\n" + selection(*first.family, members) +
                  avoidance(members, index) + "};\n";
    }
    for (auto &[name, content] : result) content += "\n} // namespace vonk::exports\n\n#endif\n";
    return result;
}

} // namespace emit
