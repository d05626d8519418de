// The names and the parameter lists: the product of operations, operand groups, types, sizes and layouts, the few
// families that are not a full product, and the rule that turns a form into its words.
#include "model/grammar.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace model {

namespace {

struct Family {
    std::string operation;
    std::string groups; // separated by blanks
};

// The families that exist in every type, in every size of their kind and in every layout that their operands allow.
const std::vector<Family> regularFamilies = {
    {"Add", "mm mmT mTm mTmT mam mamT maTm maTmT mama mamaT maTma maTmaT"},
    {"Add", "vv vav vava vc vac"},
    {"Sub", "mm mmT mTm mTmT mam mamT maTm maTmT mama mamaT maTma maTmaT mma mmaT mTma mTmaT"},
    {"Sub", "vv vav vva vava vc vac cv cva"},
    {"Mul", "mm mmT mTm mTmT mma mmaT mTma mTmaT mam mamT maTm maTmT mama mamaT maTma maTmaT"},
    {"Mul", "mv mTv mva mTva mav maTv mava maTva"},
    {"Mul", "mc mTc mac maTc vc vac"},
    {"Saxpy", "vv vav vva vava"},
    {"LComb", "vv vav vava"},
    {"DotProduct", "vv vav vava"},
    {"CrossProduct", "vv vav vva vava"},
    {"L2Norm", "v va"},
    {"Gaxpy", "v va"},
    {"Trace", "m ma"},
    {"FrobNorm", "m ma"},
    {"Det", "m ma"},
    {"Invert", "m ma"},
    {"Transpose", "m ma"},
    {"LUDecomp", "m ma"},
    {"QRDecomp", "m ma"},
    {"CholeskyDecomp", "m ma"},
    {"LUBackSubst", "mv mva mava"},
    {"QRBackSubst", "mv mva mava"},
    {"CholeskyBackSubst", "mv mva mava"},
};

// Extract is no full product: the transposed strided gathers are missing but for one.
struct ExtractRow {
    std::string group;
    std::string layouts32;
    std::string layouts64;
};

const std::vector<ExtractRow> extractRows = {
    {"v", "S2 P", "S2 P"}, {"va", "S2 PS2 LS2", "S2 PS2 LS2"}, {"m", "S2 P", "S2 P"},
    {"mT", "S2 P", "P"},   {"ma", "S2 PS2 LS2", "S2 PS2 LS2"}, {"maT", "PS2 LS2", "PS2 LS2"},
};

std::vector<std::string> words(const std::string &text) {
    std::istringstream stream(text);
    std::vector<std::string> result;
    for (std::string word; stream >> word;) result.push_back(word);
    return result;
}

Layout layoutOf(const std::string &text) {
    static const std::map<std::string, Layout> layouts = {
        {"", Layout::standard},          {"S2", Layout::strided}, {"P", Layout::pointer},
        {"PS2", Layout::stridedPointer}, {"L", Layout::list},     {"LS2", Layout::stridedList},
    };
    return layouts.at(text);
}

// Copy and LoadIdentity spell their layouts, all of them strided, with one letter each.
Layout stridedLayoutOf(char letter) {
    return letter == 'S' ? Layout::strided : letter == 'P' ? Layout::stridedPointer : Layout::stridedList;
}

std::vector<Shape> shapesOf(const std::string &operation, const std::string &group) {
    if (operation == "Gaxpy") { // the name spells neither the matrix, which is always single, nor the second vector
        const bool isArray = group == "va";
        return {{true, false, false}, {false, isArray, false}, {false, isArray, false}};
    }
    std::vector<Shape> shapes;
    for (const char letter : group) {
        if (letter == 'm' || letter == 'v') shapes.push_back({letter == 'm', false, false});
        else if (letter == 'a') shapes.back().isArray = true;
        else if (letter == 'T') shapes.back().isTransposed = true;
    }
    return shapes;
}

std::string joined(const std::vector<std::string> &parts) {
    std::string name = "vonk";
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (!parts[i].empty()) name += (i == 0 ? "" : "_") + parts[i];
    return name;
}

Form makeForm(const std::string &operation, const std::string &group, const std::string &type, const std::string &size,
              const std::string &layout) {
    Form form;
    form.name = joined({operation, group, type, size, layout});
    form.operation = operation;
    form.group = group;
    form.sources = shapesOf(operation, group);
    form.element = type == "32f" ? Element::real32 : Element::real64;
    form.size = size.empty() ? 0 : static_cast<std::uint32_t>(size[0] - '0');
    if (operation == "Copy" || operation == "LoadIdentity") {
        form.layout = stridedLayoutOf(layout.front());
        form.destinationLayout = stridedLayoutOf(layout.back());
    } else {
        form.layout = layoutOf(layout);
        form.destinationLayout = form.layout;
    }
    return form;
}

const std::vector<std::string> types = {"32f", "64f"};

std::vector<std::string> sizesOf(const std::string &operation, const std::string &group) {
    if (operation == "CrossProduct") return {"3x1"};
    if (operation == "Gaxpy" || group.find('m') != std::string::npos) return {"", "3x3", "4x4", "5x5", "6x6"};
    return {"", "3x1", "4x1", "5x1", "6x1"};
}

void addRegularForms(std::vector<Form> &forms) {
    const std::vector<std::string> singleLayouts = {"", "S2", "P"};
    const std::vector<std::string> arrayLayouts = {"", "S2", "P", "PS2", "L", "LS2"};
    for (const Family &family : regularFamilies)
        for (const std::string &group : words(family.groups)) {
            const bool isArray = group.find('a') != std::string::npos;
            for (const std::string &type : types)
                for (const std::string &size : sizesOf(family.operation, group))
                    for (const std::string &layout : isArray ? arrayLayouts : singleLayouts)
                        forms.push_back(makeForm(family.operation, group, type, size, layout));
        }
}

void addMovingForms(std::vector<Form> &forms) {
    for (const std::string &type : types) {
        for (const char *group : {"va", "ma"})
            for (const char *pair : {"SS", "SP", "SL", "PS", "PP", "PL", "LS", "LP", "LL"})
                forms.push_back(makeForm("Copy", group, type, "", pair));
        for (const ExtractRow &row : extractRows)
            for (const std::string &layout : words(type == "32f" ? row.layouts32 : row.layouts64))
                forms.push_back(makeForm("Extract", row.group, type, "", layout));
        for (const char *letter : {"S", "P", "L"}) forms.push_back(makeForm("LoadIdentity", "ma", type, "", letter));
    }
}

const std::vector<Form> &allForms() {
    static const std::vector<Form> forms = [] {
        std::vector<Form> made;
        addRegularForms(made);
        addMovingForms(made);
        return made;
    }();
    return forms;
}

// A family's parameters in order. A word ending in '?' describes the dimensions and is absent at fixed size; one that
// begins with '*' is a bare pointer in every layout; "src..." and "dst" are slots, "val..." constants, others sizes.
std::string templateOf(const Form &form) {
    const bool isOnVectors = form.isOnVectors();
    const std::string &operation = form.operation;
    if (operation == "Add" || operation == "Sub" || operation == "Mul") {
        if (form.group.find('c') != std::string::npos)
            return isOnVectors ? "src val dst len?" : "src val dst cols? rows?";
        if (operation != "Mul") return isOnVectors ? "src1 src2 dst len?" : "src1 src2 dst cols? rows?";
        return form.sources[1].isMatrix ? "src1 src1Cols? src1Rows? src2 src2Cols? src2Rows? dst"
                                        : "src1 src1Cols? src1Rows? src2 src2Len? dst";
    }
    static const std::map<std::string, std::string> templates = {
        {"Gaxpy", "src1 src2 src3 dst cols? rows?"},
        {"Saxpy", "src1 val src2 dst len?"},
        {"LComb", "src1 val1 src2 val2 dst len?"},
        {"DotProduct", "src1 src2 *dst len?"},
        {"L2Norm", "src *dst len?"},
        {"CrossProduct", "src1 src2 dst"},
        {"Transpose", "src cols? rows? dst"},
        {"Trace", "src order? *dst"},
        {"FrobNorm", "src cols? rows? *dst"},
        {"Det", "src order? *scratch? *dst"},
        {"Invert", "src order? *scratch? dst"},
        {"LUDecomp", "src *pivots dst order?"},
        {"LUBackSubst", "src1 *pivots src2 dst order?"},
        {"QRDecomp", "src *work dst cols? rows?"},
        {"QRBackSubst", "src1 *work src2 dst cols? rows?"},
        {"CholeskyDecomp", "src dst order?"},
        {"CholeskyBackSubst", "src1 src2 dst order?"},
        {"LoadIdentity", "dst cols rows"},
    };
    if (operation == "Copy") return isOnVectors ? "src dst len" : "src dst cols rows";
    if (operation == "Extract") return isOnVectors ? "src *dst len" : "src *dst cols rows";
    return templates.at(operation);
}

// The sizes that are compared as signed numbers: with the top bit set they count as none instead of as very many.
bool isSignedSize(const Form &form, const std::string &word) {
    if (form.operation == "LoadIdentity") return word == "cols" || word == "rows";
    if (form.operation == "CholeskyDecomp") return word == "count" && !isPointerLayout(form.layout);
    if (form.operation == "CholeskyBackSubst")
        return word == "count" ||
               (word == "order" && (form.layout == Layout::strided || form.layout == Layout::stridedList));
    return false;
}

// One matrix for many right-hand sides keeps the parameter list of one matrix for each, so the single matrix has a word
// more than it needs; nobody reads it. Only these two families do so, and only where there is no table of positions.
bool hasUnreadWord(const Form &form, const std::string &operand) {
    return operand == "src1" && form.group == "mva" && !isPointerLayout(form.layout) &&
           (form.operation == "LUBackSubst" || form.operation == "QRBackSubst");
}

void expandSlot(std::vector<Parameter> &list, const Form &form, const std::string &operand) {
    const Shape shape = form.slot(operand);
    const Layout layout = operand == "dst" ? form.destinationLayout : form.layout;
    const bool isArray = shape.isArray || hasUnreadWord(form, operand);
    const auto addBytes = [&](const char *what) { list.push_back({operand + what, Word::bytes, false}); };
    list.push_back({operand, Word::pointer, false});
    if (isPointerLayout(layout)) {
        addBytes("Shift");
        if (layout == Layout::stridedPointer && isArray) addBytes("ObjStride");
        return;
    }
    if (isArray) addBytes(isListLayout(layout) ? "Shift" : "ObjStride");
    if (shape.isMatrix) addBytes("RowStride");
    if (layout == Layout::strided || layout == Layout::stridedList) addBytes("ElemStride");
}

} // namespace

