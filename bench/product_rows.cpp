// Rows of matrix by matrix and matrix by vector.
#include "contest.h"
#include "data.h"
#include "peers/library_products.h"
#include "peers/plain_products.h"

#include <vonkk3.h>

#include <cmath>
#include <limits>
#include <utility>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

// Operands and results of a row: matrices by matrices into matrices, or matrices by vectors (plus vectors) into
// vectors.
template <class T> struct ProductData {
    std::size_t order, count;
    bool isOneFirst, isOneSecond, isVector;
    Buffer<T> a, columns, b, w, d; // `columns` are the matrices of `a`, each stored by columns
    std::vector<const T *> aList, bList;
    std::vector<T *> dList;
    VonkStatus status = vonkOk;

    ProductData(std::size_t order, std::size_t count, bool isOneFirst, bool isOneSecond, bool isVector)
        : order(order), count(count), isOneFirst(isOneFirst), isOneSecond(isOneSecond), isVector(isVector),
          a(count * order * order, 0), columns(count * order * order, 3), b(count * objectSize(), 1),
          w(count * objectSize(), 4), d(count * objectSize(), 2) {
        a.fillRandomly(1);
        b.fillRandomly(2);
        w.fillRandomly(3);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < order; ++i)
                for (std::size_t j = 0; j < order; ++j)
                    columns.data()[(n * order + j) * order + i] = a[(n * order + i) * order + j];
    }

    std::size_t objectSize() const { return isVector ? order : order * order; }

    // The sum of the magnitudes of what element i is the sum of.
    double magnitude(std::size_t i) const {
        const std::size_t width = isVector ? 1 : order;
        const std::size_t n = i / objectSize(), row = i % objectSize() / width, column = i % width;
        const T *aRow = a.data() + (isOneFirst ? 0 : n) * order * order + row * order;
        const T *bObject = b.data() + (isOneSecond ? 0 : n) * objectSize();
        double sum = std::fabs(double(w[i])); // allowed for where it is not added, too
        for (std::size_t k = 0; k < order; ++k) sum += std::fabs(double(aRow[k]) * double(bObject[k * width + column]));
        return sum;
    }
};

// A sum of so many products, in whatever order, is this near to the true one; two of them are twice as near to another.
template <class T>
std::string productComplaint(const ProductData<T> &data, const Values &expected, const Values &found) {
    if (found.size() != expected.size()) return "another number of results";
    const double relative = double(data.order + 1) * double(std::numeric_limits<T>::epsilon());
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!(std::fabs(expected[i] - found[i]) <= relative * data.magnitude(i)))
            return "element " + std::to_string(i) + " is " + std::to_string(found[i]) + ", not " +
                   std::to_string(expected[i]);
    return "";
}

// A row; contestants are added by name, agreement and work. Work of the library returns a status.
template <class T> class ProductContest {
public:
    ProductContest(std::size_t order, std::size_t count, bool isOneFirst, bool isOneSecond, bool isVector)
        : shared(std::make_shared<ProductData<T>>(order, count, isOneFirst, isOneSecond, isVector)) {
        ProductData<T> *data = shared.get();
        contest = {"objects",
                   count,
                   shared,
                   [data] { data->d.fill(T(1e30)); },
                   [data](auto &expected, auto &found) { return productComplaint(*data, expected, found); },
                   {}};
    }

    ProductData<T> &data() { return *shared; }

    // Work takes the data, a peer's also plain pointers to the operands.
    template <class Work> void library(Work work) {
        ProductData<T> *data = shared.get();
        enter("library", Agreement::bits, [=] { data->status = work(*data); });
    }
    template <class Work> void peer(std::string name, Agreement agreement, Work work) {
        const ProductData<T> *data = shared.get();
        T *d = shared->d.data();
        enter(std::move(name), agreement, [=] { work(data->a.data(), data->b.data(), d, data->count); });
    }
    // The same for those who have the matrices by columns.
    template <class Work> void columnPeer(std::string name, Work work) {
        const ProductData<T> *data = shared.get();
        T *d = shared->d.data();
        enter(std::move(name), Agreement::tolerance,
              [=] { work(data->columns.data(), data->b.data(), d, data->count); });
    }
    template <class Work> void enter(std::string name, Agreement agreement, Work work) {
        const ProductData<T> *data = shared.get();
        const auto results = [data] {
            if (data->status != vonkOk) return Values();
            return Values(data->d.data(), data->d.data() + data->d.size());
        };
        contest.contestants.push_back({std::move(name), agreement, repeated(work), results});
    }

    Contest contest;

private:
    std::shared_ptr<ProductData<T>> shared;
};

