// Runs the exhaustive comparisons: exhaustive [sweep|all] [i/n] [threads=2]
//
// i/n takes the i-th of n parts (from 1) of each sweep, every n-th block of inputs. Prints one line per sweep
// and exits with 1 at the first difference, with 2 for arguments it does not understand.

#include "tests/exhaustive/sweeps.hpp"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace
{

constexpr std::uint64_t block_size = 1 << 16;

struct Part {
    std::uint64_t number = 1; // from 1
    std::uint64_t count = 1;
};

struct Outcome {
    std::atomic<std::uint64_t> inputs{0};
    std::atomic<bool> failed{false};
    std::mutex mutex;
    std::string difference;
};

void run_blocks(const sweeps::Sweep &sweep, Part part, std::atomic<std::uint64_t> &next_block,
                Outcome &outcome)
{
    while (!outcome.failed) {
        const std::uint64_t block = next_block++ * part.count + part.number - 1;
        const std::uint64_t first = block * block_size;
        if (first >= sweep.inputs)
            return;
        const std::uint64_t last = std::min(first + block_size, sweep.inputs);
        const std::string difference = sweeps::first_difference(sweep, first, last);
        outcome.inputs += last - first;
        if (difference.empty())
            continue;
        const std::lock_guard<std::mutex> lock(outcome.mutex);
        outcome.failed = true;
        outcome.difference = difference;
    }
}

bool passes(const sweeps::Sweep &sweep, Part part, unsigned thread_count)
{
    std::atomic<std::uint64_t> next_block{0};
    Outcome outcome;
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < thread_count; ++i)
        threads.emplace_back([&] { run_blocks(sweep, part, next_block, outcome); });
    for (std::thread &thread : threads)
        thread.join();
    if (outcome.failed)
        std::printf("%s: differs at %s\n", sweep.name, outcome.difference.c_str());
    else
        std::printf("%s: %llu inputs, no difference\n", sweep.name,
                    static_cast<unsigned long long>(outcome.inputs.load()));
    std::fflush(stdout);
    return !outcome.failed;
}

bool read_part(const char *text, Part &part)
{
    unsigned long long number = 0, count = 0;
    if (std::sscanf(text, "%llu/%llu", &number, &count) != 2 || number < 1 || number > count)
        return false;
    part = {number, count};
    return true;
}

} // namespace

int main(int argument_count, char **arguments)
{
    std::string wanted = "all";
    Part part;
    unsigned thread_count = 2;
    for (int i = 1; i < argument_count; ++i) {
        const std::string argument = arguments[i];
        if (argument.rfind("threads=", 0) == 0)
            thread_count = std::max(1, std::atoi(argument.c_str() + 8));
        else if (argument.find('/') == std::string::npos)
            wanted = argument;
        else if (!read_part(argument.c_str(), part))
            wanted.clear();
    }
    bool known = false;
    for (const sweeps::Sweep &sweep : sweeps::all_sweeps()) {
        if (wanted != "all" && wanted != sweep.name)
            continue;
        known = true;
        if (!passes(sweep, part, thread_count))
            return 1;
    }
    if (!known)
        std::fprintf(stderr, "usage: exhaustive [sweep|all] [i/n] [threads=2]\n");
    return known ? 0 : 2;
}
