#pragma once

namespace tavmoor {

/// A width and a height; pixels unless the place says otherwise.
struct Extent {
    int width = 0;
    int height = 0;

    [[nodiscard]] bool Empty() const noexcept { return width <= 0 || height <= 0; }
    bool operator==(const Extent&) const = default;
};

/// A rectangle of a window, in pixels of its client area.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int Right() const noexcept { return x + width; }
    [[nodiscard]] int Bottom() const noexcept { return y + height; }
    [[nodiscard]] bool Empty() const noexcept { return width <= 0 || height <= 0; }
    [[nodiscard]] bool Contains(int px, int py) const noexcept {
        return px >= x && px < Right() && py >= y && py < Bottom();
    }
    [[nodiscard]] Box Moved(int dx, int dy) const noexcept {
        return {x + dx, y + dy, width, height};
    }
    /// The box with its sides moved inwards; never of negative size.
    [[nodiscard]] Box Inset(int horizontal, int vertical) const noexcept {
        const int w = width - 2 * horizontal;
        const int h = height - 2 * vertical;
        return {x + horizontal, y + vertical, w > 0 ? w : 0, h > 0 ? h : 0};
    }
    bool operator==(const Box&) const = default;
};

/// A length given for 96 dpi in pixels of a screen.
constexpr int ToPixels(int length, int dpi) {
    constexpr int base = 96;
    const long long scaled = static_cast<long long>(length) * dpi;
    return static_cast<int>((scaled + base / 2) / base);
}

/// The largest extent with the ratio of `wanted` that lies within `most`; `wanted` itself when it
/// fits already.
inline Extent ShrinkInto(Extent wanted, Extent most) noexcept {
    if (wanted.Empty() || (wanted.width <= most.width && wanted.height <= most.height)) {
        return wanted;
    }
    const long long byWidth = static_cast<long long>(wanted.height) * most.width / wanted.width;
    if (byWidth <= most.height) {
        return {most.width, static_cast<int>(byWidth)};
    }
    const long long byHeight = static_cast<long long>(wanted.width) * most.height / wanted.height;
    return {static_cast<int>(byHeight), most.height};
}

} // namespace tavmoor
