// The exceptions to the families' rules, as data: which functions behave unlike the others of their family, and how.
// Callers rely on them, so none is ever levelled. Header, reference pages, functions.json and tests take them from
// here.
#pragma once

#include "catalogue.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace catalogue {

// What an exception is about: what a reader filters by.
enum class ExceptionClass { arithmetic, result, arguments, checks, status, overlap, reads };

inline constexpr std::array exceptionClasses{
    ExceptionClass::arithmetic, ExceptionClass::result,  ExceptionClass::arguments, ExceptionClass::checks,
    ExceptionClass::status,     ExceptionClass::overlap, ExceptionClass::reads};

std::string_view name(ExceptionClass exceptionClass);    // "arithmetic"
std::string_view meaning(ExceptionClass exceptionClass); // what differs, in a few words

struct Exception {
    std::string_view id;        // unique: "dot-pairs"
    std::string_view section;   // the family's section
    ExceptionClass what;        // its class
    std::string_view functions; // names as patterns: see patterns.h
    std::string_view text;      // what differs from the family's rule: plain sentences in one line
};

// All of them: by section in header order, then by class.
std::span<const Exception> exceptions();

// Which functions the rows of a table are about. Throws std::logic_error if a row is at odds with the catalogue: an id
// that is not unique, a pattern that matches nothing or a function twice or leaves the row's section, a text that
// breaks what it is printed in. A malformed pattern throws std::invalid_argument.
class ExceptionIndex {
public:
    ExceptionIndex(std::span<const Exception> rows, std::span<const Function> functions);

    const std::vector<const Function *> &functionsOf(const Exception &row) const;       // in the catalogue's order
    const std::vector<const Exception *> &exceptionsOf(const Function &function) const; // in the table's order

private:
    void add(const Exception &row, std::span<const Function> functions);

    std::map<std::string_view, std::vector<const Function *>> functionsById_;
    std::map<std::string_view, std::vector<const Exception *>> exceptionsByName_;
};

} // namespace catalogue
