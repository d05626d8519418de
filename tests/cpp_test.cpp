// The C++ headers: views of all kinds of data, every operation against a few lines by hand, and the traps of the C
// functions that they lead round. Which call names which export: tests/cpp/emit_calls.cpp.
#include <vonkk3.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <span>
#include <vector>

namespace {

using vonk::Layout;

template <class T> using Numbers = std::vector<T>;

template <class T> Numbers<T> numbers(std::size_t count, unsigned seed = 1) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> digits(-4, 4);
    Numbers<T> values(count);
    for (T &value : values) value = T(digits(random));
    return values;
}

// So many pointers, spread evenly over the numbers.
template <class T> std::vector<T *> pointers(Numbers<T> &values, std::size_t count) {
    std::vector<T *> list;
    for (std::size_t n = 0; n < count; ++n) list.push_back(&values[n * (values.size() / count)]);
    return list;
}

// ---- Views

TEST(CppViews, ArePackedFromPointersWithSizesInTheTypeOrAtRunTime) {
    float p[2 * 3 * 4];
    const vonk::Matrices<float, 3, 4> fixed(p, 2);
    EXPECT_EQ(&fixed(1, 2, 3), p + 12 + 8 + 3);
    const auto open = vonk::matrices(p, 2, 3, 4);
    EXPECT_EQ(&open(1, 2, 3), p + 23);
    EXPECT_EQ(open.rows(), 3U);
    EXPECT_EQ(open.columns(), 4U);
    EXPECT_EQ(&vonk::vectors<4>(p, 6)(5, 1), p + 21);
    EXPECT_EQ(&vonk::vector(p, 24)(7), p + 7);
    EXPECT_EQ((&vonk::matrix<3, 4>(p)(1, 1)), p + 5);
    EXPECT_EQ(&vonk::matrix(p, 4, 6)(1, 1), p + 7);
}

TEST(CppViews, TakeTheirSizesFromArraysVectorsAndSpans) {
    float c[5][3][2];
    EXPECT_EQ(&vonk::matrices(c)(4, 2, 1), &c[4][2][1]);
    EXPECT_EQ(&vonk::matrix(c[1])(2, 0), &c[1][2][0]);
    EXPECT_EQ(&vonk::vectors(c[1])(2, 0), &c[1][2][0]);
    std::vector<std::array<double, 3>> v(7);
    EXPECT_EQ(&vonk::vectors(v)(6, 2), &v[6][2]);
    EXPECT_EQ(vonk::vectors(v).count(), 7U);
    std::array<std::array<std::array<double, 3>, 3>, 2> a;
    EXPECT_EQ(&vonk::matrices(a)(1, 2, 0), &a[1][2][0]);
    Numbers<float> flat(36);
    EXPECT_EQ((vonk::matrices<3, 3>(flat).count()), 4U);
    EXPECT_EQ((&vonk::matrices<3, 3>(std::span(flat))(3, 2, 2)), &flat[35]);
    EXPECT_EQ(vonk::vector(flat).rows(), 36U);
    const Numbers<float> &constant = flat;
    static_assert(std::is_same_v<decltype(vonk::vectors<3>(constant))::element, const float>);
    EXPECT_DEATH((void)(vonk::matrices<5, 5>(flat)), "do not fill whole matrices");
}

struct Body {
    char name[5];
    float inertia[3][3];
    std::array<float, 3> spin;
};

TEST(CppViews, StepOverOnesOwnStructs) {
    std::vector<Body> bodies(4);
    EXPECT_EQ(&vonk::members(bodies, &Body::inertia)(3, 2, 1), &bodies[3].inertia[2][1]);
    EXPECT_EQ(&vonk::members(bodies, &Body::spin)(2, 1), &bodies[2].spin[1]);
    const std::vector<Body> &constant = bodies;
    static_assert(std::is_same_v<decltype(vonk::members(constant, &Body::spin))::element, const float>);
    std::vector<Body *> selected{&bodies[3], &bodies[1]};
    const auto list = vonk::members(selected, &Body::inertia);
    static_assert(decltype(list)::layout == Layout::L);
    EXPECT_EQ(&list(0, 1, 2), &bodies[3].inertia[1][2]);
    EXPECT_EQ(&list[1](0, 2), &bodies[1].inertia[0][2]);
    const auto last = vonk::members(bodies.data() + 1, 3, &Body::spin);
    EXPECT_EQ(&last(2, 0), bodies[3].spin.data());
}

TEST(CppViews, LeadThroughListsAndTablesOfPointers) {
    float a[9], b[9];
    std::vector<float *> list{a, b};
    EXPECT_EQ((&vonk::matrices<3, 3>(list)(1, 2, 2)), b + 8);
    std::vector<float(*)[3][3]> arrays;
    float m[2][3][3];
    arrays = {&m[1], &m[0]};
    EXPECT_EQ(&vonk::matrices(arrays)(0, 1, 1), &m[1][1][1]);
    std::vector<float> x(5), y(5), z(5);
    const auto soa = vonk::soa(x, y, z);
    EXPECT_EQ(&soa.view()(4, 1), &y[4]);
    float *const table[] = {x.data(), y.data()};
    EXPECT_EQ((&vonk::soa_vectors<2>(table, 3).shift(4)(1, 1)), &y[2]);
    EXPECT_EQ((&vonk::soa_vectors<2>(table, 3).object_stride(8)(1, 1)), &y[2]);
    EXPECT_DEATH((void)vonk::soa(x, y, numbers<float>(4)), "different lengths");
}

TEST(CppViews, ExchangeStridesWhereDataLieByColumns) {
    double p[2 * 6];
    const auto columns = vonk::matrices<2, 3>(p, 2).column_major();
    EXPECT_EQ(&columns(1, 1, 2), p + 6 + 5);
    EXPECT_EQ(&columns(1, 0, 2), p + 6 + 4);
    EXPECT_EQ(&vonk::transposed(columns)(1, 2, 1), p + 6 + 5);
    const auto leading = vonk::matrix<2, 2>(p).column_major().element_stride(3 * 8);
    EXPECT_EQ(&leading(1, 1), p + 4);
}

