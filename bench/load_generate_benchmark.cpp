// Loading a document and generating its text sequence, over the bare parse of the same bytes. Results go to
// standard error: standard output is the library's.
#include "api/x_ttml.h"
#include "bench/bare_parse.h"
#include "bench/peak_memory.h"
#include "bench/ratio_reporter.h"
#include "bench/subtitle_document.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <string>

#include <malloc.h>

namespace {

constexpr int sizes[] = {100, 1000, 10000, 50000};
constexpr int memorySize = 10000;
constexpr double timeLimit = 1.15;
constexpr double memoryLimit = 1.25;
constexpr char bareTask[] = "--bare-parse";
constexpr char generateTask[] = "--load-and-generate";

void LoadAndGenerate(const std::string& text) {
    x_ttml_handle handle = nullptr;
    x_ttml_create_new_parser(&handle);
    if (x_ttml_load_subtitle_from_data(handle, text.data(), static_cast<uint32_t>(text.size())) != X_TTML_OK)
        std::abort();
    x_ttml_generate_text_display_item_sequence(handle, 0);
    x_ttml_destory_doc(handle);
    x_ttml_delete_parser(handle);
}

void Measure(benchmark::State& state) {
    const std::string text = SubtitleDocument(static_cast<int>(state.range(0)));
    TakeTurns(
        state, [&text] { LoadAndGenerate(text); }, [&text] { BareParse(text); });
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

std::vector<Ratio> RegisterSizes() {
    auto* const benchmark = benchmark::RegisterBenchmark("LoadAndGenerate", Measure);
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime();
    std::vector<Ratio> ratios;
    for (const int size : sizes) {
        benchmark->Arg(size);
        ratios.push_back({"LoadAndGenerate/" + std::to_string(size), "BareParse", timeLimit});
    }
    return ratios;
}

/// Both sides then work on memory that the process already has. Otherwise each finds the pages that the other
/// left or gave back, and page faults decide the ratio.
void KeepFreedMemory() {
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

void ReportPeakMemory() {
    const long bare = PeakMemoryOf(bareTask, memorySize);
    const long generated = PeakMemoryOf(generateTask, memorySize);
    std::cerr << "peak memory at " << memorySize << " paragraphs: " << generated << " KiB : " << bare
              << " KiB = " << static_cast<double>(generated) / static_cast<double>(bare) << " (limit "
              << memoryLimit << ")\n";
}

} // namespace

int main(int argc, char** argv) {
    x_ttml_init_xerces();
    const std::string task = argc == 3 ? argv[1] : "";
    if (task == bareTask || task == generateTask) {
        const std::string text = SubtitleDocument(std::atoi(argv[2]));
        task == bareTask ? BareParse(text) : LoadAndGenerate(text);
        return EXIT_SUCCESS;
    }
    ReportPeakMemory(); // first: a new process starts with the peak of the one that it was forked from
    KeepFreedMemory();
    RunBenchmarks(argc, argv, RegisterSizes());
    x_ttml_uninit_xerces();
    return EXIT_SUCCESS;
}
