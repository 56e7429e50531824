#pragma once

#include <cstddef>
#include <string_view>

namespace tavmoor::package_format {

// The package `Autorun.arn`: a head of lines, then the bytes of all files back to back. Each line
// of the head ends in three CR LF, but for the last one ("[Kraj]"), which keeps two: the data
// begins right behind them.

inline constexpr std::string_view Title = "TAVMOOR PACKAGE";
inline constexpr std::string_view HeadStart = "[Pocetak]";
inline constexpr std::string_view HeadEnd = "[Kraj]";
inline constexpr std::string_view LineEnd = "\r\n\r\n\r\n";
inline constexpr std::string_view HeadEndLineEnd = "\r\n\r\n";

/// The head is written with a third CR LF behind "[Kraj]", which the first two data bytes replace.
/// What fewer data bytes leave of it still stands at the package's end.
inline constexpr std::string_view ReplacedLineEnd = "\r\n";

/// Files are copied in blocks of this many bytes, with a turn for waiting events behind each.
inline constexpr std::size_t BlockSize = 65500;

/// The working array has 21 slots, of which the last one in use is "" and closes the list.
inline constexpr std::size_t ListSlots = 21;
inline constexpr std::size_t MostFiles = ListSlots - 1;

/// What a reader puts up with, far above what any build writes.
inline constexpr std::size_t MostHeadBytes = 1U << 20U;
inline constexpr std::size_t MostReadFiles = 4096;
inline constexpr std::size_t MostSizeDigits = 19;

inline constexpr std::string_view PackageName = "Autorun.arn";
inline constexpr std::string_view ConfigurationName = "tavmoor.cfg";

} // namespace tavmoor::package_format
