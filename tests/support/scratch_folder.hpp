/// A folder of a test's own, removed with all that is in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace support
{

class Scratch_Folder
{
public:
    explicit Scratch_Folder(const std::filesystem::path &place = std::filesystem::temp_directory_path())
    {
        std::string name = (place / "zeb-test-XXXXXX").string();
        path = mkdtemp(name.data());
    }

    ~Scratch_Folder() { std::filesystem::remove_all(path); }

    Scratch_Folder(const Scratch_Folder &) = delete;
    Scratch_Folder &operator=(const Scratch_Folder &) = delete;

    std::string operator/(const std::string &name) const { return path + "/" + name; }

    std::string path;
};

/// Where flushing takes no time, if the system has such a file system.
inline std::filesystem::path place_in_memory()
{
    const std::filesystem::path in_memory = "/dev/shm";
    return is_directory(in_memory) ? in_memory : std::filesystem::temp_directory_path();
}

inline void put_file(const std::string &path, const std::string &contents)
{
    std::ofstream(path, std::ios::binary) << contents;
}

inline std::string file_text(const std::string &path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

} // namespace support
