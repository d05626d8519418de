// The man pages: one a family, one of the library, and for every function an alias that leads to its family's.
#include "describe.h"
#include "emit.h"
#include "exceptions.h"
#include "text.h"
#include "usage.h"

#include <algorithm>

namespace emit {
namespace {

using catalogue::Function;
using catalogue::Section;

// What people search for, beside a section's own words: each once.
std::string searchWordsOf(const Section &section) {
    std::vector<std::string_view> words{"batched"};
    const auto add = [&](std::string_view text) {
        while (!text.empty()) {
            const std::string_view word = text.substr(0, text.find(' '));
            text.remove_prefix(std::min(word.size() + 1, text.size()));
            if (std::ranges::find(words, word) == words.end()) words.push_back(word);
        }
    };
    for (const catalogue::Usage &usage : catalogue::usages())
        if (usage.section == section.id) add(usage.words);
    for (const catalogue::GroupWords &group : catalogue::groupWords())
        if (group.section == section.id) add(group.words);
    std::string text;
    for (const std::string_view word : words) text += (text.empty() ? "" : " ") + std::string(word);
    return text;
}

// Text as roff reads it: nothing of it is a request or an escape, code between back ticks is bold.
std::string roff(std::string_view text) {
    std::string result;
    bool isCode = false;
    for (const char letter : text) {
        if (letter == '`') result += (isCode = !isCode) ? "\\fB" : "\\fR";
        else if (letter == '\\') result += "\\e";
        else if (letter == '-') result += "\\-";
        else if (letter == '^') result += "\\(ha";
        else if (letter == '~') result += "\\(ti";
        else result += letter;
    }
    if (result.starts_with('.') || result.starts_with('\'')) result.insert(0, "\\&");
    return result;
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> parts;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    return parts;
}

// Formulas stand as they are, items of a list begin with a dash, anything else is filled.
std::string paragraph(std::string_view text) {
    const std::vector<std::string_view> lines = split(text, "\n");
    const bool isFormula =
        text.find("  ") != std::string_view::npos ||
        std::ranges::all_of(lines, [](std::string_view line) { return line.find(" = ") != std::string_view::npos; });
    std::string result = isFormula ? ".PP\n.nf\n" : lines.front().starts_with("- ") ? "" : ".PP\n";
    for (std::string_view line : lines) {
        if (!isFormula && line.starts_with("- ")) {
            result += ".IP \\(bu 2\n";
            line.remove_prefix(2);
        }
        result += roff(line) + "\n";
    }
    return result + (isFormula ? ".fi\n" : "");
}

std::string paragraphs(std::string_view text) {
    std::string result;
    for (const std::string_view part : split(text, "\n\n")) result += paragraph(part);
    return result;
}

std::string heading(std::string_view page) {
    return ".\\\" Generated from the catalogue of functions; do not edit.\n.TH \"" + std::string(page) +
           "\" 3 \"\" \"vonkk3 " + std::string(libraryVersion) + "\" \"Small matrices\"\n.nh\n.ad l\n";
}

// The run-time sizes in 32f, or 3x1 where there is no other.
std::string synopsis(const Section &section, const std::vector<Function> &functions) {
    std::string text = ".SH SYNOPSIS\n.B #include <vonkk3/" + std::string(section.header) + ".h>\n.PP\n.PD 0\n";
    const bool hasRunTimeSize =
        std::ranges::any_of(functions, [&](const Function &f) { return f.section == &section && f.order == 0; });
    for (const Function &function : functions) {
        if (function.section != &section || function.type != catalogue::Type::real32) continue;
        if (hasRunTimeSize && function.order != 0) continue;
        std::vector<std::string> pieces; // of which none is broken
        for (const catalogue::Parameter &parameter : function.parameters)
            pieces.push_back(text::declaration(parameter));
        text += ".HP 4\nVonkStatus\\ " + function.name + "(";
        for (const std::string &piece : pieces) {
            if (&piece != &pieces.front()) text += ", ";
            for (const char letter : piece) text += letter == ' ' ? std::string("\\ ") : std::string(1, letter);
        }
        text += ");\n";
    }
    return text + ".PD\n.PP\nLink with \\fI\\-lvonkk3\\fR. The same in \\fB64f\\fR for double" +
           (hasRunTimeSize ? ", and with the size in the name instead of among the parameters.\n" : ".\n") +
           "Strides and shifts are in bytes; \\fBvonkk3\\fR(3) says how to read names and layouts.\n";
}

// Lines may break after the commas of a pattern.
std::string breakable(std::string_view patterns) {
    std::string text = roff(patterns);
    for (std::size_t at = 0; (at = text.find(',', at)) != std::string::npos; at += 3) text.insert(at + 1, "\\:");
    return text;
}

std::string exceptionList(const Section &section) {
    std::string text;
    for (const catalogue::Exception &row : catalogue::exceptions())
        if (row.section == section.id)
            text += ".TP\n.B " + roff(row.id) + "\n(" + std::string(name(row.what)) + ") " + breakable(row.functions) +
                    "\n.br\n" + roff(row.text) + "\n";
    return text.empty() ? "None.\n"
                        : "Functions that deviate from the rules above. Patterns are those of a shell.\n" + text;
}

std::string pageName(const Section &section) { return "vonk-" + std::string(section.id); }

std::string page(const Section &section, const std::vector<Function> &functions) {
    std::string names = roff(pageName(section)), description, status;
    std::vector<std::string> operations;
    for (const Function &function : functions) {
        const std::string operation = "vonk" + std::string(function.family->operation);
        if (function.section == &section && std::ranges::find(operations, operation) == operations.end())
            operations.push_back(operation);
    }
    for (const std::string &operation : operations) names += ", " + operation;
    for (const std::string_view part : split(section.text, "\n\n"))
        (part.starts_with("Status:") ? status : description) += paragraph(part);
    std::string siblings;
    for (const Section &other : catalogue::sections())
        if (other.header == section.header && &other != &section)
            siblings += ",\n.BR " + roff(pageName(other)) + " (3)";
    return heading(pageName(section)) + ".SH NAME\n" + names + " \\- " + roff(section.summary) + " (" +
           roff(searchWordsOf(section)) + ")\n" + synopsis(section, functions) + ".SH DESCRIPTION\n" + description +
           ".SH \"RETURN VALUE\"\n" + status + ".SH OVERLAP\n" + paragraphs(section.overlap) + ".SH EXCEPTIONS\n" +
           exceptionList(section) + ".SH \"SEE ALSO\"\n.BR vonkk3 (3)" + siblings + "\n";
}

// From the comment that opens the umbrella header.
std::string overview() {
    std::string text = headers().at("vonkk3.h"); // pieces of it are looked at below
    text.erase(text.find("#ifndef"));
    std::string body;
    bool isTable = false;
    for (std::string_view line : split(text, "\n")) {
        if (line.starts_with(" * ")) line.remove_prefix(3);
        else if (line == " *" || line == " */") line = "";
        else if (line.starts_with("/* ")) line.remove_prefix(3);
        if (line == "Generated from the catalogue of functions; do not edit.") continue;
        const bool isRow = line.starts_with("  ") || line.starts_with("Names:");
        if (isRow != isTable) body += isRow ? ".nf\n" : ".fi\n";
        isTable = isRow;
        body += line.empty() ? ".PP\n" : roff(line) + "\n";
    }
    std::string see;
    for (const Section &section : catalogue::sections())
        see += (see.empty() ? "" : ",\n") + std::string(".BR ") + roff(pageName(section)) + " (3)";
    return heading("vonkk3") +
           ".SH NAME\nvonkk3, vonkGetLibVersion, vonkStatusText \\- batched linear algebra on very many small matrices "
           "and vectors (SIMD, AoS, SoA, reproducible, thread\\-safe)\n.SH SYNOPSIS\n.nf\n.B #include <vonkk3.h>\n.PP\n"
           "const VonkLibVersion *vonkGetLibVersion(void);\nconst char *vonkStatusText(VonkStatus status);\n.fi\n.PP\n"
           "Link with \\fI\\-lvonkk3\\fR.\n.SH DESCRIPTION\n" +
           body + (isTable ? ".fi\n" : "") + ".SH \"SEE ALSO\"\n" + see + "\n";
}

} // namespace

std::map<std::string, std::string> man() {
    const std::vector<Function> functions = catalogue::expand();
    std::map<std::string, std::string> pages{{"vonkk3.3", overview()}};
    for (const Section &section : catalogue::sections()) pages[pageName(section) + ".3"] = page(section, functions);
    for (const Function &function : functions)
        pages[function.name + ".3"] = ".so man3/" + pageName(*function.section) + ".3\n";
    for (const char *name : {"vonkGetLibVersion", "vonkStatusText"})
        pages[std::string(name) + ".3"] = ".so man3/vonkk3.3\n";
    return pages;
}

} // namespace emit
