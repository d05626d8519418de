// A C++17 program that uses the installed C++ headers: adds two arrays of vectors.
#include <vonkk3.hpp>

#include <array>
#include <vector>

int main() {
    const std::vector<std::array<double, 4>> a(100, {1, 2, 3, 4}), b(100, {4, 3, 2, 1});
    std::vector<std::array<double, 4>> sum(100);
    vonk::check(vonk::add(a, b, sum));
    for (const auto &vector : sum)
        for (const double element : vector)
            if (element != 5) return 2;
    return vonk::version().versionMajor == 4 ? 0 : 3;
}
