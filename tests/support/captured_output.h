// What a piece of code writes to standard output, through C or C++ streams.
#ifndef XTTML_TESTS_SUPPORT_CAPTURED_OUTPUT_H
#define XTTML_TESTS_SUPPORT_CAPTURED_OUTPUT_H

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>
#include <string>

/// Runs `action` and returns all it wrote to standard output. An exception ends the capture and passes on.
template <class Action>
std::string CapturedOutput(Action&& action) {
    std::cout.flush();
    testing::internal::CaptureStdout();
    try {
        action();
    } catch (...) {
        std::cout.flush();
        testing::internal::GetCapturedStdout();
        throw;
    }
    std::cout.flush();
    return testing::internal::GetCapturedStdout();
}

#endif
