// The table of exceptions, looked up by function. See exceptional.h.
#include "exceptional.h"

#include "literal.h"

#include <algorithm>
#include <stdexcept>

namespace literal {
const catalogue::ExceptionIndex &exceptionIndex() {
    static const catalogue::ExceptionIndex made(catalogue::exceptions(), allMembers());
    return made;
}

bool isException(const catalogue::Function &function, std::string_view id) {
    if (!std::ranges::count(catalogue::exceptions(), id, &catalogue::Exception::id))
        throw std::out_of_range("exception " + std::string(id));
    return std::ranges::count(exceptionIndex().exceptionsOf(function), id, [](const auto *row) { return row->id; }) > 0;
}

bool hasExceptionOf(const catalogue::Function &function, std::string_view ending, catalogue::ExceptionClass what) {
    return std::ranges::any_of(exceptionIndex().exceptionsOf(function), [&](const catalogue::Exception *row) {
        return row->what == what && row->id.ends_with(ending);
    });
}

} // namespace literal
