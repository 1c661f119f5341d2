// Untrusted documents that were made to be dear, each inside every limit: what they cost to load, generate
// and release over an ordinary document of their size, and over one of half their size.
//
//   hostile_benchmark [WORD]   only the families whose names hold the word
#include "api/x_ttml_items.h"
#include "bench/hostile_documents.h"
#include "bench/subtitle_document.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <malloc.h>

namespace {

constexpr double factorLimit = 20;
constexpr double growthLimit = 2.3;
constexpr int repetitions = 3;

struct Cost {
    double seconds; ///< of the processor, to load, generate and release
    double bytes;   ///< of memory, while the document and its items are held
};

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double AllocatedBytes() {
    const auto memory = mallinfo2();
    return static_cast<double>(memory.uordblks) + static_cast<double>(memory.hblkhd);
}

Cost CostOnce(const std::string& text) {
    const double bytes = AllocatedBytes();
    const double start = ProcessorSeconds();
    x_ttml_handle parser = nullptr;
    x_ttml_create_new_parser(&parser);
    x_ttml_set_untrusted(parser, 1);
    if (x_ttml_try_load_from_data(parser, text.data(), static_cast<uint32_t>(text.size())) != X_TTML_OK) {
        std::fprintf(stderr, "%s\n", x_ttml_get_reason(parser));
        std::exit(EXIT_FAILURE);
    }
    x_ttml_generate_text_display_item_sequence(parser, 0);
    const double held = AllocatedBytes() - bytes;
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    return {ProcessorSeconds() - start, held};
}

/// The fastest of some runs: what disturbs a run makes it slower.
Cost CostOf(const std::string& text) {
    Cost cost = CostOnce(text);
    for (int i = 1; i < repetitions; ++i)
        cost.seconds = std::min(cost.seconds, CostOnce(text).seconds);
    return cost;
}

/// What a byte of an ordinary document costs.
Cost OrdinaryCost() {
    const std::string text = SubtitleDocument(static_cast<int>(untrustedBytes / 260));
    const Cost cost = CostOf(text);
    const auto size = static_cast<double>(text.size());
    return {cost.seconds / size, cost.bytes / size};
}

bool PrintRow(const std::string& family, const char* what, double ratio, double limit) {
    const bool isKept = ratio <= limit;
    std::printf("| %s, %s | %.2f | %.1f | %s|\n", family.c_str(), what, ratio, limit,
                isKept ? "" : "passed ");
    return isKept;
}

bool Compare(const HostileFamily& family, const Cost& ordinary) {
    const std::string half = family.make(untrustedBytes / 2);
    const std::string whole = family.make(untrustedBytes);
    const Cost halfCost = CostOf(half);
    const Cost cost = CostOf(whole);
    const auto size = static_cast<double>(whole.size());
    const double growth = cost.seconds / halfCost.seconds * 2 * static_cast<double>(half.size()) / size;
    const bool isKept[] = {PrintRow(family.name, "time : an ordinary document",
                                    cost.seconds / (ordinary.seconds * size), factorLimit),
                           PrintRow(family.name, "memory : an ordinary document",
                                    cost.bytes / (ordinary.bytes * size), factorLimit),
                           PrintRow(family.name, "time for twice the size", growth, growthLimit)};
    return std::all_of(std::begin(isKept), std::end(isKept), [](bool kept) { return kept; });
}

} // namespace

int main(int argc, char** argv) {
    const std::string word = argc > 1 && argv[1][0] != '-' ? argv[1] : "";
    x_ttml_drop_lines();
    x_ttml_init_xerces();
    const Cost ordinary = OrdinaryCost();
    bool isKept = true;
    for (const HostileFamily& family : HostileFamilies()) {
        if (family.name.find(word) != std::string::npos)
            isKept = Compare(family, ordinary) && isKept;
    }
    x_ttml_uninit_xerces();
    return isKept ? EXIT_SUCCESS : EXIT_FAILURE;
}
