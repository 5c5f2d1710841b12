/// What nearly every test of classes uses: values to and from the framework's, and what goes onto the
/// streams.
#pragma once

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/ints.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

using namespace support;
