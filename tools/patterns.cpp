// See patterns.h.
#include "patterns.h"

#include <stdexcept>

namespace patterns {
namespace {

[[noreturn]] void fail(std::string_view list) {
    throw std::invalid_argument("braces do not pair in the pattern " + std::string(list));
}

// Every beginning continued by every end.
std::vector<std::string> joined(const std::vector<std::string> &beginnings, const std::vector<std::string> &ends) {
    std::vector<std::string> all;
    for (const std::string &beginning : beginnings)
        for (const std::string &end : ends) all.push_back(beginning + end);
    return all;
}

// Reads one list of patterns from left to right.
class Reader {
public:
    explicit Reader(std::string_view list) : list_(list) {}

    std::vector<std::string> read() {
        std::vector<std::string> all = readChoices(' ');
        if (at_ != list_.size()) fail(list_);
        return all;
    }

private:
    // What stands between separators, up to a closing brace or the end of the list.
    std::vector<std::string> readChoices(char separator) {
        std::vector<std::string> choices = readSequence(separator);
        while (at_ < list_.size() && list_[at_] == separator) {
            ++at_;
            const std::vector<std::string> more = readSequence(separator);
            choices.insert(choices.end(), more.begin(), more.end());
        }
        return choices;
    }

    // Letters and braces one after the other.
    std::vector<std::string> readSequence(char separator) {
        std::vector<std::string> spelled{""};
        while (at_ < list_.size() && list_[at_] != separator && list_[at_] != '}') {
            const char letter = list_[at_++];
            if (letter == ' ') fail(list_); // within braces
            if (letter != '{') {
                spelled = joined(spelled, {std::string(1, letter)});
                continue;
            }
            spelled = joined(spelled, readChoices(','));
            if (at_ == list_.size() || list_[at_] != '}') fail(list_);
            ++at_;
        }
        return spelled;
    }

    std::string_view list_;
    std::size_t at_ = 0;
};

} // namespace

std::vector<std::string> alternatives(std::string_view list) { return Reader(list).read(); }

bool matches(std::string_view alternative, std::string_view name) {
    if (alternative.empty()) return name.empty();
    if (alternative.front() == '*') {
        const std::string_view rest = alternative.substr(1);
        for (std::size_t taken = 0; taken <= name.size(); ++taken)
            if (matches(rest, name.substr(taken))) return true;
        return false;
    }
    if (name.empty() || (alternative.front() != '?' && alternative.front() != name.front())) return false;
    return matches(alternative.substr(1), name.substr(1));
}

} // namespace patterns
