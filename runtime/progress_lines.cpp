#include "runtime/progress_lines.h"

#include <cstddef>
#include <cstdio>
#include <exception>
#include <iostream>

namespace tessera {

namespace {

constexpr std::size_t USUAL_LINE = 128;

LineFunction lineFunction = nullptr;
void* lineContext = nullptr;

// In one piece where it fits, so that the lines of two threads stay whole. Unformatted: neither the width nor
// the locale of the stream counts.
void Put(std::string_view line) {
    char whole[USUAL_LINE];
    if (line.size() < sizeof whole) {
        whole[line.copy(whole, line.size())] = '\n';
        std::cout.write(whole, static_cast<std::streamsize>(line.size() + 1));
    } else {
        std::cout.write(line.data(), static_cast<std::streamsize>(line.size())).put('\n');
    }
}

// Standard exceptions alone: the unwinding of a cancelled thread must pass on where it can.
template <class Write>
void Quietly(Write&& write) {
    try {
        write();
    } catch (const std::exception&) { // the program has asked std::cout for exceptions
    }
}

// Where a program has taken the lines to; else standard output.
template <class Write>
void WriteOrHandOn(std::string_view line, Write&& write) {
    if (lineFunction) {
        lineFunction(lineContext, line.data(), line.size());
    } else {
        write(line);
    }
}

} // namespace

void SetLineFunction(LineFunction function, void* context) {
    lineFunction = function;
    lineContext = context;
}

void WriteLine(std::string_view line) {
    WriteOrHandOn(line, [](std::string_view text) {
        Quietly([text] {
            Put(text);
            std::cout.flush();
        });
    });
}

void WriteLineUnflushed(std::string_view line) {
    WriteOrHandOn(line, [](std::string_view text) { Quietly([text] { Put(text); }); });
}

void WriteLoadingLine(const char* line) {
    WriteOrHandOn(line, [line](std::string_view) { std::puts(line); });
}

} // namespace tessera
