// The two functions through which libFuzzer, and the replayer in its place, drive a fuzzer.
#ifndef XTTML_FUZZ_FUZZER_H
#define XTTML_FUZZ_FUZZER_H

#include <cstddef>
#include <cstdint>

/// Runs once, before the first input: standard output goes to /dev/null, the XML library is initialised.
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments);

/// Runs the library on one input and returns 0, or ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

#endif
