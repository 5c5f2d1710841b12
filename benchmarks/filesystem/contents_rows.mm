/// Whole files read and written, 4 KiB and 64 MiB.
#include "benchmarks/filesystem/entries.hpp"
#include "benchmarks/filesystem/filesystem_rows.hpp"

#include <fcntl.h>
#include <unistd.h>
#include <vector>

#if ZEB_HAS_QT
#include <QFile>
#endif

namespace zeb_bench
{
namespace
{

/// The bytes of a file, and where it is.
struct Sample {
    std::string name;
    std::vector<char> bytes;
    std::string path;

    Sample(std::string size_name, size_t size) : name(std::move(size_name)), bytes(size, 'x')
    {
        path = bench_path(name);
        ZEB_File *const file = entry_at(path);
        [file write_contents:bytes.data() length:static_cast<uint32_t>(size)];
    }
};

void add_reading(const Sample *sample, double greatest_share)
{
    ZEB_File *const file = entry_at(sample->path);
    ZEB_Byte_Array *const target = [[ZEB_Byte_Array alloc] init];
    Row row("read " + sample->name, Measure::Bytes, static_cast<double>(sample->bytes.size()));
    row.goal_over("QFile::readAll", 1 / greatest_share).framework([=] {
        [file read_contents:target];
        return [target count];
    });
#if ZEB_HAS_QT
    row.peer("QFile::readAll", [=] {
        QFile other(QString::fromStdString(sample->path));
        other.open(QIODevice::ReadOnly);
        return other.readAll().size();
    });
#endif
    char *const room = new char[sample->bytes.size()];
    row.limit("read", [=] {
        const int other = open(sample->path.c_str(), O_RDONLY);
        const ssize_t count = read(other, room, sample->bytes.size());
        close(other);
        return count;
    });
}

void add_writing(const Sample *sample)
{
    ZEB_File *const file = entry_at(sample->path);
    const auto size = static_cast<uint32_t>(sample->bytes.size());
    Row row("write " + sample->name, Measure::Bytes, size);
    row.goal_over("QFile::write", 1).framework([=] {
        return [file write_contents:sample->bytes.data() length:size];
    });
#if ZEB_HAS_QT
    row.peer("QFile::write", [=] {
        QFile other(QString::fromStdString(sample->path));
        other.open(QIODevice::WriteOnly);
        return other.write(sample->bytes.data(), size);
    });
#endif
    row.limit("write", [=] {
        const int other = open(sample->path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        const ssize_t count = write(other, sample->bytes.data(), size);
        close(other);
        return count;
    });
}

} // namespace

void add_contents_rows()
{
    static const Sample small("4 KiB", 4 << 10), large("64 MiB", 64 << 20);
    add_reading(&small, 0.7);
    add_reading(&large, 1.05);
    add_writing(&small);
    add_writing(&large);
}

} // namespace zeb_bench