using Data = ProductData<float>;
using WideData = ProductData<double>;
using plain::Loops;
using plain::Sums;

template <std::size_t order> constexpr bool isGraphicsOrder = order == 3 || order == 4;
template <std::size_t order> constexpr bool hasGlm = withGlm &&isGraphicsOrder<order>;
template <std::size_t order> constexpr bool hasCglm = withCglm &&isGraphicsOrder<order>;
template <std::size_t order> constexpr bool hasXsmm = withXsmm &&order != 0; // asked where it depends on an order

// ---- Matrix by matrix -----------------------------------------------------------------------------------------------

template <std::size_t order, auto call> Contest byOneMatrix(std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float), object = order * row;
    ProductContest<float> contest(order, count, false, true, false);
    contest.library([](Data &data) {
        return call(data.a.data(), object, row, data.b.data(), row, data.d.data(), object, row,
                    std::uint32_t(data.count));
    });
    contest.peer("plain", Agreement::bits, plain::multiplyByOne<Loops::cellByCell, float, float, order>);
    contest.peer("plain, row by row", Agreement::bits, plain::multiplyByOne<Loops::rowByRow, float, float, order>);
    contest.peer("Eigen", Agreement::tolerance, eigen::Products<order>::multiplyByOne);
    if constexpr (hasGlm<order>) contest.peer("GLM", Agreement::tolerance, glm::Products<order>::multiplyByOne);
    if constexpr (hasCglm<order>) contest.peer("cglm", Agreement::tolerance, cglm::Products<order>::multiplyByOne);
    if constexpr (hasXsmm<order>)
        contest.peer("libxsmm", Agreement::tolerance, [kernel = xsmm::kernelFor(order, order, order)](auto... p) {
            xsmm::multiplyByOne(kernel, order, p...);
        });
    return contest.contest;
}

template <std::size_t order, auto call> Contest matrixArrays(std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float), object = order * row;
    ProductContest<float> contest(order, count, false, false, false);
    contest.library([](Data &data) {
        return call(data.a.data(), object, row, data.b.data(), object, row, data.d.data(), object, row,
                    std::uint32_t(data.count));
    });
    contest.peer("plain", Agreement::bits, plain::multiplyArrays<Loops::cellByCell, float, float, order>);
    contest.peer("plain, row by row", Agreement::bits, plain::multiplyArrays<Loops::rowByRow, float, float, order>);
    contest.peer("Eigen", Agreement::tolerance, eigen::Products<order>::multiplyArrays);
    if constexpr (hasGlm<order>) contest.peer("GLM", Agreement::tolerance, glm::Products<order>::multiplyArrays);
    if constexpr (hasCglm<order>) contest.peer("cglm", Agreement::tolerance, cglm::Products<order>::multiplyArrays);
    if constexpr (hasXsmm<order>)
        contest.peer("libxsmm", Agreement::tolerance, [kernel = xsmm::kernelFor(order, order, order)](auto... p) {
            xsmm::multiplyArrays(kernel, order, p...);
        });
    return contest.contest;
}

