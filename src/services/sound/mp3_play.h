#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <string>

namespace tavmoor {

/// Plays a sound file; serves the "hear" buttons. It shows nothing at run time. All instances play
/// on the one sound device of the program, so that only one of them can play at a time, and the
/// operations of each act on what any of them plays. Only mmPlay tells a failure, the others ignore
/// what the device refuses. Ends the sound when it is destroyed.
class MP3Play final : public QWidget {
public:
    explicit MP3Play(QWidget* parent = nullptr);
    MP3Play(const MP3Play&) = delete;
    MP3Play& operator=(const MP3Play&) = delete;
    ~MP3Play() override;

    [[nodiscard]] bool Enabled() const { return isEnabled(); }
    void SetEnabled(bool enabled) { setEnabled(enabled); }

    /// The file to play, a path in document form; "" at first.
    [[nodiscard]] const std::string& FileName() const { return fileName_; }
    void SetFileName(std::string fileName) { fileName_ = std::move(fileName); }

    /// Opens the file and plays it from its beginning. Comes back within a few seconds; waits with
    /// a running event queue, but without the user's clicks. mmStop has to come first.
    /// @return "Success", "Error with input file" when there is no such file, or the device's words
    QString mmPlay();
    void mmPause();
    /// Stops the sound and gives the file free.
    void mmStop();

    [[nodiscard]] bool IsPlaying() const;
    /// The place in the file and the file's length in seconds; halves are rounded to the even one.
    [[nodiscard]] int Position() const;
    [[nodiscard]] int Length() const;
    /// The same as text: "0:07", "1:05", "61:01".
    [[nodiscard]] QString PositionInSec() const;
    [[nodiscard]] QString LengthInSec() const;
    /// Goes to a place in milliseconds; what plays goes on playing from there.
    void SeekTo(std::int64_t position);

    void About();

private:
    std::string fileName_;
};

} // namespace tavmoor
