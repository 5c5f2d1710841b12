/// An open directory and the names in it.
#pragma once

#include "filesystem/engine/directory_walk.hpp"

#include <dirent.h>
#include <sys/types.h>
#include <vector>

namespace zeb::engine
{

/// The names that a directory held when it was read, one after the other.
class Directory_Names
{
public:
    /// Appends the names that are left in a stream, but not "." and "..". Returns 0 or the platform's error.
    int read_all(DIR *stream);

    bool has_next() const noexcept { return next < characters.size(); }
    const char *name() const noexcept { return characters.data() + next + 1; }
    Entry_Type type() const noexcept { return static_cast<Entry_Type>(characters[next]); }
    void advance() noexcept;

private:
    // Of each entry its type, its name and a null.
    std::vector<char> characters;
    std::size_t next = 0;
};

/// A directory's descriptor, which can be closed for a while.
class Open_Directory
{
public:
    Open_Directory() = default;
    ~Open_Directory() { close(); }
    Open_Directory(Open_Directory &&other) noexcept;
    Open_Directory &operator=(Open_Directory &&) = delete;

    /// Opens `name` in the directory `parent`. Returns 0 or the platform's error.
    int open(int parent, const char *name, Links links) noexcept;

    /// Reads the names of a directory that was just opened.
    int read_names(Directory_Names &names);

    /// Whether both are the same directory.
    bool is_same_as(Open_Directory &other) noexcept;

    /// Closes the descriptor, and opens it again as the parent of `child`. Returns 0 or the platform's error;
    /// ESTALE if that is another directory by now.
    int suspend() noexcept;
    int resume(const Open_Directory &child) noexcept;

    int descriptor() const noexcept { return file; }

private:
    int identify() noexcept;
    void close() noexcept;

    int file = -1;
    DIR *stream = nullptr; // owns the descriptor if there is one
    bool is_identified = false;
    dev_t device = 0;
    ino_t number = 0;
};

} // namespace zeb::engine
