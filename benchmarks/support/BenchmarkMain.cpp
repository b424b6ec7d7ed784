// Entry point of every benchmark program. A second thread lives as long as the benchmarks run: without one the C++
// library counts references without atomic operations, which no program of several threads would see.

#include <benchmark/benchmark.h>

#include <future>
#include <thread>

int main(int argc, char ** argv)
{
    std::promise<void> done;
    std::thread second([over = done.get_future()] { over.wait(); });

    benchmark::Initialize(&argc, argv);
    bool const understood = !benchmark::ReportUnrecognizedArguments(argc, argv);
    if (understood)
        benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    done.set_value();
    second.join();
    return understood ? 0 : 1;
}
