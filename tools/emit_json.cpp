// functions.json: the catalogue as data, for bindings and editors.
#include "emit.h"
#include "text.h"

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
    return result + "}";
}

std::string functionJson(const catalogue::Function &function) {
    std::string result = "    {" + field("name", function.name) + ", " + field("family", function.section->id) + ", " +
                         field("element", element(function.type)) + ", " + field("layout", function.layout) + ", " +
                         quoted("order") + ": " + (function.order != 0 ? std::to_string(function.order) : "null") +
                         ",\n     \"parameters\": [";
    for (std::size_t k = 0; k < function.parameters.size(); ++k)
        result += (k > 0 ? ",\n                    " : "") + parameterJson(function, function.parameters[k]);
    return result + "]}";
}

std::string familyJson(const catalogue::Section &section) {
    return "    {" + field("id", section.id) + ", " + field("title", section.title) + ",\n     " +
           field("summary", section.summary) + ",\n     " + field("description", section.text) + ",\n     " +
           field("overlap", section.overlap) + ",\n     " + field("readBeyondOperands", section.reads) + "}";
}

} // namespace

std::string functionsJson() {
    std::string families;
    for (const catalogue::Section &section : catalogue::sections())
        families += (families.empty() ? "" : ",\n") + familyJson(section);
    std::string functions =
        "    {" + field("name", "vonkGetLibVersion") + ", " + field("family", "version") + ", \"parameters\": []}";
    for (const catalogue::Function &function : catalogue::expand()) functions += ",\n" + functionJson(function);
    return "{\n  \"library\": \"vonkk3\",\n  \"families\": [\n" + families + "\n  ],\n  \"functions\": [\n" +
           functions + "\n  ]\n}\n";
}

} // namespace emit
