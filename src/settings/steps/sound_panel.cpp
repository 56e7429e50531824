#include "settings/steps/sound_panel.h"

#include "core/text/path_text.h"
#include "services/controls/focused_scroll_bar.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/path_box.h"
#include "services/controls/picture_button.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/dialogs/file_name_check.h"
#include "services/fields/field_pickers.h"
#include "services/look/theme.h"
#include "services/sound/click_sound.h"
#include "services/sound/mp3_play.h"
#include "services/system/wait_loop.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace tavmoor {

namespace {

template <auto Member>
constexpr auto Sound = At<&ProjectDocument::Zvuk, Member>;

constexpr ButtonDescription ChooseBackground{
    "Command14", "browse", u"Click here to choose &one sound file (Mp3, Wav, Mid)",
    u"Choose the sound file which will play in the background when autorun starts"};
constexpr ButtonDescription ChooseClick{"Command33", "browse",
                                        u"Click here to choose one wa&v file",
                                        u"Choose sound file to play when user click on button"};

constexpr std::string_view BackgroundFilter = "Sound files (Mp3, Wav, Mid)| *.mp3; *.wav; *.mid";
constexpr std::string_view ClickFilter = "Wav files (.wav)| *.wav";

constexpr int MostRepeats = 1000;
constexpr int LongestPause = 60; // seconds

QString RepeatText(int times) {
    return times == 1 ? QStringLiteral("once") : QStringLiteral("%1 times").arg(times);
}

QString PauseText(int seconds) {
    return QStringLiteral("%1 %2").arg(seconds).arg(seconds == 1 ? QStringLiteral("second")
                                                                 : QStringLiteral("seconds"));
}

QFrame* MakeLine(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

Frame5::Frame5(ProgramContext context, MP3Play& player, QWidget* parent)
    : Panel(context, "Frame5", u"Sound settings", parent), player_(player) {
    auto* layout = MakeColumn(Body(), theme::Margin);
    layout->addLayout(MakeFileRows(
        {ChooseBackground, BackgroundFilter, "Label34", Sound<&SoundSpec::Fajl>, "Command15",
         "Command16", "Command45", &Frame5::PickBackground, &Frame5::TakeBackground,
         &Frame5::PlayBackground, &Frame5::SilenceBackground, &Frame5::ClearBackground}));
    auto* row = MakeRow(nullptr, theme::Margin);
    row->addWidget(MakeStartBox());
    row->addLayout(MakeRepeatGrid(), 1);
    layout->addLayout(row);
    layout->addLayout(MakeCaptionRow());
    layout->addWidget(MakeLine(Body()));
    auto* click = new QCheckBox(QStringLiteral("Sound on button clic&k/mouse move"), Body());
    click->setObjectName(QStringLiteral("Check15"));
    Binder().Bind(*click, Sound<&SoundSpec::Signal>);
    layout->addWidget(click);
    layout->addLayout(
        MakeFileRows({ChooseClick, ClickFilter, "Label78", Sound<&SoundSpec::SignalFajl>,
                      "Command34", "Command35", "Command46", &Frame5::PickClick, &Frame5::TakeClick,
                      &Frame5::PlayClick, &Frame5::SilenceClick, &Frame5::ClearClick}));
    layout->addStretch(1);
    connect(&Binder(), &FieldBinder::Stored, this, &Frame5::ShowRepeat);
}

QLayout* Frame5::MakeFileRows(const FileRow& row) {
    auto* rows = MakeColumn();
    auto* choose = new PictureButton(row.choose, Body());
    connect(choose, &QAbstractButton::clicked, this, row.pick);
    rows->addWidget(choose, 0, Qt::AlignLeft);
    auto* line = MakeRow();
    auto* label = new ValueLabel(row.label, Body());
    Binder().Bind(*label, row.path);
    label->setAccessibleName(choose->accessibleName());
    connect(new PathDrop(*label, row.filter), &PathDrop::Dropped, this,
            [this, take = row.take](const QString& path) { (this->*take)(FromQString(path)); });
    line->addWidget(label, 1);
    const auto addButton = [&](const ButtonDescription& description, void (Frame5::*action)()) {
        auto* button = new PictureButton(description, Body());
        connect(button, &QAbstractButton::clicked, this, action);
        line->addWidget(button);
        return button;
    };
    addButton({row.hear, "play", u"", u"Hear select sound file", ButtonLook::Icon}, row.play);
    addButton({row.stop, "stop", u"", u"", ButtonLook::Icon}, row.silence)
        ->setAccessibleName(QStringLiteral("Stop"));
    addButton({row.remove, "remove", u"", u"Remove slected sound file", ButtonLook::Icon},
              row.clear);
    rows->addLayout(line);
    return rows;
}

QWidget* Frame5::MakeStartBox() {
    auto* box = new QGroupBox(QStringLiteral("Play sound"), Body());
    box->setObjectName(QStringLiteral("Frame6"));
    auto* layout = new QVBoxLayout(box);
    auto* atStart = new QRadioButton(QStringLiteral("On program start"), box);
    auto* onDemand = new QRadioButton(QStringLiteral("&Wait for user to start it"), box);
    atStart->setObjectName(QStringLiteral("Option1"));
    onDemand->setObjectName(QStringLiteral("Option2"));
    Binder().BindOption(*atStart, Sound<&SoundSpec::Akcija>, false);
    Binder().BindOption(*onDemand, Sound<&SoundSpec::Akcija>, true);
    layout->addWidget(atStart);
    layout->addWidget(onDemand);
    return box;
}

QLayout* Frame5::MakeRepeatGrid() {
    constexpr int PageOfRepeats = 10;
    constexpr int PageOfSeconds = 5;
    auto* grid = MakeGrid();
    grid->setColumnStretch(1, 1);
    const auto addRow = [&](int row, const char16_t* caption, QScrollBar* bar, const char* text) {
        auto* value = MakeLabel(text, u"", Body());
        // As wide as its longest text, so that the bars do not jump.
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance(RepeatText(MostRepeats)));
        grid->addWidget(MakeCaption(caption, bar), row, 0);
        grid->addWidget(bar, row, 1);
        grid->addWidget(value, row, 2);
        return value;
    };
    auto* repeat = new FocusedScrollBar("HScroll1", 1, MostRepeats, PageOfRepeats, Body());
    auto* pause = new FocusedScrollBar("HScroll2", 1, LongestPause, PageOfSeconds, Body());
    Binder().Bind(*repeat, Sound<&SoundSpec::Ponovi>);
    Binder().Bind(*pause, Sound<&SoundSpec::Pauza>);
    repeatText_ = addRow(0, u"Repe&at", repeat, "Label31");
    pauseText_ = addRow(1, u"Pa&use between repeat", pause, "Label33");
    return grid;
}

QLayout* Frame5::MakeCaptionRow() {
    constexpr int CaptionWidth = 260;
    auto* row = MakeRow();
    auto* caption = new TextBox("Text10", Body());
    caption->setFixedWidth(CaptionWidth);
    Binder().Bind(*caption, Sound<&SoundSpec::Komanda>);
    row->addWidget(MakeCaption(u"Sound butto&n caption", caption));
    row->addWidget(caption);
    row->addStretch(1);
    return row;
}

void Frame5::ShowDocument() {
    Panel::ShowDocument();
    ShowRepeat();
}

void Frame5::ShowRepeat() {
    // A file may have more than the bars can show.
    repeatText_->setText(RepeatText(Document().Zvuk.Ponovi));
    pauseText_->setText(PauseText(Document().Zvuk.Pauza));
}

void Frame5::PickBackground() {
    const std::string& current = Document().Zvuk.Fajl;
    const auto path = PickFile(*this, {"Choose one music file...", BackgroundFilter,
                                       current.empty() ? Session().settings.lastSoundFolder
                                                       : WithBackslash(FolderOf(current))});
    if (path) {
        TakeBackground(*path);
    }
}

void Frame5::PickClick() {
    const std::string& current = Document().Zvuk.SignalFajl;
    const auto path =
        PickFile(*this, {"Choose MOUSE OVER sound file...", ClickFilter,
                         current.empty() ? InProgramFolder(Session(), "Sound\\Mouse over\\")
                                         : WithBackslash(FolderOf(current))});
    if (path) {
        TakeClick(*path);
    }
}

void Frame5::TakeBackground(std::string path) {
    if (CheckFileName(this, path)) {
        return;
    }
    Session().settings.lastSoundFolder = WithBackslash(FolderOf(path));
    Document().Zvuk.Fajl = std::move(path);
    ShowDocument();
}

void Frame5::TakeClick(std::string path) {
    if (CheckFileName(this, path)) {
        return;
    }
    Document().Zvuk.SignalFajl = std::move(path);
    Document().Zvuk.Signal = true;
    ShowDocument();
}

void Frame5::PlayBackground() {
    player_.mmStop();
    player_.SetFileName(Document().Zvuk.Fajl);
    // What cannot be played stays silent.
    static_cast<void>(player_.mmPlay());
}

void Frame5::PlayClick() {
    PlayClickSoundIgnoringErrors(Document().Zvuk.SignalFajl);
}

void Frame5::SilenceBackground() {
    SilenceClick();
    // A sound that was still being opened begins only now.
    LetEventsRun();
    player_.mmStop();
}

void Frame5::SilenceClick() {
    player_.mmStop();
    player_.SetFileName({});
}

void Frame5::ClearBackground() {
    Document().Zvuk.Fajl.clear();
    ShowDocument();
}

void Frame5::ClearClick() {
    Document().Zvuk.SignalFajl.clear();
    Document().Zvuk.Signal = false;
    ShowDocument();
}

} // namespace tavmoor
