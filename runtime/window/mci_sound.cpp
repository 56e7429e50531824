#include "window/mci_sound.h"

#include "core/text/text_case.h"

#include <string>

#include <mmsystem.h>

namespace tavmoor {

namespace {

// Players tell their sounds apart by alias; a program has one background sound.
constexpr const wchar_t* Alias = L"TavmoorSound";

bool Send(const std::wstring& command, HWND told = nullptr) {
    return mciSendStringW(command.c_str(), nullptr, 0, told) == 0;
}

/// Some players take only short paths without blanks. Where the system keeps none, the long path
/// stands between quotes, which the others take.
std::wstring ShortPath(const std::filesystem::path& file) {
    std::wstring path(MAX_PATH, L'\0');
    const DWORD length =
        GetShortPathNameW(file.c_str(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length >= path.size()) {
        return file.wstring();
    }
    path.resize(length);
    return path;
}

bool Open(const std::filesystem::path& file) {
    const std::wstring open = L"open \"" + ShortPath(file) + L"\"";
    const std::wstring found = open + L" alias " + Alias;
    const std::wstring general = open + L" type MPEGVideo alias " + Alias;
    const bool compressed = EqualWithoutCase(file.extension().string(), ".mp3");
    return compressed ? Send(general) || Send(found) : Send(found) || Send(general);
}

} // namespace

MciSound::MciSound(const std::filesystem::path& file) : open_(Open(file)) {}

MciSound::~MciSound() {
    if (open_) {
        Send(std::wstring(L"close ") + Alias);
    }
}

bool MciSound::Play(HWND told) {
    Stop(); // a player that has come to its end may still count as running, and not play again
    return open_ && Send(std::wstring(L"play ") + Alias + L" from 0 notify", told);
}

void MciSound::Stop() {
    if (open_) {
        Send(std::wstring(L"stop ") + Alias);
    }
}

} // namespace tavmoor
