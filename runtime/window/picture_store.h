#pragma once

#include "menu/autorun_disc.h"
#include "menu/geometry.h"
#include "window/gdi_plus.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace tavmoor {

enum class PictureFit : std::uint8_t {
    Stretch,
    Cover, ///< keep the ratio and cut what stands over
};

/// The pictures of the package, scaled for the places where they stand. Only scaled copies are
/// kept; a picture that is missing, damaged or of unreasonable size counts as absent.
class PictureStore {
public:
    explicit PictureStore(AutorunDisc& disc) : disc_(disc) {}

    /// The picture's own size; empty when it is absent.
    [[nodiscard]] Extent NaturalSize(const std::string& name);

    /// The picture in the given size; nullptr when it is absent. The last size asked for is kept.
    [[nodiscard]] Gdiplus::Bitmap* Scaled(const std::string& name, Extent size, PictureFit fit);

private:
    struct Entry {
        Extent natural;
        Extent size;
        std::unique_ptr<Gdiplus::Bitmap> scaled;
    };

    Entry& Find(const std::string& name);

    AutorunDisc& disc_;
    std::map<std::string, Entry> entries_;
};

} // namespace tavmoor
