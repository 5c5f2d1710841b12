/// What is written onto a standard stream, or read from one, while a piece of code runs.
#pragma once

#include <cstdio>
#include <string>
#include <unistd.h>

namespace support
{

/// Redirects a file descriptor into a temporary file and gives back what went there.
class Captured_Output
{
public:
    explicit Captured_Output(FILE *stream) : stream(stream), file(std::tmpfile())
    {
        std::fflush(stream);
        saved = dup(fileno(stream));
        dup2(fileno(file), fileno(stream));
    }

    ~Captured_Output()
    {
        restore();
        std::fclose(file);
    }

    Captured_Output(const Captured_Output &) = delete;
    Captured_Output &operator=(const Captured_Output &) = delete;

    std::string text()
    {
        restore();
        std::string read;
        std::rewind(file);
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
            read.push_back(static_cast<char>(c));
        return read;
    }

private:
    void restore()
    {
        if (saved < 0)
            return;
        std::fflush(stream);
        dup2(saved, fileno(stream));
        close(saved);
        saved = -1;
    }

    FILE *stream;
    FILE *file;
    int saved = -1;
};

/// Lets the process read a text as its standard input for as long as this object lives.
class Given_Input
{
public:
    explicit Given_Input(const char *text) : file(std::tmpfile()), saved(dup(STDIN_FILENO))
    {
        std::fputs(text, file);
        std::rewind(file);
        dup2(fileno(file), STDIN_FILENO);
        std::clearerr(stdin);
    }

    ~Given_Input()
    {
        dup2(saved, STDIN_FILENO);
        close(saved);
        std::fclose(file);
    }

private:
    FILE *file;
    int saved;
};

template <class Work>
std::string standard_error_of(Work work)
{
    Captured_Output captured(stderr);
    work();
    return captured.text();
}

template <class Work>
std::string standard_output_of(Work work)
{
    Captured_Output captured(stdout);
    work();
    return captured.text();
}

} // namespace support
