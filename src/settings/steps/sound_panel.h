#pragma once

#include "settings/shared/panel.h"

#include <string>
#include <string_view>

class QLabel;
class QLayout;

namespace tavmoor {

class MP3Play;
struct ButtonDescription;

/// `Frame5`, the sounds of the autorun: one in its background and one for clicks.
class Frame5 final : public Panel {
    Q_OBJECT

public:
    /// @param player plays the background sound to hear it; it outlives the panel
    Frame5(ProgramContext context, MP3Play& player, QWidget* parent);

    void ShowDocument() override;

private:
    /// One of the two chosen files, with the buttons that choose, play, silence and remove it.
    struct FileRow {
        const ButtonDescription& choose;
        std::string_view filter; ///< of the file dialog, and of what can be dropped
        const char* label;       ///< shows the path; files can be dropped on it
        FieldOf<std::string> path;
        const char* hear;
        const char* stop;
        const char* remove;
        void (Frame5::*pick)();
        void (Frame5::*take)(std::string path);
        void (Frame5::*play)();
        void (Frame5::*silence)();
        void (Frame5::*clear)();
    };

    [[nodiscard]] QLayout* MakeFileRows(const FileRow& row);
    [[nodiscard]] QWidget* MakeStartBox();
    [[nodiscard]] QLayout* MakeRepeatGrid();
    [[nodiscard]] QLayout* MakeCaptionRow();

    void PickBackground();
    void PickClick();
    /// Takes a chosen or dropped file over, unless its name is refused.
    void TakeBackground(std::string path);
    void TakeClick(std::string path);
    void PlayBackground();
    void PlayClick();
    void SilenceBackground();
    void SilenceClick();
    void ClearBackground();
    void ClearClick();
    void ShowRepeat();

    MP3Play& player_;
    QLabel* repeatText_ = nullptr;
    QLabel* pauseText_ = nullptr;
};

} // namespace tavmoor
