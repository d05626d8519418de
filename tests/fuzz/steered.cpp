// Bytes and lines to calls, calls to comparisons. See steered.h.
#include "steered.h"

#include "model/model.h"
#include "support/report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace fuzz {

using support::Call;
using support::Setting;

Steered fromBytes(std::span<const std::uint8_t> input) {
    std::array<std::uint8_t, headerSize> header{};
    for (std::size_t k = 0; k < std::min(input.size(), headerSize); ++k) header.at(k) = input[k];
    Steered steered;
    steered.function = static_cast<std::uint16_t>((header[0] << 8 | header[1]) % functionCount);
    steered.geometry = static_cast<support::Geometry>(header[2] % support::geometries);
    steered.index = header[3] % support::faultRound;
    steered.seed = static_cast<std::uint16_t>(header[4] << 8 | header[5]);
    if (input.size() > headerSize) steered.bytes.assign(input.begin() + headerSize, input.end());
    return steered;
}

std::vector<std::uint8_t> toBytes(const Steered &steered) {
    const auto high = [](std::uint16_t word) { return static_cast<std::uint8_t>(word >> 8); };
    const auto low = [](std::uint16_t word) { return static_cast<std::uint8_t>(word & 0xff); };
    const std::array<std::uint8_t, headerSize> header{
        high(steered.function), low(steered.function), static_cast<std::uint8_t>(steered.geometry),
        steered.index,          high(steered.seed),    low(steered.seed)};
    std::vector<std::uint8_t> input(headerSize + steered.bytes.size());
    std::ranges::copy(header, input.begin());
    std::ranges::copy(steered.bytes, input.begin() + headerSize);
    return input;
}

Steered fromFile(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
    return fromBytes({reinterpret_cast<const std::uint8_t *>(content.data()), content.size()});
}

std::vector<std::string> linesOf(const std::string &path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line[0] != '#') lines.push_back(line);
    return lines;
}

namespace {

void *addressOf(const Call &call, const std::vector<catalogue::Function> &all, const std::vector<void *> &addresses) {
    return addresses[static_cast<std::size_t>(call.function - all.data())];
}

support::Geometry geometryNamed(const std::string &name) {
    for (std::size_t k = 0; k < support::geometries; ++k)
        if (support::name(static_cast<support::Geometry>(k)) == name) return static_cast<support::Geometry>(k);
    throw std::runtime_error("no geometry is called " + name);
}

std::vector<std::uint8_t> bytesFromHex(const std::string &hex) {
    if (hex == "-") return {};
    if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdef") != std::string::npos)
        throw std::runtime_error("no hexadecimal bytes: " + hex);
    std::vector<std::uint8_t> bytes;
    for (std::size_t k = 0; k < hex.size(); k += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(hex.substr(k, 2), nullptr, 16)));
    return bytes;
}

std::string hexOf(std::span<const std::uint8_t> bytes) {
    if (bytes.empty()) return "-";
    std::string hex;
    for (const std::uint8_t byte : bytes) {
        constexpr std::string_view digits = "0123456789abcdef";
        hex += digits[byte >> 4];
        hex += digits[byte & 15];
    }
    return hex;
}

} // namespace

Runner::Runner(const std::string &libraryPath)
    : all(catalogue::expand()), library(libraryPath),
      comparison(
          arena,
          [this](const Call &call) {
              const std::int32_t returned =
                  support::invoke(addressOf(call, all, addresses), *call.function, call.words);
              return spoiler ? spoiler(call, returned) : returned;
          },
          model::run) {
    if (all.size() != functionCount) throw std::runtime_error("the catalogue has another number of exports");
    for (const catalogue::Function &function : all) {
        numbers.emplace(function.name, static_cast<std::uint16_t>(addresses.size()));
        addresses.push_back(library.find(function.name));
        if (addresses.back() == nullptr) throw std::runtime_error("the library has no export " + function.name);
    }
}

Steered Runner::fromLine(const std::string &line) const {
    std::istringstream words(line);
    std::string function, geometry, index, seed, hex, more;
    if (!(words >> function >> geometry >> index >> seed >> hex) || words >> more)
        throw std::runtime_error("not a call: " + line);
    const auto number = numbers.find(function);
    if (number == numbers.end()) throw std::runtime_error("no export is called " + function);
    Steered steered;
    steered.function = number->second;
    steered.geometry = geometryNamed(geometry);
    steered.index = static_cast<std::uint8_t>(std::stoul(index) % support::faultRound);
    steered.seed = static_cast<std::uint16_t>(std::stoul(seed, nullptr, 16));
    steered.bytes = bytesFromHex(hex);
    return steered;
}

std::string Runner::toLine(const Steered &steered) const {
    std::array<char, 8> seed{};
    std::snprintf(seed.data(), seed.size(), "%04x", static_cast<unsigned>(steered.seed));
    return all[steered.function].name + " " + std::string(support::name(steered.geometry)) + " " +
           std::to_string(steered.index) + " " + seed.data() + " " + hexOf(steered.bytes);
}

Call Runner::make(const Steered &steered) const {
    support::CallMixture mixture;
    mixture.geometry = steered.geometry;
    mixture.steering = steered.bytes;
    return support::makeCall(all[steered.function], arena, steered.seed, steered.index, mixture);
}

std::string Runner::run(const Steered &steered) {
    const Call call = make(steered);
    std::string complaint;
    for (const Setting setting : support::settingsFor(call)) {
        const support::Verdict verdict = comparison.compare(call, setting);
        ++compared;
        status = verdict.status;
        if (!verdict.passed)
            complaint += call.function->name + ", " + support::describe(setting) + "\n" + verdict.complaint;
    }
    return complaint;
}

std::string Runner::describe(const Steered &steered) {
    const Call call = make(steered);
    support::Image before;
    arena.save(before);
    return toLine(steered) + "\n" + support::describeWords(call) + support::describeOperands(call, before);
}

} // namespace fuzz
