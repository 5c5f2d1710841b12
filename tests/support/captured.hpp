/// What is written onto a standard stream, or read from one, while a piece of code runs.
#pragma once

#include <cstdio>
#include <string>
#include <unistd.h>

namespace support
{

/// Puts a temporary file in the place of a standard stream for as long as this object lives; an input stream
/// reads the given text.
class Redirection
{
public:
    explicit Redirection(FILE *stream, const char *given = "") : stream(stream), file(std::tmpfile())
    {
        std::fputs(given, file);
        std::rewind(file);
        std::fflush(stream);
        std::clearerr(stream);
        saved = dup(fileno(stream));
        dup2(fileno(file), fileno(stream));
    }

    ~Redirection()
    {
        std::fflush(stream);
        dup2(saved, fileno(stream));
        close(saved);
        std::fclose(file);
    }

    Redirection(const Redirection &) = delete;
    Redirection &operator=(const Redirection &) = delete;

    /// What was written so far.
    std::string text()
    {
        std::fflush(stream);
        std::rewind(file);
        std::string read;
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
            read.push_back(static_cast<char>(c));
        return read;
    }

private:
    FILE *const stream;
    FILE *const file;
    int saved;
};

template <class Work>
std::string standard_error_of(Work work)
{
    Redirection redirected(stderr);
    work();
    return redirected.text();
}

template <class Work>
std::string standard_output_of(Work work)
{
    Redirection redirected(stdout);
    work();
    return redirected.text();
}

} // namespace support