Contest matrixArrays64(std::size_t count) {
    constexpr std::int32_t row = 4 * sizeof(double), object = 4 * row;
    ProductContest<double> contest(4, count, false, false, false);
    contest.library([](WideData &data) {
        return vonkMul_mama_64f_4x4(data.a.data(), object, row, data.b.data(), object, row, data.d.data(), object, row,
                                    std::uint32_t(data.count));
    });
    contest.peer("plain, long double", Agreement::bits,
                 plain::multiplyArrays<Loops::cellsRolled, double, long double, 4>);
    contest.peer("plain, double: rounds otherwise", Agreement::tolerance,
                 plain::multiplyArrays<Loops::rowByRow, double, double, 4>);
    return contest.contest;
}

// ---- Other layouts and sizes ----------------------------------------------------------------------------------------

Contest listedMatrices(std::size_t count) {
    constexpr std::int32_t row = 4 * sizeof(float);
    ProductContest<float> contest(4, count, false, false, false);
    auto &lists = contest.data();
    for (std::size_t n = 0; n < count; ++n) {
        lists.aList.push_back(lists.a.data() + n * 16);
        lists.bList.push_back(lists.b.data() + n * 16);
        lists.dList.push_back(lists.d.data() + n * 16);
    }
    contest.library([](Data &data) {
        return vonkMul_mama_32f_4x4_L(data.aList.data(), 0, row, data.bList.data(), 0, row, data.dList.data(), 0, row,
                                      std::uint32_t(data.count));
    });
    const auto enter = [&](const char *name, auto multiply) {
        contest.enter(name, Agreement::bits, [&lists, multiply] {
            multiply(lists.aList.data(), lists.bList.data(), lists.dList.data(), lists.count);
        });
    };
    enter("plain, list of pointers", plain::multiplyListed<Loops::cellByCell, 4>);
    enter("plain, row by row", plain::multiplyListed<Loops::rowByRow, 4>);
    return contest.contest;
}

// Element (i, j) of all objects is a run of its own. `gap` is what lies between the runs: without one, runs of 2,048
// begin at the same place of a page, and compete for the same eight lines of the first-level cache.
Contest matrixTables(std::size_t count, std::size_t gap) {
    ProductContest<float> contest(3, count + gap, false, true, false);
    auto &tables = contest.data();
    for (std::size_t k = 0; k < 9; ++k) {
        tables.aList.push_back(tables.a.data() + k * (count + gap));
        tables.bList.push_back(tables.b.data() + k);
        tables.dList.push_back(tables.d.data() + k * (count + gap));
    }
    tables.count = count;
    contest.contest.units = count;
    // Everybody has the same bits here; what judges roundings elsewhere does not know this order of elements.
    contest.library([](Data &data) {
        return vonkMul_mam_32f_3x3_P(data.aList.data(), 0, data.bList.data(), 0, data.dList.data(), 0,
                                     std::uint32_t(data.count));
    });
    contest.enter("plain, structure of arrays", Agreement::bits, [&tables] {
        plain::multiplyTablesByOne(tables.aList.data(), tables.bList.data(), tables.dList.data(), tables.count);
    });
    return contest.contest;
}

Contest runTimeSize(std::size_t count) {
    constexpr std::uint32_t order = 4;
    constexpr std::int32_t row = order * sizeof(float), object = order * row;
    ProductContest<float> contest(order, count, false, false, false);
    contest.library([](Data &data) {
        return vonkMul_mama_32f(data.a.data(), object, row, order, order, data.b.data(), object, row, order, order,
                                data.d.data(), object, row, std::uint32_t(data.count));
    });
    contest.peer("plain, run-time size and strides", Agreement::bits,
                 [](const float *a, const float *b, float *d, std::size_t objects) {
                     plain::multiplyArrays(a, object, row, b, object, row, d, object, row, order, objects);
                 });
    return contest.contest;
}

// ---- Matrix by vector -----------------------------------------------------------------------------------------------

