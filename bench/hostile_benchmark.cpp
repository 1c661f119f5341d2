// Untrusted documents that were made to be dear, each inside every limit: what they cost to load, generate
// and release over an ordinary document of their size, and over one of half their size.
//
//   hostile_benchmark [WORD]   only the families whose names hold the word
#include "api/x_ttml_items.h"
#include "bench/comparison.h"
#include "bench/hostile_documents.h"
#include "bench/subtitle_document.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include <malloc.h>

namespace {

constexpr double factorLimit = 20;
constexpr double growthLimit = 2.3;
constexpr std::size_t fewestTurns = 5;
constexpr double fewestSeconds = 0.2;

/// Of a document, or of each of its bytes.
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

/// What a byte of an ordinary document costs.
Cost OrdinaryCost() {
    const std::string text = SubtitleDocument(static_cast<int>(untrustedBytes / 260));
    std::vector<double> seconds;
    for (std::size_t turn = 0; turn < fewestTurns; ++turn)
        seconds.push_back(CostOnce(text).seconds);
    const auto size = static_cast<double>(text.size());
    return {Median(seconds) / size, CostOnce(text).bytes / size};
}

struct Costs {
    Cost cost;     ///< of a byte
    double growth; ///< the time of twice the size over that of once
};

/// A document and one of half its size take turns.
Costs CostsOf(const HostileFamily& family) {
    const std::string half = family.make(untrustedBytes / 2);
    const std::string whole = family.make(untrustedBytes);
    const auto size = static_cast<double>(whole.size());
    const double halves = 2 * static_cast<double>(half.size()) / size;
    std::vector<double> seconds;
    std::vector<double> growths;
    double bytes = 0;
    for (double spent = 0; seconds.size() < fewestTurns || spent < fewestSeconds; spent += seconds.back()) {
        const double halfSeconds = CostOnce(half).seconds;
        const Cost cost = CostOnce(whole);
        seconds.push_back(cost.seconds);
        growths.push_back(cost.seconds / halfSeconds * halves);
        bytes = cost.bytes;
    }
    return {{Median(seconds) / size, bytes / size}, Median(growths)};
}

bool Compare(const HostileFamily& family, const Cost& ordinary) {
    const auto [cost, growth] = CostsOf(family);
    const bool isKept[] = {
        PrintRow(family.name + ", time : an ordinary document", cost.seconds / ordinary.seconds, factorLimit),
        PrintRow(family.name + ", memory : an ordinary document", cost.bytes / ordinary.bytes, factorLimit),
        PrintRow(family.name + ", time for twice the size", growth, growthLimit)};
    return std::all_of(std::begin(isKept), std::end(isKept), [](bool kept) { return kept; });
}

} // namespace

int main(int argc, char** argv) {
    const std::string word = argc > 1 && argv[1][0] != '-' ? argv[1] : "";
    KeepFreedMemory();
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
