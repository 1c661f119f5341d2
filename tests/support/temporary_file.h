// A file that lives as long as the object.
#ifndef XTTML_TESTS_SUPPORT_TEMPORARY_FILE_H
#define XTTML_TESTS_SUPPORT_TEMPORARY_FILE_H

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& content = "") {
        const int descriptor = mkstemp(path.data());
        if (descriptor < 0)
            throw std::runtime_error("cannot make a temporary file");
        FILE* const file = fdopen(descriptor, "wb");
        std::fwrite(content.data(), 1, content.size(), file);
        std::fclose(file);
    }
    ~TemporaryFile() { std::remove(path.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::vector<unsigned char> Bytes() const {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    std::string path = "/tmp/xttml-test-XXXXXX";
};

#endif
