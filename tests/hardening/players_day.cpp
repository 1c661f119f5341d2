// A player's day: documents are loaded, generated, asked, closed and deleted over and over in one process,
// whose memory at the end is what it was after the first rounds.
//
//   players_day ROUNDS DOCUMENT|FOLDER...
#include "api/x_ttml.h"
#include "tests/hardening/redirected_output.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <malloc.h>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t HELD_TOLERANCE =
    std::size_t{16} * 1024; // what the C library keeps for itself comes and goes
constexpr std::size_t RESIDENT_TOLERANCE = std::size_t{1024} * 1024; // and so do the pages of its heap
constexpr std::uint32_t LAST_SECOND = 20;

#ifdef XTTML_SANITIZED // the sanitizer holds back what is freed, and finds leaks by itself
constexpr bool IS_SANITIZED = true;
#else
constexpr bool IS_SANITIZED = false;
#endif

struct Document {
    std::string path;
    std::string bytes;
};

struct Memory {
    std::size_t held;     ///< bytes allocated
    std::size_t resident; ///< bytes of the process in memory
};

Memory Measure() {
    std::size_t resident = 0;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:")
            status >> resident;
    }
#if __GLIBC_PREREQ(2, 33)
    return {mallinfo2().uordblks, resident * 1024};
#else
    return {static_cast<unsigned>(mallinfo().uordblks), resident * 1024};
#endif
}

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Document> ReadDocuments(int count, char** paths) {
    std::vector<Document> documents;
    const auto add = [&documents](const fs::path& path) {
        const std::string extension = path.extension();
        if (extension == ".ttml" || extension == ".xml")
            documents.push_back({path, ReadFile(path)});
    };
    for (int i = 0; i < count; ++i) {
        if (!fs::is_directory(paths[i])) {
            add(paths[i]);
            continue;
        }
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(paths[i]))
            add(entry.path());
    }
    return documents;
}

bool Load(x_ttml_handle parser, const Document& document, bool fromFile) {
    if (!fromFile)
        return x_ttml_load_subtitle_from_data(parser, document.bytes.data(),
                                              static_cast<std::uint32_t>(document.bytes.size())) == X_TTML_OK;
    try {
        return x_ttml_load_subtitle_from_file(parser, document.path.c_str()) == X_TTML_OK;
    } catch (const tessera::DataSourceUnavailableException&) {
        return false;
    }
}

/// Plays a document and gives the number of times at which it shows something.
int Play(const Document& document, bool fromFile) {
    static constexpr char images[] = "\x89PNG one\x89PNG two";
    x_ttml_handle parser = nullptr;
    x_ttml_create_new_parser(&parser);
    x_ttml_set_document_buffer_info(parser, images, sizeof images - 1);
    int shown = 0;
    if (Load(parser, document, fromFile)) {
        try {
            x_ttml_generate_text_display_item_sequence(parser, 0);
            x_ttml_generate_image_display_item_sequence(parser, 0);
        } catch (const tessera::Exception&) { // an attribute that does not convert
        }
        for (std::uint32_t second = 0; second < LAST_SECOND; ++second) {
            const DisplayItem* const item = x_ttml_get_display_item_by_time(parser, second * 1000);
            shown += item && item->fgCheckTimeInfo(static_cast<std::int32_t>(second * 1000)) ? 1 : 0;
            x_ttml_combine_same_time_item(parser);
        }
    }
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    return shown;
}

long PlayRounds(const std::vector<Document>& documents, long first, long last) {
    long shown = 0;
    for (long round = first; round < last; ++round)
        shown += Play(documents[static_cast<std::size_t>(round / 2) % documents.size()], round % 2 != 0);
    return shown;
}

bool IsFlat(const Memory& before, const Memory& after) {
    return after.held <= before.held + HELD_TOLERANCE &&
           after.resident <= before.resident + RESIDENT_TOLERANCE;
}

} // namespace

int main(int count, char** arguments) {
    const long rounds = count > 1 ? std::atol(arguments[1]) : 0;
    const std::vector<Document> documents = ReadDocuments(count - 2, arguments + 2);
    if (rounds < 1 || documents.empty()) {
        std::fputs("usage: players_day ROUNDS DOCUMENT|FOLDER...\n", stderr);
        return 2;
    }
    const long warmUp = static_cast<long>(2 * documents.size()); // each document in both ways
    Memory before = {};
    Memory after = {};
    long shown = 0;
    {
        const RedirectedOutput silence("/dev/null");
        x_ttml_init_xerces();
        PlayRounds(documents, 0, warmUp);
        before = Measure();
        shown = PlayRounds(documents, warmUp, warmUp + rounds);
        after = Measure();
        x_ttml_uninit_xerces();
    }
    std::printf("%zu documents, %ld rounds, %ld seconds with something on screen\n", documents.size(), rounds,
                shown);
    std::printf("allocated: %zu bytes before, %zu after\n", before.held, after.held);
    std::printf("resident:  %zu bytes before, %zu after\n", before.resident, after.resident);
    return shown > 0 && (IS_SANITIZED || IsFlat(before, after)) ? 0 : 1;
}
