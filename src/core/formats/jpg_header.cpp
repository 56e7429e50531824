#include "core/formats/jpg_header.h"

#include "core/formats/byte_view.h"

#include <algorithm>

namespace tavmoor {

namespace {

// Markers, the byte behind 0xFF.
constexpr std::uint8_t ProgressiveFrame = 0xC2;
constexpr std::uint8_t ProgressiveArithmeticFrame = 0xCA;
constexpr std::uint8_t FirstRestart = 0xD0;
constexpr std::uint8_t Begin = 0xD8;
constexpr std::uint8_t End = 0xD9;
constexpr std::uint8_t Scan = 0xDA;

bool IsFrame(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}
bool IsProgressive(std::uint8_t marker) {
    return marker == ProgressiveFrame || marker == ProgressiveArithmeticFrame;
}
bool HasSegment(std::uint8_t marker) {
    return marker >= 0xC0 && !(marker >= FirstRestart && marker <= Begin);
}

/// Steps through the markers of a file as decoders do: what lies between two segments, such as the
/// picture's data, is passed over up to the next 0xFF that is followed by anything but 0.
class Markers {
public:
    explicit Markers(std::string_view bytes) : bytes_(bytes) {}

    /// @return the next marker, 0 at the end of the file
    std::uint8_t Next() {
        if (HasSegment(marker_)) {
            at_ += ByteView(bytes_).BigU16(at_);
        }
        do {
            at_ = bytes_.find_first_not_of('\xFF', bytes_.find('\xFF', at_));
            if (at_ == std::string_view::npos) {
                marker_ = 0;
                break;
            }
            marker_ = ByteView(bytes_).U8(at_++);
        } while (marker_ == 0);
        return marker_;
    }
    /// What follows the marker, from the segment's length on.
    [[nodiscard]] ByteView Segment() const { return ByteView(bytes_.substr(at_)); }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    std::uint8_t marker_ = 0;
};

/// The frame in the segment behind its marker; nothing when the file ends within it.
std::optional<JpgFrame> FrameIn(const ByteView& segment, std::uint8_t marker) {
    constexpr std::size_t LeastBytes = 8;
    if (!segment.Has(0, LeastBytes)) {
        return std::nullopt;
    }
    return JpgFrame{{segment.BigU16(5), segment.BigU16(3)}, segment.U8(7), IsProgressive(marker)};
}

} // namespace

std::optional<JpgFrame> ReadJpgFrame(std::string_view jpg) {
    Markers markers(jpg);
    for (auto marker = markers.Next(); marker != 0; marker = markers.Next()) {
        if (IsFrame(marker)) {
            return FrameIn(markers.Segment(), marker);
        }
        if (marker == Scan || marker == End) {
            break;
        }
    }
    return std::nullopt;
}

JpgOutline OutlineJpg(std::string_view jpg) {
    JpgOutline outline;
    Markers markers(jpg);
    for (auto marker = markers.Next(); marker != 0; marker = markers.Next()) {
        if (marker == End) {
            outline.isEnded = true;
            break;
        }
        if (IsFrame(marker)) {
            const JpgFrame frame = FrameIn(markers.Segment(), marker).value_or(JpgFrame{});
            outline.components = std::max(outline.components, frame.components);
            outline.isInSeveralScans = outline.isInSeveralScans || frame.isProgressive;
        } else if (marker == Scan) {
            const std::uint8_t components = markers.Segment().U8(2);
            outline.isInSeveralScans = outline.isInSeveralScans || components < outline.components;
            ++outline.scans;
        }
    }
    return outline;
}

} // namespace tavmoor
