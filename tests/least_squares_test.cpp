// Linear least squares on NIST's reference data: the data files give the certified coefficients in wide arithmetic, the
// library gives as many digits of each as it always gave, and no fewer than LAPACK's dgels on the same data.
//
// The number of digits of ONE fit is partly luck: put the same observations in another order, and every sum rounds
// differently; that moves the digits by one or two, the library's and dgels' alike, and dgels' by as much from one
// processor's BLAS to another's. So both fit each set in many orders of its observations, and compared are the digits
// that 95 of 100 orders reach, the sure digits, and those of the mean error. In the published order alone, the library
// may have fewer digits than dgels only where dgels has more than its own sure digits; these rows are marked.
#include "vonkk3.h"

#include <gtest/gtest.h>
#include <lapacke.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Quad = __float128; // 34 digits, of which Longley's columns eat up ten
using Digits = std::vector<double>;

constexpr double mostDigits = 15; // all that the certified coefficients have
constexpr double slack = 0.05;    // half of the last decimal of a printed number of digits
constexpr std::size_t orders = 1000;

constexpr std::array names{"Norris", "Longley", "Wampler1", "Wampler2", "Wampler3", "Wampler4", "Wampler5"};

// Numbers as they stand in the file.
struct DataSet {
    bool isPolynomial = false;
    std::vector<std::string> certified;
    std::vector<std::vector<std::string>> observations;
};

// y = X b, the rows of X one after the other.
template <class Real> struct Problem {
    std::size_t cols;
    std::vector<Real> x;
    std::vector<Real> y;
};

DataSet read(const std::string &name) {
    std::ifstream file(VONKK3_NIST_FOLDER "/" + name + ".txt");
    DataSet set;
    std::size_t coefficients = 0;
    for (std::string line; std::getline(file, line);) {
        std::istringstream content(line.substr(0, line.find('#')));
        const std::vector<std::string> words(std::istream_iterator<std::string>(content), {});
        if (words.empty()) continue;
        if (coefficients == 0) {
            set.isPolynomial = words.at(0) == "polynomial";
            coefficients = std::stoul(words.at(1)) + 1;
        } else if (set.certified.size() < coefficients) {
            set.certified.push_back(words.at(1));
        } else {
            set.observations.push_back(words);
        }
    }
    return set;
}

Quad power(Quad base, int exponent) {
    Quad result = 1;
    for (int n = 0; n < std::abs(exponent); ++n) result *= base;
    return exponent < 0 ? 1 / result : result;
}

// A decimal number as an integer times a power of ten.
struct Decimal {
    std::int64_t digits;
    int exponent;
};

Decimal decimal(const std::string &text) {
    const std::size_t mantissaEnd = std::min(text.find('E'), text.size());
    std::string mantissa = text.substr(0, mantissaEnd);
    int exponent = mantissaEnd < text.size() ? std::stoi(text.substr(mantissaEnd + 1)) : 0;
    if (const std::size_t point = mantissa.find('.'); point != std::string::npos) {
        exponent -= static_cast<int>(mantissa.size() - point - 1);
        mantissa.erase(point, 1);
    }
    return {std::stoll(mantissa), exponent};
}

template <class Real> Real number(const std::string &text);
template <> double number<double>(const std::string &text) { return std::stod(text); }
template <> Quad number<Quad>(const std::string &text) {
    const auto [digits, exponent] = decimal(text);
    return exponent < 0 ? digits / power(10, -exponent) : digits * power(10, exponent);
}

template <class Real> Problem<Real> problem(const DataSet &set) {
    Problem<Real> result{set.certified.size(), {}, {}};
    for (const std::vector<std::string> &observation : set.observations) {
        result.y.push_back(number<Real>(observation.at(0)));
        result.x.push_back(1);
        for (std::size_t b = 1; b < result.cols; ++b)
            result.x.push_back(set.isPolynomial ? result.x.back() * number<Real>(observation.at(1))
                                                : number<Real>(observation.at(b)));
    }
    return result;
}

// Modified Gram-Schmidt without roots; y is carried along as one more column.
std::vector<Quad> solveWide(const Problem<Quad> &fit) {
    const std::size_t n = fit.cols, rows = fit.y.size();
    std::vector<std::vector<Quad>> columns(n + 1, std::vector<Quad>(rows)), r(n, std::vector<Quad>(n + 1));
    for (std::size_t i = 0; i < rows; ++i) {
        for (std::size_t j = 0; j < n; ++j) columns[j][i] = fit.x[i * n + j];
        columns[n][i] = fit.y[i];
    }
    const auto dot = [](const std::vector<Quad> &a, const std::vector<Quad> &b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), Quad(0));
    };
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t j = k + 1; j <= n; ++j) {
            r[k][j] = dot(columns[k], columns[j]) / dot(columns[k], columns[k]);
            for (std::size_t i = 0; i < rows; ++i) columns[j][i] -= r[k][j] * columns[k][i];
        }
    std::vector<Quad> solution(n);
    for (std::size_t k = n; k-- > 0;) {
        solution[k] = r[k][n];
        for (std::size_t j = k + 1; j < n; ++j) solution[k] -= r[k][j] * solution[j];
    }
    return solution;
}

std::vector<double> solveWithLibrary(const Problem<double> &fit) {
    const auto cols = static_cast<std::uint32_t>(fit.cols), rows = static_cast<std::uint32_t>(fit.y.size());
    const auto rowStride = static_cast<std::int32_t>(fit.cols * sizeof(double));
    std::vector<double> factors(fit.x.size()), work(fit.y.size()), solution(fit.cols);
    EXPECT_EQ(vonkQRDecomp_m_64f(fit.x.data(), rowStride, work.data(), factors.data(), rowStride, cols, rows), vonkOk);
    EXPECT_EQ(vonkQRBackSubst_mv_64f(factors.data(), rowStride, work.data(), fit.y.data(), solution.data(), cols, rows),
              vonkOk);
    return solution;
}

