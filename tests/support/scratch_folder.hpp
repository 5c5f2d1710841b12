/// A folder of a test's own, removed with all that is in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace support
{

class Scratch_Folder
{
public:
    Scratch_Folder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "zeb-test-XXXXXX").string();
        path = mkdtemp(name.data());
    }

    ~Scratch_Folder() { std::filesystem::remove_all(path); }

    Scratch_Folder(const Scratch_Folder &) = delete;
    Scratch_Folder &operator=(const Scratch_Folder &) = delete;

    std::string operator/(const std::string &name) const { return path + "/" + name; }

    std::string path;
};

inline void put_file(const std::string &path, const std::string &contents)
{
    std::ofstream(path, std::ios::binary) << contents;
}

inline std::string file_text(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace support
