// Eigen's products, of fixed size, matrices stored by rows as the library has them and by columns as Eigen itself does.
#include "peers/library_products.h"

#include <Eigen/Core>

namespace bench::eigen {
namespace {

using Eigen::Index;
using Eigen::Map;

// Objects of 16 bytes or a multiple lie aligned in these arrays, and somebody who knows says so.
template <std::size_t bytes> constexpr int alignment = bytes % 16 == 0 ? Eigen::Aligned16 : Eigen::Unaligned;

template <class Object> Map<const Object, alignment<sizeof(Object)>> object(const float *objects, std::size_t n) {
    return Map<const Object, alignment<sizeof(Object)>>(objects + n * std::size_t(Object::SizeAtCompileTime));
}
template <class Object> Map<Object, alignment<sizeof(Object)>> object(float *objects, std::size_t n) {
    return Map<Object, alignment<sizeof(Object)>>(objects + n * std::size_t(Object::SizeAtCompileTime));
}

template <std::size_t order> using Rows = Eigen::Matrix<float, int(order), int(order), Eigen::RowMajor>;
template <std::size_t order> using Columns = Eigen::Matrix<float, int(order), int(order)>;
template <std::size_t order> using Vector = Eigen::Matrix<float, int(order), 1>;
template <std::size_t order> using Vectors = Eigen::Matrix<float, int(order), Eigen::Dynamic>; // one in each column

template <class Matrix, std::size_t order>
void multiplyEachVector(const float *matrix, const float *v, float *d, std::size_t count) {
    const Matrix held = object<Matrix>(matrix, 0);
    for (std::size_t n = 0; n < count; ++n)
        object<Vector<order>>(d, n).noalias() = held.lazyProduct(object<Vector<order>>(v, n));
}

template <class Matrix, std::size_t order>
void multiplyEachByItsVector(const float *matrices, const float *v, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        object<Vector<order>>(d, n).noalias() = object<Matrix>(matrices, n).lazyProduct(object<Vector<order>>(v, n));
}

} // namespace

template <std::size_t order>
void Products<order>::multiplyByOne(const float *a, const float *b, float *d, std::size_t count) {
    const Rows<order> held = object<Rows<order>>(b, 0);
    for (std::size_t n = 0; n < count; ++n)
        object<Rows<order>>(d, n).noalias() = object<Rows<order>>(a, n).lazyProduct(held);
}

template <std::size_t order>
void Products<order>::multiplyArrays(const float *a, const float *b, float *d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        object<Rows<order>>(d, n).noalias() = object<Rows<order>>(a, n).lazyProduct(object<Rows<order>>(b, n));
}

template <std::size_t order>
void Products<order>::multiplyVectors(const float *rows, const float *v, float *d, std::size_t count) {
    multiplyEachVector<Rows<order>, order>(rows, v, d, count);
}

template <std::size_t order>
void Products<order>::multiplyVectorArrays(const float *rows, const float *v, float *d, std::size_t count) {
    multiplyEachByItsVector<Rows<order>, order>(rows, v, d, count);
}

template <std::size_t order>
void Products<order>::multiplyColumnsByVectors(const float *columns, const float *v, float *d, std::size_t count) {
    multiplyEachVector<Columns<order>, order>(columns, v, d, count);
}

template <std::size_t order>
void Products<order>::multiplyColumnsByVectorsAtOnce(const float *columns, const float *v, float *d,
                                                     std::size_t count) {
    const Columns<order> held = object<Columns<order>>(columns, 0);
    Map<Vectors<order>>(d, int(order), Index(count)).noalias() =
        held.lazyProduct(Map<const Vectors<order>>(v, int(order), Index(count)));
}

template <std::size_t order>
void Products<order>::multiplyColumnArraysByVectors(const float *columns, const float *v, float *d, std::size_t count) {
    multiplyEachByItsVector<Columns<order>, order>(columns, v, d, count);
}

template <std::size_t order>
void Products<order>::multiplyColumnsByVectorsAdd(const float *columns, const float *v, const float *w, float *d,
                                                  std::size_t count) {
    const Columns<order> held = object<Columns<order>>(columns, 0);
    for (std::size_t n = 0; n < count; ++n)
        object<Vector<order>>(d, n).noalias() =
            held.lazyProduct(object<Vector<order>>(v, n)) + object<Vector<order>>(w, n);
}

template struct Products<3>;
template struct Products<4>;
template struct Products<5>;
template struct Products<6>;

} // namespace bench::eigen
