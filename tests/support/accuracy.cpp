// Measuring. See accuracy.h.
#include "accuracy.h"

#include "literal.h"
#include "model/model.h"
#include "random.h"

#include <sstream>

namespace literal {

std::vector<double> wellConditioned(std::uint32_t order, std::uint32_t variant) {
    support::Random random(0x776c + variant);
    std::vector<double> matrix;
    for (std::uint32_t k = 0; k < order * order; ++k) {
        const double number = static_cast<double>(random.between(-0x80000, 0x80000)) / 0x80000;
        matrix.push_back(number + (k % (order + 1) == 0 ? 4 : 0));
    }
    return matrix;
}

std::vector<double> badlyConditioned(std::uint32_t order, std::uint32_t variant) {
    std::vector<double> matrix = wellConditioned(order, variant);
    for (std::uint32_t j = 0; j < order; ++j) {
        double &last = matrix[(order - 1) * order + j];
        last = matrix[(order - 2) * order + j] + last / 1024;
    }
    return matrix;
}

namespace {

// The model goes first, and the library writes over its results.
void measureCall(Call &call, Measured &measured) {
    const model::Outcome outcome = model::run({call.function().name, call.words()});
    const std::int32_t status = call.run();
    if (outcome.open) return;
    if (status != outcome.status) measured.complaints.push_back(call.function().name + ": another status");
    for (const model::Approximation &bound : outcome.approximations) {
        const double result = call.getAt(reinterpret_cast<const std::byte *>(bound.address));
        if (support::isWithinBound(result, bound)) {
            measured.accuracy.include(support::measure(result, bound, call.function().type));
            continue;
        }
        std::ostringstream text;
        text << call.function().name << ": " << result << " is not within " << bound.error << " of " << bound.exact;
        measured.complaints.push_back(text.str());
    }
}

} // namespace

Measured measure(std::string_view section, catalogue::Type type, int order, const MatrixOf &matrixOf,
                 std::uint32_t variants) {
    Measured measured;
    for (const catalogue::Function *function : members(section)) {
        if (function->type != type || function->order != order) continue;
        for (std::uint32_t variant = 0; variant < variants; ++variant) {
            Call call(function->name, 0);
            call.set("src", 0, matrixOf(call.size(), variant));
            measureCall(call, measured);
        }
    }
    return measured;
}

std::string describe(catalogue::Type type, int order, const Measured &measured) {
    const support::Accuracy &accuracy = measured.accuracy;
    std::ostringstream text;
    text << catalogue::suffix(type) << " " << order << "x" << order << ": " << accuracy.elements << " results, up to "
         << accuracy.underTightBound << " units in the last place off where the bound is at most "
         << support::Accuracy::tightBound << ", " << accuracy.elsewhere << " elsewhere, " << accuracy.shareOfBound
         << " of the bound";
    return text.str();
}

} // namespace literal
