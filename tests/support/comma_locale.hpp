/// Locales that this machine may lack: the system's own compiler of locales makes them.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cstdlib>
#include <string>

/// Puts the locale in force for the category; false where it can neither be found nor made.
inline bool set_made_locale(int category, const std::string &name, const std::string &charset)
{
    const std::string folder = testing::TempDir() + "zeb_locales", locale = name + '.' + charset,
                      path = folder + '/' + locale;
    const std::string order = std::endian::native == std::endian::big ? "--big-endian" : "--little-endian";
    const std::string make = "mkdir -p '" + folder + "' && { test -d '" + path + "' || localedef " + order +
                             " -i " + name + " -f " + charset + " '" + path + "'; } >/dev/null 2>&1";
    setenv("LOCPATH", folder.c_str(), 1);
    return std::system(make.c_str()) == 0 && std::setlocale(category, locale.c_str()) != nullptr;
}

/// A locale with a decimal comma changes nothing: what the writers put is what the scanners read.
class Comma_Locale : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!set_made_locale(LC_NUMERIC, "de_DE", "UTF-8") || *std::localeconv()->decimal_point != ',')
            GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
    void TearDown() override
    {
        std::setlocale(LC_NUMERIC, "C");
        unsetenv("LOCPATH");
    }
};
