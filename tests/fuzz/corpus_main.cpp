// Feeds a reader with every file of its corpus once: the regression run, with any compiler. A crash, a
// sanitizer's finding or what the reader throws ends it. A file may take a second (the sanitizers apart).

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::uint8_t> BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

double SecondsFor(const std::vector<std::uint8_t>& bytes) {
    const auto start = std::chrono::steady_clock::now();
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv) {
    constexpr double limit = SAGOMI_FUZZ_SECONDS;
    std::size_t fed = 0;
    int slow = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& file : FilesOf(argv[i])) {
            ++fed;
            const double seconds = SecondsFor(BytesOf(file));
            if (seconds < limit)
                continue;
            std::cerr << file.string() << ": " << seconds << " s\n";
            ++slow;
        }
    std::cout << fed << " files\n";
    return fed > 0 && slow == 0 ? 0 : 1;
}
