// Tells the species of Fisher's iris flowers apart, as iris.c does, with the same output: by their Mahalanobis
// distances to the three species' means, with LU or Cholesky factors of the covariance matrices. Usage: iris_cpp
// [--cholesky] file.csv
#include <vonkk3.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Vector = std::array<double, 4>;
using Matrix = std::array<Vector, 4>;
constexpr std::size_t species_count = 3;
constexpr double tolerance = 1.0 / (1 << 23); // the library's own: a smaller pivot counts as zero

struct Flower {
    Vector measured;
    std::size_t species;
};

std::vector<Flower> flowers;
std::vector<std::string> names;

void read_flowers(const std::string &path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot open " + path);
    std::string line;
    int number = 0;
    const auto fail = [&](const std::string &problem) {
        throw std::runtime_error(path + ", line " + std::to_string(number) + ": " + problem);
    };
    while (std::getline(file, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (++number == 1 && line != "sepal_length,sepal_width,petal_length,petal_width,species")
            fail("expected the names of the columns");
        if (number == 1 || line.empty()) continue;
        Flower flower;
        std::istringstream text(line);
        for (double &number_read : flower.measured) {
            char comma = 0;
            if (!(text >> number_read >> comma) || comma != ',' || !std::isfinite(number_read))
                fail("expected four numbers and a species, separated by commas");
        }
        std::string name;
        if (!std::getline(text, name) || name.find(',') != std::string::npos) fail("expected a species' name");
        flower.species = std::size_t(std::find(names.begin(), names.end(), name) - names.begin());
        if (flower.species == names.size()) names.push_back(name);
        if (names.size() > species_count) fail("a fourth species, " + name);
        flowers.push_back(flower);
    }
    if (names.size() < species_count) fail("the file ends before a third species");
}

// Mean and covariance (divisor n - 1) of one species' flowers.
void estimate(std::size_t species, Vector &mean, Matrix &covariance) {
    double members = 0;
    for (const Flower &flower : flowers) members += flower.species == species;
    if (members < 2)
        throw std::runtime_error("a single flower of the species " + names[species] + " has no covariance");
    mean = {}, covariance = {};
    for (int i = 0; i < 4; ++i)
        for (const Flower &flower : flowers) mean[i] += flower.species == species ? flower.measured[i] / members : 0;
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            for (const Flower &flower : flowers)
                if (flower.species == species)
                    covariance[i][j] += (flower.measured[i] - mean[i]) * (flower.measured[j] - mean[j]) / (members - 1);
}

void classify(bool by_cholesky) {
    std::array<Vector, species_count> means;
    std::array<Matrix, species_count> covariances, factors;
    std::array<std::array<std::uint32_t, 4>, species_count> pivots;
    for (std::size_t s = 0; s < species_count; ++s) estimate(s, means[s], covariances[s]);
    vonk::check(by_cholesky ? vonk::cholesky(covariances, factors) : vonk::lu(covariances, pivots, factors));

    // scores[s][f]: log of the species' Gaussian density at flower f plus log of its prior, but for a common constant.
    std::array<std::vector<double>, species_count> scores;
    std::vector<Vector> differences(flowers.size()), solutions(flowers.size());
    for (std::size_t s = 0; s < species_count; ++s) {
        for (std::size_t f = 0; f < flowers.size(); ++f)
            for (int i = 0; i < 4; ++i) differences[f][i] = flowers[f].measured[i] - means[s][i];
        const auto matrix = vonk::matrix(factors[s]);
        vonk::check(by_cholesky ? vonk::cholesky_solve(matrix, differences, solutions)
                                : vonk::lu_solve(matrix, pivots[s], differences, solutions));
        scores[s].resize(flowers.size());
        vonk::check(vonk::dot(differences, solutions, scores[s]));
        double log_determinant = 0;
        for (int i = 0; i < 4; ++i) {
            const double pivot =
                by_cholesky ? 1 / (factors[s][i][i] * factors[s][i][i]) : std::fabs(factors[s][pivots[s][i]][i]);
            vonk::check(pivot >= tolerance ? vonkOk : vonkErrSingular);
            log_determinant += std::log(pivot);
        }
        for (double &score : scores[s]) score = -0.5 * (log_determinant + score) + std::log(1.0 / species_count);
    }

    std::array<std::array<int, species_count>, species_count> confusion{};
    std::string misplaced;
    int count = 0;
    for (std::size_t f = 0; f < flowers.size(); ++f) {
        std::size_t found = 0;
        for (std::size_t s = 1; s < species_count; ++s)
            if (scores[s][f] > scores[found][f]) found = s;
        ++confusion[flowers[f].species][found];
        if (found == flowers[f].species) continue;
        double sum = 0;
        for (const auto &other : scores) sum += std::exp(other[f] - scores[found][f]);
        char text[200];
        std::snprintf(text, sizeof text, "flower %3zu: %s, classified as %s with probability %.4f\n", f + 1,
                      names[flowers[f].species].c_str(), names[found].c_str(), 1 / sum);
        misplaced += text;
        ++count;
    }
    std::printf("%-14s", "classified as");
    for (const std::string &name : names) std::printf("%14s", name.c_str());
    for (std::size_t s = 0; s < species_count; ++s) {
        std::printf("\n%-14s", names[s].c_str());
        for (const int number : confusion[s]) std::printf("%14d", number);
    }
    std::printf("\n\n%d of %zu flowers on the wrong side\n%s", count, flowers.size(), misplaced.c_str());
}

} // namespace

int main(int argc, char **argv) try {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool by_cholesky = !arguments.empty() && arguments[0] == "--cholesky";
    if (arguments.size() != (by_cholesky ? 2U : 1U) || arguments.back()[0] == '-') {
        const bool help = arguments.size() == 1 && arguments[0] == "--help";
        std::fprintf(help ? stdout : stderr, "usage: iris_cpp [--cholesky] file.csv\n");
        return help ? 0 : 1;
    }
    read_flowers(arguments.back());
    classify(by_cholesky);
    return std::fflush(stdout) == 0 ? 0 : 1;
} catch (const std::exception &error) {
    std::fprintf(stderr, "iris_cpp: %s\n", error.what());
    return 1;
}
