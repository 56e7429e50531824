#pragma once

#include <QString>

#include <cstdint>
#include <filesystem>

namespace tavmoor {

/// The one device of the program that plays a sound file. It holds one file at a time: a file that
/// is to follow another one can only be opened when that one was closed. While no file is open
/// every operation but Open does nothing, and the numbers are 0. Times are in milliseconds.
class MediaDevice {
public:
    virtual ~MediaDevice() = default;

    /// Opens a file without playing it; takes a few seconds at most.
    /// @return "" or why it cannot be played, in words for the user
    virtual QString Open(const std::filesystem::path& file) = 0;
    virtual void Play() = 0;
    virtual void Pause() = 0;
    virtual void Stop() = 0;
    virtual void Close() = 0;
    /// Goes to a place of the file; a place outside of it changes nothing.
    virtual void Seek(std::int64_t position) = 0;

    [[nodiscard]] virtual bool IsPlaying() const = 0;
    [[nodiscard]] virtual std::int64_t Position() const = 0;
    [[nodiscard]] virtual std::int64_t Length() const = 0;

protected:
    MediaDevice() = default;
    MediaDevice(const MediaDevice&) = default;
    MediaDevice& operator=(const MediaDevice&) = default;
};

/// The device of Qt Multimedia, or its replacement; see ServiceSlot.
MediaDevice& SystemMediaDevice();

} // namespace tavmoor
