#pragma once

#include "package/name_scrambling.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavmoor::test {

struct PackedFile {
    std::string name;
    std::string size; ///< as the head says it
    std::string bytes;

    PackedFile(std::string fileName, std::string content)
        : name(std::move(fileName)), size(std::to_string(content.size())),
          bytes(std::move(content)) {}
    PackedFile(std::string fileName, std::string headSize, std::string content)
        : name(std::move(fileName)), size(std::move(headSize)), bytes(std::move(content)) {}
};

/// The head of a package up to its first data byte.
inline std::string PackageHead(const std::vector<PackedFile>& files) {
    const std::string lineEnd = "\r\n\r\n\r\n";
    std::string head = "TAVMOOR PACKAGE" + lineEnd + "[Pocetak]" + lineEnd;
    for (const PackedFile& file : files) {
        head += ScrambleText(file.name) + lineEnd + ScrambleText(file.size) + lineEnd;
    }
    return head + "[Kraj]\r\n\r\n";
}

/// A package as the build writes it: what fewer than two data bytes leave of the head's last line
/// end stands behind them.
inline std::string PackageBytes(const std::vector<PackedFile>& files) {
    std::string data;
    for (const PackedFile& file : files) {
        data += file.bytes;
    }
    const std::string_view lineEnd = "\r\n";
    return PackageHead(files) + data +
           std::string(lineEnd.substr(data.size() < 2 ? data.size() : 2));
}

} // namespace tavmoor::test
