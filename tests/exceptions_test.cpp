// The table of exceptions: that its patterns mean the functions that they should, that a row at odds with the catalogue
// is refused, and that header, pages and functions.json say what the table says.
#include "emit.h"
#include "exceptions.h"
#include "patterns.h"
#include "support/exceptional.h"
#include "support/literal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

namespace {

using catalogue::Exception;
using catalogue::ExceptionClass;
using catalogue::ExceptionIndex;
using catalogue::Function;

using literal::allMembers;
using literal::exceptionIndex;

const Exception &find(std::string_view id) {
    const auto rows = catalogue::exceptions();
    const auto found = std::ranges::find(rows, id, &Exception::id);
    if (found == rows.end()) throw std::out_of_range(std::string(id));
    return *found;
}

std::set<std::string> functionsOf(std::string_view id) {
    std::set<std::string> names;
    for (const Function *function : exceptionIndex().functionsOf(find(id))) names.insert(function->name);
    return names;
}

std::vector<std::string> idsOf(const Function &function) {
    std::vector<std::string> ids;
    for (const Exception *row : exceptionIndex().exceptionsOf(function)) ids.emplace_back(row->id);
    return ids;
}

// ---- Patterns -------------------------------------------------------------------------------------------------------

using Words = std::vector<std::string>;

TEST(Patterns, SpellTheirAlternativesFromLeftToRight) {
    const std::map<std::string, Words> spelled{
        {"a", {"a"}},
        {"a{b,c}d{e,f}", {"abde", "abdf", "acde", "acdf"}},
        {"a{,_L}", {"a", "a_L"}}, // nothing is an alternative
        {"{m_{x,y}_P,ma}_z", {"m_x_P_z", "m_y_P_z", "ma_z"}},
        {"{{a,b},c}", {"a", "b", "c"}},
        {"a{b,c} d", {"ab", "ac", "d"}}, // a blank separates patterns
        {"a,b", {"a,b"}},
    };
    for (const auto &[pattern, words] : spelled) EXPECT_EQ(patterns::alternatives(pattern), words) << pattern;
}

TEST(Patterns, RefuseBracesThatDoNotPair) {
    for (const char *malformed : {"a{b", "a{b,{c}", "a}b", "a{b}}", "a{b c}"})
        EXPECT_THROW(patterns::alternatives(malformed), std::invalid_argument) << malformed;
}

TEST(Patterns, MatchTheWholeName) {
    EXPECT_TRUE(patterns::matches("vonkAdd_vv_32f", "vonkAdd_vv_32f"));
    EXPECT_FALSE(patterns::matches("vonkAdd_vv_32f", "vonkAdd_vv_32f_S2"));
    EXPECT_FALSE(patterns::matches("vonkAdd_vv_32f", "vonkAdd_vv_32"));
}

TEST(Patterns, MatchOneLetterByAQuestionMarkAndAnyNumberByAStar) {
    EXPECT_TRUE(patterns::matches("a_?x?", "a_3x1"));
    EXPECT_FALSE(patterns::matches("a_?x?", "a_3x"));
    EXPECT_FALSE(patterns::matches("a_?x?", "a_3x1_L"));
    EXPECT_TRUE(patterns::matches("a_*", "a_"));
    EXPECT_TRUE(patterns::matches("a_*_L*", "a_3x3_LS2"));
    EXPECT_FALSE(patterns::matches("a_*_L", "a_3x3_LS2"));
}

// ---- Rows at odds with the catalogue --------------------------------------------------------------------------------

ExceptionIndex indexOf(const std::vector<Exception> &rows) { return {rows, allMembers()}; }

Exception row(std::string_view functions, std::string_view section = "trace", std::string_view id = "id") {
    return {id, section, ExceptionClass::result, functions, "Text."};
}

TEST(ExceptionIndex, TakesARowThatAgreesWithTheCatalogue) {
    const std::vector<Exception> rows{row("vonkTrace_m_{32f,64f}_?x?")};
    EXPECT_EQ(indexOf(rows).functionsOf(rows[0]).size(), 8U);
}

TEST(ExceptionIndex, RefusesRowsAtOddsWithTheCatalogue) {
    const std::vector<std::vector<Exception>> odd{
        {row("vonkTrace_m_32f"), row("vonkTrace_m_64f")}, // an id twice
        {row("vonkTrace_m_{32f,16f}")},                   // one alternative matches nothing
        {row("vonkTrace_m_32f_L")},
        {row("vonkTrace_m_32f vonkTrace_m_32f")}, // a function twice
        {row("vonkTrace_m_32f{*,_3x3}")},
        {row("vonkTrace_m_32f", "transpose")}, // a function of another section
        {row("vonkMul_m*_32f_P", "matrix-product")},
    };
    for (const std::vector<Exception> &rows : odd) EXPECT_THROW(indexOf(rows), std::logic_error) << rows[0].functions;
    EXPECT_NO_THROW(indexOf({row("vonkTrace_m_32f"), row("vonkTrace_m_64f", "trace", "other")}));
    EXPECT_THROW(indexOf({row("vonkTrace_m_{32f")}), std::invalid_argument);
}

TEST(ExceptionIndex, RefusesATextThatBreaksWhatItIsPrintedIn) {
    for (const std::string_view text : {"In */ a comment.", "In /* a comment.", "In | a table.", "In two\nlines."})
        EXPECT_THROW(indexOf({{"id", "trace", ExceptionClass::result, "vonkTrace_m_32f", text}}), std::logic_error);
}

// ---- The table ------------------------------------------------------------------------------------------------------

TEST(Exceptions, StandInTheOrderOfTheSectionsAndThenOfTheClasses) {
    const auto sections = catalogue::sections();
    const auto place = [&](const Exception &row) {
        return std::pair(std::ranges::find(sections, row.section, &catalogue::Section::id) - sections.begin(),
                         row.what);
    };
    EXPECT_TRUE(std::ranges::is_sorted(catalogue::exceptions(), {}, place));
}

TEST(Exceptions, AreToldInSentences) {
    for (const Exception &row : catalogue::exceptions()) {
        EXPECT_TRUE(std::regex_match(std::string(row.id), std::regex("[a-z0-9]+(-[a-z0-9]+)+"))) << row.id;
        EXPECT_TRUE(row.text.ends_with('.')) << row.id;
        EXPECT_EQ(row.text.find("  "), std::string_view::npos) << row.id;
    }
}

TEST(Exceptions, HaveClassesThatAreAllUsedAndExplained) {
    std::set<std::string_view> names, meanings;
    for (const ExceptionClass exceptionClass : catalogue::exceptionClasses) {
        EXPECT_EQ(std::size_t(exceptionClass), names.size()); // the names stand in the order of the enumeration
        names.insert(name(exceptionClass));
        meanings.insert(meaning(exceptionClass));
        EXPECT_TRUE(std::ranges::count(catalogue::exceptions(), exceptionClass, &Exception::what) > 0)
            << name(exceptionClass);
    }
    EXPECT_EQ(names.size(), 7U);
    EXPECT_EQ(meanings.size(), 7U);
}

TEST(Exceptions, ConcernFunctionsOfTheirOwnSection) {
    for (const Exception &row : catalogue::exceptions()) {
        EXPECT_FALSE(exceptionIndex().functionsOf(row).empty()) << row.id;
        for (const Function *function : exceptionIndex().functionsOf(row))
            EXPECT_EQ(function->section->id, row.section) << row.id;
    }
}

TEST(Exceptions, ConcernAsManyFunctionsAsTheySay) {
    const std::map<std::string, std::size_t> expected{
        {"vc-whole-object", 32 + 16}, // single and arrays in the standard layout, arrays in L
        {"vv-single-loaded-once", 24},
        {"vv-whole-object", 25 + 17}, // 3x1 beside a single vector is none of them
        {"lcomb-whole-object", 11 + 7},
        {"dot-odd-term", 5},
        {"norm-estimate", 12},
        {"cross-zero-minus", 8},
        {"cross-negated", 12},
        {"sum-count-zero", 8},
        {"sum-position-8", 12},
        {"sum-single-loaded-once", 48},
        {"sum-rows-loaded-first", 112 + 80},
        {"trace-checked-entries", 20},
        {"product-simd", 19},
        {"product-checked-entries", 48},
        {"product-unchecked-entries", 10},
        {"copy-empty-matrix", 18},
        {"extract-unchecked", 5},
        {"lu-unrounded-quotient", 27},
        {"lu-nan-value", 6},
        {"lu-nan-candidate", 12},
        {"lu-displaced-last-pivot", 60},
        {"lu-solve-ignored-argument", 40},
        {"lu-solve-wide-sums", 32},
        {"inverse-estimate", 12},
        {"inverse-entries-first", 12},
        {"cholesky-whole-strides", 30},
        {"cholesky-first-nan", 18},
        {"cholesky-solve-count-zero", 120},
        {"cholesky-solve-signed-order", 10},
        {"qr-solve-ignored-argument", 40},
    };
    for (const auto &[id, count] : expected) EXPECT_EQ(functionsOf(id).size(), count) << id;
}

TEST(Exceptions, ConcernTheFunctionsThatTheyMean) {
    using Names = std::set<std::string>;
    EXPECT_EQ(functionsOf("sub-other-elements"), (Names{"vonkSub_maTmaT_32f_6x6", "vonkSub_maTmaT_32f_6x6_L"}));
    EXPECT_EQ(functionsOf("sum-ignored-stride"), (Names{"vonkAdd_mamT_32f_3x3", "vonkAdd_mamT_32f_3x3_L",
                                                        "vonkSub_mamT_32f_3x3", "vonkSub_mamT_32f_3x3_L"}));
    EXPECT_EQ(functionsOf("transpose-crosswise"),
              (Names{"vonkTranspose_m_32f_P", "vonkTranspose_m_64f_P", "vonkTranspose_ma_32f_P",
                     "vonkTranspose_ma_32f_PS2", "vonkTranspose_ma_64f_P", "vonkTranspose_ma_64f_PS2"}));
    EXPECT_EQ(functionsOf("frobenius-rounded-sum"),
              (Names{"vonkFrobNorm_m_64f", "vonkFrobNorm_m_64f_S2", "vonkFrobNorm_ma_64f", "vonkFrobNorm_ma_64f_S2",
                     "vonkFrobNorm_ma_64f_L", "vonkFrobNorm_ma_64f_LS2"}));
    EXPECT_EQ(functionsOf("extract-unchecked"),
              (Names{"vonkExtract_m_32f_P", "vonkExtract_m_64f_P", "vonkExtract_mT_32f_P", "vonkExtract_mT_64f_P",
                     "vonkExtract_v_64f_P"}));
    EXPECT_EQ(functionsOf("qr-solve-column-step"),
              (Names{"vonkQRBackSubst_mva_64f_L", "vonkQRBackSubst_mva_64f_3x3_L", "vonkQRBackSubst_mva_64f_4x4_L",
                     "vonkQRBackSubst_mva_64f_5x5_L", "vonkQRBackSubst_mva_64f_6x6_L"}));
}

// What the catalogue calls an ignored argument is an exception, and the table names no other in these two families.
TEST(Exceptions, AgreeWithTheCatalogueOnIgnoredArguments) {
    std::set<std::string> ignoring;
    for (const Function &function : allMembers())
        if (std::ranges::count(function.parameters, catalogue::Kind::ignored, &catalogue::Parameter::kind) > 0)
            ignoring.insert(function.name);
    std::set<std::string> told = functionsOf("lu-solve-ignored-argument");
    told.merge(functionsOf("qr-solve-ignored-argument"));
    EXPECT_EQ(told, ignoring);
}

TEST(Exceptions, AgreeWithTheCatalogueOnSignedSizes) {
    std::set<std::string> signedSizes, told;
    for (const Function &function : allMembers())
        for (const catalogue::Parameter &parameter : function.parameters) {
            if (function.section->id == "identity" || parameter.type != "int32_t") continue;
            if (parameter.kind == catalogue::Kind::count || parameter.kind == catalogue::Kind::size)
                signedSizes.insert(function.name + " " + parameter.name);
        }
    for (const std::string id : {"cholesky-signed-count", "cholesky-solve-signed-count", "cholesky-solve-signed-order"})
        for (const std::string &name : functionsOf(id)) told.insert(name + " " + id.substr(id.rfind('-') + 1));
    EXPECT_EQ(told, signedSizes);
}

// ---- What is written from it ----------------------------------------------------------------------------------------

void expectContains(const std::string &text, const std::string &piece) {
    EXPECT_NE(text.find(piece), std::string::npos) << piece;
}

std::string allHeaders() {
    std::string all;
    for (const auto &[name, content] : emit::headers()) all += content;
    return all;
}

// The ids in the comment above each prototype.
std::map<std::string, std::vector<std::string>> marksOf(const std::string &headers) {
    const std::regex prototype(R"(/\*\*([^/]*)\*/\nVonkStatus (vonk\w+)\()");
    const std::regex list(R"( Exceptions?:([^.]*)\.)"), id("[a-z0-9-]+");
    std::map<std::string, std::vector<std::string>> marks;
    for (auto at = std::sregex_iterator(headers.begin(), headers.end(), prototype); at != std::sregex_iterator();
         ++at) {
        const std::string comment = (*at)[1];
        auto &ids = marks[(*at)[2]];
        std::smatch found;
        if (!std::regex_search(comment, found, list)) continue;
        const std::string named = found[1];
        for (auto word = std::sregex_iterator(named.begin(), named.end(), id); word != std::sregex_iterator(); ++word)
            ids.push_back(word->str());
    }
    return marks;
}

TEST(Exceptions, AreMarkedAtThePrototypes) {
    const auto marks = marksOf(allHeaders());
    EXPECT_EQ(marks.size(), allMembers().size());
    for (const Function &function : allMembers()) EXPECT_EQ(marks.at(function.name), idsOf(function)) << function.name;
}

TEST(Exceptions, AreListedInTheSectionsOfTheHeaders) {
    const auto headers = emit::headers();
    std::map<std::string, std::size_t> reached; // in the table's order
    for (const Exception &row : catalogue::exceptions()) {
        const auto section = std::ranges::find(catalogue::sections(), row.section, &catalogue::Section::id);
        const std::string name = "vonkk3/" + std::string(section->header) + ".h";
        std::size_t &at = reached[name];
        at = headers.at(name).find(" * - " + std::string(row.id) + " (" + std::string(catalogue::name(row.what)) + "):",
                                   at);
        ASSERT_NE(at, std::string::npos) << row.id;
    }
}

TEST(Exceptions, AreListedInTheReferencePages) {
    const auto pages = emit::reference();
    for (const Exception &row : catalogue::exceptions()) {
        const std::string id(row.id), page = std::string(row.section) + ".md";
        const std::string line =
            "| " + id + " | " + std::string(name(row.what)) + " | " + std::to_string(functionsOf(id).size()) + ": ";
        expectContains(pages.at(page), line);
        expectContains(pages.at("exceptions.md"), line);
        expectContains(pages.at("exceptions.md"), "[" + id + "](" + page + "#");
    }
}

// Each function's list, and the number of functions of each row.
TEST(Exceptions, AreInFunctionsJson) {
    const std::string json = emit::functionsJson();
    std::size_t at = 0;
    for (const Function &function : allMembers()) {
        std::string ids;
        for (const std::string &id : idsOf(function)) ids += (ids.empty() ? "\"" : ", \"") + id + "\"";
        at = json.find(R"({"name": ")" + function.name + "\",", at);
        ASSERT_NE(at, std::string::npos) << function.name;
        const std::size_t list = json.find("\"exceptions\": [", at);
        EXPECT_EQ(json.substr(list, json.find(']', list) + 1 - list), "\"exceptions\": [" + ids + "]") << function.name;
    }
    for (const Exception &row : catalogue::exceptions())
        expectContains(json, "{\"id\": \"" + std::string(row.id) + "\", \"family\": \"" + std::string(row.section) +
                                 "\", \"class\": \"" + std::string(name(row.what)) +
                                 "\", \"count\": " + std::to_string(functionsOf(row.id).size()) + ",");
    for (const ExceptionClass exceptionClass : catalogue::exceptionClasses)
        expectContains(json, "{\"name\": \"" + std::string(name(exceptionClass)) + "\", \"meaning\": ");
}

} // namespace
