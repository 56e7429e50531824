#include "services/sound/media_device.h"
#include "services/sound/sound_output.h"
#include "services/system/service_slot.h"
#include "services/system/wait_loop.h"
#include "services/values/native_path_text.h"

#include <QAudioOutput>
#include <QCoreApplication>
#include <QEventLoop>
#include <QMediaPlayer>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <chrono>

namespace tavmoor {

namespace {

/// A sound file on a slow disc is read well within this; a backend that says nothing is given up.
constexpr std::chrono::milliseconds LongestOpening{3000};

bool IsSettled(QMediaPlayer::MediaStatus status) {
    return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::BufferedMedia ||
           status == QMediaPlayer::EndOfMedia || status == QMediaPlayer::InvalidMedia;
}

/// Waits until the player has read its file or has failed. The user's clicks wait meanwhile, all
/// other events run, and one of them may end the player.
/// @return "" or the failure
QString WaitForFile(const QPointer<QMediaPlayer>& player) {
    QEventLoop loop;
    QObject::connect(player, &QMediaPlayer::mediaStatusChanged, &loop,
                     [&loop](QMediaPlayer::MediaStatus status) {
                         if (IsSettled(status)) {
                             loop.quit();
                         }
                     });
    QObject::connect(player, &QMediaPlayer::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(player, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(LongestOpening, &loop, &QEventLoop::quit);
    if (!IsSettled(player->mediaStatus()) && player->error() == QMediaPlayer::NoError) {
        const RunningLoop running;
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (player.isNull()) {
        return QStringLiteral("The sound file was closed before it could be played.");
    }
    if (player->error() != QMediaPlayer::NoError ||
        player->mediaStatus() == QMediaPlayer::InvalidMedia) {
        return player->errorString().isEmpty()
                   ? QStringLiteral("The sound file cannot be played on this computer.")
                   : player->errorString();
    }
    return IsSettled(player->mediaStatus())
               ? QString()
               : QStringLiteral("The sound file could not be opened in time.");
}

/// The player is made for each file anew, and only when one is played: its libraries take long to
/// load, and a fresh one holds nothing of the file before.
class QtMediaDevice final : public MediaDevice {
public:
    QString Open(const std::filesystem::path& file) override {
        if (player_) {
            return QStringLiteral("The sound device is already in use.");
        }
        if (QString objection = SoundOutputObjection(); !objection.isEmpty()) {
            return objection;
        }
        // The application ends the player when nobody closes it.
        player_ = new QMediaPlayer(QCoreApplication::instance());
        player_->setAudioOutput(new QAudioOutput(player_));
        player_->setSource(QUrl::fromLocalFile(NativePathText(file)));
        QString failure = WaitForFile(player_);
        if (!failure.isEmpty()) {
            Close();
        }
        return failure;
    }

    void Play() override {
        if (player_) {
            player_->play();
        }
    }
    void Pause() override {
        if (player_) {
            player_->pause();
        }
    }
    void Stop() override {
        if (player_) {
            player_->stop();
        }
    }
    /// The file is free again when this returns, so that it can be deleted or written.
    void Close() override { delete player_; }

    void Seek(std::int64_t position) override {
        if (player_ && position >= 0 && position <= Length()) {
            player_->setPosition(position);
        }
    }

    [[nodiscard]] bool IsPlaying() const override {
        return player_ && player_->playbackState() == QMediaPlayer::PlayingState;
    }
    [[nodiscard]] std::int64_t Position() const override {
        return player_ ? player_->position() : 0;
    }
    [[nodiscard]] std::int64_t Length() const override { return player_ ? player_->duration() : 0; }

private:
    QPointer<QMediaPlayer> player_;
};

} // namespace

MediaDevice& SystemMediaDevice() {
    if (auto* replacement = ServiceSlot<MediaDevice>::Replacement()) {
        return *replacement;
    }
    static QtMediaDevice device;
    return device;
}

} // namespace tavmoor
