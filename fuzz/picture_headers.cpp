// Any bytes as a picture: what is told lies in the file and within its limits, and a file that is
// cut off tells the same as the whole one or nothing.

#include "check.h"
#include "core/formats/bmp_header.h"
#include "core/formats/emf_header.h"
#include "core/formats/gif_header.h"
#include "core/formats/icon_directory.h"
#include "core/formats/jpg_header.h"
#include "core/formats/picture_format.h"
#include "core/formats/png_chunks.h"
#include "core/formats/wmf_header.h"
#include "menu/picture_size.h"

namespace {

using namespace tavmoor;

/// A size whose product can be told.
void CheckSize(PixelSize size) {
    constexpr std::int64_t Most = std::int64_t{1} << 31U;
    Check(size.width >= 0 && size.width <= Most && size.height >= 0 && size.height <= Most,
          "a size has at most 2^31 pixels to a side");
}

template <typename Header>
void CheckCut(const std::optional<Header>& cut, const std::optional<Header>& whole) {
    Check(!cut || (whole && cut->size == whole->size), "a cut file tells the size or nothing");
    if (whole) {
        CheckSize(whole->size);
    }
}

void CheckCut(std::optional<PixelSize> cut, std::optional<PixelSize> whole) {
    Check(!cut || cut == whole, "a cut file tells the size or nothing");
    CheckSize(whole.value_or(PixelSize{}));
}

void CheckRasters(std::string_view cut, std::string_view whole) {
    CheckCut(ReadJpgFrame(cut), ReadJpgFrame(whole));
    const JpgOutline cutJpg = OutlineJpg(cut);
    const JpgOutline jpg = OutlineJpg(whole);
    Check(cutJpg.scans <= jpg.scans && cutJpg.components <= jpg.components,
          "scans and components do not get fewer behind a cut");
    Check(!cutJpg.isEnded || (jpg.isEnded && cutJpg.scans == jpg.scans),
          "a jpg that has ended goes no further");
    Check(static_cast<std::size_t>(jpg.scans) <= whole.size() / 2, "each scan lies in the file");

    CheckCut(ReadGifHeader(cut), ReadGifHeader(whole));
    Check(!ReadGifHeader(cut) || !ReadGifHeader(cut)->isWhole || ReadGifHeader(whole)->isWhole,
          "a gif that is whole stays whole");

    CheckCut(ReadBmpHeader(cut), ReadBmpHeader(whole));
    if (const auto bitmap = ReadBitmapHeader(whole)) {
        Check(!bitmap->size.IsEmpty(), "a bitmap has pixels");
        const bool isPacked = bitmap->compression == 1 || bitmap->compression == 2;
        Check(!HoldsAllRows(*bitmap, whole) || isPacked ||
                  bitmap->size.width <= static_cast<std::int64_t>(whole.size()) * 8,
              "the rows of a bitmap lie in it");
    }
}

bool LiesIn(std::string_view part, std::string_view whole) {
    return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

void CheckIcons(std::string_view cut, std::string_view whole) {
    CheckCut(WidestIconPicture(cut), WidestIconPicture(whole));
    CheckCut(NearestIconPicture(cut, 32), NearestIconPicture(whole, 32));
    const auto widest = WidestIconPicture(whole);
    const auto nearest = NearestIconPicture(whole, 16);
    Check(widest.has_value() == nearest.has_value(), "every icon has both");
    if (!widest) {
        return;
    }
    for (const IconPicture& picture : {*widest, *nearest}) {
        Check(LiesIn(picture.bytes, whole) && LiesIn(picture.entry, whole) &&
                  !picture.bytes.empty() && picture.size.width <= widest->size.width,
              "a picture lies in its icon");
        const std::string file = SinglePictureFile(picture);
        const auto alone = WidestIconPicture(file);
        Check(alone ? alone->bytes == picture.bytes && alone->size == picture.size
                    : file == picture.bytes,
              "a picture is found again in a file of its own");
    }
}

void CheckMetafiles(std::string_view cut, std::string_view whole) {
    CheckCut(ReadEmfSize(cut), ReadEmfSize(whole));
    CheckCut(ReadWmfPlacing(cut), ReadWmfPlacing(whole));
    CheckCut(OutlineEmf(cut), OutlineEmf(whole));
    CheckCut(OutlineWmf(cut), OutlineWmf(whole));
    if (const auto emf = OutlineEmf(whole)) {
        Check(emf->recordCount <= whole.size() / 8 && !emf->size.IsEmpty(),
              "the records of an emf lie in it");
    }
    if (const auto wmf = OutlineWmf(whole)) {
        std::size_t at = wmf->records;
        for (std::size_t i = 0; i < wmf->recordCount; ++i) {
            const std::string_view record = WmfRecordAt(whole, at);
            Check(!record.empty() && LiesIn(record, whole), "the records of a wmf lie in it");
            at += record.size();
        }
        Check(wmf->frame.width != 0 && wmf->frame.height != 0, "a wmf has a frame to scale by");
    }
}

void CheckPng(std::string_view whole) {
    std::string png(whole);
    if (!KeepPixelChunks(png)) {
        return;
    }
    Check(png.size() <= whole.size() && png.substr(0, 8) == whole.substr(0, 8),
          "a png only loses chunks");
    std::string again = png;
    Check(KeepPixelChunks(again) && again == png, "what was kept is kept again");
}

void CheckAutorunSize(std::string_view whole) {
    if (const auto size = ReadPictureSize(whole)) {
        Check(!size->Empty() &&
                  static_cast<long long>(size->width) * size->height <= MostPicturePixels,
              "the autorun programs take no picture beyond their limit");
        Check(PictureFormatOf(whole) != PictureFormat::Unknown, "the picture has a known format");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // A byte in the middle says how much is cut off. A copy of its own for the cut file, since
    // reads beyond the end of a view into the whole one would not be found.
    const std::string whole(reinterpret_cast<const char*>(data), size);
    const std::size_t kept = size * (size > 0 ? data[size / 2] : 0U) / 256;
    const std::string cut = whole.substr(0, kept);
    CheckRasters(cut, whole);
    CheckIcons(cut, whole);
    CheckMetafiles(cut, whole);
    CheckPng(whole);
    CheckAutorunSize(whole);
    return 0;
}