// As much of a std::mdspan as a view needs: two matrices of static sizes 2 by 3 with strides of its own.
struct Mdspan {
    float *data;
    float *data_handle() const { return data; }
    std::size_t extent(std::size_t r) const { return r == 0 ? 2 : r + 1; }
    std::size_t stride(std::size_t r) const { return r == 0 ? 20 : r == 1 ? 2 : 5; }
    static constexpr std::size_t rank() { return 3; }
    static constexpr std::size_t static_extent(std::size_t r) { return r == 0 ? std::size_t(-1) : r + 1; }
};

TEST(CppViews, TakeTheStridesOfAnMdspan) {
    float p[40];
    const auto view = vonk::matrices(Mdspan{p});
    static_assert(decltype(view)::fixed_rows == 2 && decltype(view)::fixed_columns == 3);
    EXPECT_EQ(view.count(), 2U);
    EXPECT_EQ(&view(1, 1, 2), p + 20 + 2 + 10);
}

TEST(CppViews, AreSlicedAndIndexedInEveryLayout) {
    float p[10][2][2];
    EXPECT_EQ(&vonk::matrices(p).slice(4, 3)(2, 1, 0), &p[6][1][0]);
    EXPECT_EQ(&vonk::matrices(p)[7](1, 1), &p[7][1][1]);
    std::vector<float(*)[2][2]> list;
    for (auto &matrix : p) list.push_back(&matrix);
    EXPECT_EQ(&vonk::matrices(list).slice(4, 3)(2, 1, 0), &p[6][1][0]);
    float *const table[] = {&p[0][0][0], &p[0][0][1], &p[0][1][0], &p[0][1][1]};
    const auto soa = vonk::soa_matrices<2, 2>(table, 10).object_stride(16);
    EXPECT_EQ(&soa.slice(4, 3)(2, 1, 0), &p[6][1][0]);
    EXPECT_EQ(&soa[9](0, 1), &p[9][0][1]);
    EXPECT_DEATH((void)vonk::matrices(p).slice(4, 7), "leaves its array");
}

TEST(CppViews, ConvertToConstToRunTimeSizesAndToTheStridedLayout) {
    float p[8];
    const vonk::Matrices<const float> open = vonk::matrices<2, 2>(p, 2);
    EXPECT_EQ(open.rows(), 2U);
    EXPECT_EQ(&open(1, 1, 0), p + 6);
    const vonk::Matrices<float, 2, 2, Layout::S2> strided = vonk::matrices<2, 2>(p, 2);
    EXPECT_EQ(&strided(1, 0, 1), p + 5);
}

// ---- Status

TEST(CppStatus, HasATextAndIsThrownByCheck) {
    const vonk::Status singular = vonkErrSingular;
    EXPECT_FALSE(singular);
    EXPECT_TRUE(singular == vonkErrSingular && singular != vonk::Status());
    EXPECT_STREQ(singular.text(), vonkStatusText(vonkErrSingular));
    EXPECT_NO_THROW(vonk::check(vonk::Status()));
    try {
        vonk::check(singular);
        FAIL() << "nothing is thrown";
    } catch (const vonk::Error &error) {
        EXPECT_EQ(error.status(), vonkErrSingular);
        EXPECT_STREQ(error.what(), singular.text());
    }
}

TEST(CppStatus, SizesKnownAtRunTimeAreCompared) {
    Numbers<float> a(9), b(12), c(12);
    EXPECT_EQ(vonk::add(vonk::vectors<3>(a), vonk::vectors<3>(b), vonk::vectors<3>(c)), vonkErrSize);
    EXPECT_EQ(vonk::add(vonk::vector(a), vonk::vector(b), vonk::vector(c)), vonkErrSize);
    EXPECT_EQ(vonk::norm(vonk::vectors<3>(b), a), vonkOk);
    Numbers<float> few(3);
    EXPECT_EQ(vonk::norm(vonk::vectors<3>(b), few), vonkErrSize);
    EXPECT_EQ(vonk::multiply(vonk::matrix(a.data(), 3, 3), vonk::vector(b.data(), 4), vonk::vector(c.data(), 3)),
              vonkErrSize);
    std::vector<std::uint32_t> pivots(2);
    EXPECT_EQ(vonk::lu(vonk::matrix<3, 3>(a), pivots, vonk::matrix<3, 3>(a)), vonkErrSize);
}

TEST(CppStatus, EmptyContainersAreNoError) {
    std::vector<std::array<std::array<float, 3>, 3>> a, d;
    std::vector<std::array<float, 3>> x, y;
    std::vector<std::uint32_t> pivots;
    Numbers<float> results, component;
    EXPECT_EQ(vonk::add(a, a, d), vonkOk);
    EXPECT_EQ(vonk::multiply(a, x, y), vonkOk);
    EXPECT_EQ(vonk::norm(x, results), vonkOk);
    EXPECT_EQ(vonk::lu(a, pivots, d), vonkOk);
    EXPECT_EQ(vonk::lu_solve(a, pivots, x, y), vonkOk);
    EXPECT_EQ(vonk::cholesky(a, d), vonkOk);
    EXPECT_EQ(vonk::cholesky_solve(a, x, y), vonkOk);
    EXPECT_EQ(vonk::solve(a, x, y), vonkOk);
    EXPECT_EQ(vonk::identity(d), vonkOk);
    EXPECT_EQ(vonk::extract(a, results), vonkOk);
    const auto soa = vonk::soa(component, component, component);
    EXPECT_EQ(vonk::cross(soa, soa, soa), vonkOk);
    EXPECT_EQ(vonk::add(vonk::matrices<3, 3>(static_cast<float *>(nullptr), 2), a, d), vonkErrSize);
    EXPECT_EQ(vonk::inverse(vonk::matrices<3, 3>(static_cast<float *>(nullptr), 0), d), vonkErrNullPtr);
}

