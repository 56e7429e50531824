#pragma once

#include "menu/autorun_disc.h"

#include <windows.h>

#include <vector>

namespace tavmoor {

/// The package's fonts, usable by this program alone and for as long as this object lives.
class PackageFonts {
public:
    explicit PackageFonts(AutorunDisc& disc);
    PackageFonts(const PackageFonts&) = delete;
    PackageFonts& operator=(const PackageFonts&) = delete;
    ~PackageFonts();

private:
    std::vector<HANDLE> fonts_;
};

} // namespace tavmoor
