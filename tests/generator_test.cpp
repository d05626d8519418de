// The generator: its text helpers, what its pieces look like, and that the files it writes into the source tree are
// checked in as they would be written today.
#include "emit.h"
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

const char *const howToUpdate = "is not current: build the target `regenerate`";

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
}

TEST(Text, JoinsShortListsInOneLine) { EXPECT_EQ(text::joinWrapped("f(", {"a", "b"}, ")", "  "), "f(a, b)"); }

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
    EXPECT_EQ(names.size(), catalogue::expand().size() + 1);
    EXPECT_TRUE(std::ranges::binary_search(names, "vonkGetLibVersion"));
}

TEST(CheckedInFiles, TheHeaderIsCurrent) {
    EXPECT_TRUE(read(root / "include/vonkk3.h") == emit::header()) << "include/vonkk3.h " << howToUpdate;
}

TEST(CheckedInFiles, TheTableOfFunctionsIsCurrentAndPointsAtTheSections) {
    const std::string page = emit::functions();
    EXPECT_TRUE(read(root / "docs/functions.md") == page) << "docs/functions.md " << howToUpdate;
    EXPECT_NE(page.find("5572 exports"), std::string::npos);

    std::vector<std::string> header;
    std::istringstream lines(emit::header());
    for (std::string line; std::getline(lines, line);) header.push_back(line);
    const std::regex link(R"(\[([^\]]+)\]\(\.\./include/vonkk3\.h#L([0-9]+)\))");
    std::size_t links = 0;
    for (auto at = std::sregex_iterator(page.begin(), page.end(), link); at != std::sregex_iterator(); ++at, ++links)
        EXPECT_TRUE(header.at(std::stoul((*at)[2]) - 1).starts_with("/* ---- " + (*at)[1].str() + " -")) << (*at)[0];
    EXPECT_EQ(links, catalogue::sections().size());
}

TEST(Header, DeclaresExactlyTheCatalogue) {
    std::istringstream lines(emit::header());
    const std::regex prototype(R"(^(?:VonkStatus |const VonkLibVersion \*)(vonk\w+)\()");
    std::vector<std::string> declared;
    std::smatch found;
    for (std::string line; std::getline(lines, line);)
        if (std::regex_search(line, found, prototype)) declared.push_back(found[1]);
    std::ranges::sort(declared);

    std::vector<std::string> named{"vonkGetLibVersion"};
    for (const catalogue::Function &function : catalogue::expand()) named.push_back(function.name);
    std::ranges::sort(named);
    EXPECT_EQ(named.size(), 5572U);
    EXPECT_EQ(declared, named);
}

TEST(Header, KeepsToTheLineWidth) {
    std::istringstream lines(emit::header());
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), text::lineWidth) << line;
}

TEST(CheckedInFiles, TheReferencePagesAreCurrentAndThereIsNoOther) {
    const auto pages = emit::reference();
    EXPECT_GT(pages.size(), 1U);
    for (const auto &[name, content] : pages)
        EXPECT_TRUE(read(root / "docs/reference" / name) == content) << name << " " << howToUpdate;
    for (const fs::directory_entry &entry : fs::directory_iterator(root / "docs/reference"))
        EXPECT_TRUE(pages.contains(entry.path().filename().string())) << entry.path() << " is a page of no family";
}

} // namespace
