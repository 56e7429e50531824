#include "support/pe_image.h"

namespace tavmoor::test {

namespace {

constexpr std::uint32_t ResourceAddress = 0x3000;
constexpr std::uint32_t IsFolder = 0x80000000U;
constexpr std::uint32_t VersionType = 16;

void Append16(std::string& bytes, std::uint32_t value) {
    bytes += static_cast<char>(value & 0xFFU);
    bytes += static_cast<char>(value >> 8U & 0xFFU);
}

void Append32(std::string& bytes, std::uint32_t value) {
    Append16(bytes, value & 0xFFFFU);
    Append16(bytes, value >> 16U);
}

void Align(std::string& bytes, std::size_t unit) {
    bytes.resize((bytes.size() + unit - 1) / unit * unit);
}

void AppendSection(std::string& bytes, std::string_view name, std::uint32_t address,
                   std::uint32_t size, std::uint32_t offset) {
    std::string padded(name);
    padded.resize(8);
    bytes += padded;
    Append32(bytes, size);
    Append32(bytes, address);
    Append32(bytes, size);
    Append32(bytes, offset);
    bytes.resize(bytes.size() + 16);
}

void AppendFolder(std::string& bytes, std::uint32_t number, std::uint32_t place) {
    bytes.resize(bytes.size() + 12);
    Append16(bytes, 0);
    Append16(bytes, 1);
    Append32(bytes, number);
    Append32(bytes, place);
}

std::string ResourceSection(const std::string& versionResource) {
    constexpr std::uint32_t folderSize = 24;
    constexpr std::uint32_t dataEntry = 3 * folderSize;
    std::string bytes;
    AppendFolder(bytes, VersionType, IsFolder | folderSize);
    AppendFolder(bytes, 1, IsFolder | 2 * folderSize);
    AppendFolder(bytes, 0x0409, dataEntry);
    Append32(bytes, ResourceAddress + dataEntry + 16);
    Append32(bytes, static_cast<std::uint32_t>(versionResource.size()));
    bytes.resize(bytes.size() + 8);
    return bytes + versionResource;
}

void AppendHeaders(PeImage& image, PeKind kind) {
    const bool wide = kind == PeKind::Pe32Plus;
    const std::uint32_t countAt = wide ? 108 : 92;
    const std::uint32_t optionalSize = countAt + 4 + 16 * 8;
    std::string& bytes = image.bytes;
    image.signature = bytes.size();
    bytes += std::string("PE\0\0", 4);
    Append16(bytes, wide ? 0x8664 : 0x014C);
    image.sectionCount = bytes.size();
    Append16(bytes, 2);
    bytes.resize(bytes.size() + 12);
    image.optionalSize = bytes.size();
    Append16(bytes, optionalSize);
    Append16(bytes, 0x0102);
    image.magic = bytes.size();
    Append16(bytes, wide ? 0x20B : 0x10B);
    image.directoryCount = image.magic + countAt;
    bytes.resize(image.directoryCount);
    Append32(bytes, 16);
    bytes.resize(image.directoryCount + 4 + 2 * 8);
    Append32(bytes, ResourceAddress);
    bytes.resize(image.magic + optionalSize);
    image.sectionTable = bytes.size();
}

} // namespace

std::string VersionNode(std::u16string_view key, const std::string& value, bool isText,
                        const std::vector<std::string>& children) {
    std::string node;
    Append16(node, 0);
    Append16(node, static_cast<std::uint32_t>(isText ? value.size() / 2 : value.size()));
    Append16(node, isText ? 1 : 0);
    node += Utf16Bytes(key);
    if (!value.empty()) {
        Align(node, 4);
        node += value;
    }
    for (const std::string& child : children) {
        Align(node, 4);
        node += child;
    }
    node[0] = static_cast<char>(node.size() & 0xFFU);
    node[1] = static_cast<char>(node.size() >> 8U & 0xFFU);
    return node;
}

std::string Utf16Bytes(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text) {
        Append16(bytes, unit);
    }
    Append16(bytes, 0);
    return bytes;
}

std::string TranslationBytes(std::uint16_t language, std::uint16_t codePage) {
    std::string bytes;
    Append16(bytes, language);
    Append16(bytes, codePage);
    return bytes;
}

std::string VersionResource(const std::vector<std::string>& children) {
    std::string fixed;
    Append32(fixed, 0xFEEF04BD);
    fixed.resize(52);
    return VersionNode(u"VS_VERSION_INFO", fixed, false, children);
}

std::string VersionResourceOf(std::u16string_view companyName) {
    return VersionResource(
        {VersionNode(u"StringFileInfo", "", true,
                     {VersionNode(u"040904b0", "", true,
                                  {VersionNode(u"FileVersion", Utf16Bytes(u"7.90"), true),
                                   VersionNode(u"CompanyName", Utf16Bytes(companyName), true)})}),
         VersionNode(u"VarFileInfo", "", true,
                     {VersionNode(u"Translation", TranslationBytes(0x0409, 0x04B0), false)})});
}

PeImage& PeImage::Put16(std::size_t offset, std::uint16_t value) {
    bytes[offset] = static_cast<char>(value & 0xFFU);
    bytes[offset + 1] = static_cast<char>(value >> 8U);
    return *this;
}

PeImage& PeImage::Put32(std::size_t offset, std::uint32_t value) {
    Put16(offset, static_cast<std::uint16_t>(value & 0xFFFFU));
    return Put16(offset + 2, static_cast<std::uint16_t>(value >> 16U));
}

PeImage MakePeImage(const std::string& versionResource, PeKind kind) {
    PeImage image;
    image.bytes = "MZ";
    image.bytes.resize(64);
    AppendHeaders(image, kind);
    image.Put32(image.newHeaderOffset, static_cast<std::uint32_t>(image.signature));

    const std::string resources = ResourceSection(versionResource);
    image.typeFolder = image.sectionTable + 2 * 40;
    image.nameFolder = image.typeFolder + 24;
    image.languageFolder = image.nameFolder + 24;
    image.dataEntry = image.languageFolder + 24;
    image.resource = image.dataEntry + 16;
    AppendSection(image.bytes, ".text", 0x1000, 0, 0);
    AppendSection(image.bytes, ".rsrc", ResourceAddress,
                  static_cast<std::uint32_t>(resources.size()),
                  static_cast<std::uint32_t>(image.typeFolder));
    image.bytes += resources;
    return image;
}

} // namespace tavmoor::test
