#include "support/pe_image.h"

namespace tavmoor::test {

namespace {

constexpr std::uint32_t ResourceAddress = 0x3000;
constexpr std::uint32_t IsFolder = 0x80000000U;
constexpr std::uint32_t VersionType = 16;

std::string Section(std::string name, std::int64_t address, std::size_t size, std::size_t offset) {
    name.resize(8);
    const auto bytes = static_cast<std::int64_t>(size);
    return name + Longs({bytes, address, bytes, static_cast<std::int64_t>(offset), 0, 0, 0, 0});
}

std::string Folder(std::int64_t number, std::int64_t place) {
    return Longs({0, 0, 0}) + Words({0, 1}) + Longs({number, place});
}

std::string ResourceSection(const std::string& versionResource) {
    constexpr std::uint32_t folderSize = 24;
    constexpr std::uint32_t dataEntry = 3 * folderSize;
    return Folder(VersionType, IsFolder | folderSize) + Folder(1, IsFolder | 2 * folderSize) +
           Folder(0x0409, dataEntry) +
           Longs({ResourceAddress + dataEntry + 16,
                  static_cast<std::int64_t>(versionResource.size()), 0, 0}) +
           versionResource;
}

void AppendHeaders(PeImage& image, PeKind kind) {
    const bool wide = kind == PeKind::Pe32Plus;
    const std::uint32_t countAt = wide ? 108 : 92;
    const std::uint32_t optionalSize = countAt + 4 + 16 * 8;
    std::string& bytes = image.bytes;
    image.signature = bytes.size();
    image.sectionCount = image.signature + 6;
    image.optionalSize = image.signature + 20;
    image.magic = image.signature + 24;
    image.directoryCount = image.magic + countAt;
    bytes += std::string("PE\0\0", 4) + Words({wide ? 0x8664 : 0x014C, 2}) + Longs({0, 0, 0}) +
             Words({optionalSize, 0x0102, wide ? 0x20B : 0x10B});
    bytes.resize(image.directoryCount);
    bytes += Longs({16, 0, 0, 0, 0, ResourceAddress});
    bytes.resize(image.magic + optionalSize);
    image.sectionTable = bytes.size();
}

} // namespace

std::string VersionNode(std::u16string_view key, const std::string& value, bool isText,
                        const std::vector<std::string>& children) {
    const auto length = static_cast<std::int64_t>(isText ? value.size() / 2 : value.size());
    std::string node = Words({0, length, isText ? 1 : 0}) + Utf16Bytes(key);
    std::vector<std::string> parts = children;
    if (!value.empty()) {
        parts.insert(parts.begin(), value);
    }
    for (const std::string& part : parts) {
        node.resize((node.size() + 3) / 4 * 4);
        node += part;
    }
    node.replace(0, 2, Words({static_cast<std::int64_t>(node.size())}));
    return node;
}

std::string Utf16Bytes(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += Words({unit});
    }
    return bytes + Words({0});
}

std::string VersionResource(const std::vector<std::string>& children) {
    std::string fixed = Longs({0xFEEF04BD});
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
                     {VersionNode(u"Translation", Words({0x0409, 0x04B0}), false)})});
}

PeImage MakePeImage(const std::string& versionResource, PeKind kind) {
    PeImage image;
    image.bytes = "MZ";
    image.bytes.resize(64);
    AppendHeaders(image, kind);
    image.Put32(image.newHeaderOffset, image.signature);

    const std::string resources = ResourceSection(versionResource);
    image.typeFolder = image.sectionTable + 2 * 40;
    image.nameFolder = image.typeFolder + 24;
    image.languageFolder = image.nameFolder + 24;
    image.dataEntry = image.languageFolder + 24;
    image.resource = image.dataEntry + 16;
    image.bytes += Section(".text", 0x1000, 0, 0) +
                   Section(".rsrc", ResourceAddress, resources.size(), image.typeFolder) +
                   resources;
    return image;
}

} // namespace tavmoor::test