bool isPointerLayout(Layout layout) { return layout == Layout::pointer || layout == Layout::stridedPointer; }

bool isListLayout(Layout layout) { return layout == Layout::list || layout == Layout::stridedList; }

bool Form::isArray() const {
    return std::any_of(sources.begin(), sources.end(), [](const Shape &shape) { return shape.isArray; });
}

bool Form::isOnVectors() const {
    return std::none_of(sources.begin(), sources.end(), [](const Shape &shape) { return shape.isMatrix; });
}

Shape Form::destination() const {
    const bool hasVector =
        std::any_of(sources.begin(), sources.end(), [](const Shape &shape) { return !shape.isMatrix; });
    return {!hasVector, isArray(), false};
}

Shape Form::slot(const std::string &operand) const {
    if (operand == "dst") return destination();
    return sources.at(operand == "src" ? 0 : static_cast<std::size_t>(operand.back() - '1'));
}

const Form *findForm(const std::string &name) {
    static const std::map<std::string, const Form *> byName = [] {
        std::map<std::string, const Form *> made;
        for (const Form &form : allForms()) made.emplace(form.name, &form);
        return made;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

std::vector<std::string> names() {
    std::vector<std::string> result;
    for (const Form &form : allForms()) result.push_back(form.name);
    return result;
}

const std::vector<Parameter> &parameters(const std::string &name) {
    static std::map<std::string, std::vector<Parameter>> known;
    const auto found = known.find(name);
    if (found != known.end()) return found->second;
    const Form *form = findForm(name);
    if (form == nullptr) throw std::invalid_argument("no such function: " + name);
    std::vector<Parameter> list;
    for (std::string word : words(templateOf(*form))) {
        const bool isDimension = word.back() == '?';
        if (isDimension && form->size != 0) continue;
        if (isDimension) word.pop_back();
        if (word.front() == '*') list.push_back({word.substr(1), Word::pointer, false});
        else if (word.compare(0, 3, "val") == 0) list.push_back({word, Word::real, false});
        else if (!isDimension && (word.compare(0, 3, "src") == 0 || word == "dst")) expandSlot(list, *form, word);
        else list.push_back({word, Word::size, isSignedSize(*form, word)});
    }
    if (form->isArray()) list.push_back({"count", Word::size, isSignedSize(*form, "count")});
    return known[name] = std::move(list);
}

} // namespace model
