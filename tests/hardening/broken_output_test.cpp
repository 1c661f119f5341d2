// A player whose standard output is full, closed or a pipe that nobody reads plays on.
#include "api/x_ttml.h"
#include "tests/hardening/redirected_output.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <pthread.h>
#include <sys/wait.h>

namespace {

constexpr char DOCUMENT[] = "<tt xmlns:tts='http://www.w3.org/ns/ttml#styling'><body><div>"
                            "<p begin='1s' end='2s' tts:fontSize='20px'>text</p></div></body></tt>";

/// Loads from a file and from memory and tells whether the paragraph is shown both times.
bool Plays(const std::string& path) {
    x_ttml_handle parser = nullptr;
    x_ttml_init_xerces();
    bool isShown = x_ttml_create_new_parser(&parser) == X_TTML_OK;
    for (const bool fromFile : {true, false}) {
        const int status = fromFile ? x_ttml_load_subtitle_from_file(parser, path.c_str())
                                    : x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
        x_ttml_generate_text_display_item_sequence(parser, fromFile ? 0 : 10000);
        const DisplayItem* const item = x_ttml_get_display_item_by_time(parser, fromFile ? 1500 : 11500);
        isShown = isShown && status == X_TTML_OK && item && item->styling.uFontSize == 20;
        x_ttml_destory_doc(parser);
    }
    isShown = isShown && x_ttml_load_subtitle_from_data(parser, "<tt>", 4) == X_TTML_UNUSABLE;
    x_ttml_delete_parser(parser);
    x_ttml_uninit_xerces();
    x_ttml_uninit_xerces();
    return isShown;
}

class BrokenOutput : public testing::TestWithParam<const char*> {};

TEST_P(BrokenOutput, ChangesNothing) {
    const TemporaryFile file(DOCUMENT);
    for (const auto raised : {std::ios::goodbit, std::ios::badbit}) {
        bool plays = true;
        {
            const RedirectedOutput broken(GetParam());
            std::cout.exceptions(raised);
            for (int day = 0; day < 50; ++day) // more lines than the streams hold back
                plays = Plays(file.path) && plays;
            std::cout.exceptions(std::ios::goodbit);
        }
        EXPECT_TRUE(plays);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, BrokenOutput, testing::Values("/dev/full", static_cast<const char*>(nullptr)),
                         [](const auto& kind) { return kind.param ? "Full" : "Closed"; });

TEST(BrokenPipe, ChangesNothingForAPlayerThatIgnoresTheSignal) {
    const TemporaryFile file(DOCUMENT);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    const auto previous = std::signal(SIGPIPE, SIG_IGN);
    bool plays = false;
    {
        const RedirectedOutput broken(("/dev/fd/" + std::to_string(ends[1])).c_str());
        plays = Plays(file.path);
    }
    close(ends[1]);
    std::signal(SIGPIPE, previous);
    EXPECT_TRUE(plays);
}

/// Loads a document in a thread that is to end at the first line which it writes.
void* LoadCancelled(void* parser) {
    pthread_cancel(pthread_self());
    x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
    return nullptr;
}

/// Whether a thread can be cancelled while it loads, and the parser used by another one.
bool SurvivesACancelledLoad() {
    const RedirectedOutput silence("/dev/null");
    std::setvbuf(stdout, nullptr, _IONBF, 0); // each line is written at once
    x_ttml_handle parser = nullptr;
    x_ttml_init_xerces();
    x_ttml_create_new_parser(&parser);
    pthread_t thread{};
    void* result = nullptr;
    const bool isCancelled = pthread_create(&thread, nullptr, LoadCancelled, parser) == 0 &&
                             pthread_join(thread, &result) == 0 && result == PTHREAD_CANCELED;
    x_ttml_destory_doc(parser);
    const bool plays = x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1) == X_TTML_OK;
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    return isCancelled && plays;
}

TEST(CancelledThread, EndsInsideALoad) {
    const pid_t child = fork();
    if (child == 0)
        _exit(SurvivesACancelledLoad() ? EXIT_SUCCESS : EXIT_FAILURE);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS) << status;
}

} // namespace
