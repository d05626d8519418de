// See text.h.
#include "text.h"

#include <algorithm>

namespace text {

std::string joinWrapped(std::string start, const std::vector<std::string> &pieces, std::string_view end,
                        std::string_view indent) {
    std::size_t lineBegin = 0;
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const std::string_view after = k + 1 < pieces.size() ? std::string_view(",") : end;
        if (start.size() - lineBegin + pieces[k].size() + after.size() + 1 > lineWidth) {
            start += "\n";
            lineBegin = start.size();
            start += indent;
        } else if (k > 0) {
            start += " ";
        }
        start += pieces[k];
        start += after;
    }
    return start;
}

std::string wrapWords(std::string_view text, std::string_view first, std::string_view others) {
    std::string result, line(first);
    bool isEmpty = true;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (!isEmpty && line.size() + 1 + word.size() > lineWidth) {
            result += line + "\n";
            line = others;
            isEmpty = true;
        }
        line += (isEmpty ? "" : " ") + std::string(word);
        isEmpty = false;
    }
    return result + line + "\n";
}

std::string prefixLines(std::string_view lines, std::string_view prefix) {
    std::string result;
    for (std::size_t at = 0; at <= lines.size();) {
        const std::size_t end = std::min(lines.find('\n', at), lines.size());
        std::string line = std::string(prefix) + std::string(lines.substr(at, end - at));
        line.erase(line.find_last_not_of(' ') + 1);
        result += line + "\n";
        at = end + 1;
    }
    return result;
}

std::string declaration(const catalogue::Parameter &parameter) {
    const bool pointer = parameter.type.ends_with('*');
    return parameter.type + (pointer ? "" : " ") + parameter.name;
}

namespace {
template <class Declare>
std::string functionHead(const catalogue::Function &function, std::string_view end, Declare declare) {
    std::vector<std::string> pieces;
    for (const catalogue::Parameter &parameter : function.parameters) pieces.push_back(declare(parameter));
    return joinWrapped("VonkStatus " + function.name + "(", pieces, ")" + std::string(end), "    ");
}
} // namespace

std::string prototype(const catalogue::Function &function, std::string_view end) {
    return functionHead(function, end, declaration);
}

std::string definitionHead(const catalogue::Function &function) {
    return functionHead(function, "", [](const catalogue::Parameter &parameter) {
        return parameter.kind == catalogue::Kind::ignored ? parameter.type : declaration(parameter);
    });
}

} // namespace text
