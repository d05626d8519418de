// From operands to one export: what is checked at compile time and at run time, which layout a call takes, and how the
// operands are spelled as the export's arguments. The operations stand on this.
#ifndef VONKK3_CALL_HPP
#define VONKK3_CALL_HPP

#include "select.hpp"
#include "status.hpp"
#ifdef VONK_CHECK_ALIASING
#include "aliasing.hpp"
#endif

namespace vonk {

/// Given to an operation that may fail, it makes it work object by object and learns at which object it failed; the
/// count of objects if none did. Objects before it are complete.
struct Failed {
    Size object = 0;
};

namespace detail {

// ---- Operands

template <class X> inline constexpr bool is_view = false;
template <class T, Size R, Size C, Layout L, Kind K> inline constexpr bool is_view<View<T, R, C, L, K>> = true;
template <class X> inline constexpr bool is_soa = false;
template <class T, Size R, Size C, Kind K> inline constexpr bool is_soa<Soa<T, R, C, K>> = true;

// A number among the operands. It takes the type of the elements, as in a call of the C function.
template <class T> struct Constant { T value; };
template <class X> inline constexpr bool is_constant = false;
template <class T> inline constexpr bool is_constant<Constant<T>> = true;

// What is meant by an operand: a view as it is; what has a shape, and a container of such; a number.
template <class X> VONKK3_INLINE auto operand(X &&x) {
    using U = std::remove_cv_t<std::remove_reference_t<X>>;
    using S = ShapeOf<U>;
    if constexpr (is_view<U> || std::is_same_v<U, Unfit>) return x;
    else if constexpr (is_soa<U>) return x.view();
    else if constexpr (std::is_arithmetic_v<U>) return Constant<U>{x};
    else if constexpr (Adapter<U>::exists) return Adapter<U>::view(x);
    else if constexpr (S::rank == 1) return vonk::vector(x);
    else if constexpr (S::rank == 2) {
        static_assert(!S::of_arrays, "vonkk3: an array of arrays may be a matrix or many vectors: say vonk::matrix(x) "
                                     "or vonk::vectors(x)");
        if constexpr (S::of_arrays) return Unfit{};
        else return vonk::matrix(x);
    } else if constexpr (is_container<X>) {
        constexpr int rank = ShapeOf<ItemOf<X>>::rank;
        static_assert(rank == 1 || rank == 2, "vonkk3: a container of elements may be one vector or many: say "
                                              "vonk::vector(x) or vonk::vectors<3>(x), vonk::matrices<4, 4>(x)");
        if constexpr (rank == 1) return vonk::vectors(x);
        else if constexpr (rank == 2) return vonk::matrices(x);
        else return Unfit{};
    } else {
        static_assert(never<X>, "vonkk3: an operand is a view, or of a type whose shape is known; see views.hpp");
        return Unfit{};
    }
}

template <class X> constexpr exports::Kind kind_of() {
    if constexpr (!is_view<X>) return exports::c;
    else
        return X::kind == Kind::vector              ? exports::v
               : X::kind == Kind::vectors           ? exports::va
               : X::kind == Kind::matrix            ? exports::m
               : X::kind == Kind::matrices          ? exports::ma
               : X::kind == Kind::transposed_matrix ? exports::mT
                                                    : exports::maT;
}

// Plain memory beside the layouts: results, pivots, scratch and work.
template <class T> struct Block {
    T *data;
    bool fits;
};
// The element of an array of arrays, and of a std::array; const where the whole is.
template <class U, class = void> struct Scalar { using type = U; };
template <class U, std::size_t N> struct Scalar<U[N]> : Scalar<U> {};
template <class U>
struct Scalar<U, std::enable_if_t<sizeof(typename U::value_type) * std::tuple_size<U>::value == sizeof(U)>> {
    using Inner = typename Scalar<typename U::value_type>::type;
    using type = std::conditional_t<std::is_const_v<U>, const Inner, Inner>;
};
template <class T, class X> VONKK3_INLINE Block<T> block(X &&x, std::size_t needed) {
    using U = std::remove_reference_t<X>;
    if constexpr (std::is_same_v<std::remove_const_t<U>, std::remove_const_t<T>>) { // one element
        constexpr bool writable = std::is_const_v<T> || !std::is_const_v<U>;
        static_assert(writable, "vonkk3: the destination is const");
        static_assert(!writable || std::is_lvalue_reference_v<X>, "vonkk3: the destination is a temporary");
        if constexpr (writable) return {&x, needed <= 1};
    } else if constexpr (std::is_pointer_v<std::remove_const_t<U>>) {
        static_assert(std::is_convertible_v<U, T *>, "vonkk3: a pointer to results, pivots or work has another type");
        if constexpr (std::is_convertible_v<U, T *>) return {x, true};
    } else if constexpr (is_container<U>) {
        using Item = ItemOf<U>;
        using E = typename Scalar<Item>::type;
        constexpr bool same = std::is_same_v<std::remove_const_t<E>, std::remove_const_t<T>>;
        constexpr bool writable = std::is_const_v<T> || !std::is_const_v<E>;
        static_assert(same, "vonkk3: results, pivots or work have another type");
        static_assert(!same || writable, "vonkk3: the destination is const");
        if constexpr (same && writable)
            return {reinterpret_cast<T *>(items(x)), needed * sizeof(T) <= items_count(x) * sizeof(Item)};
    } else {
        static_assert(never<X>, "vonkk3: results, pivots and work are a pointer or a container of elements");
    }
    return {nullptr, false};
}

// ---- Checks at compile time

constexpr bool may_equal(Size a, Size b) { return a == dynamic || b == dynamic || a == b; }
template <class V> inline constexpr Size fixed_rows = V::is_transposed ? V::fixed_columns : V::fixed_rows;
template <class V> inline constexpr Size fixed_columns = V::is_transposed ? V::fixed_rows : V::fixed_columns;

template <class V, class... W>
inline constexpr bool
    like_shape = ((may_equal(fixed_rows<V>, fixed_rows<W>) && may_equal(fixed_columns<V>, fixed_columns<W>)) && ...);

template <class V> using Plain = std::remove_const_t<typename V::element>;

template <class... V> struct Common; // of views alone
template <class V, class... W> struct Common<V, W...> {
    using T = Plain<V>;
    static constexpr bool same_type = (std::is_same_v<T, Plain<W>> && ...);
    static constexpr bool arrays = V::is_array || (W::is_array || ...);
    static constexpr bool lists = V::is_list || (W::is_list || ...);
    static constexpr bool tables = V::is_table || (W::is_table || ...);
    // One object may lie anywhere in memory beside lists; beside tables it gets a table, if its size is fixed.
    template <class X>
    static constexpr bool joins = lists ? (X::is_list || (!X::is_array && !X::is_table))
                                        : !tables || X::is_table || (!X::is_array && X::is_fixed);
    static constexpr bool same_layout = joins<V> && (joins<W> && ...);
    template <class X> static constexpr bool wide = X::layout == strided(X::layout) && !(tables && !X::is_table);
    static constexpr bool any_wide = wide<V> || (wide<W> || ...);
    static constexpr Layout layout = tables && !arrays ? Layout::P
                                     : tables          ? (any_wide ? Layout::PS2 : Layout::P)
                                     : lists           ? (any_wide ? Layout::LS2 : Layout::L)
                                                       : (any_wide ? Layout::S2 : Layout::standard);
    // 3 to 6 where every operand has that order, else 0.
    static constexpr Size n = V::fixed_rows;
    template <class X> static constexpr bool square = X::fixed_rows == n && (!X::is_matrix || X::fixed_columns == n);
    static constexpr Size order = n >= 3 && n <= 6 && square<V> && (square<W> && ...) ? n : 0;
};

template <class X, class = void> struct Exists : std::false_type {};
template <class X> struct Exists<X, std::void_t<decltype(sizeof(X))>> : std::true_type {};

template <class X, class = void> struct Avoids {
    static constexpr bool at(bool, Size, Layout) { return false; }
};
template <class X> struct Avoids<X, std::void_t<decltype(X::avoid(true, 0, Layout::standard))>> {
    static constexpr bool at(bool is_float, Size order, Layout layout) { return X::avoid(is_float, order, layout); }
};

/// The choice of an export: Table is that of the operation and group, V all views among the operands, the destination
/// with them.
template <bool Exact, class Table, class... V> struct Choice {
    using C = Common<V...>;
    using T = typename C::T;
    static constexpr Size order = C::order;
    static constexpr Layout layout =
        !Exact && Avoids<Table>::at(exports::is_float<T>, C::order, C::layout) ? strided(C::layout) : C::layout;
    static constexpr auto function() { return Table::template function<T, order, layout>(); }
};

// The sentences, each once. The value says whether the rest of a call makes sense, so that no other error follows.
template <class... V> constexpr bool are_views() {
    static_assert(((is_view<V> || std::is_same_v<V, Unfit>)&&...), "vonkk3: a number stands where the operation takes "
                                                                   "vectors or matrices");
    return (is_view<V> && ...);
}
template <class Table, class D, class... V> constexpr bool views_make_sense() {
    using C = Common<D, V...>;
    static_assert(Exists<Table>::value, "vonkk3: the operation takes no such operands: see docs/functions.md for which "
                                        "may be arrays, and which transposed");
    static_assert(C::same_type, "vonkk3: the operands have different element types (float and double)");
    static_assert(!std::is_const_v<typename D::element>, "vonkk3: the destination is const");
    static_assert(!D::is_transposed, "vonkk3: the destination is transposed");
    static_assert(D::is_array == (D::is_array || ... || V::is_array) && D::is_array == (false || ... || V::is_array),
                  "vonkk3: the destination is an array if, and only if, a source is one");
    static_assert(C::same_layout, "vonkk3: the operands' layouts do not go together: all arrays are in plain memory, "
                                  "behind lists of pointers, or behind one pointer per element position");
    return Exists<Table>::value && C::same_type && !std::is_const_v<typename D::element> && !D::is_transposed &&
           D::is_array == (false || ... || V::is_array) && C::same_layout;
}
template <class Table, class D, class... V> constexpr bool makes_sense() {
    if constexpr (are_views<D, V...>()) return views_make_sense<Table, D, V...>();
    else return false;
}
// The same without a destination that has a layout.
template <class Table, class... V> constexpr bool source_views_make_sense() {
    using C = Common<V...>;
    static_assert(Exists<Table>::value, "vonkk3: the operation takes no such operands: see docs/functions.md for which "
                                        "may be arrays, and which transposed");
    static_assert(C::same_type, "vonkk3: the operands have different element types (float and double)");
    static_assert(C::same_layout, "vonkk3: the operands' layouts do not go together: all arrays are in plain memory, "
                                  "behind lists of pointers, or behind one pointer per element position");
    return Exists<Table>::value && C::same_type && C::same_layout;
}

template <class Table, class... V> constexpr bool sources_make_sense() {
    if constexpr (are_views<V...>()) return source_views_make_sense<Table, V...>();
    else return false;
}

#define VONKK3_SIZES_FIT(condition) static_assert(condition, "vonkk3: the sizes of the operands do not fit each other")

// ---- Checks at run time

// Sizes and counts that the types do not show are compared in every build; of equal variables nothing is left to do.
template <class D, class... V> constexpr bool counts_agree(const D &d, const V &...v) {
    return ((!V::is_array || !D::is_array || v.count() == d.count()) && ...);
}
template <class D, class... V> constexpr bool shapes_agree(const D &d, const V &...v) {
    return ((v.rows() == d.rows() && v.columns() == d.columns()) && ...);
}

constexpr std::ptrdiff_t magnitude(std::ptrdiff_t x) { return x < 0 ? -x : x; }

// Whether steps nest: in ascending order, each is at least what those before it span. A step of 0 stays where it is.
constexpr bool strides_nest(std::ptrdiff_t size, const std::ptrdiff_t (&steps)[3], const std::ptrdiff_t (&counts)[3]) {
    std::int64_t span = size;
    bool done[3] = {};
    for (int round = 0; round < 3; ++round) {
        int least = -1;
        for (int k = 0; k < 3; ++k)
            if (!done[k] && (least < 0 || magnitude(steps[k]) < magnitude(steps[least]))) least = k;
        done[least] = true;
        if (counts[least] <= 1 || steps[least] == 0) continue;
        if (magnitude(steps[least]) < span) return false;
        span += std::int64_t(counts[least] - 1) * magnitude(steps[least]);
    }
    return true;
}

// In debug builds: strides are whole elements that do not run into each other, as strides in elements instead of bytes
// would. A source may have strides of 0, a destination may not.
template <class V> constexpr void check_strides(const V &v, bool written) {
    if constexpr (debug) {
        if constexpr (V::is_table) return;
        else {
            const std::ptrdiff_t e = sizeof(typename V::element), rows = v.stored_rows(), columns = v.stored_columns();
            const Strides s = v.strides();
            const bool steps_objects = V::is_array && !V::is_list && v.count() > 1;
            const std::ptrdiff_t steps[] = {V::is_matrix ? s.element : 0, V::is_matrix ? s.row : s.element,
                                            steps_objects ? s.object : 0};
            const std::ptrdiff_t counts[] = {V::is_matrix ? columns : 1, rows,
                                             steps_objects ? std::ptrdiff_t(v.count()) : 1};
            for (int k = 0; k < 3; ++k) {
                if (counts[k] <= 1) continue;
                require(steps[k] == 0 || magnitude(steps[k]) >= e,
                        "a stride is smaller than an element: strides are in bytes, not in elements");
                require(!written || steps[k] != 0, "a stride of the destination is 0");
            }
            require(strides_nest(e, steps, counts),
                    "strides do not fit the sizes, rows or objects overlap: strides are in bytes, not in elements");
        }
    }
}

enum class Overlap { none, in_place }; // what an operation allows between its destination and one source

template <Overlap Allowed, class D, class V> void check_overlap(const D &d, const V &v) {
#ifdef VONK_CHECK_ALIASING
    check_aliasing(d, v, Allowed == Overlap::in_place);
#else
    (void)d, (void)v;
#endif
}
template <class V, class T> void check_block(const Block<T> &block, std::size_t length, const V &v) {
#ifdef VONK_CHECK_ALIASING
    check_block_aliasing(block.data, length, v);
#else
    (void)block, (void)length, (void)v;
#endif
}

// ---- Spelling the arguments

// A size or a count. A few of them are signed.
struct Number {
    Size value;
    constexpr operator std::uint32_t() const { return value; }
    constexpr operator std::int32_t() const { return static_cast<std::int32_t>(value); }
};
struct Nothing {}; // a word that an export of fixed size has not
// One matrix for many right-hand sides: plain memory and lists have an argument behind its pointer that is not read.
template <class V> struct Shared { V view; };
template <bool Matrix> struct Shaped { // columns, rows; of a vector its length
    Size rows, columns;
};

// An operand as its arguments: the pointer and up to three strides, in the order of the export. Sizes are left behind,
// so that calls of all sizes share what follows.
template <class Pointer, int Count> struct Spelled {
    Pointer data;
    std::int32_t words[Count == 0 ? 1 : Count];
};
// Of one object in plain memory beside tables: a table of its elements' addresses.
template <class T, Size Length> struct Tabled { T *table[Length]; };
template <class X> inline constexpr int spelled_words = -1;
template <class P, int Count> inline constexpr int spelled_words<Spelled<P, Count>> = Count;
template <class X> inline constexpr bool is_tabled = false;
template <class T, Size Length> inline constexpr bool is_tabled<Tabled<T, Length>> = true;

template <class P> VONKK3_INLINE constexpr Spelled<P, 0> words(P data) { return {data, {0}}; }
template <class P> VONKK3_INLINE constexpr Spelled<P, 1> words(P data, std::int32_t a) { return {data, {a}}; }
template <class P> VONKK3_INLINE constexpr Spelled<P, 2> words(P data, std::int32_t a, std::int32_t b) {
    return {data, {a, b}};
}
template <class P> VONKK3_INLINE constexpr Spelled<P, 3> words(P data, std::int32_t a, std::int32_t b, std::int32_t c) {
    return {data, {a, b, c}};
}

// A word as it is, an operand spelled for a layout.
template <Layout L, class W> VONKK3_INLINE constexpr auto word(const W &w) { return w; }
template <Layout L, class T, Size R, Size C, Layout M, Kind K>
VONKK3_INLINE constexpr auto word(const View<T, R, C, M, K> &v) {
    constexpr bool array = is_array(K), matrix = is_matrix(K), elements = L == Layout::S2 || L == Layout::LS2;
    const Strides s = v.strides();
    if constexpr (is_table(L) && !is_table(M)) {
        Tabled<T, R * C> table{};
        for (Size i = 0; i < R; ++i)
            for (Size j = 0; j < C; ++j) table.table[i * C + j] = v.at(0, i, j);
        return table;
    } else if constexpr (L == Layout::PS2 && array) return words(v.data(), s.shift, s.object);
    else if constexpr (is_table(L)) return words(v.data(), s.shift);
    else if constexpr (array) {
        const std::int32_t step = is_list(L) ? s.shift : s.object;
        if constexpr (matrix && elements) return words(v.data(), step, s.row, s.element);
        else if constexpr (matrix) return words(v.data(), step, s.row);
        else if constexpr (elements) return words(v.data(), step, s.element);
        else return words(v.data(), step);
    } else if constexpr (matrix && elements) return words(v.data(), s.row, s.element);
    else if constexpr (matrix) return words(v.data(), s.row);
    else if constexpr (elements) return words(v.data(), s.element);
    else return words(v.data());
}
template <Layout L, class V> VONKK3_INLINE constexpr auto word(const Shared<V> &shared) {
    const Strides s = shared.view.strides();
    if constexpr (is_table(L)) return word<L>(shared.view);
    else if constexpr (L == Layout::S2 || L == Layout::LS2) return words(shared.view.data(), 0, s.row, s.element);
    else return words(shared.view.data(), 0, s.row);
}

// Spells `Left` words in turn, each at the end of what is spelled already, and calls.
template <std::size_t Left, class F, class W, class... Rest>
VONKK3_INLINE auto spell(F f, const W &word, Rest... rest) {
    constexpr int count = spelled_words<W>;
    if constexpr (Left == 0) return f(word, rest...);
    else if constexpr (count == 0) return spell<Left - 1>(f, rest..., word.data);
    else if constexpr (count == 1) return spell<Left - 1>(f, rest..., word.data, word.words[0]);
    else if constexpr (count == 2) return spell<Left - 1>(f, rest..., word.data, word.words[0], word.words[1]);
    else if constexpr (count == 3)
        return spell<Left - 1>(f, rest..., word.data, word.words[0], word.words[1], word.words[2]);
    else if constexpr (is_tabled<W>) return spell<Left - 1>(f, rest..., word.table, std::int32_t(0));
    else if constexpr (std::is_same_v<W, Nothing>) return spell<Left - 1>(f, rest...);
    else if constexpr (std::is_same_v<W, Shaped<true>>)
        return spell<Left - 1>(f, rest..., Number{word.columns}, Number{word.rows});
    else if constexpr (std::is_same_v<W, Shaped<false>>) return spell<Left - 1>(f, rest..., Number{word.rows});
    else return spell<Left - 1>(f, rest..., word);
}

// A word that only exports of run-time size have.
template <class Choice, class W> VONKK3_INLINE constexpr auto open_size(W word) {
    if constexpr (Choice::order == 0) return word;
    else return Nothing{};
}
// The count of objects, which only exports of arrays have.
template <class Choice> VONKK3_INLINE constexpr auto objects(Size count) {
    if constexpr (Choice::C::arrays) return Number{count};
    else return Nothing{};
}

template <class Choice, class... W> VONKK3_INLINE Status invoke(const W &...words) {
    constexpr bool exists = !std::is_void_v<decltype(Choice::function())>;
    static_assert(exists, "vonkk3: the operation has no function for this size and layout: see docs/functions.md");
    if constexpr (exists) {
        constexpr auto f = Choice::function();
        return spell<sizeof...(W)>(f, word<Choice::layout>(words)...);
    } else return vonkErrSize;
}

template <class T, class X> constexpr T number(const X &constant) { return static_cast<T>(constant.value); }

// The same elements at the same places of a formula, with strides exchanged in place of the mark `transposed`, or the
// other way round. Tables of pointers have no strides to exchange.
template <class T, Size R, Size C, Layout L, Kind K> constexpr auto exchanged(const View<T, R, C, L, K> &v) {
    static_assert(!is_table(L) && is_matrix(K));
    const Strides s = v.strides();
    return View<T, C, R, strided(L), transposed(K)>(v.data(), v.count(), v.stored_columns(), v.stored_rows(),
                                                    Strides{s.object, s.element, s.row, s.shift});
}

// Object n of an array; one object is the same for all.
template <class V> constexpr auto nth(const V &v, Size n) {
    if constexpr (V::is_array) return v[n];
    else return v;
}

// Object by object, up to the first that fails.
template <class F> Status each(Size count, Size &failed, F work) {
    for (failed = 0; failed < count; ++failed)
        if (const Status status = work(failed); !status.ok()) return status;
    return {};
}

} // namespace detail

/// The transpose of something whose type says that it is a matrix, such as a glm::mat4.
template <class X, class = std::enable_if_t<!detail::is_view<std::remove_cv_t<std::remove_reference_t<X>>>>>
auto transposed(X &&x) {
    return transposed(detail::operand(x));
}

} // namespace vonk

#endif
