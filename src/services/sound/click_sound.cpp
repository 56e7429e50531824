#include "services/sound/click_sound.h"

#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "services/sound/sound_output.h"
#include "services/system/service_slot.h"
#include "services/values/native_path_text.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

namespace tavmoor {

namespace {

class QtClickSoundPlayer final : public ClickSoundPlayer {
public:
    void Play(const std::filesystem::path& file) override {
        delete effect_;
        if (!SoundOutputObjection().isEmpty()) {
            return;
        }
        effect_ = new QSoundEffect(QCoreApplication::instance());
        effect_->setSource(QUrl::fromLocalFile(NativePathText(file)));
        effect_->play();
    }

private:
    QPointer<QSoundEffect> effect_;
};

ClickSoundPlayer& SystemClickSoundPlayer() {
    if (auto* replacement = ServiceSlot<ClickSoundPlayer>::Replacement()) {
        return *replacement;
    }
    static QtClickSoundPlayer player;
    return player;
}

} // namespace

void PlayClickSoundIgnoringErrors(std::string_view path) {
    const auto native = FindNativePath(path);
    if (native && FileExists(path)) {
        SystemClickSoundPlayer().Play(*native);
    }
}

} // namespace tavmoor
