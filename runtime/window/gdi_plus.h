#pragma once

// The picture library's headers need a few names from others, and are not written for strict
// warnings; they are included through here alone.
#include <windows.h>

#include <algorithm>
#include <objidl.h>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wall"
#pragma GCC diagnostic ignored "-Wextra"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wpedantic"
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>
#pragma GCC diagnostic pop
