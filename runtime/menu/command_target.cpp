#include "menu/command_target.h"

#include "core/text/blanks.h"
#include "core/text/path_text.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <array>

namespace tavmoor {

namespace {

using Resolution = std::variant<StartRequest, CommandRefusal>;

constexpr std::string_view Unreserved =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
/// What an address may not hold as it is: a quote could end the argument of a program's command
/// line, and the others belong to no address.
constexpr std::string_view UnsafeInAddress = " \"<>\\^`{|}";

void AppendEscaped(std::string& text, char character) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    text += '%';
    text += digits[byte >> 4U];
    text += digits[byte & 0xFU];
}

std::string EscapeUnsafe(std::string_view address) {
    std::string text;
    for (const char character : address) {
        if (UnsafeInAddress.find(character) == std::string_view::npos) {
            text += character;
        } else {
            AppendEscaped(text, character);
        }
    }
    return text;
}

std::string EscapeAll(std::string_view value) {
    std::string text;
    for (const char character : value) {
        if (Unreserved.find(character) != std::string_view::npos) {
            text += character;
        } else {
            AppendEscaped(text, character);
        }
    }
    return text;
}

bool HasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

/// The target without the blanks and the pair of quotes around it.
std::string_view Bare(std::string_view target) {
    target = TrimBlanks(target);
    if (target.size() >= 2 && target.front() == '"' && target.back() == '"') {
        target = TrimBlanks(target.substr(1, target.size() - 2));
    }
    return target;
}

/// The scheme that an address begins with, "" for none. "host:8080" has none, and neither has
/// "www.example.com:8080".
std::string_view SchemeOf(std::string_view address) {
    const std::size_t colon = address.find(':');
    if (colon == std::string_view::npos || colon == 0) {
        return {};
    }
    const std::string_view scheme = address.substr(0, colon);
    const bool slashes = address.substr(colon + 1).starts_with("//");
    const bool port =
        address.size() > colon + 1 && address[colon + 1] >= '0' && address[colon + 1] <= '9';
    const bool word = scheme.find_first_of("/?#@ ") == std::string_view::npos;
    const bool host = scheme.find('.') != std::string_view::npos || port;
    return word && (slashes || !host) ? scheme : std::string_view();
}

bool IsPageScheme(std::string_view scheme) {
    constexpr std::array<std::string_view, 3> allowed{"http", "https", "ftp"};
    return std::any_of(allowed.begin(), allowed.end(),
                       [&](std::string_view name) { return EqualWithoutCase(name, scheme); });
}

std::string OnDisc(std::string_view target, std::string_view discFolder) {
    std::string path(target);
    std::replace(path.begin(), path.end(), '/', '\\');
    const bool network = path.starts_with("\\\\");
    if (network || (IsAbsoluteDocumentPath(path) && path.front() != '\\')) {
        return path;
    }
    const std::size_t start = path.find_first_not_of('\\');
    return WithBackslash(discFolder) + (start == std::string::npos ? "" : path.substr(start));
}

Resolution ResolveFile(std::string_view target, const MenuCommand& command,
                       std::string_view discFolder, const PathExists& exists) {
    StartRequest request{OnDisc(target, discFolder), command.parameter, {}};
    request.folder = FolderOf(request.file);
    if (request.folder.ends_with(':')) {
        request.folder += '\\';
    }
    const bool bareName = target.find_first_of("\\/:") == std::string_view::npos;
    if (command.kind == CommandKind::RunProgram && bareName && !exists(request.file)) {
        request.file = target;
        request.folder = discFolder;
    }
    return request;
}

Resolution ResolvePage(std::string_view target, std::string_view discFolder,
                       const PathExists& exists) {
    if (HasControlCharacter(target)) {
        return CommandRefusal{"This is no web address."};
    }
    const std::string_view scheme = SchemeOf(target);
    if (!scheme.empty()) {
        return IsPageScheme(scheme)
                   ? Resolution(StartRequest{EscapeUnsafe(target), {}, {}})
                   : Resolution(CommandRefusal{"Only http, https and ftp addresses are opened."});
    }
    const std::string file = OnDisc(target, discFolder);
    if (exists(file)) {
        return StartRequest{file, {}, std::string(FolderOf(file))};
    }
    return StartRequest{"http://" + EscapeUnsafe(target), {}, {}};
}

std::string MailQuery(std::string_view parameter) {
    parameter = TrimBlanks(parameter);
    if (parameter.starts_with('?')) {
        return EscapeUnsafe(parameter.substr(1));
    }
    constexpr std::array<std::string_view, 4> fields{"subject=", "body=", "cc=", "bcc="};
    const bool query = std::any_of(fields.begin(), fields.end(), [&](std::string_view field) {
        return EqualWithoutCase(parameter.substr(0, field.size()), field);
    });
    return query ? EscapeUnsafe(parameter) : "subject=" + EscapeAll(parameter);
}

Resolution ResolveMail(std::string_view target, std::string_view parameter) {
    const std::string_view scheme = SchemeOf(target);
    if (HasControlCharacter(target) || (!scheme.empty() && !EqualWithoutCase(scheme, "mailto"))) {
        return CommandRefusal{"This is no mail address."};
    }
    std::string address = (scheme.empty() ? "mailto:" : "") + EscapeUnsafe(target);
    if (!TrimBlanks(parameter).empty()) {
        address += address.find('?') == std::string::npos ? '?' : '&';
        address += MailQuery(parameter);
    }
    return StartRequest{address, {}, {}};
}

} // namespace

std::variant<StartRequest, CommandRefusal>
ResolveCommand(const MenuCommand& command, std::string_view discFolder, const PathExists& exists) {
    const std::string_view target = Bare(command.target);
    if (target.empty()) {
        return CommandRefusal{"This command has no target."};
    }
    switch (command.kind) {
    case CommandKind::VisitPage:
        return ResolvePage(target, discFolder, exists);
    case CommandKind::SendMail:
        return ResolveMail(target, command.parameter);
    default:
        return ResolveFile(target, command, discFolder, exists);
    }
}

} // namespace tavmoor
