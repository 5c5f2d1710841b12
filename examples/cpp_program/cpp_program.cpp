// Summarises dated values in C++ alone, and keeps them in a compressed file: cpp_program CSV FILE
// The lines of the CSV are "month/day/year,value"; the first may be a heading.
#include <Korvane_ZEB_engine/Korvane_ZEB_engine.hpp>

#include <cstdio>
#include <cstring>

namespace
{

struct Series {
    zeb::Array<std::int64_t> days; // Julian day numbers
    zeb::Array<double> values;
};

bool fail(const char *what, const char *path, const char *why)
{
    std::fprintf(stderr, "cpp_program: %s %s: %s\n", what, path, why);
    return false;
}

enum class Outcome { added, not_a_row, no_memory };

Outcome add_row(std::string_view line, Series &series)
{
    const auto comma = zeb::find(line, ",");
    if (!comma)
        return Outcome::not_a_row;
    const std::string_view date = zeb::trim(line.substr(0, *comma)),
                           number = zeb::trim(line.substr(*comma + 1));
    zeb::Date_And_Time instant;
    double value = 0;
    if (date.empty() || zeb::scan_slash_text(date, instant) != date.size() || number.empty() ||
        zeb::scan_number(number, value) != number.size())
        return Outcome::not_a_row;
    const bool is_kept = series.days.append(zeb::julian_day(instant.date)) && series.values.append(value);
    return is_kept ? Outcome::added : Outcome::no_memory;
}

bool read_csv(const char *path, Series &series)
{
    zeb::Array<std::uint8_t> contents;
    if (const int error = zeb::read_file(path, contents); error != 0)
        return fail("cannot read", path, std::strerror(error));
    const std::string_view text(reinterpret_cast<const char *>(contents.data()), contents.size());
    bool is_heading = true;
    for (const std::string_view line : zeb::Pieces(text, "\n")) {
        const Outcome outcome = zeb::trim(line).empty() ? Outcome::added : add_row(line, series);
        if (outcome == Outcome::no_memory)
            return fail("cannot read", path, "no memory");
        if (outcome == Outcome::not_a_row && !is_heading)
            return fail("cannot read", path, "a line is no date and value");
        is_heading = false;
    }
    return !series.values.empty() || fail("cannot use", path, "no dated values");
}

bool store(const Series &series, const char *path)
{
    zeb::Array<std::uint8_t> buffer, compressed;
    if (!zeb::append_header(buffer) || !zeb::append_record(buffer, series.days) ||
        !zeb::append_record(buffer, series.values) ||
        zeb::compress(buffer, compressed) != zeb::Compression_Status::done)
        return fail("cannot store", path, "no memory");
    const int error = zeb::replace_file(path, compressed); // the old file stays until the new one is whole
    return error == 0 || fail("cannot store", path, std::strerror(error));
}

bool load(const char *path, Series &series)
{
    zeb::Array<std::uint8_t> compressed, buffer;
    if (const int error = zeb::read_file(path, compressed); error != 0)
        return fail("cannot load", path, std::strerror(error));
    constexpr std::uint64_t bound = std::uint64_t{1} << 30; // a small file may claim to hold gigabytes
    if (zeb::decompress(compressed, buffer, bound) != zeb::Compression_Status::done)
        return fail("cannot load", path, "damaged");
    std::optional<zeb::Records> records = zeb::read_header(buffer);
    return (records && zeb::take_record(*records, series.days) && zeb::take_record(*records, series.values) &&
            series.days.size() == series.values.size()) ||
           fail("cannot load", path, "not a series");
}

bool print(const Series &series)
{
    const auto days = zeb::extrema(series.days);
    const auto values = zeb::extrema(series.values);
    const double half[] = {0.5};
    double median[1];
    if (!days || !values || !zeb::quantiles(series.values, half, median))
        return fail("cannot print", "the summary", "no memory");
    const auto first = zeb::date_of_julian_day(days->least), last = zeb::date_of_julian_day(days->greatest);
    if (!first || !last)
        return fail("cannot print", "the summary", "a day has no date");
    const auto statistics = zeb::statistics(series.values);
    std::printf("%zu values from %s to %s\n", series.values.size(), zeb::iso_text(*first).c_str(),
                zeb::iso_text(*last).c_str());
    std::printf("least %s, median %s, mean %s, greatest %s\n", zeb::shortest_text(values->least).c_str(),
                zeb::pretty_text(median[0]).c_str(), zeb::pretty_text(statistics.mean).c_str(),
                zeb::shortest_text(values->greatest).c_str());
    return std::fflush(stdout) == 0 || fail("cannot print", "the summary", "no room");
}

} // namespace

int main(int argument_count, char **arguments)
{
    if (argument_count != 3) {
        std::fputs("usage: cpp_program CSV FILE\n", stderr);
        return 2;
    }
    Series series, loaded;
    return read_csv(arguments[1], series) && store(series, arguments[2]) && load(arguments[2], loaded) &&
                   print(loaded)
               ? 0
               : 1;
}
