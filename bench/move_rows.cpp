// Rows of moves between layouts.
#include "contest.h"
#include "data.h"
#include "peers/plain_moves.h"

#include <vonkk3.h>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

// Matrices whose elements lie two apart, the same one per position behind a table, and where they go: packed, and the
// same as a list.
template <class T, std::size_t order> struct MoveData {
    static constexpr std::size_t elements = order * order;
    static constexpr std::int32_t size = sizeof(T);
    static constexpr std::int32_t element = 2 * size, row = order * element, object = order * row;
    static constexpr std::int32_t denseRow = order * size, denseObject = order * denseRow;

    std::size_t count;
    Buffer<T> source, destination;
    std::vector<const T *> table;
    std::vector<T *> list;
    VonkStatus status = vonkOk;

    explicit MoveData(std::size_t count)
        : count(count), source(count * elements * 2, 0), destination(count * elements, 1) {
        source.fillRandomly(1);
        for (std::size_t position = 0; position < elements; ++position) table.push_back(source.data() + 2 * position);
        for (std::size_t n = 0; n < count; ++n) list.push_back(destination.data() + n * elements);
    }
};

template <class T, std::size_t order, class Call, class... Plain>
Contest moves(std::size_t count, Call call, std::pair<const char *, Plain>... plain) {
    const auto shared = std::make_shared<MoveData<T, order>>(count);
    auto *data = shared.get();
    const auto values = [=] {
        if (data->status != vonkOk) return Values();
        return Values(data->destination.data(), data->destination.data() + data->destination.size());
    };
    const auto repeatedly = [=](auto work) { return repeated([=] { work(*data); }); };
    return {"objects",
            count,
            shared,
            [=] { data->destination.fill(T(1e30)); },
            [](auto &, auto &) { return std::string(); },
            {{"library", Agreement::bits, repeated([=] { data->status = call(*data); }), values},
             {plain.first, Agreement::bits, repeatedly(plain.second), values}...}};
}

template <class T, std::size_t order, auto copy> Contest copiesToDense(std::size_t count) {
    using Data = MoveData<T, order>;
    return moves<T, order>(
        count,
        [](Data &d) {
            return copy(d.source.data(), Data::object, Data::row, Data::element, d.destination.data(),
                        Data::denseObject, Data::denseRow, Data::size, order, order, std::uint32_t(d.count));
        },
        std::pair{"plain, sizes at run time", [](Data &d) {
                      plain::moveStrided(d.source.data(), {Data::object, Data::row, Data::element},
                                         d.destination.data(), {Data::denseObject, Data::denseRow, Data::size}, order,
                                         order, d.count);
                  }});
}

template <class T, std::size_t order, auto extract> Contest extracts(std::size_t count) {
    using Data = MoveData<T, order>;
    return moves<T, order>(
        count,
        [](Data &d) {
            return extract(d.source.data(), Data::object, Data::row, Data::element, d.destination.data(), order, order,
                           std::uint32_t(d.count));
        },
        std::pair{"plain, sizes at run time", [](Data &d) {
                      plain::gatherStrided(d.source.data(), {Data::object, Data::row, Data::element},
                                           d.destination.data(), order, order, d.count);
                  }});
}

template <class T, std::size_t order, auto copy> Contest copiesTableToList(std::size_t count) {
    using Data = MoveData<T, order>;
    return moves<T, order>(
        count,
        [](Data &d) {
            return copy(d.table.data(), 0, Data::object, d.list.data(), 0, Data::denseRow, Data::size, order, order,
                        std::uint32_t(d.count));
        },
        std::pair{"plain, sizes at run time", [](Data &d) {
                      plain::moveTableToList(d.table.data(), Data::object, d.list.data(), Data::denseRow, Data::size,
                                             order, order, d.count);
                  }});
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

} // namespace

void addMoveRows(Rows &rows) {
    add(rows, "vonkCopy_ma_32f_SS, 3 by 3", copiesToDense<float, 3, vonkCopy_ma_32f_SS>);
    add(rows, "vonkCopy_ma_32f_SS, 6 by 6", copiesToDense<float, 6, vonkCopy_ma_32f_SS>);
    add(rows, "vonkCopy_ma_32f_PL, 4 by 4", copiesTableToList<float, 4, vonkCopy_ma_32f_PL>);
    add(rows, "vonkCopy_ma_64f_SS, 4 by 4", copiesToDense<double, 4, vonkCopy_ma_64f_SS>);
    add(rows, "vonkExtract_ma_32f_S2, 4 by 4", extracts<float, 4, vonkExtract_ma_32f_S2>);
}

} // namespace bench
