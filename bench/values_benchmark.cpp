// Reading and printing values, over what else the machine has for it.
#include "bench/ratio_reporter.h"
#include "runtime/binary.h"
#include "runtime/number.h"

#include <benchmark/benchmark.h>
#include <glib.h>

#include <charconv>
#include <cstdlib>
#include <random>
#include <string>
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

void GlibEncode(benchmark::State& state) {
    for (auto _ : state)
        g_free(g_base64_encode(Bytes().data(), Bytes().size()));
}

void GlibDecode(benchmark::State& state) {
    const std::string text = tessera::PrintBase64(Bytes());
    for (auto _ : state) {
        gsize size = 0;
        g_free(g_base64_decode(text.c_str(), &size));
    }
}

template <std::string (*print)(const std::vector<unsigned char>&)>
void Print(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(print(Bytes()));
}

template <std::string (*print)(const std::vector<unsigned char>&),
          std::vector<unsigned char> (*parse)(std::string_view)>
void Parse(benchmark::State& state) {
    const std::string text = print(Bytes());
    for (auto _ : state)
        benchmark::DoNotOptimize(parse(text));
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

template <class Work, class Input>
void ForEach(benchmark::State& state, const std::vector<Input>& inputs, Work work) {
    for (auto _ : state) {
        for (const Input& input : inputs)
            benchmark::DoNotOptimize(work(input));
    }
}

std::vector<std::string> Texts(Digits digits) {
    std::vector<std::string> texts;
    for (const double value : Doubles(digits))
        texts.push_back(PrintShortest(value));
    return texts;
}

void PrintByToChars(benchmark::State& state, Digits digits) {
    ForEach(state, Doubles(digits), PrintShortest);
}
void PrintByRuntime(benchmark::State& state, Digits digits) {
    ForEach(state, Doubles(digits), [](double value) { return tessera::PrintDouble(value); });
}
void ReadByStrtod(benchmark::State& state, Digits digits) {
    ForEach(state, Texts(digits), [](const std::string& text) { return std::strtod(text.c_str(), nullptr); });
}
void ReadByRuntime(benchmark::State& state, Digits digits) {
    ForEach(state, Texts(digits), [](const std::string& text) { return tessera::ParseDouble(text); });
}

} // namespace

int main(int argc, char** argv) {
    using namespace tessera;
    benchmark::RegisterBenchmark("g_base64_encode", GlibEncode);
    benchmark::RegisterBenchmark("g_base64_decode", GlibDecode);
    benchmark::RegisterBenchmark("PrintBase64", Print<PrintBase64>);
    benchmark::RegisterBenchmark("ParseBase64", Parse<PrintBase64, ParseBase64>);
    benchmark::RegisterBenchmark("PrintHex", Print<PrintHex>);
    benchmark::RegisterBenchmark("ParseHex", Parse<PrintHex, ParseHex>);
    std::vector<Ratio> ratios = {{"PrintBase64", "g_base64_encode", binaryLimit},
                                 {"ParseBase64", "g_base64_decode", binaryLimit},
                                 {"PrintHex", "g_base64_encode", binaryLimit},
                                 {"ParseHex", "g_base64_decode", binaryLimit}};
    const std::pair<std::string, Digits> kinds[] = {{"FewDigits", Digits::FEW}, {"AllDigits", Digits::ALL}};
    for (const auto& [kind, digits] : kinds) {
        benchmark::RegisterBenchmark(("to_chars/" + kind).c_str(), PrintByToChars, digits);
        benchmark::RegisterBenchmark(("PrintDouble/" + kind).c_str(), PrintByRuntime, digits);
        benchmark::RegisterBenchmark(("strtod/" + kind).c_str(), ReadByStrtod, digits);
        benchmark::RegisterBenchmark(("ParseDouble/" + kind).c_str(), ReadByRuntime, digits);
        ratios.push_back({"PrintDouble/" + kind, "to_chars/" + kind, doubleLimit});
        ratios.push_back({"ParseDouble/" + kind, "strtod/" + kind, doubleLimit});
    }
    RunBenchmarks(argc, argv, ratios);
    return EXIT_SUCCESS;
}
