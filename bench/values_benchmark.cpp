// Reading and printing values, over what else the machine has for it.
#include "bench/comparison.h"
#include "runtime/binary.h"
#include "runtime/number.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <charconv>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t binarySize = std::size_t{1} << 20;
constexpr std::size_t doubleCount = 4096;
constexpr double binaryLimit = 2;
constexpr double doubleLimit = 3;

const std::vector<unsigned char>& Bytes() {
    static const std::vector<unsigned char> bytes = [] {
        std::vector<unsigned char> random(binarySize);
        std::mt19937 engine(3);
        for (unsigned char& byte : random)
            byte = static_cast<unsigned char>(engine());
        return random;
    }();
    return bytes;
}

void EncodeByGlib() {
    g_free(g_base64_encode(Bytes().data(), Bytes().size()));
}

Turns PrintingOverGlib(std::string (*print)(const std::vector<unsigned char>&)) {
    return {EncodeByGlib, [print] { benchmark::DoNotOptimize(print(Bytes())); }};
}

Turns ParsingBase64OverGlib() {
    const std::string text = tessera::PrintBase64(Bytes());
    return {[text] {
                gsize size = 0;
                g_free(g_base64_decode(text.c_str(), &size));
            },
            [text] { benchmark::DoNotOptimize(tessera::ParseBase64(text)); }};
}

Turns ParsingHexOverGlib() {
    return {EncodeByGlib,
            [text = tessera::PrintHex(Bytes())] { benchmark::DoNotOptimize(tessera::ParseHex(text)); }};
}

enum class Digits { FEW, ALL };

/// Numbers as documents hold them, with three decimals, or such as need all digits of a double.
std::vector<double> Doubles(Digits digits) {
    std::mt19937_64 engine(4);
    std::uniform_real_distribution<double> distribution(-1e6, 1e6);
    std::vector<double> doubles(doubleCount);
    for (double& value : doubles) {
        value = distribution(engine);
        if (digits == Digits::FEW)
            value = static_cast<double>(static_cast<long long>(value * 1000)) / 1000;
    }
    return doubles;
}

std::string PrintShortest(double value) {
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

template <class Input, class Work>
std::function<void()> ForEach(const std::vector<Input>& inputs, Work work) {
    return [inputs, work] {
        for (const Input& input : inputs)
            benchmark::DoNotOptimize(work(input));
    };
}

std::vector<std::string> Texts(Digits digits) {
    std::vector<std::string> texts;
    for (const double value : Doubles(digits))
        texts.push_back(PrintShortest(value));
    return texts;
}

Turns PrintingDoubles(Digits digits) {
    return {ForEach(Doubles(digits), PrintShortest), ForEach(Doubles(digits), tessera::PrintDouble)};
}

Turns ReadingDoubles(Digits digits) {
    return {
        ForEach(Texts(digits), [](const std::string& text) { return std::strtod(text.c_str(), nullptr); }),
        ForEach(Texts(digits), [](const std::string& text) { return tessera::ParseDouble(text); })};
}

} // namespace

int main(int argc, char** argv) {
    using namespace tessera;
    std::vector<Comparison> comparisons = {
        {"printing Base64 : g_base64_encode", binaryLimit, [] { return PrintingOverGlib(PrintBase64); }},
        {"reading Base64 : g_base64_decode", binaryLimit, ParsingBase64OverGlib},
        {"printing hexadecimal : g_base64_encode", binaryLimit, [] { return PrintingOverGlib(PrintHex); }},
        {"reading hexadecimal : g_base64_encode", binaryLimit, ParsingHexOverGlib}};
    const std::pair<std::string, Digits> kinds[] = {{"few digits", Digits::FEW}, {"all digits", Digits::ALL}};
    for (const auto& [kind, digits] : kinds) {
        comparisons.push_back({"printing doubles : std::to_chars, " + kind, doubleLimit,
                               [digits = digits] { return PrintingDoubles(digits); }});
        comparisons.push_back({"reading doubles : strtod, " + kind, doubleLimit,
                               [digits = digits] { return ReadingDoubles(digits); }});
    }
    return RunComparisons(argc, argv, comparisons);
}
