// Standard output led elsewhere for as long as the object lives: what the library writes goes there.
#ifndef XTTML_TESTS_HARDENING_REDIRECTED_OUTPUT_H
#define XTTML_TESTS_HARDENING_REDIRECTED_OUTPUT_H

#include <cstdio>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

class RedirectedOutput {
public:
    /// @param path what takes the output
    explicit RedirectedOutput(const char* path) : saved_(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)) {
        Flush();
        close(STDOUT_FILENO);
        open(path, O_WRONLY); // takes the lowest descriptor, the one just closed
    }
    ~RedirectedOutput() {
        Flush();
        dup2(saved_, STDOUT_FILENO);
        close(saved_);
        std::clearerr(stdout);
        std::cout.clear();
    }
    RedirectedOutput(const RedirectedOutput&) = delete;
    RedirectedOutput& operator=(const RedirectedOutput&) = delete;

private:
    static void Flush() {
        std::cout.flush();
        std::fflush(stdout);
    }

    int saved_;
};

#endif