std::vector<double> solveWithDgels(const Problem<double> &fit) {
    std::vector<double> factors = fit.x, solution = fit.y;
    const auto cols = static_cast<lapack_int>(fit.cols), rows = static_cast<lapack_int>(fit.y.size());
    EXPECT_EQ(LAPACKE_dgels(LAPACK_ROW_MAJOR, 'N', rows, cols, 1, factors.data(), cols, solution.data(), 1), 0);
    solution.resize(fit.cols);
    return solution;
}

// The log relative error.
Digits correctDigits(const std::vector<double> &computed, const DataSet &set) {
    Digits digits;
    for (std::size_t b = 0; b < computed.size(); ++b) {
        const double certified = number<double>(set.certified[b]);
        digits.push_back(std::min(mostDigits, -std::log10(std::abs((computed[b] - certified) / certified))));
    }
    return digits;
}

// A row of digits, one for each coefficient, for each order of the observations; the published order comes first.
struct DigitsInOrders {
    std::vector<Digits> ofOrder;

    [[nodiscard]] double published(std::size_t b) const { return ofOrder[0][b]; }
    [[nodiscard]] double sure(std::size_t b) const {
        Digits sorted;
        for (const Digits &digits : ofOrder) sorted.push_back(digits[b]);
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 20];
    }
    // Of the root mean square of the errors.
    [[nodiscard]] double mean(std::size_t b) const {
        double sum = 0;
        for (const Digits &digits : ofOrder) sum += std::pow(10, -2 * digits[b]);
        return -std::log10(sum / static_cast<double>(ofOrder.size())) / 2;
    }
};

void shuffle(DataSet &set, std::mt19937_64 &random) {
    for (std::size_t n = set.observations.size(); n > 1; --n)
        std::swap(set.observations[n - 1], set.observations[random() % n]);
}

TEST(ReferenceData, GiveEveryPrintedDigitOfTheCertifiedCoefficients) {
    for (const std::string name : names) {
        const DataSet set = read(name);
        const std::vector<Quad> exact = solveWide(problem<Quad>(set));
        ASSERT_GE(exact.size(), 2U) << name;
        for (std::size_t b = 0; b < exact.size(); ++b) {
            const auto [digits, exponent] = decimal(set.certified[b]);
            EXPECT_GE(std::abs(digits), 100'000'000'000'000) << name << " B" << b << ": fewer than 15 digits";
            const Quad lastDigits = (exact[b] - number<Quad>(set.certified[b])) / power(10, exponent);
            EXPECT_LE(std::abs(static_cast<double>(lastDigits)), 0.5) << name << " B" << b;
        }
    }
}

TEST(LeastSquares, DigitsOfEachCoefficientStayAsTheyAre) {
    const std::array<Digits, names.size()> known{{
        {12.3, 14.4},
        {12.6, 11.3, 12.2, 12.9, 13.6, 12.1, 12.6},
        {9.5, 9.6, 10.2, 11.1, 12.5, 14.2},
        {14.4, 13.4, 12.9, 12.8, 13.1, 13.8},
        {9.6, 9.8, 10.5, 11.8, 14.0, 15.0},
        {8.9, 8.5, 8.9, 9.8, 11.0, 12.7},
        {6.8, 6.5, 6.9, 7.7, 9.0, 10.7},
    }};
    for (std::size_t n = 0; n < names.size(); ++n) {
        const DataSet set = read(names[n]);
        const Digits digits = correctDigits(solveWithLibrary(problem<double>(set)), set);
        ASSERT_EQ(digits.size(), known[n].size()) << names[n];
        for (std::size_t b = 0; b < digits.size(); ++b)
            EXPECT_NEAR(digits[b], known[n][b], 1.01 * slack) << names[n] << " B" << b;
    }
}

TEST(LeastSquares, NoFewerSureDigitsThanDgels) {
    std::mt19937_64 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same orders every time
    std::printf("correct digits           published order       mean error    sure (95 of 100)   of %zu orders\n"
                "data set  coefficient    library  dgels    library  dgels    library  dgels\n",
                orders);
    int ahead = 0, behind = 0, total = 0;
    for (const std::string name : names) {
        DataSet set = read(name);
        DigitsInOrders library, dgels;
        for (std::size_t order = 0; order < orders; ++order, shuffle(set, random)) {
            const Problem<double> fit = problem<double>(set);
            library.ofOrder.push_back(correctDigits(solveWithLibrary(fit), set));
            dgels.ofOrder.push_back(correctDigits(solveWithDgels(fit), set));
        }
        for (std::size_t b = 0; b < set.certified.size(); ++b, ++total) {
            const bool isBehind = library.published(b) < dgels.published(b) - slack;
            behind += isBehind;
            ahead += library.published(b) > dgels.published(b) + slack;
            std::printf("%-9s B%zu %18.1f %6.1f %c%9.1f %6.1f %10.1f %6.1f\n", name.c_str(), b, library.published(b),
                        dgels.published(b), isBehind ? '*' : ' ', library.mean(b), dgels.mean(b), library.sure(b),
                        dgels.sure(b));
            EXPECT_GE(library.sure(b), dgels.sure(b) - slack) << name << " B" << b;
            EXPECT_GE(library.mean(b), dgels.mean(b) - slack) << name << " B" << b;
            EXPECT_GE(library.published(b), std::min(dgels.published(b), dgels.sure(b)) - slack) << name << " B" << b;
        }
    }
    std::printf("published order: the library has more digits %d times, as many %d times, fewer %d times (*)\n", ahead,
                total - ahead - behind, behind);
}

} // namespace
