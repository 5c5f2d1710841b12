#include "filesystem/engine/open_directory.hpp"

#include "filesystem/engine/interrupted_calls.hpp"

#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

Entry_Type type_of(const struct dirent &entry) noexcept
{
    switch (entry.d_type) {
    case DT_DIR:
        return Entry_Type::directory;
    case DT_LNK:
        return Entry_Type::link;
    case DT_UNKNOWN:
        return Entry_Type::unknown;
    default:
        return Entry_Type::other;
    }
}

bool is_the_directory_or_its_parent(const char *name) noexcept
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

} // namespace

int Directory_Names::read_all(DIR *stream)
{
    errno = 0;
    while (const struct dirent *const entry = readdir(stream)) {
        if (!is_the_directory_or_its_parent(entry->d_name)) {
            characters.push_back(static_cast<char>(type_of(*entry)));
            characters.insert(characters.end(), entry->d_name,
                              entry->d_name + std::strlen(entry->d_name) + 1);
        }
        errno = 0;
    }
    return errno;
}

void Directory_Names::advance() noexcept { next += std::strlen(name()) + 2; }

Open_Directory::Open_Directory(Open_Directory &&other) noexcept
    : file(other.file), stream(other.stream), is_identified(other.is_identified), device(other.device),
      number(other.number)
{
    other.file = -1;
    other.stream = nullptr;
}

int Open_Directory::open(int parent, const char *name, Links links) noexcept
{
    const int flags =
        O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC | (links == Links::are_entries ? O_NOFOLLOW : 0);
    file = uninterrupted([&] { return ::openat(parent, name, flags); });
    return file < 0 ? errno : 0;
}

int Open_Directory::read_names(Directory_Names &names)
{
    stream = fdopendir(file);
    return stream != nullptr ? names.read_all(stream) : errno;
}

bool Open_Directory::is_same_as(Open_Directory &other) noexcept
{
    return identify() == 0 && other.identify() == 0 && device == other.device && number == other.number;
}

int Open_Directory::suspend() noexcept
{
    const int error = identify();
    if (error == 0)
        close();
    return error;
}

int Open_Directory::resume(const Open_Directory &child) noexcept
{
    Open_Directory parent;
    const int error = parent.open(child.file, "..", Links::are_entries);
    if (error != 0)
        return error;
    if (!parent.is_same_as(*this))
        return ESTALE;
    file = parent.file;
    parent.file = -1;
    return 0;
}

int Open_Directory::identify() noexcept
{
    struct stat found;
    if (is_identified)
        return 0;
    if (fstat(file, &found) != 0)
        return errno;
    device = found.st_dev;
    number = found.st_ino;
    is_identified = true;
    return 0;
}

void Open_Directory::close() noexcept
{
    if (stream != nullptr)
        closedir(stream);
    else if (file >= 0)
        ::close(file);
    stream = nullptr;
    file = -1;
}

} // namespace zeb::engine
