#include "core/files/document_path_platform.h"

#include "core/files/runtime_error.h"
#include "core/text/code_page.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <clocale>
#include <cwctype>
#include <locale.h>
#include <optional>
#include <vector>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view RootDrive = "Z:";

std::string FoldCase(std::string_view utf8) {
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::string folded;
    for (std::size_t position = 0; position < utf8.size();) {
        const char32_t character = NextUtf8(utf8, position);
        const auto lower = unicode == nullptr ? std::towlower(static_cast<wint_t>(character))
                                              : towlower_l(static_cast<wint_t>(character), unicode);
        AppendUtf8(folded, static_cast<char32_t>(lower));
    }
    return folded;
}

/// The name in `folder` that equals `name` but for case; of several the first in byte order, so
/// that the answer does not hang on the order in which the file system lists them.
std::optional<std::string> NameWithoutCase(const fs::path& folder, const std::string& name) {
    const std::string wanted = FoldCase(name);
    std::optional<std::string> best;
    std::error_code error;
    fs::directory_iterator entries(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        std::string candidate = entries->path().filename().string();
        if (FoldCase(candidate) == wanted && (!best || candidate < *best)) {
            best = std::move(candidate);
        }
    }
    return best;
}

fs::path Resolve(const fs::path& folder, const std::string& name) {
    fs::path exact = folder / name;
    std::error_code error;
    if (fs::exists(fs::symlink_status(exact, error))) {
        return exact;
    }
    if (const auto found = NameWithoutCase(folder, name)) {
        return folder / *found;
    }
    return exact;
}

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

/// Takes the drive off the path and gives the native folder that the rest starts from.
fs::path TakeStart(std::string_view& path) {
    if (path.size() >= 2 && path[1] == ':') {
        if (!EqualWithoutCase(path.substr(0, 2), RootDrive)) {
            throw RuntimeError(ErrorNumber::PathNotFound, path);
        }
        path.remove_prefix(2);
        return "/";
    }
    if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        throw RuntimeError(ErrorNumber::PathNotFound, path);
    }
    return !path.empty() && IsSeparator(path.front()) ? fs::path("/") : fs::path();
}

/// The parts of a path behind its start, in native form and without empty ones.
std::vector<std::string> PartsOf(std::string_view rest) {
    std::vector<std::string> parts;
    while (!rest.empty()) {
        const auto end = std::find_if(rest.begin(), rest.end(), IsSeparator);
        const auto length = static_cast<std::size_t>(end - rest.begin());
        const std::string_view part = rest.substr(0, length);
        rest.remove_prefix(std::min(rest.size(), length + 1));
        if (!part.empty() && part != ".") {
            parts.push_back(SystemCodePage().ToUtf8(part));
        }
    }
    return parts;
}

} // namespace

fs::path PlatformNativePath(std::string_view documentPath) {
    std::string_view rest = documentPath;
    const fs::path start = TakeStart(rest);
    const std::vector<std::string> parts = PartsOf(rest);
    std::string exact = start.native();
    for (const std::string& part : parts) {
        exact.append(exact.empty() || exact == "/" ? "" : "/").append(part);
    }
    std::error_code error;
    if (exact.empty() || fs::exists(fs::symlink_status(exact, error))) {
        return exact; // as spelled, which is nearly always so
    }
    fs::path native = start;
    for (const std::string& part : parts) {
        native = part == ".." ? native / part : Resolve(native, part);
    }
    return native;
}

std::string PlatformPathText(const fs::path& nativePath) {
    return nativePath.native();
}

std::string_view PlatformRootDrive() {
    return RootDrive;
}

bool PlatformEqualWithoutCase(std::string_view a, std::string_view b) {
    return FoldCase(a) == FoldCase(b);
}

} // namespace tavmoor
