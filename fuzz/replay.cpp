// Runs a fuzz target over the files named, and those in the folders named: what the fuzzer found stays found without
// it.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesUnder(const std::vector<std::string>& places) {
    std::vector<fs::path> files;
    for (const std::string& place : places) {
        if (fs::is_directory(place)) {
            for (const auto& entry : fs::directory_iterator(place)) files.push_back(fs::absolute(entry.path()));
        } else if (fs::exists(place)) {
            files.push_back(fs::absolute(place));
        }
    }
    std::ranges::sort(files);
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<fs::path> files = FilesUnder({argv + 1, argv + argc});
    for (const fs::path& path : files) {
        std::cerr << path.string() << std::endl;  // before it runs, so that a crash tells which
        std::ifstream file(path, std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
    }
    std::cout << files.size() << " inputs replayed\n";
    return files.empty() ? 1 : 0;
}
