/// A process whose locale has a decimal comma.
#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

/// A locale with a decimal comma changes nothing: what the writers put is what the scanners read.
class Comma_Locale : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8", "fr_FR"})
            if (std::setlocale(LC_NUMERIC, name) && *std::localeconv()->decimal_point == ',')
                return;
        if (!make_locale())
            GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
    void TearDown() override
    {
        std::setlocale(LC_NUMERIC, "C");
        unsetenv("LOCPATH");
    }

private:
    /// Where none is installed the system's own compiler of locales may make one.
    static bool make_locale()
    {
        const std::string folder = testing::TempDir() + "zeb_locales";
        const std::string command = "mkdir -p '" + folder + "' && { test -d '" + folder +
                                    "/de_DE.UTF-8' || localedef -i de_DE -f UTF-8 '" + folder +
                                    "/de_DE.UTF-8'; } >/dev/null 2>&1";
        if (std::system(command.c_str()) != 0)
            return false;
        setenv("LOCPATH", folder.c_str(), 1);
        return std::setlocale(LC_NUMERIC, "de_DE.UTF-8") && *std::localeconv()->decimal_point == ',';
    }
};
