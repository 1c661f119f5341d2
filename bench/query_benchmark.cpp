// A query by time, which must not grow with the sequence.
#include "api/x_ttml_items.h"
#include "bench/comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int smallSize = 100;
constexpr int largeSize = 50000;
constexpr double growthLimit = 2;
constexpr int queries = 4096; // a turn
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
        const int expected = order == Order::CUT_OFF ? int(X_TTML_BAD_VALUE) : int(X_TTML_OK);
        if (x_ttml_try_generate_text(handle, 0) != expected)
            std::abort();
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
using Ask = std::int64_t (*)(x_ttml_handle handle, std::uint32_t time);

std::int64_t AskForTheItem(x_ttml_handle handle, std::uint32_t time) {
    return x_ttml_get_display_item_by_time(handle, time) != nullptr;
}
std::int64_t AskForAllOnScreen(x_ttml_handle handle, std::uint32_t time) {
    DisplayItem* items[4] = {};
    return x_ttml_get_items_on_screen(handle, items, 4, static_cast<std::int32_t>(time));
}
std::int64_t AskForTheNextChange(x_ttml_handle handle, std::uint32_t time) {
    return x_ttml_get_next_change(handle, static_cast<std::int32_t>(time));
}

struct Kind {
    const char* name;
    Order order;
    Times times;
    Ask ask = AskForTheItem;
};

constexpr Kind kinds[] = {
    {"in play", Order::SORTED, InPlay},
    {"on screen", Order::SORTED, OnScreen},
    {"in gaps", Order::SORTED, InGaps},
    {"before the first", Order::SORTED, BeforeTheFirst},
    {"after the last", Order::SORTED, AfterTheLast},
    {"shuffled, in play", Order::SHUFFLED, InPlay},
    {"shuffled, on screen", Order::SHUFFLED, OnScreen},
    {"shuffled, in gaps", Order::SHUFFLED, InGaps},
    {"cut off, on screen", Order::CUT_OFF, OnScreen},
    {"all on screen", Order::SORTED, OnScreen, AskForAllOnScreen},
    {"all in gaps", Order::SORTED, InGaps, AskForAllOnScreen},
    {"all on screen, shuffled", Order::SHUFFLED, OnScreen, AskForAllOnScreen},
    {"all on screen, under a lasting one", Order::UNDER_A_LASTING_ONE, OnScreen, AskForAllOnScreen},
    {"next change", Order::SORTED, OnScreen, AskForTheNextChange},
    {"next change, shuffled", Order::SHUFFLED, OnScreen, AskForTheNextChange},
    {"next change, under a lasting one", Order::UNDER_A_LASTING_ONE, InGaps, AskForTheNextChange},
};

/// Asks for one time after the other.
std::function<void()> Queries(const Kind& kind, int size) {
    const auto player = std::make_shared<Player>(size, kind.order);
    return [player, ask = kind.ask, times = kind.times(size), i = std::size_t{0}]() mutable {
        benchmark::DoNotOptimize(ask(player->handle, times[i]));
        i = i + 1 < times.size() ? i + 1 : 0;
    };
}

} // namespace

int main(int argc, char** argv) {
    x_ttml_init_xerces();
    std::vector<Comparison> comparisons;
    for (const Kind& kind : kinds)
        comparisons.push_back({std::string("a query, 50000 items : 100 items, ") + kind.name, growthLimit,
                               [kind] {
                                   return Turns{Queries(kind, smallSize), Queries(kind, largeSize)};
                               },
                               1, 0, queries});
    const int status = RunComparisons(argc, argv, comparisons);
    x_ttml_uninit_xerces();
    return status;
}
