// Eigen's matrices and vectors as operands: those of fixed size alone, in containers and as members of structs; those
// of dynamic size, Eigen::Map, Eigen::Ref and blocks alone. Whether they lie by columns (as usual) or by rows, nothing
// is moved.
//
//     std::vector<Eigen::Matrix3d> inertia; std::vector<Eigen::Vector3d> spin, momentum;
//     vonk::check(vonk::multiply(inertia, spin, momentum));
#ifndef VONKK3_EIGEN_HPP
#define VONKK3_EIGEN_HPP

#include "views.hpp"

#include <Eigen/Core>

namespace vonk {

template <class T, int Rows, int Columns, int Options>
struct Shape<Eigen::Matrix<T, Rows, Columns, Options, Rows, Columns>,
             std::enable_if_t<(Rows > 1) && (Columns > 1) && std::is_floating_point_v<T>>>
    : MatrixShape<T, Size(Rows), Size(Columns),
                  (Options & Eigen::RowMajor) != 0 ? std::ptrdiff_t(sizeof(T)) * Columns : std::ptrdiff_t(sizeof(T)),
                  (Options & Eigen::RowMajor) != 0 ? std::ptrdiff_t(sizeof(T)) : std::ptrdiff_t(sizeof(T)) * Rows> {};

template <class T, int Rows, int Columns, int Options>
struct Shape<
    Eigen::Matrix<T, Rows, Columns, Options, Rows, Columns>,
    std::enable_if_t<(Rows > 0) && (Columns > 0) && (Rows == 1 || Columns == 1) && std::is_floating_point_v<T>>>
    : VectorShape<T, Size(Rows) * Size(Columns)> {};

namespace detail {

template <class D> std::true_type is_dense(const Eigen::DenseBase<D> *);
std::false_type is_dense(const void *);

} // namespace detail

/// What has elements in memory and no shape by its type. A vector has one column or row at compile time.
template <class X>
struct Adapter<X,
               std::enable_if_t<decltype(detail::is_dense(static_cast<X *>(nullptr)))::value && (Shape<X>::rank < 0)>> {
    static constexpr bool exists = true;
    static_assert((X::Flags & Eigen::DirectAccessBit) != 0,
                  "vonkk3: an Eigen expression has no elements in memory: give .eval() a name");
    template <class Y> static auto view(Y &x) {
        using T = std::remove_pointer_t<decltype(x.data())>;
        constexpr std::ptrdiff_t e = sizeof(T);
        constexpr bool unit = X::InnerStrideAtCompileTime == 1;
        if constexpr (X::IsVectorAtCompileTime) {
            constexpr Size length = X::SizeAtCompileTime > 0 ? Size(X::SizeAtCompileTime) : dynamic;
            return View < T, length, 1, unit ? Layout::standard : Layout::S2,
                   Kind::vector > (x.data(), 1, detail::to_size(std::size_t(x.size())), 1,
                                   Strides{0, 0, detail::to_stride(e * x.innerStride()), 0});
        } else {
            constexpr bool fixed = X::RowsAtCompileTime > 0 && X::ColsAtCompileTime > 0;
            constexpr Size rows = fixed ? Size(X::RowsAtCompileTime) : dynamic;
            constexpr Size columns = fixed ? Size(X::ColsAtCompileTime) : dynamic;
            constexpr bool by_rows = X::IsRowMajor;
            const auto inner = detail::to_stride(e * x.innerStride()), outer = detail::to_stride(e * x.outerStride());
            return View < T, rows, columns, by_rows && unit ? Layout::standard : Layout::S2,
                   Kind::matrix > (x.data(), 1, detail::to_size(std::size_t(x.rows())),
                                   detail::to_size(std::size_t(x.cols())),
                                   Strides{0, by_rows ? outer : inner, by_rows ? inner : outer, 0});
        }
    }
};

} // namespace vonk

#endif
