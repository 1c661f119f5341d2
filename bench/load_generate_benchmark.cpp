// Loading a document and generating its text sequence, over the bare parse of the same bytes, and what comes
// after it.
#include "api/x_ttml.h"
#include "bench/bare_parse.h"
#include "bench/comparison.h"
#include "bench/peak_memory.h"
#include "bench/subtitle_document.h"

#include <cstdlib>
#include <memory>
#include <string>

namespace {

constexpr struct {
    int paragraphs;
    double limit;
    double seconds;
} sizes[] = {{100, 0.70, 1.5}, {1000, 0.70, 1.5}, {10000, 0.70, 2}, {50000, 0.72, 5}};
constexpr int memorySize = 10000;
constexpr int closingSize = 10000;
constexpr double memoryLimit = 1.15;
constexpr double closingLimit = 0.1;
constexpr char bareTask[] = "--bare-parse";
constexpr char generateTask[] = "--load-and-generate";

void LoadAndGenerate(x_ttml_handle& handle, const std::string& text) {
    x_ttml_create_new_parser(&handle);
    if (x_ttml_load_subtitle_from_data(handle, text.data(), static_cast<uint32_t>(text.size())) != X_TTML_OK)
        std::abort();
    x_ttml_generate_text_display_item_sequence(handle, 0);
}

void Close(x_ttml_handle handle) {
    x_ttml_destory_doc(handle);
    x_ttml_delete_parser(handle);
}

void LoadToDelete(const std::string& text) {
    x_ttml_handle handle = nullptr;
    LoadAndGenerate(handle, text);
    Close(handle);
}

Turns OverBareParse(int paragraphs) {
    const std::string text = SubtitleDocument(paragraphs);
    return {[text] { BareParse(text); }, [text] { LoadToDelete(text); }};
}

Turns ClosingOverLoading() {
    const auto handle = std::make_shared<x_ttml_handle>();
    return {[handle, text = SubtitleDocument(closingSize)] { LoadAndGenerate(*handle, text); },
            [handle] { Close(*handle); }};
}

std::vector<Comparison> Comparisons() {
    std::vector<Comparison> comparisons;
    for (const auto& [paragraphs, limit, seconds] : sizes)
        comparisons.push_back(
            {"load and generate : bare parse, " + std::to_string(paragraphs) + " paragraphs", limit,
             [count = paragraphs] { return OverBareParse(count); }, 1, 0, 1, seconds});
    comparisons.push_back({"two paragraphs, load to delete : half a bare parse + 5 us", 1.3,
                           [] { return OverBareParse(2); }, 0.5, 5e-6});
    comparisons.push_back(
        {"closing and deleting : load and generate, " + std::to_string(closingSize) + " paragraphs",
         closingLimit, ClosingOverLoading});
    return comparisons;
}

bool ComparePeakMemory() {
    const long bare = PeakMemoryOf(bareTask, memorySize);
    const long generated = PeakMemoryOf(generateTask, memorySize);
    return PrintRow("peak memory : that of the bare parse, " + std::to_string(memorySize) + " paragraphs",
                    static_cast<double>(generated) / static_cast<double>(bare), memoryLimit);
}

} // namespace

int main(int argc, char** argv) {
    x_ttml_init_xerces();
    const std::string task = argc == 3 ? argv[1] : "";
    if (task == bareTask || task == generateTask) {
        const std::string text = SubtitleDocument(std::atoi(argv[2]));
        task == bareTask ? BareParse(text) : LoadToDelete(text);
        return EXIT_SUCCESS;
    }
    const bool isMemoryKept = ComparePeakMemory(); // first: a new process starts with its parent's peak
    KeepFreedMemory();
    const int status = RunComparisons(argc, argv, Comparisons());
    x_ttml_uninit_xerces();
    return isMemoryKept ? status : EXIT_FAILURE;
}
