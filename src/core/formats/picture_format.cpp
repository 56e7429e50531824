#include "core/formats/picture_format.h"

#include <algorithm>
#include <array>

namespace tavmoor {

namespace {

using namespace std::string_view_literals;

struct Signature {
    std::string_view bytes;
    PictureFormat format;
};

constexpr std::array Signatures{
    Signature{"\xFF\xD8\xFF"sv, PictureFormat::Jpeg},
    Signature{"GIF87a"sv, PictureFormat::Gif},
    Signature{"GIF89a"sv, PictureFormat::Gif},
    Signature{"\x89PNG\r\n\x1A\n"sv, PictureFormat::Png},
    Signature{"\xD7\xCD\xC6\x9A"sv, PictureFormat::Wmf},
    Signature{"\x01\0\x09\0\0\x03"sv, PictureFormat::Wmf},
    Signature{"\x01\0\x09\0\0\x01"sv, PictureFormat::Wmf},
    Signature{"\0\0\x01\0"sv, PictureFormat::Icon},
    Signature{"\0\0\x02\0"sv, PictureFormat::Cursor},
    Signature{"BM"sv, PictureFormat::Bmp},
};

/// The first record of an emf is its header, which has the signature in its middle.
bool IsEmf(std::string_view bytes) {
    constexpr std::size_t SignatureAt = 40;
    return bytes.starts_with("\x01\0\0\0"sv) && bytes.size() >= SignatureAt &&
           bytes.substr(SignatureAt).starts_with(" EMF");
}

} // namespace

PictureFormat PictureFormatOf(std::string_view bytes) {
    if (IsEmf(bytes)) {
        return PictureFormat::Emf;
    }
    const auto* const found =
        std::find_if(Signatures.begin(), Signatures.end(), [&](const Signature& signature) {
            return bytes.starts_with(signature.bytes);
        });
    return found == Signatures.end() ? PictureFormat::Unknown : found->format;
}

} // namespace tavmoor
