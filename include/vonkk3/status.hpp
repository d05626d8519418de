// What a call of vonkk3 answers: a status that must not be dropped, its text, and an exception for those who want one.
#ifndef VONKK3_STATUS_HPP
#define VONKK3_STATUS_HPP

#include "types.h"

#include <exception>

namespace vonk {

/// The status of a call. Converts to true if all is well; compares with vonkOk, vonkErrSize, vonkErrNullPtr,
/// vonkErrSingular and vonkErrNotPosDef.
class [[nodiscard]] Status {
public:
    constexpr Status() = default;
    constexpr Status(VonkStatus value) : value_(value) {}

    constexpr explicit operator bool() const { return value_ == vonkOk; }
    constexpr bool ok() const { return value_ == vonkOk; }
    constexpr VonkStatus value() const { return value_; }
    const char *text() const { return vonkStatusText(value_); } ///< in words; constant, never null

    friend constexpr bool operator==(Status a, Status b) { return a.value_ == b.value_; }
    friend constexpr bool operator!=(Status a, Status b) { return a.value_ != b.value_; }
    friend constexpr bool operator==(Status a, VonkStatus b) { return a.value_ == b; }
    friend constexpr bool operator!=(Status a, VonkStatus b) { return a.value_ != b; }

private:
    VonkStatus value_ = vonkOk;
};

/// What vonk::check throws. what() is the status in words.
class Error : public std::exception {
public:
    explicit Error(Status status) : status_(status) {}
    Status status() const noexcept { return status_; }
    const char *what() const noexcept override { return status_.text(); }

private:
    Status status_;
};

/// Throws vonk::Error unless the status is vonkOk: `vonk::check(vonk::inverse(a, b));`. Without exceptions
/// (-fno-exceptions) it ends the program.
inline void check(Status status) {
    if (status.ok()) return;
#if defined(__cpp_exceptions)
    throw Error(status);
#else
    std::terminate();
#endif
}

/// Which build of the library this is.
inline const VonkLibVersion &version() { return *vonkGetLibVersion(); }

} // namespace vonk

#endif