TEST(CppStatus, StridesInElementsAreCaught) {
    Numbers<float> a(64), b(64);
    const auto from = vonk::matrices<4, 4>(a), to = vonk::matrices<4, 4>(b);
    EXPECT_DEATH((void)vonk::add(from.row_stride(4), from, to), "in bytes");
    EXPECT_DEATH((void)vonk::add(from.object_stride(16), from, to), "in bytes");
    EXPECT_DEATH((void)vonk::add(from, from, to.row_stride(0)), "stride of the destination is 0");
    EXPECT_EQ(vonk::add(from.row_stride(0), from.object_stride(0), to), vonkOk);
    EXPECT_EQ(vonk::add(from.slice(0, 2).row_stride(32).object_stride(16), from.slice(0, 2), to.slice(0, 2)), vonkOk);
}

// ---- Operations

template <class T> class CppOperations : public testing::Test {};
using Elements = testing::Types<float, double>;
TYPED_TEST_SUITE(CppOperations, Elements);

TYPED_TEST(CppOperations, ElementByElement) {
    using T = TypeParam;
    const auto a = numbers<T>(3 * 16, 1), b = numbers<T>(3 * 16, 2);
    Numbers<T> d(3 * 16);
    const auto A = vonk::matrices<4, 4>(a), B = vonk::matrices<4, 4>(b);
    const auto D = vonk::matrices<4, 4>(d);
    ASSERT_EQ(vonk::add(A, vonk::transposed(B), D), vonkOk);
    EXPECT_EQ(D(2, 1, 3), A(2, 1, 3) + B(2, 3, 1));
    ASSERT_EQ(vonk::subtract(A[0], B, D), vonkOk);
    EXPECT_EQ(D(2, 1, 3), A(0, 1, 3) - B(2, 1, 3));
    ASSERT_EQ(vonk::scale(vonk::transposed(A), 3, D), vonkOk);
    EXPECT_EQ(D(1, 0, 2), 3 * A(1, 2, 0));
    const auto x = vonk::vectors<6>(a), y = vonk::vectors<6>(b);
    const auto z = vonk::vectors<6>(d);
    ASSERT_EQ(vonk::add(x, 2, z), vonkOk);
    EXPECT_EQ(z(7, 5), x(7, 5) + 2);
    ASSERT_EQ(vonk::subtract(2, x, z), vonkOk);
    EXPECT_EQ(z(7, 5), 2 - x(7, 5));
    ASSERT_EQ(vonk::saxpy(x, 3, y[2], z), vonkOk);
    EXPECT_EQ(z(4, 1), 3 * x(4, 1) + y(2, 1));
    ASSERT_EQ(vonk::combine(x, 3, y, -2, z), vonkOk);
    EXPECT_EQ(z(4, 1), 3 * x(4, 1) - 2 * y(4, 1));
}

TYPED_TEST(CppOperations, ReducingToNumbers) {
    using T = TypeParam;
    const auto a = numbers<T>(36, 3), b = numbers<T>(36, 4);
    const auto A = vonk::matrices<3, 3>(a);
    const auto x = vonk::vectors<3>(a), y = vonk::vectors<3>(b);
    std::array<T, 12> many{};
    ASSERT_EQ(vonk::dot(x, y, many), vonkOk);
    EXPECT_EQ(many[5], x(5, 0) * y(5, 0) + x(5, 1) * y(5, 1) + x(5, 2) * y(5, 2));
    T one = 0;
    ASSERT_EQ(vonk::dot(x[3], y[4], one), vonkOk);
    EXPECT_EQ(one, x(3, 0) * y(4, 0) + x(3, 1) * y(4, 1) + x(3, 2) * y(4, 2));
    ASSERT_EQ(vonk::trace(A, many.data()), vonkOk);
    EXPECT_EQ(many[3], A(3, 0, 0) + A(3, 1, 1) + A(3, 2, 2));
    ASSERT_EQ(vonk::determinant(A, many), vonkOk);
    const auto minor = [&](int i, int j) { return A(2, 1, i) * A(2, 2, j) - A(2, 1, j) * A(2, 2, i); };
    EXPECT_EQ(many[2], A(2, 0, 0) * minor(1, 2) - A(2, 0, 1) * minor(0, 2) + A(2, 0, 2) * minor(0, 1));
    ASSERT_EQ(vonk::determinant(vonk::matrix(a.data(), 6, 6), one, Numbers<T>(36 + 6)), vonkOk);
    T other = 0;
    ASSERT_EQ((vonk::determinant(vonk::matrix<6, 6>(a), other)), vonkOk);
    EXPECT_NEAR(one, other, 1e-4 * std::fabs(other));
    EXPECT_EQ(vonk::determinant(vonk::matrix(a.data(), 6, 6), one, Numbers<T>(36)), vonkErrSize);
    ASSERT_EQ((vonk::determinant(vonk::matrix<2, 2>(a.data()), one)), vonkOk);
    EXPECT_NEAR(one, a[0] * a[3] - a[1] * a[2], 1e-5);
}

// Norms: roots that are right, and 0 where the estimate would be NaN.
TYPED_TEST(CppOperations, NormsOfZero) {
    using T = TypeParam;
    Numbers<T> a(27, T(0));
    a[0] = 3, a[1] = 4;
    T lengths[9];
    ASSERT_EQ(vonk::norm(vonk::vectors<3>(a), lengths), vonkOk);
    EXPECT_EQ(lengths[0], 5);
    EXPECT_EQ(lengths[1], 0);
    std::vector<T *> list{a.data(), a.data() + 3};
    ASSERT_EQ(vonk::norm(vonk::vectors<3>(list), lengths), vonkOk);
    EXPECT_EQ(lengths[1], 0);
    ASSERT_EQ((vonk::frobenius(vonk::matrices<3, 3>(a), lengths)), vonkOk);
    EXPECT_EQ(lengths[0], 5);
    EXPECT_EQ(lengths[2], 0);
    if (sizeof(T) == 4) {
        ASSERT_EQ(vonk::exact::norm(vonk::vectors<3>(a), lengths), vonkOk);
        EXPECT_TRUE(std::isnan(lengths[1]));
    }
}

template <class V> auto &element(const V &view, vonk::Size i, vonk::Size j) {
    if constexpr (vonk::detail::is_matrix(V::kind)) return view(i, j);
    else return view(i);
}

