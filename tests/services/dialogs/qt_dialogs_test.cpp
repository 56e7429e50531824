#include "services/dialogs/font_dialog.h"
#include "services/dialogs/qt_dialogs.h"
#include "services/values/color_value.h"
#include "services/values/file_filter.h"
#include "services/values/font_spec.h"
#include "services/values/native_path_text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontDialog>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace tavmoor {

namespace {

/// Waits in the event loop for the next dialog, hands it to the next action, which closes it.
class DialogUser {
public:
    using Action = std::function<void(QDialog&)>;

    explicit DialogUser(std::vector<Action> actions) : actions_(std::move(actions)) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
        timer_.start(20);
    }
    ~DialogUser() { EXPECT_EQ(next_, actions_.size()) << "not every dialog came up"; }

private:
    void Look() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || seen_.contains(dialog)) {
            return;
        }
        seen_ << dialog;
        if (next_ < actions_.size()) {
            // Not from here: while an action shows another dialog, the timer has to go on.
            QMetaObject::invokeMethod(
                dialog, [dialog, action = actions_[next_++]] { action(*dialog); },
                Qt::QueuedConnection);
        } else {
            const auto* box = qobject_cast<QMessageBox*>(dialog);
            ADD_FAILURE() << "unexpected: " << dialog->windowTitle().toStdString() << ": "
                          << (box != nullptr ? box->text() : QString()).toStdString();
            dialog->reject();
        }
    }

    std::vector<Action> actions_;
    std::size_t next_ = 0;
    /// Cleared with the dialogs: a later one may lie at the same address.
    QList<QPointer<QDialog>> seen_;
    QTimer timer_;
};

void Wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The file names that a file dialog lists, in order, without folders.
QStringList ListedFiles(QDialog& dialog) {
    auto* view = dialog.findChild<QListView*>(QStringLiteral("listView"));
    QStringList names;
    for (int tries = 0; tries < 50 && names.isEmpty(); ++tries) {
        Wait(20);
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            names << view->model()->index(row, 0, view->rootIndex()).data().toString();
        }
    }
    names.sort();
    return names;
}

void TypeName(QDialog& dialog, const QString& name) {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    dialog.accept();
}

} // namespace

class QtDialogsTest : public testing::Test {
protected:
    test::TemporaryFolder folder_;
    QtDialogs dialogs_;
};

TEST(FileFilters, PassNamesInAnyCaseAndAllFilesThoseWithoutADot) {
    const auto sounds = ParseFilter(u"Sounds| *.mp3; *.wav|Icons (*.ico)|*.ico");
    EXPECT_TRUE(PassesFilters(sounds, QStringLiteral("a.b.WAV")));
    EXPECT_TRUE(PassesFilters(sounds, QStringLiteral("a.ico")));
    EXPECT_FALSE(PassesFilters(sounds, QStringLiteral("mp3")));
    EXPECT_FALSE(PassesFilters(sounds, QStringLiteral("a.mp3.txt")));
    EXPECT_TRUE(PassesFilters(ParseFilter(u"All files (*.*)| *.*"), QStringLiteral("README")));
}

TEST_F(QtDialogsTest, OpenListsTheFilterInAnyCaseAndTheSidebar) {
    for (const char* name : {"a.tavp", "B.TAVP", "c.Tavp", "d.txt", "e"}) {
        folder_.Write(name, "");
    }
    FileRequest request;
    request.title = QStringLiteral("Open Tavmoor project ...");
    request.filter = QStringLiteral("All files (*.*)| *.*|Tavmoor project (.tavp)| *.tavp");
    request.filterIndex = 2;
    request.folder = NativePathText(folder_.Native());
    request.file = QStringLiteral("a.tavp");
    request.sidebarFolders = {request.folder};
    const auto use = [&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.windowTitle(), request.title);
        EXPECT_TRUE(files.sidebarUrls().contains(QUrl::fromLocalFile(request.folder)));
        EXPECT_EQ(ListedFiles(dialog).join(u' '), QStringLiteral("B.TAVP a.tavp c.Tavp"));
        files.selectNameFilter(files.nameFilters().constFirst());
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                  QStringLiteral("a.tavp"));
        TypeName(dialog, QStringLiteral("e"));
    };
    const DialogUser user({use, [](QDialog& dialog) { dialog.reject(); }});
    const auto answer = dialogs_.OpenFile(request);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->path, NativePathText(folder_.Native("e")));
    EXPECT_EQ(answer->filterIndex, 1);
    EXPECT_FALSE(dialogs_.OpenFile(request));
}

