#pragma once

#include "services/sound/media_device.h"
#include "services/system/service_slot.h"

#include <string>

namespace tavmoor::test {

/// Behaves as a sound device does, with a clock that stands still, and writes down the calls that
/// change what is heard.
class FakeMediaDevice final : public MediaDevice {
public:
    QString Open(const std::filesystem::path& file) override {
        log += "open " + file.filename().string() + ";";
        if (isOpen) {
            return QStringLiteral("in use");
        }
        isOpen = refusal.isEmpty();
        opened = file;
        position = 0;
        return refusal;
    }
    void Play() override {
        log += "play;";
        isPlaying = isOpen;
    }
    void Pause() override { isPlaying = false; }
    void Stop() override {
        log += "stop;";
        isPlaying = false;
    }
    void Close() override {
        log += "close;";
        isOpen = isPlaying = false;
    }
    void Seek(std::int64_t to) override {
        isPlaying = false; // as devices do that have no way to seek while they play
        position = to;
    }
    [[nodiscard]] bool IsPlaying() const override { return isPlaying; }
    [[nodiscard]] std::int64_t Position() const override { return position; }
    [[nodiscard]] std::int64_t Length() const override { return length; }

    std::string log;
    QString refusal;
    std::filesystem::path opened;
    bool isOpen = false;
    bool isPlaying = false;
    std::int64_t position = 0;
    std::int64_t length = 0;

private:
    ScopedService<MediaDevice> slot_{*this};
};

} // namespace tavmoor::test
