// What callers look for and get: every function has a usage, every usage a function, and all that they name is there.
#include "support/literal.h"
#include "usage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>

namespace {

using literal::allMembers;

bool hasParameter(const catalogue::Function &function, std::string_view name) {
    return std::ranges::find(function.parameters, name, &catalogue::Parameter::name) != function.parameters.end();
}

bool isSize(const catalogue::Function &function, const std::string &size) {
    return std::ranges::all_of(size, [](unsigned char digit) { return std::isdigit(digit) != 0; }) ||
           hasParameter(function, size);
}

TEST(Usage, EveryFunctionHasOneAndEveryOneAFunction) {
    std::set<const catalogue::Usage *> used;
    for (const catalogue::Function &function : allMembers()) used.insert(&usageOf(function));
    EXPECT_EQ(used.size(), catalogue::usages().size());
}

TEST(Usage, FormulasNameOperandsOfTheirFunctions) {
    const std::regex access(R"(\b(src\d?|dst|val\d?)\b)");
    for (const catalogue::Function &function : allMembers()) {
        const catalogue::Usage &usage = usageOf(function);
        const std::string formula = std::string(usage.term) + " " + std::string(usage.assign);
        for (std::sregex_iterator at(formula.begin(), formula.end(), access), end; at != end; ++at)
            EXPECT_TRUE(hasParameter(function, at->str())) << function.name << ": " << at->str();
    }
}

TEST(Usage, WhatIsCalledNextExists) {
    for (const catalogue::Usage &usage : catalogue::usages())
        EXPECT_TRUE(usage.next.empty() ||
                    std::ranges::any_of(catalogue::usages(),
                                        [&](const catalogue::Usage &other) { return other.operation == usage.next; }))
            << usage.title;
}

TEST(Usage, WordsOfGroupsBelongToGroups) {
    for (const catalogue::GroupWords &row : catalogue::groupWords())
        EXPECT_TRUE(std::ranges::any_of(allMembers(),
                                        [&](const catalogue::Function &function) {
                                            return function.section->id == row.section && function.group == row.groups;
                                        }))
            << row.section << " " << row.groups;
}

TEST(Usage, ShapesAreNumbersOrSizesOfTheCall) {
    for (const catalogue::Function &function : allMembers())
        for (const catalogue::Operand &operand : function.operands) {
            const catalogue::Shape shape = shapeOf(function, operand);
            EXPECT_TRUE(isSize(function, shape.rows)) << function.name << " " << operand.name << ": " << shape.rows;
            EXPECT_TRUE(isSize(function, shape.columns))
                << function.name << " " << operand.name << ": " << shape.columns;
        }
}

TEST(Usage, BlocksAreAsLongAsTheFamiliesSay) {
    const auto length = [](std::string_view name, std::string_view parameter) {
        const auto function = std::ranges::find(allMembers(), name, &catalogue::Function::name);
        return lengthOf(*function, *std::ranges::find(function->parameters, parameter, &catalogue::Parameter::name));
    };
    EXPECT_EQ(length("vonkLUDecomp_ma_32f_4x4_L", "pivots"), "count * 4");
    EXPECT_EQ(length("vonkLUBackSubst_mva_64f", "pivots"), "order");
    EXPECT_EQ(length("vonkDet_ma_64f_P", "scratch"), "order * order * sizeof(double) + 4 * order");
    EXPECT_EQ(length("vonkQRDecomp_m_32f_5x5", "work"), "5");
    EXPECT_EQ(length("vonkExtract_maT_32f_LS2", "dst"), "count * rows * cols");
    EXPECT_EQ(length("vonkDotProduct_vv_32f", "dst"), "1");
}

} // namespace
