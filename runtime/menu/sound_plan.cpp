#include "menu/sound_plan.h"

#include "core/formats/byte_view.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr int MostRounds = 1000;
constexpr int MostPauseSeconds = 60;

} // namespace

BackgroundSound MakeBackgroundSound(const SoundSpec& sound) {
    return {sound.Fajl, !sound.Akcija, std::clamp<int>(sound.Ponovi, 1, MostRounds),
            std::chrono::seconds(std::clamp<int>(sound.Pauza, 1, MostPauseSeconds))};
}

std::string ClickSoundFile(const SoundSpec& sound) {
    return sound.Signal ? sound.SignalFajl : std::string();
}

std::optional<std::chrono::seconds> SoundRounds::EndRound() {
    left_ = std::max(left_ - 1, 0);
    return IsOn() ? std::optional(pause_) : std::nullopt;
}

bool IsWholeWave(std::string_view bytes) {
    constexpr std::size_t chunkHead = 8;
    constexpr std::size_t riffHead = 12;
    constexpr std::size_t leastFormat = 16;
    const ByteView view(bytes);
    if (bytes.size() < riffHead || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
        return false;
    }
    const std::size_t end = chunkHead + view.U32(4);
    if (end > bytes.size()) {
        return false;
    }
    bool format = false;
    for (std::size_t position = riffHead; end - position >= chunkHead;) {
        const std::string_view name = bytes.substr(position, 4);
        const std::size_t size = view.U32(position + 4);
        position += chunkHead;
        if (size > end - position) {
            return false;
        }
        format = format || (name == "fmt " && size >= leastFormat);
        if (name == "data") {
            return format;
        }
        position = std::min(position + size + size % 2, end); // chunks begin at even places
    }
    return false;
}

} // namespace tavmoor