// Products of matrices, or of matrices by vectors, beside three loops.
template <class A, class B, class D> void expectProducts(const A &a, const B &b, const D &d, const char *what) {
    using vonk::detail::nth;
    const vonk::Size columns = vonk::detail::is_matrix(D::kind) ? d.columns() : 1;
    const auto forEachElement = [&](auto work) {
        for (vonk::Size n = 0; n < d.count(); ++n)
            for (vonk::Size i = 0; i < d.rows(); ++i)
                for (vonk::Size j = 0; j < columns; ++j) work(n, i, j);
    };
    forEachElement([&](auto n, auto i, auto j) { element(nth(d, n), i, j) = 99; });
    ASSERT_EQ(vonk::multiply(a, b, d), vonkOk) << what;
    forEachElement([&](auto n, auto i, auto j) {
        typename D::element sum = 0;
        for (vonk::Size k = 0; k < a.columns(); ++k) sum += nth(a, n)(i, k) * element(nth(b, n), k, j);
        ASSERT_EQ(element(nth(d, n), i, j), sum) << what << " " << n << " " << i << " " << j;
    });
}

// Every combination of single and array, transposed or not, of fixed and run-time sizes.
template <class T, vonk::Size M, vonk::Size K, vonk::Size N, bool Open> void multiplies() {
    const vonk::Size count = 5;
    const auto a = numbers<T>(count * M * K, 5), b = numbers<T>(count * K * N, 6);
    const auto x = numbers<T>(count * K, 7), w = numbers<T>(count * M, 8);
    Numbers<T> d(count * M * N), y(count * M);
    const auto size = [](const auto &view) {
        if constexpr (Open) {
            using V = std::remove_cv_t<std::remove_reference_t<decltype(view)>>;
            return vonk::View<typename V::element, 0, 0, V::layout, V::kind>(view);
        } else return view;
    };
    using vonk::transposed;
    const auto A = size(vonk::matrices<M, K>(a));
    const auto B = size(vonk::matrices<K, N>(b));
    const auto At = transposed(size(vonk::matrices<K, M>(a)));
    const auto Bt = transposed(size(vonk::matrices<N, K>(b)));
    const auto D = size(vonk::matrices<M, N>(d));
    const auto X = vonk::vectors<K>(x);
    const auto Y = vonk::vectors<M>(y);
    expectProducts(A, B, D, "mama"), expectProducts(A, Bt, D, "mamaT");
    expectProducts(At, B, D, "maTma"), expectProducts(At, Bt, D, "maTmaT");
    expectProducts(A[1], B, D, "mma"), expectProducts(A[1], Bt, D, "mmaT");
    expectProducts(At[1], B, D, "mTma"), expectProducts(At[1], Bt, D, "mTmaT");
    expectProducts(A, B[1], D, "mam"), expectProducts(A, Bt[1], D, "mamT");
    expectProducts(At, B[1], D, "maTm"), expectProducts(At, Bt[1], D, "maTmT");
    expectProducts(A[1], B[2], D[0], "mm"), expectProducts(A[1], Bt[2], D[0], "mmT");
    expectProducts(At[1], B[2], D[0], "mTm"), expectProducts(At[1], Bt[2], D[0], "mTmT");
    expectProducts(A, X, Y, "mava"), expectProducts(At, X, Y, "maTva"), expectProducts(A[1], X, Y, "mva");
    expectProducts(At[1], X, Y, "mTva"), expectProducts(A, X[1], Y, "mav"), expectProducts(At, X[1], Y, "maTv");
    expectProducts(A[1], X[2], Y[0], "mv");
    const T product = Y(0, M - 1);
    ASSERT_EQ(vonk::gaxpy(A[1], X, vonk::vectors<M>(w), Y), vonkOk);
    EXPECT_EQ(Y(2, M - 1), product + w[2 * M + M - 1]);
}

TYPED_TEST(CppOperations, ProductsOfAllShapes) {
    using T = TypeParam;
    multiplies<T, 4, 4, 4, false>();
    multiplies<T, 4, 4, 4, true>();
    multiplies<T, 2, 2, 2, false>();
    multiplies<T, 2, 3, 4, false>();
    multiplies<T, 5, 3, 2, true>();
    multiplies<T, 3, 7, 3, false>();
}

// The same ways round in lists, and of matrices that lie by columns.
TYPED_TEST(CppOperations, ProductsInListsAndByColumns) {
    using T = TypeParam;
    auto a = numbers<T>(4 * 6, 5), b = numbers<T>(4 * 12, 6), d = numbers<T>(4 * 8, 7);
    auto la = pointers(a, 4), lb = pointers(b, 4), ld = pointers(d, 4);
    std::reverse(lb.begin(), lb.end());
    using vonk::transposed;
    const auto A = vonk::matrices<2, 3>(la);
    const auto At = vonk::matrices<3, 2>(la).element_stride(sizeof(T));
    const auto B = vonk::matrices<3, 4>(lb);
    const auto Bt = vonk::matrices<4, 3>(lb);
    const auto D = vonk::matrices<2, 4>(ld);
    expectProducts(A, B, D, "mama"), expectProducts(A, transposed(Bt), D, "mamaT");
    expectProducts(transposed(At), B, D, "maTma"), expectProducts(A[1], B, D, "mma"), expectProducts(A, B[1], D, "mam");
    expectProducts(transposed(At[2]), transposed(Bt), D, "mTmaT");
    const auto Ac = vonk::matrices<2, 3>(a).column_major();
    const auto Bc = vonk::matrices<3, 4>(b).column_major();
    const auto Dc = vonk::matrices<2, 4>(d).column_major();
    expectProducts(Ac, Bc, Dc, "by columns"), expectProducts(Ac[1], Bc, Dc, "one by columns");
    expectProducts(Ac, Bc[1], vonk::matrices<2, 4>(d), "mixed");
}

