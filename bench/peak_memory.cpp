#include "bench/peak_memory.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

long PeakMemoryOf(const std::string& task, int paragraphs) {
    const std::string count = std::to_string(paragraphs);
    const pid_t child = fork();
    if (child == 0) {
        execl("/proc/self/exe", "load_generate_benchmark", task.c_str(), count.c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    const bool succeeded = child > 0 && wait4(child, &status, 0, &usage) == child && WIFEXITED(status) &&
                           WEXITSTATUS(status) == 0;
    return succeeded ? usage.ru_maxrss : -1;
}
