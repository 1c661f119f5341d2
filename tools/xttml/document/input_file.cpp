#include "tools/xttml/document/input_file.h"

#include "tools/xttml/document/unusable_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace xttml {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string ReadAll(std::FILE* file, const std::string& name, std::size_t most) {
    std::string bytes;
    char buffer[1U << 16U];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file)) {
        bytes.append(buffer, count);
        if (bytes.size() > most)
            throw UnusableFile(name, "more than " + std::to_string(most) + " bytes");
    }
    if (std::ferror(file) != 0)
        throw UnusableFile(name, std::strerror(errno));
    return bytes;
}

} // namespace

std::string ReadFile(const std::string& path, std::size_t most) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    if (!file)
        throw UnusableFile(path, std::strerror(errno));
    return ReadAll(file.get(), path, most);
}

std::string ReadStandardInput(std::size_t most) {
    return ReadAll(stdin, "-", most);
}

} // namespace xttml
