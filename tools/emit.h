// What the generator writes, each from the catalogue alone: the public headers, the export stubs, the list of exports,
// functions.json, the reference pages, man pages, the Fortran modules and the table of all functions.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace emit {

constexpr std::string_view libraryVersion = "4.1"; // as the header's macros have it

std::map<std::string, std::string> headers();    // by name below include/: vonkk3.h, vonkk3/lu.h, ...
std::map<std::string, std::string> cppExports(); // by name below include/: vonkk3/exports/lu.hpp, ...
std::map<std::string, std::string> stubs();      // source files by name, one per operation and type
std::string exports();                           // exported names, one a line, sorted
std::string functions();                         // docs/functions.md
std::string functionsJson();                     // the catalogue as data for bindings and editors
std::map<std::string, std::string> reference();  // Markdown pages by name
std::map<std::string, std::string> man();        // man pages by name
std::map<std::string, std::string> fortran();    // Fortran modules by file name

} // namespace emit
