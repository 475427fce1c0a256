#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace zeltrona::tests {

/// Where flushing costs next to nothing, for tests that save thousands of times; the usual place where there
/// is none.
inline std::filesystem::path quickPlace() {
    const std::filesystem::path memory = "/dev/shm";
    return ::access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

/// A folder of its own for one test, gone afterwards.
class PlayFolder {
public:
    explicit PlayFolder(const std::filesystem::path& place = std::filesystem::temp_directory_path()) {
        std::string name = (place / "zeltrona-test-XXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~PlayFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    PlayFolder(const PlayFolder&) = delete;
    PlayFolder& operator=(const PlayFolder&) = delete;

    std::string path(std::string_view name = "play.zpf") const { return (m_path / name).string(); }
    std::string put(std::string_view bytes, std::string_view name = "play.zpf") const {
        std::ofstream(path(name), std::ios::binary | std::ios::trunc) << bytes;
        return path(name);
    }
    std::string get(std::string_view name = "play.zpf") const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// Everything in the folder but the file of this name.
    std::size_t othersThan(std::string_view name = "play.zpf") const {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(m_path)) {
            count += entry.path().filename() != name ? 1 : 0;
        }
        return count;
    }

private:
    std::filesystem::path m_path;
};

} // namespace zeltrona::tests