template <std::size_t order, auto call> Contest vectorsByOneMatrix(std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    using Eigen = eigen::Products<order>;
    ProductContest<float> contest(order, count, true, false, true);
    contest.library([](Data &data) {
        return call(data.a.data(), row, data.b.data(), row, data.d.data(), row, std::uint32_t(data.count));
    });
    contest.peer("plain, same bits", Agreement::bits, plain::multiplyVectors<Sums::asLibrary, float, float, order>);
    contest.peer("plain", Agreement::tolerance, plain::multiplyVectors<Sums::inOrder, float, float, order>);
    contest.peer("plain, by columns", Agreement::tolerance,
                 plain::multiplyVectors<Sums::byColumns, float, float, order>);
    contest.peer("Eigen, RowMajor", Agreement::tolerance, Eigen::multiplyVectors);
    contest.columnPeer("Eigen", Eigen::multiplyColumnsByVectors);
    contest.columnPeer("Eigen, one expression", Eigen::multiplyColumnsByVectorsAtOnce);
    if constexpr (hasGlm<order>) contest.columnPeer("GLM", glm::Products<order>::multiplyVectors);
    if constexpr (hasCglm<order>) contest.columnPeer("cglm", cglm::Products<order>::multiplyVectors);
    if constexpr (hasXsmm<order>)
        contest.columnPeer("libxsmm, one product", [kernel = xsmm::kernelFor(order, count, order)](
                                                       auto *a, auto *v, auto *d, std::size_t) { kernel(a, v, d); });
    return contest.contest;
}

template <std::size_t order, auto call> Contest vectorsByMatrices(std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float), object = order * row;
    using Eigen = eigen::Products<order>;
    ProductContest<float> contest(order, count, false, false, true);
    contest.library([](Data &data) {
        return call(data.a.data(), object, row, data.b.data(), row, data.d.data(), row, std::uint32_t(data.count));
    });
    contest.peer("plain, same bits", Agreement::bits,
                 plain::multiplyVectorArrays<Sums::asLibrary, float, float, order>);
    contest.peer("plain", Agreement::tolerance, plain::multiplyVectorArrays<Sums::inOrder, float, float, order>);
    contest.peer("plain, by columns", Agreement::tolerance,
                 plain::multiplyVectorArrays<Sums::byColumns, float, float, order>);
    contest.peer("Eigen, RowMajor", Agreement::tolerance, Eigen::multiplyVectorArrays);
    contest.columnPeer("Eigen", Eigen::multiplyColumnArraysByVectors);
    if constexpr (hasGlm<order>) contest.columnPeer("GLM", glm::Products<order>::multiplyVectorArrays);
    if constexpr (hasCglm<order>) contest.columnPeer("cglm", cglm::Products<order>::multiplyVectorArrays);
    if constexpr (hasXsmm<order>)
        contest.columnPeer("libxsmm", [kernel = xsmm::kernelFor(order, 1, order)](auto... p) {
            xsmm::multiplyVectorArrays(kernel, order, p...);
        });
    return contest.contest;
}

Contest vectorsByMatrices64(std::size_t count) {
    constexpr std::int32_t row = 4 * sizeof(double), object = 4 * row;
    ProductContest<double> contest(4, count, false, false, true);
    contest.library([](WideData &data) {
        return vonkMul_mava_64f_4x4(data.a.data(), object, row, data.b.data(), row, data.d.data(), row,
                                    std::uint32_t(data.count));
    });
    contest.peer("plain, long double", Agreement::bits,
                 plain::multiplyVectorArrays<Sums::inOrder, double, long double, 4>);
    contest.peer("plain, double: rounds otherwise", Agreement::tolerance,
                 plain::multiplyVectorArrays<Sums::inOrder, double, double, 4>);
    return contest.contest;
}

