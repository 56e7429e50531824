#include "core/formats/picture_format.h"

#include <array>

namespace tavmoor {

namespace {

using namespace std::string_view_literals;

struct Signature {
    std::size_t at;
    std::string_view bytes;
    PictureFormat format;
};

constexpr std::array Signatures{
    Signature{0, "\xFF\xD8\xFF"sv, PictureFormat::Jpeg},
    Signature{0, "GIF87a"sv, PictureFormat::Gif},
    Signature{0, "GIF89a"sv, PictureFormat::Gif},
    Signature{0, "\x89PNG\r\n\x1A\n"sv, PictureFormat::Png},
    Signature{40, " EMF"sv, PictureFormat::Emf},
    Signature{0, "\xD7\xCD\xC6\x9A"sv, PictureFormat::Wmf},
    Signature{0, "\x01\0\x09\0\0\x03"sv, PictureFormat::Wmf},
    Signature{0, "\x01\0\x09\0\0\x01"sv, PictureFormat::Wmf},
    Signature{0, "\0\0\x01\0"sv, PictureFormat::Icon},
    Signature{0, "\0\0\x02\0"sv, PictureFormat::Cursor},
    Signature{0, "BM"sv, PictureFormat::Bmp},
};

} // namespace

PictureFormat PictureFormatOf(std::string_view bytes) {
    for (const Signature& signature : Signatures) {
        if (bytes.size() >= signature.at &&
            bytes.substr(signature.at).starts_with(signature.bytes)) {
            return signature.format;
        }
    }
    return PictureFormat::Unknown;
}

} // namespace tavmoor
