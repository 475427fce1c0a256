#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int replay(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    std::printf("%s\n", file.c_str());
    std::fflush(stdout); // the name stands even if the input brings the program down
    return LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

/// Hands every file of the folders and files named to the fuzz target, once. Fails when there was none.
int main(int count, char** arguments) try {
    int seen = 0;
    for (int i = 1; i < count; ++i) {
        const std::filesystem::path given(arguments[i]);
        if (!std::filesystem::is_directory(given)) {
            replay(given);
            ++seen;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(given)) {
            replay(entry.path());
            ++seen;
        }
    }
    std::printf("%d inputs\n", seen);
    return seen > 0 ? 0 : 1;
} catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
}
