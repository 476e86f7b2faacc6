// Runs a fuzz target over saved inputs without libFuzzer, with any compiler:
//
//   date_read_fuzz_replay fuzz/corpus/date_read_fuzz [more files or folders]
//
// Each file (each file under a folder, in name order) is given once to
// LLVMFuzzerTestOneInput, in a buffer of exactly its size so that a sanitizer
// sees any read past the end. A target that finds a fault aborts, and so does
// a sanitizer when one is built in; the run fails. The slowest input is named
// at the end, since a slow one is how a quadratic path shows.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize) LLVMFuzzerInitialize(&argc, &argv);

    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        const fs::path arg = argv[i];
        if (fs::is_directory(arg)) {
            for (const auto& entry : fs::recursive_directory_iterator(arg))
                if (entry.is_regular_file()) inputs.push_back(entry.path());
        } else if (fs::is_regular_file(arg)) {
            inputs.push_back(arg);
        } else {
            std::fprintf(stderr, "replay: no such file or folder: %s\n", argv[i]);
            return 2;
        }
    }
    if (inputs.empty()) {
        std::fprintf(stderr, "replay: no inputs\n");
        return 2;
    }
    std::sort(inputs.begin(), inputs.end());

    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    std::uintmax_t bytes = 0;
    double slowestSeconds = 0;
    fs::path slowest;
    for (const fs::path& path : inputs) {
        std::ifstream in(path, std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        if (!in.good() && !in.eof()) {
            std::fprintf(stderr, "replay: cannot read %s\n", path.c_str());
            return 2;
        }
        // new[] of exactly the size, never a larger or shared buffer.
        const std::unique_ptr<std::uint8_t[]> data(new std::uint8_t[content.size()]);
        std::copy(content.begin(), content.end(), data.get());
        const auto before = Clock::now();
        LLVMFuzzerTestOneInput(data.get(), content.size());
        const double seconds = std::chrono::duration<double>(Clock::now() - before).count();
        if (seconds >= slowestSeconds) {
            slowestSeconds = seconds;
            slowest = path;
        }
        bytes += content.size();
    }
    const double total = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("replayed %zu inputs (%ju bytes) in %.3f s; slowest %.3f s: %s\n", inputs.size(), bytes, total,
                slowestSeconds, slowest.c_str());
    return 0;
}
