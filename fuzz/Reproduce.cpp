// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a target on the files of the folders given, in the order of their names, without a fuzzer:
// what was once found stays mended.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n);

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> ficheros;
    for (int i = 1; i < argc; ++i)
        for (const auto& f : std::filesystem::directory_iterator(argv[i]))
            if (f.is_regular_file()) ficheros.push_back(f.path());
    std::sort(ficheros.begin(), ficheros.end());
    for (const auto& f : ficheros) {
        std::ifstream entrada(f, std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(entrada), {});
        std::fprintf(stderr, "%s\n", f.filename().c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    }
    std::printf("%zu files\n", ficheros.size());
    return ficheros.empty() ? 1 : 0;
}
