#include "services/sound/mp3_play.h"

#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/text/maker.h"
#include "core/text/number_text.h"
#include "services/dialogs/message_box.h"
#include "services/sound/media_device.h"
#include "services/values/qt_text.h"

namespace tavmoor {

namespace {

constexpr int SideLength = 32; ///< pixels

int Seconds(std::int64_t milliseconds) {
    constexpr double perSecond = 1000;
    return static_cast<int>(RoundHalfToEven(static_cast<double>(milliseconds) / perSecond));
}

/// Minutes, however many, and seconds of two digits.
QString ClockText(int seconds) {
    constexpr int perMinute = 60;
    return QStringLiteral("%1:%2")
        .arg(seconds / perMinute)
        .arg(seconds % perMinute, 2, 10, QLatin1Char('0'));
}

} // namespace

MP3Play::MP3Play(QWidget* parent) : QWidget(parent) {
    setFixedSize(SideLength, SideLength);
    hide();
}

MP3Play::~MP3Play() {
    mmStop();
}

QString MP3Play::mmPlay() {
    const auto native = FindNativePath(fileName_);
    if (!native || !FileExists(fileName_)) {
        return QStringLiteral("Error with input file");
    }
    // Opening lets events run, and one of them may end this object: nothing of it is used after.
    MediaDevice& device = SystemMediaDevice();
    QString failure = device.Open(*native);
    if (!failure.isEmpty()) {
        return failure;
    }
    device.Play();
    return QStringLiteral("Success");
}

void MP3Play::mmPause() {
    SystemMediaDevice().Pause();
}

void MP3Play::mmStop() {
    MediaDevice& device = SystemMediaDevice();
    device.Stop();
    device.Close();
}

bool MP3Play::IsPlaying() const {
    return SystemMediaDevice().IsPlaying();
}

int MP3Play::Position() const {
    return Seconds(SystemMediaDevice().Position());
}

int MP3Play::Length() const {
    return Seconds(SystemMediaDevice().Length());
}

QString MP3Play::PositionInSec() const {
    return ClockText(Position());
}

QString MP3Play::LengthInSec() const {
    return ClockText(Length());
}

void MP3Play::SeekTo(std::int64_t position) {
    MediaDevice& device = SystemMediaDevice();
    const bool goOn = device.IsPlaying();
    device.Seek(position);
    if (goOn) {
        device.Play();
    }
}

void MP3Play::About() {
    ShowMessageBox(this, {QStringLiteral("MP3Play\nPlays one sound file at a time.\n\n") +
                              ToQString(VersionText),
                          QStringLiteral("MP3Play"), BoxButtons::Ok, BoxIcon::Information});
}

} // namespace tavmoor
