// functions.json: the catalogue as data, for bindings and editors.
#include "emit.h"
#include "exceptions.h"
#include "text.h"
#include "usage.h"

namespace emit {
namespace {

std::string quoted(std::string_view value) {
    std::string result = "\"";
    for (const char letter : value) {
        if (letter == '"' || letter == '\\') result += '\\';
        if (letter == '\n') result += "\\n";
        else result += letter;
    }
    return result + "\"";
}

std::string field(std::string_view name, std::string_view value) { return quoted(name) + ": " + quoted(value); }

std::string parameterJson(const catalogue::Function &function, const catalogue::Parameter &parameter) {
    std::string result = "{" + field("name", parameter.name) + ", " + field("type", parameter.type) + ", " +
                         field("kind", name(parameter.kind));
    if (!unit(parameter.kind).empty()) result += ", " + field("unit", unit(parameter.kind));
    if (parameter.operand >= 0) result += ", " + field("operand", function.operands[parameter.operand].name);
    if (!directionOf(parameter).empty()) result += ", " + field("direction", directionOf(parameter));
    if (parameter.kind == catalogue::Kind::dense) result += ", " + field("length", lengthOf(function, parameter));
    return result + "}";
}

std::string operandJson(const catalogue::Function &function, const catalogue::Operand &operand) {
    const auto flag = [](std::string_view name, bool value) { return quoted(name) + (value ? ": true" : ": false"); };
    const catalogue::Shape shape = shapeOf(function, operand);
    return "{" + field("name", operand.name) + ", " + flag("matrix", operand.matrix) + ", " +
           flag("array", operand.array) + ", " + flag("transposed", operand.transposed) + ", " +
           field("layout", suffix(operand.layout)) + ", " + field("rows", shape.rows) + ", " +
           field("cols", shape.columns) + "}";
}

std::string idsJson(const std::vector<const catalogue::Exception *> &rows) {
    std::string ids;
    for (const catalogue::Exception *row : rows) ids += (ids.empty() ? "" : ", ") + quoted(row->id);
    return "[" + ids + "]";
}

std::string functionJson(const catalogue::Function &function, const catalogue::ExceptionIndex &index) {
    std::string result = "    {" + field("name", function.name) + ", " + field("family", function.section->id) + ", " +
                         field("element", element(function.type)) + ", " + field("layout", function.layout) + ", " +
                         quoted("order") + ": " + (function.order != 0 ? std::to_string(function.order) : "null") +
                         ",\n     " + field("operation", function.family->operation) + ", " +
                         field("group", function.group) + ", " + field("returns", "VonkStatus") + ",\n     " +
                         quoted("exceptions") + ": " + idsJson(index.exceptionsOf(function));
    std::string operands, parameters;
    for (std::size_t k = 0; k < function.operands.size(); ++k)
        operands += (k > 0 ? ",\n                  " : "") + operandJson(function, function.operands[k]);
    for (std::size_t k = 0; k < function.parameters.size(); ++k)
        parameters += (k > 0 ? ",\n                    " : "") + parameterJson(function, function.parameters[k]);
    return result + ",\n     \"operands\": [" + operands + "],\n     \"parameters\": [" + parameters + "]}";
}

std::string usageJson(const catalogue::Usage &usage) {
    std::string groups;
    for (const catalogue::GroupWords &row : catalogue::groupWords())
        if (row.section == usage.section) groups += (groups.empty() ? "" : ", ") + field(row.groups, row.words);
    return "    {" + field("family", usage.section) + ", " + field("operation", usage.operation) + ", " +
           field("groups", usage.groups) + ", " + field("title", usage.title) + ",\n     " +
           field("words", usage.words) + ",\n     \"groupWords\": {" + groups + "},\n     " +
           field("summed", usage.summed) + ", " + field("term", usage.term) + ", " + field("assign", usage.assign) +
           ", " + field("next", usage.next) + "}";
}

// What a family's exceptions say about accesses beyond the operands, in one string.
std::string readBeyondOperands(const catalogue::Section &section) {
    std::string result;
    for (const catalogue::Exception &row : catalogue::exceptions())
        if (row.section == section.id && row.what == catalogue::ExceptionClass::reads)
            result += (result.empty() ? "" : "\n") + std::string(row.functions) + ": " + std::string(row.text);
    return result.empty() ? "Nothing." : result;
}

std::string exceptionJson(const catalogue::Exception &row, const catalogue::ExceptionIndex &index) {
    return "    {" + field("id", row.id) + ", " + field("family", row.section) + ", " + field("class", name(row.what)) +
           ", " + quoted("count") + ": " + std::to_string(index.functionsOf(row).size()) + ",\n     " +
           field("functions", row.functions) + ",\n     " + field("description", row.text) + "}";
}

std::string exceptionClassJson(catalogue::ExceptionClass exceptionClass) {
    return "    {" + field("name", name(exceptionClass)) + ", " + field("meaning", meaning(exceptionClass)) + "}";
}

std::string familyJson(const catalogue::Section &section) {
    return "    {" + field("id", section.id) + ", " + field("title", section.title) + ",\n     " +
           field("summary", section.summary) + ",\n     " + field("description", section.text) + ",\n     " +
           field("overlap", section.overlap) + ",\n     " + field("readBeyondOperands", readBeyondOperands(section)) +
           "}";
}

} // namespace

std::string functionsJson() {
    const std::vector<catalogue::Function> all = catalogue::expand();
    const catalogue::ExceptionIndex index(catalogue::exceptions(), all);
    std::string families, operations, classes, exceptions;
    for (const catalogue::Section &section : catalogue::sections())
        families += (families.empty() ? "" : ",\n") + familyJson(section);
    for (const catalogue::Usage &usage : catalogue::usages())
        operations += (operations.empty() ? "" : ",\n") + usageJson(usage);
    for (const catalogue::ExceptionClass exceptionClass : catalogue::exceptionClasses)
        classes += (classes.empty() ? "" : ",\n") + exceptionClassJson(exceptionClass);
    for (const catalogue::Exception &row : catalogue::exceptions())
        exceptions += (exceptions.empty() ? "" : ",\n") + exceptionJson(row, index);
    std::string functions = "    {" + field("name", "vonkGetLibVersion") + ", " + field("family", "version") +
                            R"(, "operation": "GetLibVersion",)" + "\n     " +
                            field("returns", "const VonkLibVersion *") +
                            R"(, "exceptions": [], "operands": [], "parameters": []})";
    for (const catalogue::Function &function : all) functions += ",\n" + functionJson(function, index);
    return "{\n  \"library\": \"vonkk3\",\n  " + field("version", libraryVersion) + ",\n  \"families\": [\n" +
           families + "\n  ],\n  \"operations\": [\n" + operations + "\n  ],\n  \"exceptionClasses\": [\n" + classes +
           "\n  ],\n  \"exceptions\": [\n" + exceptions + "\n  ],\n  \"functions\": [\n" + functions + "\n  ]\n}\n";
}

} // namespace emit
