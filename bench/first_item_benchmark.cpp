// The time from loading the library to its first answer, in processes of their own, beside the bare parse of
// the same document from the start of the XML library on.
#include "api/x_ttml.h"
#include "bench/bare_parse.h"
#include "bench/comparison.h"
#include "bench/subtitle_document.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <dlfcn.h>

namespace {

constexpr int paragraphs = 2000;
constexpr int rounds = 15;
constexpr double limit = 0.80;

template <class Function>
Function* Find(void* library, const char* name) {
    void* const address = dlsym(library, name);
    if (!address)
        throw std::runtime_error(dlerror());
    return reinterpret_cast<Function*>(address);
}

void AnswerOnce(const char* path, const std::string& text) {
    void* const library = dlopen(path, RTLD_NOW);
    if (!library)
        throw std::runtime_error(dlerror());
    x_ttml_handle handle = nullptr;
    Find<decltype(x_ttml_init_xerces)>(library, "x_ttml_init_xerces")();
    Find<decltype(x_ttml_create_new_parser)>(library, "x_ttml_create_new_parser")(&handle);
    Find<decltype(x_ttml_load_subtitle_from_data)>(library, "x_ttml_load_subtitle_from_data")(
        handle, text.data(), static_cast<uint32_t>(text.size()));
    Find<decltype(x_ttml_generate_text_display_item_sequence)>(
        library, "x_ttml_generate_text_display_item_sequence")(handle, 0);
    if (!Find<decltype(x_ttml_get_display_item_by_time)>(library, "x_ttml_get_display_item_by_time")(handle,
                                                                                                     1000))
        throw std::runtime_error("no item");
}

void ParseOnce(const std::string& text) {
    xercesc::XMLPlatformUtils::Initialize();
    BareParse(text);
}

/// Does one of both and tells the microseconds of processor time on standard error.
void Work(const char* library) {
    const std::string text = SubtitleDocument(paragraphs);
    if (!std::freopen("/dev/null", "w", stdout))
        throw std::runtime_error("cannot drop standard output");
    const std::clock_t start = std::clock();
    if (library)
        AnswerOnce(library, text);
    else
        ParseOnce(text);
    std::cerr << (std::clock() - start) * 1000000 / CLOCKS_PER_SEC << "\n";
}

/// The microseconds of a run of this program.
double Run(const std::string& command) {
    std::FILE* const output = popen((command + " 2>&1").c_str(), "r");
    char line[64] = "";
    const bool answered = output && std::fgets(line, sizeof line, output);
    if (!output || pclose(output) != 0 || !answered)
        throw std::runtime_error(command + " failed");
    return std::atof(line);
}

bool Compare(const std::string& program, const std::string& library) {
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        const double parse = Run(program + " --parse");
        ratios.push_back(Run(program + " --answer " + library) / parse);
    }
    return PrintRow("first answer from dlopen on : bare parse, " + std::to_string(paragraphs) + " paragraphs",
                    Median(ratios), limit);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::string task = argc > 1 ? argv[1] : "";
        if (task == "--answer" && argc == 3)
            Work(argv[2]);
        else if (task == "--parse")
            Work(nullptr);
        else
            return Compare(argv[0], XTTML_LIBRARY) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& exception) {
        std::cerr << exception.what() << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
