#include "console.h"

#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/text/code_page.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace tavmoor::cli {

namespace {

namespace fs = std::filesystem;

bool IsControl(unsigned char byte) {
    return byte < 0x20 || byte == 0x7F;
}

bool Print(std::FILE* stream, std::string_view utf8) {
    return std::fwrite(utf8.data(), 1, utf8.size(), stream) == utf8.size() &&
           std::fflush(stream) == 0;
}

} // namespace

bool IsDocumentForm(const std::string& utf8) {
    const bool drive = utf8.size() >= 2 && utf8[1] == ':' &&
                       std::isalpha(static_cast<unsigned char>(utf8[0])) != 0;
    return drive || (!utf8.empty() && utf8.front() == '\\');
}

fs::path FromUtf8(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

std::string Utf8(std::string_view codePageText) {
    return SystemCodePage().ToUtf8(codePageText);
}

std::string OneLine(std::string_view codePageText) {
    std::string line;
    for (const char character : codePageText) {
        if (character == '\n') {
            line += ' ';
        } else if (character != '\r') {
            line += IsControl(static_cast<unsigned char>(character)) ? '?' : character;
        }
    }
    return Utf8(line);
}

void PrintPart(std::string_view utf8) {
    if (!Print(stdout, utf8)) {
        throw CommandFailure("standard output cannot be written: " +
                             std::generic_category().message(errno));
    }
}

void PrintLine(std::string_view utf8) {
    PrintPart(std::string(utf8) + "\n");
}

void PrintError(std::string_view utf8) {
    Print(stderr, "tavmoor-cli: " + std::string(utf8) + "\n");
}

std::string TextArgument(const std::string& utf8) {
    CodePageText text = SystemCodePage().FromUtf8(utf8);
    if (!text.unplaced.empty()) {
        throw CommandFailure("\"" + utf8 + "\" has a character that code page " +
                             std::to_string(SystemCodePage().Number()) + " does not know");
    }
    return text.bytes;
}

namespace {

/// ".." stays: behind a link it leads elsewhere than the text says.
fs::path AbsolutePath(const fs::path& path) {
    const fs::path absolute = fs::absolute(path);
    const bool up = std::find(absolute.begin(), absolute.end(), "..") != absolute.end();
    return up ? absolute : absolute.lexically_normal();
}

} // namespace

std::string PathArgument(const std::string& utf8) {
    if (utf8.empty()) {
        throw CommandFailure("a path is empty");
    }
    if (IsDocumentForm(utf8)) {
        return TextArgument(utf8);
    }
    try {
        return DocumentPath(AbsolutePath(FromUtf8(utf8)));
    } catch (const RuntimeError&) {
        throw CommandFailure("the path \"" + utf8 + "\" cannot stand in a project: code page " +
                             std::to_string(SystemCodePage().Number()) +
                             " does not know all of its characters, or it holds a backslash");
    }
}

} // namespace tavmoor::cli