TYPED_TEST(CppOperations, ProductsBehindTables) {
    using T = TypeParam;
    auto a = numbers<T>(4 * 10, 5), d = numbers<T>(2 * 10, 6);
    const auto from = pointers(a, 4), to = pointers(d, 2);
    const auto A = vonk::soa_matrices<2, 2>(from.data(), 10);
    const auto x = vonk::soa_vectors<2>(from.data(), 10);
    const auto y = vonk::soa_vectors<2>(to.data(), 10);
    ASSERT_EQ(vonk::multiply(A, x, y), vonkOk);
    EXPECT_EQ(y(7, 1), A(7, 1, 0) * x(7, 0) + A(7, 1, 1) * x(7, 1));
    ASSERT_EQ(vonk::multiply(vonk::transposed(A), x, y), vonkOk);
    EXPECT_EQ(y(7, 1), A(7, 0, 1) * x(7, 0) + A(7, 1, 1) * x(7, 1));
    // One matrix in plain memory beside them gets a table.
    const T turn[2][2] = {{0, -1}, {1, 0}};
    ASSERT_EQ(vonk::multiply(vonk::matrix(turn), x, y), vonkOk);
    EXPECT_EQ(y(7, 0), -x(7, 1));
    const auto open = vonk::soa_matrices(from.data(), 10, 1, 4);
    EXPECT_EQ(vonk::multiply(vonk::transposed(open), vonk::soa_vectors(from.data(), 10, 1),
                             vonk::soa_vectors(from.data(), 10, 4)),
              vonkErrSize);
}

TYPED_TEST(CppOperations, MovingData) {
    using T = TypeParam;
    auto a = numbers<T>(4 * 6, 5);
    Numbers<T> d(4 * 6);
    const auto A = vonk::matrices<2, 3>(a);
    const auto D = vonk::matrices<3, 2>(d);
    ASSERT_EQ(vonk::transpose(A, D), vonkOk);
    EXPECT_EQ(D(3, 2, 1), A(3, 1, 2));
    std::fill(d.begin(), d.end(), T(0));
    ASSERT_EQ(vonk::copy(vonk::transposed(A), D), vonkOk);
    EXPECT_EQ(D(3, 2, 1), A(3, 1, 2));
    ASSERT_EQ(vonk::copy(A[1], vonk::matrix<2, 3>(d.data())), vonkOk);
    EXPECT_EQ(d[5], A(1, 1, 2));
    std::fill(d.begin(), d.end(), T(0));
    ASSERT_EQ(vonk::extract(vonk::transposed(A), d), vonkOk);
    EXPECT_EQ(d[3 * 6 + 2 * 2 + 1], A(3, 1, 2));
    EXPECT_EQ(vonk::extract(A, Numbers<T>(23)), vonkErrSize);
    EXPECT_EQ(vonk::extract(vonk::matrices<2, 3>(a.data(), 0), d), vonkOk);
    // Vectors from table to table: the C function for it reads no source table.
    const auto from = pointers(a, 3), to = pointers(d, 3);
    std::fill(d.begin(), d.end(), T(77));
    ASSERT_EQ(vonk::copy(vonk::soa_vectors<3>(from.data(), 8), vonk::soa_vectors<3>(to.data(), 8)), vonkOk);
    EXPECT_EQ(d, a);
    // The transpose of one matrix behind a table.
    T elements[6] = {0, 1, 2, 3, 4, 5}, dense[6];
    T *table[6];
    for (int k = 0; k < 6; ++k) table[k] = elements + k;
    ASSERT_EQ(vonk::extract(vonk::transposed(vonk::soa_matrix<2, 3>(table)), dense), vonkOk);
    EXPECT_EQ(dense[1], 3);
    EXPECT_EQ(dense[4], 2);
    EXPECT_EQ(vonk::extract(vonk::transposed(vonk::soa_matrix<2, 3>(table).shift(sizeof(T))), dense), vonkErrSize);
    EXPECT_EQ(vonk::transpose(vonk::soa_matrix(table, 2, 3), vonk::soa_matrix(table, 3, 2)), vonkErrSize);
}

// Identities in every layout, by columns and by rows, wide and tall: nothing else is written.
TYPED_TEST(CppOperations, Identities) {
    using T = TypeParam;
    const T mark = 77;
    const auto check = [&](const auto &make, std::size_t written) {
        Numbers<T> d(200, mark);
        const auto view = make(d.data());
        ASSERT_EQ(vonk::identity(view), vonkOk);
        for (vonk::Size n = 0; n < view.count(); ++n)
            for (vonk::Size i = 0; i < view.rows(); ++i)
                for (vonk::Size j = 0; j < view.columns(); ++j) ASSERT_EQ(view(n, i, j), T(i == j)) << n << i << j;
        EXPECT_EQ(std::size_t(std::count_if(d.begin(), d.end(), [&](T x) { return x != mark; })), written);
    };
    const std::ptrdiff_t e = sizeof(T);
    check([](T *p) { return vonk::matrices<4, 4>(p, 5); }, 80);
    check([](T *p) { return vonk::matrices<3, 4>(p, 5); }, 60);
    check([](T *p) { return vonk::matrices<4, 3>(p, 5); }, 60);
    check([](T *p) { return vonk::matrices<3, 4>(p, 5).column_major(); }, 60);
    check([](T *p) { return vonk::matrices<4, 3>(p, 5).column_major(); }, 60);
    check([&](T *p) { return vonk::matrices<3, 3>(p + 20, 2).row_stride(-5 * e).object_stride(20 * e); }, 18);
    T *list[3];
    check([&](T *p) { return list[0] = p + 100, list[1] = p, list[2] = p + 30, vonk::matrices<3, 3>(list, 3); }, 27);
    T *table[6];
    const auto tables = [&](T *p) {
        for (int k = 0; k < 6; ++k) table[k] = p + 10 * k;
        return table;
    };
    check([&](T *p) { return vonk::soa_matrices<2, 3>(tables(p), 10); }, 60);
    check([&](T *p) { return vonk::soa_matrices<3, 2>(tables(p), 10); }, 60);
    list[1] = nullptr;
    EXPECT_EQ((vonk::identity(vonk::matrices<3, 3>(list, 3).slice(1, 1))), vonkErrNullPtr);
}

// ---- Decompositions

