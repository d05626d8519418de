// The generator: its text helpers, what its pieces look like, and that the files it writes into the source tree are
// checked in as they would be written today.
#include "describe.h"
#include "emit.h"
#include "support/literal.h"
#include "text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace {

namespace fs = std::filesystem;
const fs::path root = VONKK3_SOURCE_FOLDER;

std::string read(const fs::path &path) {
    std::stringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

const char *const howToUpdate = "is not current: build the target `vonkk3_regenerate`";

TEST(Text, WrapsAtTheLineWidthAndIndentsWhatFollows) {
    const std::vector<std::string> pieces(12, "0123456789");
    const std::string wrapped = text::joinWrapped("f(", pieces, ");", "    ");
    std::istringstream lines(wrapped);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_LE(line.size(), text::lineWidth);
        if (count > 0) {
            EXPECT_EQ(line.substr(0, 5), "    0");
        }
    }
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(std::ranges::count(wrapped, '0'), 12);
    EXPECT_EQ(wrapped.substr(wrapped.size() - 3), "9);");
    EXPECT_EQ(text::joinWrapped("f(", {"a", "b"}, ")", "  "), "f(a, b)");
}

TEST(Text, WrapsWordsBetweenPrefixes) {
    const std::string wrapped =
        text::wrapWords(std::string(100, 'a') + " " + std::string(17, 'b') + " c", "- ", "    ");
    EXPECT_EQ(wrapped, "- " + std::string(100, 'a') + " " + std::string(17, 'b') + "\n    c\n");
    EXPECT_EQ(text::wrapWords("a b", "> ", "  "), "> a b\n");
}

TEST(Text, PrefixesEveryLineAndLeavesNoTrailingBlank) {
    EXPECT_EQ(text::prefixLines("a\n\nb", " * "), " * a\n *\n * b\n");
}

TEST(Text, DeclaresPointersWithTheStarAtTheName) {
    EXPECT_EQ(text::declaration({"src", "const float *const *", catalogue::Kind::table, 0}), "const float *const *src");
    EXPECT_EQ(text::declaration({"len", "uint32_t", catalogue::Kind::size, -1}), "uint32_t len");
}

TEST(Stubs, BundleTheWordsOfEachOperandInTheOrderOfTheParameters) {
    const std::string file = emit::stubs().at("lu-decomposition_LUDecomp_32f.cpp");
    EXPECT_NE(file.find("{ return lu::decompose(Matrices<const Real32, L>{src, srcShift, srcRowStride}, pivots,\n"
                        "    Matrices<Real32, L>{dst, dstShift, dstRowStride}, fixed<4>, Objects{count}); }"),
              std::string::npos);
    EXPECT_NE(file.find("RunTime{order}, oneObject); }"), std::string::npos);
}

TEST(Stubs, NeitherNameNorPassAWordThatIsNeverRead) {
    const std::string file = emit::stubs().at("lu-back-substitution_LUBackSubst_64f.cpp");
    EXPECT_NE(file.find("vonkLUBackSubst_mva_64f_L(const double *src1, int32_t, int32_t src1RowStride,"),
              std::string::npos);
    EXPECT_NE(file.find("Matrix<const Real64, L>{src1, src1RowStride}"), std::string::npos);
}

TEST(Exports, AreSortedAndHaveTheVersionFunction) {
    std::istringstream lines(emit::exports());
    std::vector<std::string> names;
    for (std::string name; std::getline(lines, name);) names.push_back(name);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_EQ(names.size(), literal::allMembers().size() + 1);
    EXPECT_TRUE(std::ranges::binary_search(names, "vonkGetLibVersion"));
}

// That a folder has these files, and no other that ends so.
void expectCurrent(const std::map<std::string, std::string> &files, const fs::path &folder, const std::string &ending) {
    EXPECT_GT(files.size(), 1U);
    for (const auto &[name, content] : files) EXPECT_TRUE(read(folder / name) == content) << name << " " << howToUpdate;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = fs::relative(entry.path(), folder).generic_string();
        if (name.ends_with(ending)) {
            EXPECT_TRUE(files.contains(name)) << entry.path() << " is written by nobody";
        }
    }
}

TEST(CheckedInFiles, AreCurrentAndThereIsNoOther) {
    expectCurrent(emit::headers(), root / "include", ".h");
    EXPECT_TRUE(emit::headers().contains("vonkk3.h"));
    expectCurrent(emit::reference(), root / "docs/reference", "");
    std::map<std::string, std::string> tables;
    for (const auto &[name, content] : emit::cppExports()) tables[name.substr(name.rfind('/') + 1)] = content;
    EXPECT_EQ(tables.size(), 7U);
    expectCurrent(tables, root / "include/vonkk3/exports", "");
}

