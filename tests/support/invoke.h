// Calling an export by its name and the words of a call, whatever its parameter list.
#pragma once

#include "catalogue.h"

#include <cstdint>
#include <span>
#include <string>

namespace support {

// A shared library, opened by path for as long as the object lives.
class Library {
public:
    explicit Library(const std::string &path); // throws std::runtime_error with the loader's own words
    ~Library();
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    void *find(const std::string &name) const; // null where the library has no such export

private:
    void *handle;
};

// The library to test unless an option says otherwise: the environment variable VONKK3_LIBRARY, else the build's own.
std::string defaultLibrary();

// Calls the export with one word per parameter of the function. Words of 32 bits may carry anything above them, and
// behind the last word the arguments go on with rubbish, as registers and stack do.
std::int32_t invoke(void *address, const catalogue::Function &function, std::span<const std::uint64_t> words);

} // namespace support
