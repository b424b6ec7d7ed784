// Runs a fuzz target once over each file of the folders and files named on the command line, and over cut and changed
// copies of each, in a fixed order. For compilers without libFuzzer.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size);

namespace {

void Run(std::vector<std::uint8_t> const & bytes)
{
    // Its own block of exactly this size, so that a checker sees a read past the end.
    std::vector<std::uint8_t> const exact(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

std::vector<std::uint8_t> Read(std::filesystem::path const & path)
{
    std::ifstream in(path, std::ios::binary);
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace

int main(int argc, char ** argv)
{
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i) {
        std::filesystem::path const path(argv[i]);
        if (!std::filesystem::is_directory(path))
            files.push_back(path);
        else
            for (auto const & entry : std::filesystem::directory_iterator(path))
                files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    if (files.empty()) {
        std::fprintf(stderr, "no seeds\n");
        return 1;
    }

    constexpr int changedCopies = 40;
    std::mt19937 random;
    for (auto const & file : files) {
        std::vector<std::uint8_t> const seed = Read(file);
        Run(seed);
        for (int i = 0; i < changedCopies && !seed.empty(); ++i) {
            std::vector<std::uint8_t> copy = seed;
            copy.resize(1 + random() % copy.size());
            for (auto n = random() % 3; n > 0; --n)
                copy[random() % copy.size()] = static_cast<std::uint8_t>(random());
            Run(copy);
        }
    }
    std::printf("%zu seeds\n", files.size());
    return 0;
}
