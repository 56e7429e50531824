#include "window/background_player.h"

#include "menu/unpacked_file.h"
#include "window/mci_sound.h"
#include "window/window_class.h"

#include <atomic>
#include <chrono>
#include <exception>
#include <future>
#include <optional>
#include <thread>
#include <utility>

#include <mmsystem.h>

namespace tavmoor {

namespace {

constexpr const wchar_t* ClassName = L"TavmoorAutorunSound";
constexpr UINT StartMessage = WM_APP + 1;
constexpr UINT ToggleMessage = WM_APP + 2;
constexpr UINT StopMessage = WM_APP + 3;
constexpr UINT_PTR PauseIsOver = 1;
/// A device that does not come to its end holds the program up no longer than this.
constexpr std::chrono::seconds LongestEnd{5};

} // namespace

/// All that happens on the thread. Its window is never shown, yet no message-only one, which would
/// not be told that the session ends.
class BackgroundPlayer::Worker {
public:
    Worker(std::filesystem::path package, BackgroundSound sound)
        : package_(std::move(package)), plan_(std::move(sound)), rounds_(plan_) {}

    /// Makes the window and serves it until it is closed.
    void Run(std::promise<void>& made) {
        const HINSTANCE instance = GetModuleHandleW(nullptr);
        RegisterWindowClass(instance, ClassName, WindowProcedure<Worker>);
        CreateWindowExW(0, ClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, this);
        made.set_value();
        if (window_ != nullptr) {
            RunMessages(std::nullopt);
        }
    }

    void Tell(UINT message) const {
        if (window_ != nullptr) {
            PostMessageW(window_, message, 0, 0);
        }
    }
    void AskToEnd() {
        ending_ = true;
        Tell(WM_CLOSE);
    }

private:
    template <typename Object>
    friend LRESULT CALLBACK tavmoor::WindowProcedure(HWND window, UINT message, WPARAM wide,
                                                     LPARAM lng);

    LRESULT Handle(UINT message, WPARAM wide, LPARAM lng) {
        switch (message) {
        case StartMessage:
            Start();
            return 0;
        case ToggleMessage:
            rounds_.IsOn() ? Stop() : Start();
            return 0;
        case StopMessage:
            Stop();
            return 0;
        case MM_MCINOTIFY:
            OnPlayed(wide);
            return 0;
        case WM_TIMER:
            KillTimer(window_, PauseIsOver);
            PlayRound();
            return 0;
        case WM_ENDSESSION:
            if (wide != FALSE) {
                TidyUp(); // the system ends the program once all windows have answered
            }
            return 0;
        case WM_DESTROY:
            TidyUp();
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window_, message, wide, lng);
        }
    }

    void Start() {
        rounds_.Start();
        if (!sound_ || !sound_->IsOpen()) {
            OpenIgnoringErrors();
        }
        PlayRound();
    }

    void OpenIgnoringErrors() {
        try {
            if (!file_) {
                file_.emplace(package_, plan_.file, [this] { return ending_.load(); });
            }
            sound_.emplace(file_->Path());
        } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): it stays silent
        }
    }

    void PlayRound() {
        if (rounds_.IsOn() && !(sound_ && sound_->Play(window_))) {
            rounds_.Stop();
        }
    }

    void OnPlayed(WPARAM how) {
        if (how == MCI_NOTIFY_FAILURE) {
            rounds_.Stop();
        } else if (how == MCI_NOTIFY_SUCCESSFUL) {
            if (const auto pause = rounds_.EndRound()) {
                const auto wait = std::chrono::duration_cast<std::chrono::milliseconds>(*pause);
                SetTimer(window_, PauseIsOver, static_cast<UINT>(wait.count()), nullptr);
            }
        }
    }

    void Stop() {
        rounds_.Stop();
        KillTimer(window_, PauseIsOver);
        if (sound_) {
            sound_->Stop();
        }
    }

    void TidyUp() {
        Stop();
        sound_.reset(); // it holds the file open
        file_.reset();
    }

    std::filesystem::path package_;
    BackgroundSound plan_;
    SoundRounds rounds_;
    std::optional<UnpackedFile> file_;
    std::optional<MciSound> sound_;
    HWND window_ = nullptr;
    std::atomic<bool> ending_ = false;
};

BackgroundPlayer::BackgroundPlayer(const std::filesystem::path& package,
                                   const BackgroundSound& sound)
    : startsByItself_(sound.startsByItself) {
    if (sound.file.empty()) {
        return;
    }
    worker_ = std::make_shared<Worker>(package, sound);
    std::promise<void> made;
    std::promise<void> ended;
    std::future<void> isMade = made.get_future();
    ended_ = ended.get_future();
    // The thread shares the worker, since it may outlive this object.
    std::thread([worker = worker_, made = std::move(made), ended = std::move(ended)]() mutable {
        worker->Run(made);
        ended.set_value();
    }).detach();
    isMade.wait();
}

BackgroundPlayer::~BackgroundPlayer() {
    if (worker_) {
        worker_->AskToEnd();
        ended_.wait_for(LongestEnd);
    }
}

void BackgroundPlayer::ProgramStarted() {
    if (worker_ && std::exchange(startsByItself_, false)) {
        worker_->Tell(StartMessage);
    }
}

void BackgroundPlayer::Change(SoundChange change) {
    if (worker_ && change != SoundChange::None) {
        worker_->Tell(change == SoundChange::Stop ? StopMessage : ToggleMessage);
    }
}

} // namespace tavmoor