// Permutations and zeros, after which the array's own check looks.
template <class T> Numbers<T> permuted(std::size_t count) {
    Numbers<T> a(count * 9, T(0));
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t i = 0; i < 3; ++i) a[n * 9 + i * 3 + (i + n) % 3] = T(1 + i);
    return a;
}

TYPED_TEST(CppOperations, LuOfArraysIsRightWhateverTheDestinationHolds) {
    using T = TypeParam;
    const std::size_t count = 20;
    for (const T before : {T(0), T(1), std::numeric_limits<T>::quiet_NaN()}) {
        const auto a = permuted<T>(count);
        Numbers<T> f(count * 9, before), b = numbers<T>(count * 3), x(count * 3);
        std::vector<std::array<std::uint32_t, 3>> pivots(count);
        vonk::Failed failed;
        ASSERT_EQ((vonk::lu(vonk::matrices<3, 3>(a), pivots, vonk::matrices<3, 3>(f), failed)), vonkOk);
        EXPECT_EQ(failed.object, count);
        ASSERT_EQ((vonk::lu_solve(vonk::matrices<3, 3>(f), pivots, vonk::vectors<3>(b), vonk::vectors<3>(x))), vonkOk);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(T(1 + i) * x[n * 3 + (i + n) % 3], b[n * 3 + i]);
        Numbers<T> y(count * 3);
        ASSERT_EQ((vonk::solve(vonk::matrices<3, 3>(a), vonk::vectors<3>(b), vonk::vectors<3>(y))), vonkOk);
        EXPECT_EQ(x, y);
    }
}

TYPED_TEST(CppOperations, LuInListsTablesAndInPlace) {
    using T = TypeParam;
    const std::size_t count = 6;
    auto a = permuted<T>(count);
    const auto b = numbers<T>(count * 3);
    Numbers<T> wanted(count * 3), x(count * 3), f(count * 9);
    ASSERT_EQ((vonk::solve(vonk::matrices<3, 3>(a), vonk::vectors<3>(b), vonk::vectors<3>(wanted))), vonkOk);
    std::uint32_t pivots[6][3];
    // Lists
    auto right = b;
    auto la = pointers(a, count), lf = pointers(f, count), lb = pointers(right, count), lx = pointers(x, count);
    ASSERT_EQ((vonk::lu(vonk::matrices<3, 3>(la), pivots, vonk::matrices<3, 3>(lf))), vonkOk);
    ASSERT_EQ((vonk::lu_solve(vonk::matrices<3, 3>(lf), pivots, vonk::vectors<3>(lb), vonk::vectors<3>(lx))), vonkOk);
    EXPECT_EQ(x, wanted);
    // One matrix for many right-hand sides in a list: of doubles the C function does not solve it.
    ASSERT_EQ((vonk::lu_solve(vonk::matrices<3, 3>(f)[1], pivots[1], vonk::vectors<3>(lb), vonk::vectors<3>(lx))),
              vonkOk);
    EXPECT_EQ(x[3], wanted[3]);
    std::fill(x.begin(), x.end(), T(0));
    ASSERT_EQ((vonk::solve(vonk::matrices<3, 3>(a)[1], vonk::vectors<3>(lb), vonk::vectors<3>(lx))), vonkOk);
    EXPECT_EQ(x[4], wanted[4]);
    // Tables
    Numbers<T> as(count * 9), fs(count * 9), bs(count * 3), xs(count * 3);
    const auto ta = pointers(as, 9), tf = pointers(fs, 9), tb = pointers(bs, 3), tx = pointers(xs, 3);
    const auto A = vonk::soa_matrices<3, 3>(ta.data(), count), F = vonk::soa_matrices<3, 3>(tf.data(), count);
    const auto B = vonk::soa_vectors<3>(tb.data(), count), X = vonk::soa_vectors<3>(tx.data(), count);
    ASSERT_EQ((vonk::copy(vonk::matrices<3, 3>(a), A)), vonkOk);
    ASSERT_EQ(vonk::copy(vonk::vectors<3>(b), B), vonkOk);
    ASSERT_EQ(vonk::lu(A, pivots, F), vonkOk);
    ASSERT_EQ(vonk::lu_solve(F, pivots, B, X), vonkOk);
    ASSERT_EQ(vonk::extract(X, x), vonkOk);
    EXPECT_EQ(x, wanted);
    std::fill(xs.begin(), xs.end(), T(0));
    ASSERT_EQ(vonk::solve(A, B, X), vonkOk);
    ASSERT_EQ(vonk::extract(X, x), vonkOk);
    EXPECT_EQ(x, wanted);
    // In place
    const auto P = vonk::matrices<3, 3>(a);
    ASSERT_EQ(vonk::lu(P, pivots, P), vonkOk);
    EXPECT_EQ(a, f);
}