TEST_F(QtDialogsTest, SaveAddsTheExtensionAndAsksBeforeReplacing) {
    folder_.Write("old.txt", "kept");
    FileRequest request;
    request.folder = NativePathText(folder_.Native());
    request.defaultExtension = QStringLiteral("txt");
    QString question;
    const DialogUser user({[](QDialog& dialog) {
                               TypeName(dialog, QStringLiteral("old"));
                               dialog.reject();
                           },
                           [&](QDialog& dialog) {
                               auto& box = dynamic_cast<QMessageBox&>(dialog);
                               question = box.text();
                               box.button(QMessageBox::No)->click();
                           },
                           [](QDialog& dialog) { TypeName(dialog, QStringLiteral("new")); }});
    EXPECT_FALSE(dialogs_.SaveFile(request));
    const auto answer = dialogs_.SaveFile(request);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->path, NativePathText(folder_.Native("new.txt")));
    EXPECT_TRUE(question.contains(QStringLiteral("old.txt")));
}

TEST_F(QtDialogsTest, FolderGivesTheFolderItStandsIn) {
    folder_.Write("disc/a.txt", "");
    FolderRequest request;
    request.folder = NativePathText(folder_.Native("disc"));
    request.prompt = QStringLiteral("Content of the disc:");
    const DialogUser user({[](QDialog& dialog) { dialog.accept(); }});
    EXPECT_EQ(dialogs_.Folder(request), request.folder);
}

TEST_F(QtDialogsTest, ColorComesBackWithTheCustomColors) {
    ColorRequest request;
    request.color = QColor(255, 204, 0);
    request.customColors.fill(QColor(255, 255, 255));
    const DialogUser user({[](QDialog& dialog) {
        EXPECT_EQ(QColorDialog::customColor(15), QColor(255, 255, 255));
        QColorDialog::setCustomColor(3, QColor(9, 8, 7));
        dialog.accept();
    }});
    const auto answer = dialogs_.Color(request);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->color, request.color);
    EXPECT_EQ(answer->customColors[3], QColor(9, 8, 7));
}

TEST_F(QtDialogsTest, FontKeepsWhatIsLeftAloneAndTakesEffectsAndColor) {
    FontRequest request;
    request.title = QStringLiteral("Choose font...");
    request.font = {QStringLiteral("No Such Face"), 8.25, true, false, true, false, QColor()};
    FontChoice expected = request.font;
    expected.underline = false;
    expected.color = QColor(1, 2, 3);
    const DialogUser user(
        {[&](QDialog& dialog) {
             EXPECT_EQ(dialog.windowTitle(), request.title);
             for (auto* effect : dialog.findChildren<QCheckBox*>()) {
                 if (effect->isChecked()) {
                     effect->click(); // setChecked would not tell the font dialog
                 }
             }
             dialog.findChild<QPushButton*>(QStringLiteral("ColorButton"))->click();
             dialog.accept();
         },
         [](QDialog& dialog) {
             dynamic_cast<QColorDialog&>(dialog).setCurrentColor(QColor(1, 2, 3));
             dialog.accept();
         }});
    EXPECT_EQ(dialogs_.Font(request), expected);
}

TEST(FontDialogTest, GivesTheFamilyAndSizeThatAreChosen) {
    FontDialog dialog({QStringLiteral("No Such Face"), 8.25, false, false, false, false, {}});
    QFont font(QStringLiteral("DejaVu Serif"), 14);
    font.setItalic(true);
    dialog.findChild<QFontDialog*>()->setCurrentFont(font);
    EXPECT_EQ(dialog.Choice(), (FontChoice{QStringLiteral("DejaVu Serif"), 14, false, true, false,
                                           false, QColor(Qt::black)}));
}

