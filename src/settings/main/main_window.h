#pragma once

#include "services/sound/mp3_play.h"
#include "services/windows/skinned_window.h"
#include "settings/main/menu_action.h"
#include "settings/main/navigation_column.h"
#include "settings/project/project_commands.h"
#include "settings/project/recovery_keeper.h"
#include "settings/project/step_checks.h"
#include "settings/shared/panel.h"

#include <QTimer>

#include <array>

class QLabel;

namespace tavmoor {

class HintLine;
class PictureButton;

/// `Form1`, the hub of the program: the steps at the left, one panel at a time at the right. What
/// needs more room opens in a window of its own, in place of this one.
class Form1 final : public SkinnedWindow, public MainWindowCommands {
    Q_OBJECT

public:
    explicit Form1(ProgramContext context);
    ~Form1() override;

    void ShowMainSettings() override;
    void OpenTemplateWindow() override;
    void BrowseCdFolder() override;
    void HidePanels() override;
    void RestoreHint() override;
    void ShowPicturePreview(const std::string& path) override;
    void ShowDocument() override;
    void FocusCdFolder() override;
    [[nodiscard]] QRect Geometry() const override { return geometry(); }
    void MoveTo(QPoint place) override { move(place); }
    void SetVisible(bool visible) override;
    [[nodiscard]] bool IsVisible() const override { return isVisible(); }
    void StopSound() override;

    /// Makes the panel when it is wanted for the first time, and shows it in place of the others.
    Panel& ShowPanel(PanelName name);
    void TakeStep(NavigationStep step);
    void Serve(MenuAction action);

protected:
    void OnLoad() override;
    void OnActivate() override { OpenDueAutorunCheck(); }
    void OnUnload() override;

private:
    void MakeTopRow();
    void MakeBottomRow();
    void MakeKeys();
    void OpenMenu(MenuSide side);
    void AskAtStart();
    void OpenDueAutorunCheck();
    void ServeStoredAction();
    void ShowBuildTooltip();
    void DisableUnbuiltSteps();
    void OpenFromMain(WindowName name) { Windows().OpenFromMain(name); }
    void SaveSettings();

    StepChecks checks_;
    ProjectCommands commands_;
    RecoveryKeeper keeper_;
    NavigationColumn* column_ = nullptr;
    HintLine* hint_ = nullptr;
    QLabel* title_ = nullptr;
    PictureButton* fileMenu_ = nullptr;
    PictureButton* programMenu_ = nullptr;
    PictureButton* help_ = nullptr;
    std::array<Panel*, PanelCount> panels_{};
    MP3Play* player_ = nullptr;
    QTimer timer_;
    bool recoveryOffered_ = false;
};

} // namespace tavmoor