// Regular matrices of many kinds, most of whose pivots move: digits, permutations, triangles, large and small numbers.
template <vonk::Size order> Numbers<float> manyMatrices(std::size_t count) {
    std::mt19937 random(order);
    Numbers<float> all;
    std::uint32_t pivots[order];
    float factors[order * order];
    for (unsigned seed = 1; all.size() < count * order * order; ++seed) {
        auto one = numbers<float>(std::size_t(order) * order, seed);
        const std::size_t shift = random() % order;
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                float &element = one[i * order + j];
                if (seed % 4 == 1) element = float((i + shift) % order == j);
                if (seed % 4 == 2 && (i + shift) % order < j) element = 0;
                if (seed % 4 == 3) element = std::ldexp(element, int(random() % 30) - 10);
            }
        if (vonk::lu(vonk::matrix<order, order>(one), pivots, vonk::matrix<order, order>(factors)).ok())
            all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

// The first block of the program's stack: nothing has been decomposed there before.
TEST(CppSystemsOfMany, ThatNoneCanBeDecomposedIsFoundAtTheFirst) {
    const std::size_t count = 32;
    const Numbers<float> a(count * 16), b(count * 4, 1.0F);
    Numbers<float> x(count * 4, 7.0F);
    const auto A = vonk::matrices<4, 4>(a);
    unsigned char spoilt[1 << 15];
    volatile unsigned char *const bytes = spoilt;
    for (std::size_t k = 0; k < sizeof spoilt; ++k) bytes[k] = 0xff; // as row indices far beyond the matrix
    vonk::Failed failed;
    EXPECT_EQ((vonk::solve(A, vonk::vectors<4>(b), vonk::vectors<4>(x), failed)), vonkErrSingular);
    EXPECT_EQ(failed.object, 0U);
    EXPECT_EQ(x, Numbers<float>(count * 4, 7.0F));
}

template <vonk::Size order> using OrderOf = std::integral_constant<vonk::Size, order>;
using OrdersOfMany = testing::Types<OrderOf<2>, OrderOf<3>, OrderOf<4>, OrderOf<5>, OrderOf<6>, OrderOf<7>>;
template <class Order> struct CppSystems : testing::Test {};
TYPED_TEST_SUITE(CppSystems, OrdersOfMany);

// Bit by bit, where arrays are worked many at a time and where they are not, over the ends of blocks.
TYPED_TEST(CppSystems, AreSolvedLikeEachByItself) {
    constexpr vonk::Size order = TypeParam::value;
    for (const std::size_t count : {1U, 31U, 32U, 33U, 64U, 100U}) {
        auto a = manyMatrices<order>(count);
        auto b = numbers<float>(count * order);
        Numbers<float> f(a.size()), wanted(a.size()), x(b.size()), solutions(b.size());
        std::vector<std::uint32_t> pivots(count * order), wantedPivots(count * order);
        const auto A = vonk::matrices<order, order>(a), F = vonk::matrices<order, order>(f);
        const auto B = vonk::vectors<order>(b), X = vonk::vectors<order>(x);
        for (std::size_t n = 0; n < count; ++n) {
            ASSERT_EQ(vonk::lu(A[n], &wantedPivots[n * order], vonk::matrices<order, order>(wanted)[n]), vonkOk);
            ASSERT_EQ(vonk::solve(A[n], B[n], vonk::vectors<order>(solutions)[n]), vonkOk);
        }
        const auto expectSame = [&](const char *what) {
            SCOPED_TRACE(std::string(what) + ", " + std::to_string(count) + " objects");
            EXPECT_EQ(f, wanted);
            EXPECT_EQ(pivots, wantedPivots);
            EXPECT_EQ(x, solutions);
            std::fill(f.begin(), f.end(), 0.0F), std::fill(x.begin(), x.end(), 0.0F);
            std::fill(pivots.begin(), pivots.end(), 0U);
        };
        ASSERT_EQ(vonk::lu(A, pivots, F), vonkOk);
        ASSERT_EQ(vonk::solve(A, B, X), vonkOk);
        expectSame("packed");
        // By columns, to rows
        Numbers<float> columns(a.size());
        for (std::size_t k = 0; k < a.size(); ++k)
            columns[k / (order * order) * order * order + k % order * order + k / order % order] = a[k];
        const auto C = vonk::matrices<order, order>(columns).column_major();
        ASSERT_EQ(vonk::lu(C, pivots, F.element_stride(sizeof(float))), vonkOk);
        ASSERT_EQ(vonk::solve(C, B, X), vonkOk);
        expectSame("by columns");
        // Lists
        auto la = pointers(a, count), lf = pointers(f, count), lb = pointers(b, count), lx = pointers(x, count);
        ASSERT_EQ((vonk::lu(vonk::matrices<order, order>(la), pivots, vonk::matrices<order, order>(lf))), vonkOk);
        ASSERT_EQ((vonk::solve(vonk::matrices<order, order>(la), vonk::vectors<order>(lb), vonk::vectors<order>(lx))),
                  vonkOk);
        expectSame("lists");
        lf[count / 2] = nullptr;
        vonk::Failed failed;
        EXPECT_EQ((vonk::lu(vonk::matrices<order, order>(la), pivots, vonk::matrices<order, order>(lf), failed)),
                  vonkErrNullPtr);
        EXPECT_EQ(failed.object, count / 2);
        // In place, with one matrix that has no inverse
        auto half = a;
        std::fill_n(half.begin() + std::ptrdiff_t(count / 2 * order * order), order, 0.0F);
        const auto H = vonk::matrices<order, order>(half);
        EXPECT_EQ(vonk::lu(H, pivots, H, failed), vonkErrSingular);
        EXPECT_EQ(failed.object, count / 2);
        for (std::size_t k = 0; k < half.size(); ++k) {
            const std::size_t n = k / (order * order);
            if (n == count / 2) continue;
            EXPECT_EQ(half[k], n < count / 2 ? wanted[k] : a[k]) << k;
        }
    }
}

TYPED_TEST(CppOperations, TheObjectThatFailsIsFound) {
    using T = TypeParam;
    const std::size_t count = 50;
    Numbers<T> a(count * 9), d(count * 9), b(count * 3, T(1)), x(count * 3);
    for (std::size_t k = 0; k < a.size(); ++k) a[k] = k % 9 % 4 == 0 ? T(2) : T(0);
    const auto A = vonk::matrices<3, 3>(a), D = vonk::matrices<3, 3>(d);
    std::vector<std::uint32_t> pivots(count * 3);
    vonk::Failed failed;
    ASSERT_EQ(vonk::cholesky(A, D, failed), vonkOk);
    EXPECT_EQ(failed.object, count);
    A(42, 1, 1) = 0;
    const auto expectFailure = [&](vonk::Status status, VonkStatus expected) {
        EXPECT_EQ(status, expected);
        EXPECT_EQ(failed.object, 42U);
    };
    const auto B = vonk::vectors<3>(b), X = vonk::vectors<3>(x);
    expectFailure(vonk::cholesky(A, D, failed), vonkErrNotPosDef);
    expectFailure(vonk::lu(A, pivots, D, failed), vonkErrSingular);
    expectFailure(vonk::inverse(A, D, failed), vonkErrSingular);
    expectFailure(vonk::qr(A, D, failed), vonkErrSingular);
    expectFailure(vonk::solve(A, B, X, failed), vonkErrSingular);
    expectFailure(vonk::least_squares(A, B, X, failed), vonkErrSingular);
    EXPECT_EQ(x[41 * 3], T(0.5));
}

TYPED_TEST(CppOperations, CholeskyInversesAndLeastSquares) {
    using T = TypeParam;
    T a[2][3][3], f[2][3][3], b[2][3], x[2][3], product[2][3][3];
    for (auto &matrix : a)
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) matrix[i][j] = i == j ? 4 : 1;
    for (auto &side : b) side[0] = 5, side[1] = 2, side[2] = 8;
    const auto A = vonk::matrices(a), F = vonk::matrices(f);
    const auto B = vonk::vectors(b), X = vonk::vectors(x);
    const auto solves = [&](const char *what) {
        for (int n = 0; n < 2; ++n)
            for (int i = 0; i < 3; ++i) {
                T sum = 0;
                for (int j = 0; j < 3; ++j) sum += a[n][i][j] * x[n][j];
                EXPECT_NEAR(sum, b[n][i], 1e-5) << what;
            }
        for (auto &solution : x) solution[0] = solution[1] = solution[2] = 0;
    };
    EXPECT_EQ(vonk::cholesky(A, F), vonkOk);
    EXPECT_EQ(vonk::cholesky_solve(F, B, X), vonkOk);
    solves("mava");
    EXPECT_EQ(vonk::cholesky_solve(F[1], B, X), vonkOk);
    solves("mva");
    EXPECT_EQ(vonk::cholesky(A.slice(0, 0), F.slice(0, 0)), vonkOk);
    EXPECT_EQ(vonk::inverse(A, F), vonkOk);
    EXPECT_EQ(vonk::multiply(F, A, vonk::matrices(product)), vonkOk);
    EXPECT_NEAR(product[1][2][2], 1, 1e-5);
    EXPECT_NEAR(product[1][2][1], 0, 1e-5);
    EXPECT_EQ(vonk::qr(A, F), vonkOk);
    EXPECT_EQ(vonk::qr_solve(F, B, X), vonkOk);
    solves("qr");
    T *pf[] = {&f[0][0][0], &f[1][0][0]}, *pb[] = {b[0], b[1]}, *px[] = {x[0], x[1]};
    EXPECT_EQ((vonk::qr_solve(vonk::matrices<3, 3>(pf), vonk::vectors<3>(pb), vonk::vectors<3>(px))), vonkOk);
    solves("qr in lists");
    EXPECT_EQ((vonk::qr_solve(vonk::matrix(f[0]), vonk::vectors<3>(pb), vonk::vectors<3>(px))), vonkOk);
    solves("qr of one matrix in lists");
    EXPECT_EQ(vonk::least_squares(A, B, X), vonkOk);
    solves("least squares");
    EXPECT_EQ(vonk::least_squares(A[0], B, X), vonkOk);
    solves("least squares of one matrix");
    const T line[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}}, y[4] = {1, 3, 5, 7};
    T c[2];
    EXPECT_EQ(vonk::least_squares(vonk::matrix(line), y, c), vonkOk);
    EXPECT_NEAR(c[0], 1, 1e-5);
    EXPECT_NEAR(c[1], 2, 1e-5);
}

