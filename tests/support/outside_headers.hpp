/// What most tests include from outside, which is precompiled.
#pragma once

#include "core/outside_headers.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>
