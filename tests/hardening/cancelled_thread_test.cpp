// A thread that is cancelled while the library writes a line.
#include "api/x_ttml.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char DOCUMENT[] = "<tt xmlns:tts='http://www.w3.org/ns/ttml#styling'><body><div>"
                            "<p begin='1s' end='2s' tts:fontSize='20px'>text</p></div></body></tt>";

/// Loads a document in a thread that is to end at the first line which it writes.
void* LoadCancelled(void* parser) {
    pthread_cancel(pthread_self());
    x_ttml_load_subtitle_from_data(parser, DOCUMENT, sizeof DOCUMENT - 1);
    return nullptr;
}

/// Whether a thread can be cancelled while it loads, and the parser used by another one.
bool SurvivesACancelledLoad() {
    std::setvbuf(std::freopen("/dev/null", "w", stdout), nullptr, _IONBF, 0); // each line is written at once
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
