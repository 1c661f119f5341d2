/* Counts what does not hold in a program that tests, in C or C++. */
#ifndef XTTML_TESTS_API_EXPECT_H
#define XTTML_TESTS_API_EXPECT_H

#include <stdio.h>

static int failures = 0;

static void expect(int holds, const char *file, int line, const char *what) {
    if (!holds) {
        fprintf(stderr, "%s:%d: %s\n", file, line, what);
        ++failures;
    }
}
#define EXPECT(condition) expect((condition) ? 1 : 0, __FILE__, __LINE__, #condition)

#endif
