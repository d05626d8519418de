// Views: where the elements of matrices and vectors lie. They own nothing and copy nothing, and are passed by value.
//
//     vonk::Matrix<T, R, C>      one matrix           vonk::matrix(...) makes it
//     vonk::Matrices<T, R, C>    an array of them     vonk::matrices(...), vonk::members(...), vonk::soa_matrices(...)
//     vonk::Vector<T, N>         one vector           vonk::vector(...)
//     vonk::Vectors<T, N>        an array of them     vonk::vectors(...), vonk::members(...), vonk::soa(...)
//
// T is float or double, const for what is only read. R, C and N are numbers, or vonk::dynamic for sizes that are known
// at run time. A last parameter is the layout. Sizes are rows, then columns, in elements; EVERY STRIDE AND SHIFT IS IN
// BYTES, as in the C functions.
#ifndef VONKK3_VIEWS_HPP
#define VONKK3_VIEWS_HPP

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <type_traits>
#include <utility>

// Optimised, a call leaves nothing but the export's, however many there are in a function.
#if defined(__GNUC__) && defined(__OPTIMIZE__)
#define VONKK3_INLINE [[gnu::always_inline]] inline
#else
#define VONKK3_INLINE inline
#endif

namespace vonk {

using Size = std::uint32_t;        ///< elements or objects
inline constexpr Size dynamic = 0; ///< in place of a size: it is known at run time

/// Where element (i, j) of object n lies; p is the pointer that a view is made of.
enum class Layout : unsigned char {
    standard, ///< p + n object_stride + i row_stride + j sizeof(T): rows of contiguous elements
    S2,       ///< p + n object_stride + i row_stride + j element_stride
    P,        ///< p[i columns + j] + shift + n sizeof(T): one pointer per element position, a structure of arrays
    PS2,      ///< p[i columns + j] + shift + n object_stride
    L,        ///< p[n] + shift + i row_stride + j sizeof(T): one pointer per object
    LS2       ///< p[n] + shift + i row_stride + j element_stride
};

/// What a view is of. The transposed ones are made by vonk::transposed.
enum class Kind : unsigned char { vector, vectors, matrix, matrices, transposed_matrix, transposed_matrices };

namespace detail {

// What no argument check of the library can find ends the program with a sentence.
[[noreturn]] inline void fail(const char *sentence) {
    std::fputs("vonkk3: ", stderr);
    std::fputs(sentence, stderr);
    std::fputs("\n", stderr);
    std::terminate();
}

constexpr void require(bool condition, const char *sentence) {
    if (!condition) fail(sentence);
}

#ifdef NDEBUG
inline constexpr bool debug = false;
#else
inline constexpr bool debug = true;
#endif

constexpr Size to_size(std::size_t number) {
    require(number <= 0xffffffffU, "a size or a count is above 2^32 - 1");
    return static_cast<Size>(number);
}

constexpr std::int32_t to_stride(std::ptrdiff_t bytes) {
    require(bytes >= -0x7fffffff - 1 && bytes <= 0x7fffffff, "a stride or shift is above 2^31 - 1 bytes");
    return static_cast<std::int32_t>(bytes);
}

constexpr bool is_array(Kind kind) {
    return kind == Kind::vectors || kind == Kind::matrices || kind == Kind::transposed_matrices;
}
constexpr bool is_matrix(Kind kind) { return kind != Kind::vector && kind != Kind::vectors; }
constexpr bool is_transposed(Kind kind) { return kind == Kind::transposed_matrix || kind == Kind::transposed_matrices; }
constexpr Kind single(Kind kind) {
    return kind == Kind::vectors               ? Kind::vector
           : kind == Kind::matrices            ? Kind::matrix
           : kind == Kind::transposed_matrices ? Kind::transposed_matrix
                                               : kind;
}
constexpr Kind transposed(Kind kind) {
    return kind == Kind::matrix              ? Kind::transposed_matrix
           : kind == Kind::matrices          ? Kind::transposed_matrices
           : kind == Kind::transposed_matrix ? Kind::matrix
                                             : Kind::matrices;
}
constexpr bool is_table(Layout layout) { return layout == Layout::P || layout == Layout::PS2; }
constexpr bool is_list(Layout layout) { return layout == Layout::L || layout == Layout::LS2; }
// The layout with a stride more, of which a layout is a special case.
constexpr Layout strided(Layout layout) {
    return is_table(layout) ? Layout::PS2 : is_list(layout) ? Layout::LS2 : Layout::S2;
}
constexpr Layout of_one_object(Layout layout) {
    return is_table(layout)        ? Layout::P
           : layout == Layout::L   ? Layout::standard
           : layout == Layout::LS2 ? Layout::S2
                                   : layout;
}

} // namespace detail

/// All that moves an address, in bytes; what a layout has not is not looked at.
struct Strides {
    std::int32_t object = 0, row = 0, element = 0, shift = 0;
};

/// The one class behind Matrix, Matrices, Vector and Vectors. Rows and Columns are those that lie in memory, also where
/// the view is transposed; a vector has its length as Rows.
template <class T, Size Rows, Size Columns, Layout L, Kind K> class View {
    static_assert(std::is_same_v<std::remove_const_t<T>, float> || std::is_same_v<std::remove_const_t<T>, double>,
                  "vonkk3: elements are float or double, or const of these");
    static_assert((Rows == dynamic) == (Columns == dynamic) || !detail::is_matrix(K),
                  "vonkk3: both sizes of a matrix are numbers, or both are vonk::dynamic");
    static_assert(!detail::is_list(L) || detail::is_array(K), "vonkk3: one object has no list of pointers");

public:
    using element = T;
    static constexpr Size fixed_rows = Rows, fixed_columns = Columns;
    static constexpr Layout layout = L;
    static constexpr Kind kind = K;
    static constexpr bool is_array = detail::is_array(K), is_matrix = detail::is_matrix(K),
                          is_transposed = detail::is_transposed(K), is_table = detail::is_table(L),
                          is_list = detail::is_list(L), is_fixed = Rows != dynamic;
    /// To the first element, to one pointer per element position, or to one pointer per object.
    using pointer = std::conditional_t<is_table || is_list, T *const *, T *>;

    /// Packed: the pointer, then what the type leaves open, of the count of objects, the rows and the columns (of a
    /// vector, the length): Matrices<float, 4, 4>(p, count), Vector<double>(p, length).
    template <class... Sizes, class = std::enable_if_t<(std::is_integral_v<Sizes> && ...)>>
    constexpr explicit View(pointer data, Sizes... sizes) : data_(data) {
        constexpr std::size_t open = (is_array ? 1 : 0) + (is_fixed ? 0 : is_matrix ? 2 : 1);
        static_assert(sizeof...(Sizes) == open,
                      "vonkk3: behind the pointer stand what the view's type leaves open: count, rows, columns");
        const Size list[] = {detail::to_size(static_cast<std::size_t>(sizes))..., 1, 1, 1};
        if (is_array) count_ = list[0];
        if (!is_fixed) {
            rows_ = list[is_array ? 1 : 0];
            columns_ = is_matrix ? list[is_array ? 2 : 1] : 1;
        }
        pack();
    }

    /// The general form, with the strides as they are.
    constexpr View(pointer data, Size count, Size rows, Size columns, Strides strides)
        : data_(data), strides_(strides), count_(count), rows_(rows), columns_(columns) {}

    /// To const elements, run-time sizes, or the strided layout that the other's is a special case of.
    template <
        class U, Size R, Size C, Layout M,
        class = std::enable_if_t<(std::is_same_v<U, T> || std::is_same_v<const U, T>)&&(Rows == R || Rows == dynamic) &&
                                 (Columns == C || Columns == dynamic) && (M == L || detail::strided(M) == L) &&
                                 !(std::is_same_v<U, T> && R == Rows && C == Columns && M == L)>>
    constexpr View(const View<U, R, C, M, K> &other)
        : data_(other.data()), strides_(other.strides()), count_(other.count()), rows_(other.stored_rows()),
          columns_(other.stored_columns()) {}

    constexpr pointer data() const { return data_; }
    constexpr Strides strides() const { return strides_; }
    constexpr Size count() const { return count_; } ///< objects; 1 of a single one
    constexpr Size stored_rows() const { return Rows != dynamic ? Rows : rows_; }
    constexpr Size stored_columns() const { return Rows != dynamic ? Columns : columns_; }
    constexpr Size rows() const { return is_transposed ? stored_columns() : stored_rows(); }
    constexpr Size columns() const { return is_transposed ? stored_rows() : stored_columns(); }
    constexpr Size size() const { return is_array ? count_ : rows() * columns(); } ///< objects, or elements of one

    /// Bytes from object to object.
    constexpr auto object_stride(std::ptrdiff_t bytes) const {
        static_assert(is_array, "vonkk3: one object has no object stride");
        static_assert(!is_list, "vonkk3: in a list every object has its own pointer, and there is no object stride");
        Strides strides = strides_;
        strides.object = detail::to_stride(bytes);
        return View < T, Rows, Columns, is_table ? Layout::PS2 : L, K > (data_, count_, rows_, columns_, strides);
    }
    /// Bytes from row to row: the leading dimension times the size of an element.
    constexpr View row_stride(std::ptrdiff_t bytes) const {
        static_assert(is_matrix, "vonkk3: a vector has no row stride; vonk::matrix and vonk::matrices have");
        static_assert(!is_table, "vonkk3: with one pointer per element position there is no row stride");
        View other = *this;
        other.strides_.row = detail::to_stride(bytes);
        return other;
    }
    /// Bytes from element to element of a row, or of a vector. The layout becomes S2 or LS2.
    constexpr auto element_stride(std::ptrdiff_t bytes) const {
        static_assert(!is_table, "vonkk3: with one pointer per element position there is no element stride");
        Strides strides = strides_;
        strides.element = detail::to_stride(bytes);
        return View<T, Rows, Columns, detail::strided(L), K>(data_, count_, rows_, columns_, strides);
    }
    /// The matrix lies by columns, without gaps (Fortran, OpenGL, LAPACK). Then element_stride(bytes) is the step from
    /// column to column. Nothing is moved: rows and elements exchange their strides.
    constexpr auto column_major() const {
        static_assert(is_matrix && !is_table, "vonkk3: only a matrix with strides lies by columns");
        Strides strides = strides_;
        strides.row = sizeof(T);
        strides.element = detail::to_stride(std::ptrdiff_t(stored_rows()) * std::ptrdiff_t(sizeof(T)));
        return View<T, Rows, Columns, detail::strided(L), K>(data_, count_, rows_, columns_, strides);
    }
    /// Bytes that are added to every pointer of a table or a list.
    constexpr View shift(std::ptrdiff_t bytes) const {
        static_assert(is_table || is_list, "vonkk3: only tables and lists of pointers have a shift");
        View other = *this;
        other.strides_.shift = detail::to_stride(bytes);
        return other;
    }

    /// Object n of an array, as a view of one.
    constexpr auto operator[](std::size_t n) const {
        static_assert(is_array, "vonkk3: [n] is object n of an array; elements are (i) and (i, j)");
        using One = View<T, Rows, Columns, detail::of_one_object(L), detail::single(K)>;
        Strides strides = strides_;
        if constexpr (is_table) {
            strides.shift = shift_of(n);
            return One(data_, 1, rows_, columns_, strides);
        } else return One(object(n), 1, rows_, columns_, strides);
    }
    /// `count` objects from object `first` on: for threads, or to go on behind an object.
    constexpr View slice(std::size_t first, std::size_t count) const {
        static_assert(is_array, "vonkk3: a slice is of an array");
        if (detail::debug) detail::require(first <= count_ && count <= count_ - first, "a slice leaves its array");
        View other = *this;
        if constexpr (is_table) other.strides_.shift = shift_of(first);
        else if constexpr (is_list) other.data_ = data_ + first;
        else other.data_ = object(first);
        other.count_ = detail::to_size(count);
        return other;
    }

    constexpr T &operator()(std::size_t i) const { ///< element i of a vector
        static_assert(K == Kind::vector, "vonkk3: (i) is element i of one vector");
        return *at(0, i, 0);
    }
    /// Element (i, j) of a matrix, as it enters an operation; element j of vector i of an array.
    constexpr T &operator()(std::size_t i, std::size_t j) const {
        static_assert(K != Kind::vector && (is_matrix != is_array), "vonkk3: an element needs as many indices");
        if constexpr (is_matrix) return is_transposed ? *at(0, j, i) : *at(0, i, j);
        else return *at(i, j, 0);
    }
    /// Element (i, j) of matrix n of an array.
    constexpr T &operator()(std::size_t n, std::size_t i, std::size_t j) const {
        static_assert(is_matrix && is_array, "vonkk3: (n, i, j) is an element of an array of matrices");
        return is_transposed ? *at(n, j, i) : *at(n, i, j);
    }

    /// Where element (i, j) of object n lies, i and j as stored.
    T *at(std::size_t n, std::size_t i, std::size_t j) const {
        if constexpr (is_table)
            return moved(data_[i * stored_columns() + j], strides_.shift + std::ptrdiff_t(n) * strides_.object);
        else {
            if constexpr (!is_matrix) return moved(object(n), std::ptrdiff_t(i) * strides_.element);
            else return moved(object(n), std::ptrdiff_t(i) * strides_.row + std::ptrdiff_t(j) * strides_.element);
        }
    }

private:
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    static T *moved(T *from, std::ptrdiff_t bytes) {
        return reinterpret_cast<T *>(reinterpret_cast<Byte *>(from) + bytes);
    }
    T *object(std::size_t n) const {
        if constexpr (is_list) return data_[n] == nullptr ? nullptr : moved(data_[n], strides_.shift);
        else if constexpr (is_array) return moved(data_, std::ptrdiff_t(n) * strides_.object);
        else return data_;
    }
    constexpr std::int32_t shift_of(std::size_t n) const {
        return detail::to_stride(strides_.shift + std::ptrdiff_t(n) * strides_.object);
    }
    constexpr void pack() {
        constexpr std::ptrdiff_t e = sizeof(T);
        strides_.element = e;
        strides_.row = is_matrix ? detail::to_stride(e * stored_columns()) : 0;
        if (is_array)
            strides_.object = is_table ? e : detail::to_stride(e * stored_rows() * (is_matrix ? stored_columns() : 1));
    }

    pointer data_;
    Strides strides_;
    Size count_ = 1, rows_ = Rows, columns_ = is_matrix ? Columns : 1;
};

template <class T, Size Rows = dynamic, Size Columns = dynamic, Layout L = Layout::standard>
using Matrix = View<T, Rows, Columns, L, Kind::matrix>;
template <class T, Size Rows = dynamic, Size Columns = dynamic, Layout L = Layout::standard>
using Matrices = View<T, Rows, Columns, L, Kind::matrices>;
template <class T, Size Length = dynamic, Layout L = Layout::standard>
using Vector = View<T, Length, 1, L, Kind::vector>;
template <class T, Size Length = dynamic, Layout L = Layout::standard>
using Vectors = View<T, Length, 1, L, Kind::vectors>;

// ---- What other people's types look like

/// The shape of a type that holds one vector or one matrix. Known are float[N], float[R][C], std::array of them; a
/// specialisation makes others known, see glm.hpp: derive it from VectorShape or MatrixShape.
template <class U, class = void> struct Shape {
    static constexpr int rank = -1; // 0 an element, 1 a vector, 2 a matrix
};
template <class E, Size Length, std::ptrdiff_t ElementStride = sizeof(E)> struct VectorShape {
    using element = E;
    static constexpr int rank = 1;
    static constexpr Size rows = Length, columns = 1;
    static constexpr std::ptrdiff_t row_stride = ElementStride, element_stride = ElementStride;
    static constexpr bool of_arrays = false; // else one array in another may be many vectors just as well
};
/// Strides in bytes, from row to row and from column to column.
template <class E, Size Rows, Size Columns, std::ptrdiff_t RowStride, std::ptrdiff_t ElementStride> struct MatrixShape {
    using element = E;
    static constexpr int rank = 2;
    static constexpr Size rows = Rows, columns = Columns;
    static constexpr std::ptrdiff_t row_stride = RowStride, element_stride = ElementStride;
    static constexpr bool of_arrays = false;
};

/// What makes a view of something whose sizes or strides are known at run time only; specialised as in eigen.hpp.
template <class X, class = void> struct Adapter { static constexpr bool exists = false; };

namespace detail {

template <class E> struct ElementShape {
    using element = E;
    static constexpr int rank = 0;
};
template <class Inner, std::size_t N, class = void> struct ArrayShape { static constexpr int rank = -1; };
template <class Inner, std::size_t N>
struct ArrayShape<Inner, N, std::enable_if_t<Inner::rank == 0>> : VectorShape<typename Inner::element, N> {};
template <class Inner, std::size_t N>
struct ArrayShape<Inner, N, std::enable_if_t<Inner::rank == 1>>
    : MatrixShape<typename Inner::element, N, Inner::rows, Inner::rows * Inner::element_stride, Inner::element_stride> {
    static constexpr bool of_arrays = true;
};

} // namespace detail

template <> struct Shape<float> : detail::ElementShape<float> {};
template <> struct Shape<double> : detail::ElementShape<double> {};
template <class U, std::size_t N> struct Shape<U[N]> : detail::ArrayShape<Shape<std::remove_const_t<U>>, N> {};
template <class U> // std::array
struct Shape<U, std::enable_if_t<sizeof(typename U::value_type) * std::tuple_size<U>::value == sizeof(U)>>
    : detail::ArrayShape<Shape<std::remove_const_t<typename U::value_type>>, std::tuple_size<U>::value> {};

namespace detail {

template <class U> using ShapeOf = Shape<std::remove_cv_t<U>>;

// An empty container may have no address, which the library would take for an error before it sees the count.
alignas(16) inline char nowhere[16];
template <class U> U *address_of_items(U *data, std::size_t count) {
    return data == nullptr && count == 0 ? reinterpret_cast<U *>(&nowhere[0]) : data;
}

// Contiguous items: a C array, or what has data() and size().
template <class X> constexpr auto items(X &x) -> decltype(x.data()) { return address_of_items(x.data(), x.size()); }
template <class X> constexpr auto items_count(X &x) -> decltype(x.size()) { return x.size(); }
template <class U, std::size_t N> constexpr U *items(U (&x)[N]) { return x; }
template <class U, std::size_t N> constexpr std::size_t items_count(U (&)[N]) { return N; }

template <class X, class = void> struct Items {
    static constexpr bool exist = false;
    using type = void;
};
template <class X>
struct Items<X, std::void_t<decltype(items(std::declval<X &>())), decltype(items_count(std::declval<X &>()))>> {
    static constexpr bool exist = true;
    using type = std::remove_pointer_t<decltype(items(std::declval<X &>()))>;
};
// Of a reference as it is forwarded: const stays.
template <class X> using ItemOf = typename Items<std::remove_reference_t<X>>::type;
template <class X> inline constexpr bool is_container = Items<std::remove_reference_t<X>>::exist;

// The element type of a shape, const where it is read through const.
template <class U>
using ElementOf =
    std::conditional_t<std::is_const_v<U>, const typename ShapeOf<U>::element, typename ShapeOf<U>::element>;

constexpr bool wanted(Kind kind, int rank) { return rank == (is_matrix(kind) ? 2 : 1); }

template <class T> inline constexpr bool never = false;

// What stands for a view after an error of the compiler, so that one sentence is all it says.
struct Unfit {};

// A view of one or more objects of a type with a shape, `step` bytes apart.
template <Kind K, class U> auto shaped(U *first, std::size_t count, std::ptrdiff_t step) {
    using S = ShapeOf<U>;
    using E = ElementOf<U>;
    constexpr bool contiguous = S::element_stride == std::ptrdiff_t(sizeof(E));
    return View < E, S::rows, S::columns, contiguous ? Layout::standard : Layout::S2,
           K > (reinterpret_cast<E *>(first), to_size(count), S::rows, S::columns,
                Strides{to_stride(step), to_stride(S::row_stride), to_stride(S::element_stride), 0});
}

// The same through one pointer per object, to the shape itself or to what it is a member of.
template <Kind K, class U, class Pointer> auto shaped_list(Pointer *list, std::size_t count, std::ptrdiff_t shift) {
    using S = ShapeOf<U>;
    using E = ElementOf<U>;
    constexpr bool contiguous = S::element_stride == std::ptrdiff_t(sizeof(E));
    return View < E, S::rows, S::columns, contiguous ? Layout::L : Layout::LS2,
           K > (reinterpret_cast<E *const *>(list), to_size(count), S::rows, S::columns,
                Strides{0, to_stride(S::row_stride), to_stride(S::element_stride), to_stride(shift)});
}

// An array of objects from `count` items, which are objects with a shape, pointers to such or to elements, or, with the
// sizes given, elements; of these there are `elements`, or `count` is that of the objects.
template <Kind K, Size R, Size C, class U> auto array_of(U *first, std::size_t count, bool elements) {
    using V = std::remove_pointer_t<U>; // of a list, what its pointers lead to
    if constexpr (R != dynamic) {
        static_assert(ShapeOf<V>::rank == 0,
                      "vonkk3: elements are float or double, and sizes are not given beside a type "
                      "that has its own");
        if constexpr (ShapeOf<V>::rank != 0) return Unfit{};
        else if constexpr (std::is_pointer_v<U>) return View<V, R, C, Layout::L, K>(first, count);
        else {
            require(!elements || count % (R * C) == 0, "the elements do not fill whole matrices or vectors");
            return View<V, R, C, Layout::standard, K>(first, elements ? count / (R * C) : count);
        }
    } else {
        static_assert(wanted(K, ShapeOf<V>::rank),
                      "vonkk3: the items are not matrices (or vectors) by their type; say the sizes, as in "
                      "vonk::matrices<4, 4>(elements) and vonk::vectors<3>(elements)");
        if constexpr (!wanted(K, ShapeOf<V>::rank)) return Unfit{};
        else if constexpr (std::is_pointer_v<U>) return shaped_list<K, V>(first, count, 0);
        else return shaped<K>(first, count, sizeof(U));
    }
}

// A std::mdspan, or what looks like one; its strides count elements.
template <class X, class = void> inline constexpr bool is_mdspan = false;
template <class X>
inline constexpr bool is_mdspan<X, std::void_t<decltype(std::declval<X &>().data_handle()),
                                               decltype(std::declval<X &>().stride(0)), decltype(X::rank())>> = true;

template <Kind K, class X> auto of_mdspan(const X &x) {
    using T = std::remove_pointer_t<decltype(x.data_handle())>;
    constexpr std::size_t first = is_array(K) ? 1 : 0, rank = first + (is_matrix(K) ? 2 : 1);
    static_assert(X::rank() == rank,
                  "vonkk3: the mdspan has another rank: 1 for a vector, 2 for a matrix, and one more, "
                  "the first, for an array");
    if constexpr (X::rank() == rank) {
        constexpr auto open = static_cast<std::size_t>(-1);
        constexpr bool fixed = X::static_extent(first) != open && X::static_extent(rank - 1) != open;
        constexpr Size rows = fixed ? Size(X::static_extent(first)) : dynamic;
        constexpr Size columns = !is_matrix(K) ? 1 : fixed ? Size(X::static_extent(rank - 1)) : dynamic;
        const auto bytes = [&](std::size_t r) {
            return to_stride(std::ptrdiff_t(x.stride(r)) * std::ptrdiff_t(sizeof(T)));
        };
        return View<T, rows, columns, Layout::S2, K>(
            x.data_handle(), is_array(K) ? to_size(std::size_t(x.extent(0))) : 1, to_size(std::size_t(x.extent(first))),
            is_matrix(K) ? to_size(std::size_t(x.extent(rank - 1))) : 1,
            Strides{is_array(K) ? bytes(0) : 0, is_matrix(K) ? bytes(first) : 0, bytes(rank - 1), 0});
    } else return Unfit{};
}

// What vonk::matrix and vonk::vector take whole; a pointer takes sizes with it.
template <class X>
inline constexpr bool is_source =
    !std::is_pointer_v<std::remove_cv_t<std::remove_reference_t<X>>> && !is_mdspan<std::remove_reference_t<X>>;

template <Kind K, Size R, Size C, class X> auto one_of(X &x) {
    if constexpr (R != dynamic) {
        static_assert(is_container<X> && ShapeOf<ItemOf<X>>::rank == 0,
                      "vonkk3: sizes are given, so there must be plain elements");
        require(items_count(x) >= R * C, "there are fewer elements than the sizes say");
        return View<ItemOf<X>, R, C, Layout::standard, K>(items(x));
    } else if constexpr (wanted(K, ShapeOf<X>::rank)) return shaped<K>(&x, 1, 0);
    else if constexpr (K == Kind::vector && is_container<X>) {
        static_assert(ShapeOf<ItemOf<X>>::rank == 0, "vonkk3: a vector is made of elements; vonk::vectors of vectors");
        return View<ItemOf<X>, dynamic, 1, Layout::standard, K>(items(x), items_count(x));
    } else {
        static_assert(never<X>, "vonkk3: the type is not that of one matrix; say its sizes, as in "
                                "vonk::matrix<4, 4>(elements)");
        return Unfit{};
    }
}

} // namespace detail

// ---- Making views

/// One matrix: of a float[R][C], a std::array of std::array, a glm::mat4; with sizes, matrix<R, C>(x), of the first
/// R * C elements of a container.
template <Size Rows = dynamic, Size Columns = dynamic, class X, class = std::enable_if_t<detail::is_source<X>>>
auto matrix(X &&x) {
    return detail::one_of<Kind::matrix, Rows, Columns>(x);
}
/// matrix<R, C>(pointer): packed rows of contiguous elements.
template <Size Rows, Size Columns, class T> constexpr auto matrix(T *const &data) {
    return Matrix<T, Rows, Columns>(data);
}
/// matrix(pointer, rows, columns): the same with sizes known at run time.
template <class T> constexpr auto matrix(T *data, std::size_t rows, std::size_t columns) {
    return Matrix<T>(data, rows, columns);
}

/// One vector: of a float[N], a std::array, a glm::vec3, a container of elements; vector<N>(x) says the length.
template <Size Length = dynamic, class X, class = std::enable_if_t<detail::is_source<X>>> auto vector(X &&x) {
    return detail::one_of<Kind::vector, Length, 1>(x);
}
template <Size Length, class T> constexpr auto vector(T *const &data) { return Vector<T, Length>(data); }
template <class T> constexpr auto vector(T *data, std::size_t length) { return Vector<T>(data, length); }

/// An array of matrices: of a float[N][R][C], a container of matrices or of pointers to matrices (which makes a list);
/// matrices<R, C>(x) of a container of elements, or of pointers to packed elements.
template <Size Rows = dynamic, Size Columns = dynamic, class X, class = std::enable_if_t<detail::is_container<X>>>
auto matrices(X &&x) {
    return detail::array_of<Kind::matrices, Rows, Columns>(detail::items(x), detail::items_count(x), true);
}
/// matrices(pointer, count) and matrices<R, C>(pointer, count): to the first of so many matrices, to its first element,
/// or to the first of so many pointers.
template <Size Rows = dynamic, Size Columns = dynamic, class U> auto matrices(U *first, std::size_t count) {
    return detail::array_of<Kind::matrices, Rows, Columns>(first, count, false);
}
/// matrices(pointer, count, rows, columns): sizes known at run time; of elements or of pointers to elements.
template <class T> constexpr auto matrices(T *data, std::size_t count, std::size_t rows, std::size_t columns) {
    if constexpr (std::is_pointer_v<T>)
        return Matrices<std::remove_pointer_t<T>, dynamic, dynamic, Layout::L>(data, count, rows, columns);
    else return Matrices<T>(data, count, rows, columns);
}

/// An array of vectors, as vonk::matrices is one of matrices.
template <Size Length = dynamic, class X, class = std::enable_if_t<detail::is_container<X>>> auto vectors(X &&x) {
    return detail::array_of<Kind::vectors, Length, 1>(detail::items(x), detail::items_count(x), true);
}
template <Size Length = dynamic, class U> auto vectors(U *first, std::size_t count) {
    return detail::array_of<Kind::vectors, Length, 1>(first, count, false);
}
template <class T> constexpr auto vectors(T *data, std::size_t count, std::size_t length) {
    if constexpr (std::is_pointer_v<T>)
        return Vectors<std::remove_pointer_t<T>, dynamic, Layout::L>(data, count, length);
    else return Vectors<T>(data, count, length);
}

/// The same of a std::mdspan (C++23), whatever its layout: of rank 2 one matrix or an array of vectors, of rank 3 an
/// array of matrices, of rank 1 one vector. The array's index is the first.
template <class X, class = std::enable_if_t<detail::is_mdspan<X>>> auto matrix(const X &x) {
    return detail::of_mdspan<Kind::matrix>(x);
}
template <class X, class = std::enable_if_t<detail::is_mdspan<X>>> auto matrices(const X &x) {
    return detail::of_mdspan<Kind::matrices>(x);
}
template <class X, class = std::enable_if_t<detail::is_mdspan<X>>> auto vector(const X &x) {
    return detail::of_mdspan<Kind::vector>(x);
}
template <class X, class = std::enable_if_t<detail::is_mdspan<X>>> auto vectors(const X &x) {
    return detail::of_mdspan<Kind::vectors>(x);
}

namespace detail {

// Bytes from the beginning of a struct to a member of it.
template <class S, class M> std::ptrdiff_t offset(M S::*member) {
    alignas(S) static char room[sizeof(S)]; // never an object: an address to count from
    return reinterpret_cast<const char *>(&(reinterpret_cast<S *>(room)->*member)) - room;
}

template <class U, class Member> auto members_of(U *first, std::size_t count, Member member) {
    using S = std::remove_cv_t<std::remove_pointer_t<U>>;
    using Held = std::conditional_t<std::is_const_v<std::remove_pointer_t<U>>,
                                    const std::remove_reference_t<decltype(std::declval<S &>().*member)>,
                                    std::remove_reference_t<decltype(std::declval<S &>().*member)>>;
    constexpr int rank = ShapeOf<Held>::rank;
    static_assert(rank == 1 || rank == 2, "vonkk3: the member is neither a vector nor a matrix by its type");
    constexpr Kind kind = rank == 1 ? Kind::vectors : Kind::matrices;
    if constexpr (std::is_pointer_v<U>) return shaped_list<kind, Held>(first, count, offset<S>(member));
    else
        return shaped<kind>(reinterpret_cast<Held *>(
                                reinterpret_cast<std::conditional_t<std::is_const_v<U>, const char *, char *>>(first) +
                                offset<S>(member)),
                            count, sizeof(S));
}

} // namespace detail

/// The matrices or vectors that are a member of one's own structs: members(particles, &Particle::inertia). Of a
/// container of structs the object stride is the struct's size; of a container of pointers to structs it makes a list
/// whose shift is the member's offset.
template <class X, class S, class M, class = std::enable_if_t<detail::is_container<X>>>
auto members(X &&structs, M S::*member) {
    return detail::members_of(detail::items(structs), detail::items_count(structs), member);
}
template <class U, class S, class M> auto members(U *first, std::size_t count, M S::*member) {
    return detail::members_of(first, count, member);
}

/// One pointer per element position, held here: what vonk::soa makes. It stands for a view of layout P as an operand.
template <class T, Size Rows, Size Columns, Kind K> struct Soa {
    T *table[Rows * Columns];
    Size count;

    constexpr View<T, Rows, Columns, Layout::P, K> view() const {
        return View<T, Rows, Columns, Layout::P, K>(
            table, count, Rows, Columns,
            {detail::to_stride(sizeof(T)), detail::to_stride(sizeof(T) * Columns), detail::to_stride(sizeof(T)), 0});
    }
};

/// A structure of arrays as an array of vectors: soa(v.x, v.y, v.z) of containers with one element per object, all of
/// the same length. It holds the pointers and must outlive views made of it.
template <class X, class... More, class = std::enable_if_t<detail::is_container<X>>> auto soa(X &&x, More &&...more) {
    using T = detail::ItemOf<X>;
    static_assert((std::is_same_v<T, detail::ItemOf<More>> && ...), "vonkk3: components have different element types");
    detail::require(((detail::items_count(x) == detail::items_count(more)) && ...),
                    "the components of a structure of arrays have different lengths");
    return Soa<T, 1 + sizeof...(More), 1, Kind::vectors>{{detail::items(x), detail::items(more)...},
                                                         detail::to_size(detail::items_count(x))};
}
/// soa(count, px, py, pz): the same from pointers.
template <class T, class... More> auto soa(std::size_t count, T *first, More *...more) {
    static_assert((std::is_same_v<T, More> && ...), "vonkk3: components have different element types");
    return Soa<T, 1 + sizeof...(More), 1, Kind::vectors>{{first, more...}, detail::to_size(count)};
}
/// soa_matrices<R, C>(count, p00, p01, ...): an array of matrices from R * C pointers, row by row.
template <Size Rows, Size Columns, class T, class... More>
auto soa_matrices(std::size_t count, T *first, More *...more) {
    static_assert(1 + sizeof...(More) == Rows * Columns, "vonkk3: a matrix has rows times columns pointers");
    return Soa<T, Rows, Columns, Kind::matrices>{{first, more...}, detail::to_size(count)};
}
/// The same from a table that stands elsewhere: one pointer per element position, row by row.
template <Size Rows, Size Columns, class T> constexpr auto soa_matrices(T *const *table, std::size_t count) {
    return Matrices<T, Rows, Columns, Layout::P>(table, count);
}
template <class T>
constexpr auto soa_matrices(T *const *table, std::size_t count, std::size_t rows, std::size_t columns) {
    return Matrices<T, dynamic, dynamic, Layout::P>(table, count, rows, columns);
}
template <Size Length, class T> constexpr auto soa_vectors(T *const *table, std::size_t count) {
    return Vectors<T, Length, Layout::P>(table, count);
}
template <class T> constexpr auto soa_vectors(T *const *table, std::size_t count, std::size_t length) {
    return Vectors<T, dynamic, Layout::P>(table, count, length);
}
/// One matrix or vector through a table of pointers to its elements.
template <Size Rows, Size Columns, class T> constexpr auto soa_matrix(T *const *table) {
    return Matrix<T, Rows, Columns, Layout::P>(table);
}
template <class T> constexpr auto soa_matrix(T *const *table, std::size_t rows, std::size_t columns) {
    return Matrix<T, dynamic, dynamic, Layout::P>(table, rows, columns);
}
template <Size Length, class T> constexpr auto soa_vector(T *const *table) {
    return Vector<T, Length, Layout::P>(table);
}
template <class T> constexpr auto soa_vector(T *const *table, std::size_t length) {
    return Vector<T, dynamic, Layout::P>(table, length);
}

/// The matrices read with rows and columns exchanged, for operations that take a transposed source.
template <class T, Size R, Size C, Layout L, Kind K> constexpr auto transposed(const View<T, R, C, L, K> &view) {
    static_assert(detail::is_matrix(K), "vonkk3: only matrices are transposed");
    return View<T, R, C, L, detail::transposed(K)>(view.data(), view.count(), view.stored_rows(), view.stored_columns(),
                                                   view.strides());
}

} // namespace vonk

#endif
