// Runs a fuzzer over files and over the files in folders, for compilers without libFuzzer.
#include "fuzz/fuzzer.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> InputsAt(const fs::path& path) {
    if (!fs::is_directory(path))
        return {path};
    std::vector<fs::path> inputs;
    for (const fs::directory_entry& entry : fs::directory_iterator(path)) {
        if (entry.is_regular_file())
            inputs.push_back(entry.path());
    }
    return inputs;
}

void Replay(const fs::path& input) {
    std::fprintf(stderr, "%s\n", input.c_str());
    std::ifstream file(input, std::ios::binary);
    file.exceptions(std::ios::badbit);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int count, char** arguments) {
    if (LLVMFuzzerInitialize(&count, &arguments) != 0)
        return 1;
    std::size_t replayed = 0;
    for (int i = 1; i < count; ++i) {
        for (const fs::path& input : InputsAt(arguments[i])) {
            Replay(input);
            ++replayed;
        }
    }
    return replayed > 0 ? 0 : 1;
}
