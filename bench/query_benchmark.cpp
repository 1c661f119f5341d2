// A query by time, which must not grow with the sequence.
#include "api/x_ttml.h"
#include "bench/ratio_reporter.h"
#include "parser/ttml_parser.h"
#include "runtime/exceptions.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int smallSize = 100;
constexpr int largeSize = 50000;
constexpr double growthLimit = 2;
constexpr int spacing = 1000; // ms from begin to begin
constexpr int shown = 800;    // ms on screen
constexpr std::uint32_t lead = 5000;

enum class Order { SORTED, SHUFFLED, UNDER_A_LASTING_ONE, CUT_OFF };

/// A parser with `size` items of `shown` ms each, in the order of time or in any; before them one that lasts,
/// or behind them one that ends the generation with an exception.
class Player {
public:
    Player(int size, Order order) {
        std::vector<int> numbers(static_cast<std::size_t>(size));
        std::iota(numbers.begin(), numbers.end(), 0);
        if (order == Order::SHUFFLED)
            std::shuffle(numbers.begin(), numbers.end(), std::mt19937(7));
        std::string text = "<tt xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div>";
        if (order == Order::UNDER_A_LASTING_ONE)
            text += "<p begin='0s' end='" + std::to_string(size) + "s'/>";
        for (const int number : numbers) {
            const int begin = static_cast<int>(lead) + number * spacing;
            text += "<p begin='" + std::to_string(begin) + "ms' end='" + std::to_string(begin + shown - 1) +
                    "ms'/>";
        }
        if (order == Order::CUT_OFF)
            text += "<p cff:forcedDisplayMode='neither'/>";
        text += "</div></body></tt>";
        x_ttml_create_new_parser(&handle);
        if (x_ttml_load_subtitle_from_data(handle, text.data(), static_cast<uint32_t>(text.size())) !=
            X_TTML_OK)
            std::abort();
        try {
            x_ttml_generate_text_display_item_sequence(handle, 0);
        } catch (const tessera::Exception&) {
            if (order != Order::CUT_OFF)
                throw;
        }
        x_ttml_destory_doc(handle);
    }
    ~Player() { x_ttml_delete_parser(handle); }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    x_ttml_handle handle = nullptr;
};

/// Times of one kind, in the order in which a viewer who seeks asks for them.
using Times = std::vector<std::uint32_t> (*)(int size);

std::vector<std::uint32_t> RandomTimes(int size, std::uint32_t first, std::uint32_t last) {
    std::mt19937 random(11);
    std::uniform_int_distribution<std::uint32_t> item(0, static_cast<std::uint32_t>(size) - 1);
    std::uniform_int_distribution<std::uint32_t> within(first, last);
    std::vector<std::uint32_t> times(4096);
    for (std::uint32_t& time : times)
        time = lead + item(random) * spacing + within(random);
    return times;
}

std::vector<std::uint32_t> OnScreen(int size) {
    return RandomTimes(size, 0, shown - 1);
}
std::vector<std::uint32_t> InGaps(int size) {
    return RandomTimes(size, shown, spacing - 1);
}
std::vector<std::uint32_t> BeforeTheFirst(int) {
    return {0, 1, lead - 1};
}
std::vector<std::uint32_t> AfterTheLast(int size) {
    return {lead + static_cast<std::uint32_t>(size) * spacing};
}
/// As a player asks: every 16 ms.
std::vector<std::uint32_t> InPlay(int size) {
    std::vector<std::uint32_t> times(4096);
    for (std::size_t i = 0; i < times.size(); ++i)
        times[i] = lead + static_cast<std::uint32_t>(i * 16 % (static_cast<std::size_t>(size) * spacing));
    return times;
}

/// A question at a time; the answer is there to be looked at.
using Ask = const void* (*)(x_ttml_handle handle, std::uint32_t time);

const void* AskForTheItem(x_ttml_handle handle, std::uint32_t time) {
    return x_ttml_get_display_item_by_time(handle, time);
}
const void* AskForAllOnScreen(x_ttml_handle handle, std::uint32_t time) {
    DisplayItem* items[4] = {};
    static_cast<const TtmlParser*>(handle)->uGetDisplayItemsOnScreen(items, 4, time);
    return items[0];
}
const void* AskForTheNextChange(x_ttml_handle handle, std::uint32_t time) {
    static std::optional<std::int32_t> change;
    change = static_cast<const TtmlParser*>(handle)->rGetNextChange(static_cast<std::int32_t>(time));
    return &change;
}

struct Kind {
    const char* name;
    Order order;
    Times times;
    Ask ask = AskForTheItem;
};

constexpr Kind kinds[] = {
    {"Sorted/InPlay", Order::SORTED, InPlay},
    {"Sorted/OnScreen", Order::SORTED, OnScreen},
    {"Sorted/InGaps", Order::SORTED, InGaps},
    {"Sorted/BeforeTheFirst", Order::SORTED, BeforeTheFirst},
    {"Sorted/AfterTheLast", Order::SORTED, AfterTheLast},
    {"Shuffled/InPlay", Order::SHUFFLED, InPlay},
    {"Shuffled/OnScreen", Order::SHUFFLED, OnScreen},
    {"Shuffled/InGaps", Order::SHUFFLED, InGaps},
    {"CutOff/OnScreen", Order::CUT_OFF, OnScreen},
    {"All/Sorted/OnScreen", Order::SORTED, OnScreen, AskForAllOnScreen},
    {"All/Sorted/InGaps", Order::SORTED, InGaps, AskForAllOnScreen},
    {"All/Shuffled/OnScreen", Order::SHUFFLED, OnScreen, AskForAllOnScreen},
    {"All/UnderALastingOne/OnScreen", Order::UNDER_A_LASTING_ONE, OnScreen, AskForAllOnScreen},
    {"NextChange/Sorted/OnScreen", Order::SORTED, OnScreen, AskForTheNextChange},
    {"NextChange/Shuffled/OnScreen", Order::SHUFFLED, OnScreen, AskForTheNextChange},
    {"NextChange/UnderALastingOne/InGaps", Order::UNDER_A_LASTING_ONE, InGaps, AskForTheNextChange},
};

void Measure(benchmark::State& state, const Kind& kind) {
    const int size = static_cast<int>(state.range(0));
    const Player player(size, kind.order);
    const std::vector<std::uint32_t> times = kind.times(size);
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kind.ask(player.handle, times[i]));
        i = i + 1 < times.size() ? i + 1 : 0;
    }
}

} // namespace

int main(int argc, char** argv) {
    x_ttml_init_xerces();
    std::vector<Ratio> ratios;
    for (const Kind& kind : kinds) {
        benchmark::RegisterBenchmark(kind.name, Measure, kind)->Arg(smallSize)->Arg(largeSize);
        const std::string name = kind.name;
        ratios.push_back(
            {name + "/" + std::to_string(largeSize), name + "/" + std::to_string(smallSize), growthLimit});
    }
    RunBenchmarks(argc, argv, ratios);
    x_ttml_uninit_xerces();
    return EXIT_SUCCESS;
}
