// A contest over vectors a, b and d, and what its rows are called.
#pragma once

#include "contest.h"
#include "data.h"

#include <vonkk3.h>

#include <array>
#include <string>
#include <utility>

namespace bench {

inline constexpr std::size_t objectCounts[] = {64, 2048};

inline std::string rowName(const std::string &function, std::size_t units) {
    return function + "/" + std::to_string(units);
}

template <class T> struct VectorData {
    Buffer<T> a, b, d;
    VonkStatus status = vonkOk;

    VectorData(std::size_t size, std::size_t results) : a(size, 0), b(size, 1), d(results, 2) {
        a.fillRandomly(1);
        b.fillRandomly(2);
    }
};

// Contestants are added by name, agreement and work. Work is called with a, b and d; that of the library returns a
// status.
template <class T> class VectorContest {
public:
    using Complaint = std::string (*)(const Values &expected, const Values &found);

    // `units` of work on vectors of `size` elements in all, which leave as many or so many results.
    VectorContest(std::string unit, std::size_t units, std::size_t size, Complaint complaint)
        : VectorContest(std::move(unit), units, size, size, complaint) {}
    VectorContest(std::string unit, std::size_t units, std::size_t size, std::size_t results, Complaint complaint)
        : data(std::make_shared<VectorData<T>>(size, results)) {
        VectorData<T> *shared = data.get();
        contest.unit = std::move(unit);
        contest.units = units;
        contest.data = data;
        contest.spoil = [shared] { shared->d.fill(T(1e30)); };
        contest.complaint = complaint;
    }

    template <class Work> void library(Work work) {
        const T *a = data->a.data(), *b = data->b.data();
        T *d = data->d.data();
        VonkStatus *status = &data->status;
        enter("library", Agreement::bits, [=] { *status = work(a, b, d); });
    }
    template <class Work> void peer(std::string name, Work work, Agreement agreement = Agreement::bits) {
        const T *a = data->a.data(), *b = data->b.data();
        T *d = data->d.data();
        enter(std::move(name), agreement, [=] { work(a, b, d); });
    }

    Contest contest;

private:
    std::shared_ptr<VectorData<T>> data;

    template <class Work> void enter(std::string name, Agreement agreement, Work work) {
        VectorData<T> *shared = data.get();
        const auto results = [shared] {
            if (shared->status != vonkOk) return Values();
            return Values(shared->d.data(), shared->d.data() + shared->d.size());
        };
        contest.contestants.push_back({std::move(name), agreement, repeated(work), results});
    }
};

} // namespace bench
