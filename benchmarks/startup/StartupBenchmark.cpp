// From start to end of a process that links the library and does nothing, against the same process without the
// library: one that links what the library stands on (Qt Core, ICU, oneTBB), and an empty one. Processor time of the
// process itself, kernel included.

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char ** environ;

namespace {

constexpr int starts = 60;  // a repetition

double Seconds(timeval const & time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Processor time of a process; negative if it failed.
double Run(char const * program)
{
    char * const arguments[] = {const_cast<char *>(program), nullptr};
    pid_t process = 0;
    int status = -1;
    rusage usage{};
    if (posix_spawn(&process, program, nullptr, nullptr, arguments, environ) != 0 ||
        wait4(process, &status, 0, &usage) != process || status != 0)
        return -1;
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

// Each round starts all programs, so that they find the same caches, and counts one.
void Start(benchmark::State & state, int counted)
{
    static constexpr char const * programs[] = {START_LINKED, START_DEPENDENCIES, START_EMPTY};
    for (auto _ : state) {
        for (int i = 0; i < 3; ++i) {
            double const seconds = Run(programs[i]);
            if (seconds < 0)
                return state.SkipWithError("the process failed");
            if (i == counted)
                state.SetIterationTime(seconds);
        }
    }
}

}  // namespace

BENCHMARK_CAPTURE(Start, linked, 0)
    ->Name("process that links and does nothing/ours")
    ->Iterations(starts)
    ->UseManualTime();
BENCHMARK_CAPTURE(Start, dependencies, 1)
    ->Name("process that links and does nothing/peer:Qt Core, ICU and oneTBB alone")
    ->Iterations(starts)
    ->UseManualTime();
BENCHMARK_CAPTURE(Start, empty, 2)
    ->Name("process that links and does nothing/peer:an empty process")
    ->Iterations(starts)
    ->UseManualTime();
