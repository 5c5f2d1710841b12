/// Runs a fuzz target over the files of a corpus, where libFuzzer is not at hand: in the tests.
#include "fuzz/fuzz.hpp"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto &entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string input(std::istreambuf_iterator<char>(file), {});
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
            ++count;
        }
    std::printf("%d inputs\n", count);
    return count == 0 ? 1 : 0;
}