TEST(FontDialogTest, BeginsWithTheUprightStyleWhateverTheFamilyCallsIt) {
    for (const bool bold : {false, true}) {
        const FontChoice begin{
            QStringLiteral("DejaVu Serif"), 12, bold, false, false, true, QColor(255, 0, 0)};
        EXPECT_EQ(FontDialog(begin).Choice(), begin) << bold;
    }
}

TEST_F(QtDialogsTest, AboutAndPrinterShowAndCancel) {
    AboutRequest about;
    about.title = QStringLiteral("Tavmoor");
    about.text = QStringLiteral("A <b>text</b>");
    const DialogUser user({[](QDialog& dialog) {
                               EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Tavmoor"));
                               dialog.accept();
                           },
                           [](QDialog& dialog) { dialog.reject(); }});
    dialogs_.About(about);
    EXPECT_FALSE(dialogs_.Printer({nullptr, QStringLiteral("Print"), 0}));
}

TEST_F(QtDialogsTest, FileIconsComeFromPicturesAndKindsOfFiles) {
    QImage picture(32, 32, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = NativePathText(folder_.Native("a.ico"));
    ASSERT_TRUE(picture.save(path));
    EXPECT_EQ(dialogs_.FileIcon(path, 32).pixmap(32).toImage().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_TRUE(dialogs_.FileIcon(NativePathText(folder_.Native("none.ico")), 32).isNull());
}

TEST(FileFilterTest, SplitsPairsAndPatterns) {
    const auto filters = ParseFilter(u"Sound files (Mp3, Wav)| *.mp3; *.wav;|All files (*.*)| *.*");
    ASSERT_EQ(filters.size(), 2U);
    EXPECT_EQ(filters[0].name, QStringLiteral("Sound files (Mp3, Wav)"));
    EXPECT_EQ(filters[0].patterns.join(u','), QStringLiteral("*.mp3,*.wav"));
    EXPECT_EQ(filters[1].patterns.join(u','), QStringLiteral("*.*"));
    EXPECT_EQ(ParseFilter(u"Everything").front().patterns.join(u','), QStringLiteral("*.*"));
    EXPECT_TRUE(ParseFilter(u"").empty());
}

TEST(ColorValueTest, TurnsBytesAndSystemColorsAround) {
    EXPECT_EQ(ToQColor(52479), QColor(255, 204, 0));
    EXPECT_EQ(ToColorValue(QColor(255, 204, 0)), 52479);
    EXPECT_EQ(ToQColor(-2147483630), QColor(Qt::black));     // button text
    EXPECT_EQ(ToQColor(-2147483643), QColor(Qt::white));     // window
    EXPECT_EQ(ToQColor(-2147483633), QColor(240, 240, 240)); // button face
    EXPECT_EQ(ToQColor(-2147483648 + 25), QColor(Qt::black));
    EXPECT_EQ(ParseColorText("-2147483630"), -2147483630);
    EXPECT_EQ(ColorText(-2147483630), "-2147483630");
    EXPECT_FALSE(ParseColorText(""));
    EXPECT_FALSE(ParseColorText("red"));
    EXPECT_FALSE(ParseColorText("4294967296"));
}

TEST(FontSpecTest, RoundsTheSizeAsItIsStored) {
    for (const auto& [text, points] : {std::pair<std::string, int>{"", 10},
                                       {"10.5", 10},
                                       {"11.5", 12},
                                       {"8.25", 8},
                                       {"big", 10},
                                       {"0", 10},
                                       {"-3", 10},
                                       {"1e9", 10}}) {
        EXPECT_EQ(FontPoints(text), points) << text;
    }
    const QFont font = ToQFont({"Arial", "11.5", true, false, true, false});
    EXPECT_EQ(font.family(), QStringLiteral("Arial"));
    EXPECT_EQ(font.pointSize(), 12);
    EXPECT_TRUE(font.bold() && !font.italic() && font.underline() && !font.strikeOut());
}

} // namespace tavmoor