// Exports that a caller would fall into, and their siblings that are right, by the exceptions' own words.
TEST(CppTables, AvoidWhatExceptionsSpeakAgainst) {
    const auto tables = emit::cppExports();
    const auto avoids = [&](const char *header, const std::string &group, const std::string &condition) {
        const std::string &text = tables.at(std::string("vonkk3/exports/") + header + ".hpp");
        const std::size_t begin = text.find("struct " + group + " {"), end = text.find("\n};", begin);
        ASSERT_NE(begin, std::string::npos) << group;
        EXPECT_EQ(text.substr(begin, end - begin).find("return " + condition + ";") != std::string::npos,
                  !condition.empty())
            << group;
    };
    avoids("matrix", "Sub<mT, mT>", "is_float && order == 6 && layout == Layout::standard");
    avoids("matrix", "Sub<maT, maT>", "is_float && order == 6 && (layout == Layout::standard || layout == Layout::L)");
    avoids("qr", "QRBackSubst<ma, va>", "!is_float && layout == Layout::L");
    avoids("vector", "L2Norm<va>", "is_float && order != 0 && (layout == Layout::standard || layout == Layout::L)");
    EXPECT_EQ(tables.at("vonkk3/exports/cholesky.hpp").find("avoid"), std::string::npos);
}

TEST(CheckedInFiles, TheTableOfFunctionsIsCurrentAndPointsAtTheSections) {
    const std::string page = emit::functions();
    EXPECT_TRUE(read(root / "docs/functions.md") == page) << "docs/functions.md " << howToUpdate;
    EXPECT_NE(page.find("5572 exports"), std::string::npos);

    const auto headers = emit::headers();
    const std::regex link(R"(\[([^\]]+)\]\(\.\./include/(vonkk3/\w+\.h)\))");
    std::size_t links = 0;
    for (auto at = std::sregex_iterator(page.begin(), page.end(), link); at != std::sregex_iterator(); ++at, ++links)
        EXPECT_NE(headers.at((*at)[2]).find("/* ---- " + (*at)[1].str() + " -"), std::string::npos) << (*at)[0];
    EXPECT_EQ(links, catalogue::sections().size());
}

std::string allHeaders() {
    std::string all;
    for (const auto &[name, content] : emit::headers()) all += content;
    return all;
}

TEST(Header, DeclaresExactlyTheCatalogue) {
    std::istringstream lines(allHeaders());
    const std::regex prototype(R"(^(?:VonkStatus |const VonkLibVersion \*)(vonk\w+)\()");
    std::vector<std::string> declared;
    std::smatch found;
    for (std::string line; std::getline(lines, line);)
        if (std::regex_search(line, found, prototype)) declared.push_back(found[1]);
    std::ranges::sort(declared);

    std::vector<std::string> named{"vonkGetLibVersion"};
    for (const catalogue::Function &function : literal::allMembers()) named.push_back(function.name);
    std::ranges::sort(named);
    EXPECT_EQ(named.size(), 5572U);
    EXPECT_EQ(declared, named);
}

TEST(Header, KeepsToTheLineWidth) {
    std::istringstream lines(allHeaders());
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), text::lineWidth) << line;
}

std::string describe(const std::string &name) {
    const catalogue::Function &function = literal::function(name);
    return formula(function) + "; " + operandsInWords(function) + "; " + layoutInWords(function);
}

TEST(Header, SaysWhatIsComputed) {
    EXPECT_EQ(describe("vonkAdd_vava_32f_4x1"), "dst(n) = src1(n) + src2(n); 4 float, n below count; standard layout");
    EXPECT_EQ(describe("vonkSub_cv_64f"), "dst = val - src; `len` double; standard layout");
    EXPECT_EQ(
        describe("vonkMul_maTv_32f_3x3_P"),
        "dst(n) = matrix times vector src1(n)' src2; 3x3 float, n below count; P, one pointer per element position");
    EXPECT_EQ(describe("vonkDet_ma_64f_LS2"),
              "dst[n] = determinant of src(n); `order` by `order` double, n below count; "
              "LS2, one pointer per object, strided elements");
    EXPECT_EQ(describe("vonkTrace_m_32f"), "*dst = trace of src; `order` by `order` float; standard layout");
    EXPECT_EQ(describe("vonkCopy_ma_32f_PL"),
              "dst(n) = src(n), copied; `rows` by `cols` float, n below count; from PS2 to LS2");
    EXPECT_EQ(describe("vonkExtract_m_64f_P"),
              "dst = src, gathered into a dense block; `rows` by `cols` double; P, one pointer per element position");
}

} // namespace
