#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// How something that was handed to the system went. The message is for the user, in the system's
/// code page; "" when it went well.
struct ShellOutcome {
    bool ok = true;
    std::string message;
};

/// What the program hands to the system to open or to start; see ServiceSlot. Everything runs on
/// beside the program: an outcome tells that it was started, not what became of it. Paths have
/// document form.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a file or a folder with the program that the user has for its kind.
    virtual ShellOutcome OpenDocument(std::string_view path) = 0;
    /// Opens an address with a scheme, percent-encoded. Callers use OpenWebPage and WriteMail.
    virtual ShellOutcome OpenAddress(std::string_view address) = 0;
    /// Starts a program with normal focus in its own folder: autorun programs too. Off Windows a
    /// name ending in ".exe" goes through Wine, which may be missing.
    virtual ShellOutcome StartProgram(std::string_view path,
                                      const std::vector<std::string>& arguments) = 0;
    /// Opens a CHM file; fails where nothing can show one.
    virtual ShellOutcome OpenHelpFile(std::string_view path) = 0;

protected:
    Shell() = default;
    Shell(const Shell&) = default;
    Shell& operator=(const Shell&) = default;
};

/// The system's own shell, or its replacement.
Shell& SystemShell();

/// Opens a web page; "http://" is put before an address without a scheme. Any other scheme than
/// http and https is refused, since the system would start programs for some.
ShellOutcome OpenWebPage(std::string_view address);

/// Begins a mail in the user's mail program.
ShellOutcome WriteMail(std::string_view address, std::string_view subject);

/// Opens "help.chm" in the program's folder, or, when it is missing or nothing can show it, the
/// start page "help\index.html" there.
ShellOutcome OpenHelp(std::string_view programFolder);

} // namespace tavmoor
