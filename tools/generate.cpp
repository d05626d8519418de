// The generator: writes what follows from the catalogue.
//
//     generate tree ROOT     the files that are checked in: include/, docs/functions.md and docs/reference/
//     generate build FOLDER  the files of one build: stubs/*.cpp, exports.txt, functions.json, man3/ and fortran/
//
// A file that would not change is left alone, so that nothing is compiled again for it.
#include "emit.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

void write(const fs::path &path, const std::string &content) {
    std::stringstream present;
    present << std::ifstream(path, std::ios::binary).rdbuf();
    if (present.str() == content) return;
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

void writeTree(const fs::path &root) {
    for (const auto &[name, content] : emit::headers()) write(root / "include" / name, content);
    for (const auto &[name, content] : emit::cppExports()) write(root / "include" / name, content);
    write(root / "docs/functions.md", emit::functions());
    for (const auto &[name, content] : emit::reference()) write(root / "docs/reference" / name, content);
}

void writeBuild(const fs::path &folder) {
    for (const auto &[name, content] : emit::stubs()) write(folder / "stubs" / name, content);
    write(folder / "exports.txt", emit::exports());
    write(folder / "functions.json", emit::functionsJson());
    for (const auto &[name, content] : emit::man()) write(folder / "man3" / name, content);
    for (const auto &[name, content] : emit::fortran()) write(folder / "fortran" / name, content);
}

} // namespace

int main(int count, char **arguments) try {
    const std::string what = count == 3 ? arguments[1] : "";
    if (what == "tree") writeTree(arguments[2]);
    else if (what == "build") writeBuild(arguments[2]);
    else {
        std::cerr << "usage: generate tree ROOT | generate build FOLDER\n";
        return 2;
    }
    return 0;
} catch (const std::exception &error) {
    std::cerr << "generate: " << error.what() << "\n";
    return 1;
}