// ---- Traps of sums

// Arrays and lists, where three exports of 6x6 and four of 3x3 give something else.
template <class T, vonk::Size N> void sums_are_right() {
    auto a = numbers<T>(4 * N * N + 1, 5), b = numbers<T>(4 * N * N + 1, 6);
    Numbers<T> d(4 * N * N);
    const auto A = vonk::matrices<N, N>(a.data(), 4), B = vonk::matrices<N, N>(b.data(), 4);
    const auto D = vonk::matrices<N, N>(d.data(), 4);
    auto la = pointers(a, 4), lb = pointers(b, 4), ld = pointers(d, 4);
    const auto LA = vonk::matrices<N, N>(la), LB = vonk::matrices<N, N>(lb), LD = vonk::matrices<N, N>(ld);
    const auto check = [&](vonk::Status status, auto value, const char *what) {
        ASSERT_EQ(status, vonkOk) << what;
        for (vonk::Size n = 0; n < 4; ++n)
            for (vonk::Size i = 0; i < N; ++i)
                for (vonk::Size j = 0; j < N; ++j) ASSERT_EQ(D(n, i, j), value(n, i, j)) << what << i << j;
    };
    using vonk::transposed;
    const auto both = [&](vonk::Size n, vonk::Size i, vonk::Size j) { return A(n, j, i) - B(n, j, i); };
    check(vonk::subtract(transposed(A), transposed(B), D), both, "maTmaT");
    check(vonk::subtract(transposed(LA), transposed(LB), LD), both, "maTmaT L");
    // Rows of the second operand that lie further apart: the one export ignores it.
    Numbers<T> wide(N * (N + 2));
    const auto W = vonk::matrix<N, N>(wide.data()).row_stride((N + 2) * sizeof(T));
    ASSERT_EQ(vonk::copy(B[0], W), vonkOk);
    const auto one = [&](vonk::Size n, vonk::Size i, vonk::Size j) { return A(n, i, j) + B(0, j, i); };
    check(vonk::add(A, transposed(W), D), one, "mamT");
    check(vonk::add(LA, transposed(W), LD), one, "mamT L");
    ASSERT_EQ(vonk::subtract(transposed(A[2]), transposed(B[1]), D[0]), vonkOk);
    for (vonk::Size i = 0; i < N; ++i)
        for (vonk::Size j = 0; j < N; ++j) ASSERT_EQ(D(0, i, j), A(2, j, i) - B(1, j, i)) << "mTmT";
    const auto before = d;
    ASSERT_EQ(vonk::add(A.slice(0, 0), B[0], D.slice(0, 0)), vonkOk);
    EXPECT_EQ(d, before);
}

TYPED_TEST(CppOperations, SumsAreRightInAllSizes) {
    sums_are_right<TypeParam, 3>();
    sums_are_right<TypeParam, 4>();
    sums_are_right<TypeParam, 5>();
    sums_are_right<TypeParam, 6>();
}

} // namespace