template <std::size_t order> Contest vectorsPlusVectors(std::size_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    ProductContest<float> contest(order, count, true, false, true);
    contest.library([](Data &data) {
        return vonkGaxpy_va_32f_4x4(data.a.data(), row, data.b.data(), row, data.w.data(), row, data.d.data(), row,
                                    std::uint32_t(data.count));
    });
    auto &data = contest.data();
    const auto plus = [&data](auto multiply) {
        return [&data, multiply](auto *a, auto *v, auto *d, std::size_t objects) {
            multiply(a, v, data.w.data(), d, objects);
        };
    };
    contest.peer("plain, same bits", Agreement::bits, plus(plain::multiplyVectorsAdd<Sums::asLibrary, order>));
    contest.peer("plain", Agreement::tolerance, plus(plain::multiplyVectorsAdd<Sums::inOrder, order>));
    contest.peer("plain, by columns", Agreement::tolerance, plus(plain::multiplyVectorsAdd<Sums::byColumns, order>));
    contest.columnPeer("Eigen", plus(eigen::Products<order>::multiplyColumnsByVectorsAdd));
    if constexpr (hasGlm<order>) contest.columnPeer("GLM", plus(glm::Products<order>::multiplyVectorsAdd));
    if constexpr (hasCglm<order>) contest.columnPeer("cglm", plus(cglm::Products<order>::multiplyVectorsAdd));
    return contest.contest;
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

} // namespace

void addProductRows(Rows &rows) {
    add(rows, "vonkMul_mam_32f_3x3", byOneMatrix<3, vonkMul_mam_32f_3x3>);
    add(rows, "vonkMul_mam_32f_4x4", byOneMatrix<4, vonkMul_mam_32f_4x4>);
    add(rows, "vonkMul_mam_32f_5x5", byOneMatrix<5, vonkMul_mam_32f_5x5>);
    add(rows, "vonkMul_mam_32f_6x6", byOneMatrix<6, vonkMul_mam_32f_6x6>);
    add(rows, "vonkMul_mama_32f_3x3", matrixArrays<3, vonkMul_mama_32f_3x3>);
    add(rows, "vonkMul_mama_32f_4x4", matrixArrays<4, vonkMul_mama_32f_4x4>);
    add(rows, "vonkMul_mama_32f_5x5", matrixArrays<5, vonkMul_mama_32f_5x5>);
    add(rows, "vonkMul_mama_32f_6x6", matrixArrays<6, vonkMul_mama_32f_6x6>);
    add(rows, "vonkMul_mama_32f_4x4_L", listedMatrices);
    add(rows, "vonkMul_mam_32f_3x3_P", [](std::size_t count) { return matrixTables(count, 48); });
    rows.push_back({"vonkMul_mam_32f_3x3_P (no gaps)/2048", [] { return matrixTables(2048, 0); }});
    add(rows, "vonkMul_mama_32f (size 4)", runTimeSize);
    add(rows, "vonkMul_mama_64f_4x4", matrixArrays64);
    add(rows, "vonkMul_mva_32f_3x3", vectorsByOneMatrix<3, vonkMul_mva_32f_3x3>);
    add(rows, "vonkMul_mva_32f_4x4", vectorsByOneMatrix<4, vonkMul_mva_32f_4x4>);
    add(rows, "vonkMul_mva_32f_6x6", vectorsByOneMatrix<6, vonkMul_mva_32f_6x6>);
    add(rows, "vonkMul_mava_32f_3x3", vectorsByMatrices<3, vonkMul_mava_32f_3x3>);
    add(rows, "vonkMul_mava_32f_4x4", vectorsByMatrices<4, vonkMul_mava_32f_4x4>);
    add(rows, "vonkMul_mava_32f_6x6", vectorsByMatrices<6, vonkMul_mava_32f_6x6>);
    add(rows, "vonkMul_mava_64f_4x4", vectorsByMatrices64);
    add(rows, "vonkGaxpy_va_32f_4x4", vectorsPlusVectors<4>);
}

} // namespace bench
