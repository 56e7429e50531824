#include "app/program_application.h"
#include "app/run_program.h"
#include "core/document/project_reset.h"
#include "core/files/build_folder.h"
#include "core/files/file_store.h"
#include "core/files/profile_file.h"
#include "core/files/runtime_error.h"
#include "services/dialogs/message_box.h"
#include "services/system/service_slot.h"
#include "services/system/session_fonts.h"
#include "settings/main/main_window.h"
#include "support/temporary_folder.h"

#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavmoor {

/// A run of the program in folders of its own, which writes down in one line what it shows, asks
/// and does with fonts. Every question is answered with yes.
class ProgramRun : public testing::Test,
                   public QObject,
                   public MessageBoxResponder,
                   public SessionFonts {
protected:
    ProgramRun() {
        qputenv("TMPDIR", folder.Native().string().c_str());
        qputenv("XDG_DATA_HOME", folder.Native("data").string().c_str());
        WriteSettings("Splashscreen=0");
        qApp->installEventFilter(this);
    }
    ~ProgramRun() override { qunsetenv("TMPDIR"); }

    void WriteSettings(const std::string& line) {
        folder.Write("program/tavmoor.ini", "[Settings]\r\n" + line + "\r\n");
    }
    static std::string Crashing() {
        throw RuntimeError(ErrorNumber::PathNotFound, "no program folder");
    }
    /// Runs the program until `act` in its main window ends it; that closes the window at last.
    int Run(std::function<void(Form1&)> act = [](Form1&) {}) {
        act_ = std::move(act);
        log.clear();
        return RunProgram(static_cast<ProgramApplication&>(*qApp),
                          [this] { return folder.Document("program"); });
    }
    [[nodiscard]] bool IsMarkedAsRunning() const {
        return FileExists(folder.Document("data/tavmoor/running-1"));
    }

    BoxAnswer Answer(const MessageBoxRequest& request) override {
        // On disk as well, since a run that ends by an error takes its memory with it.
        boxes += request.text.toStdString() + ";";
        folder.Write("boxes", boxes);
        log += "box ";
        onBox();
        return request.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
    }
    bool Add(const std::filesystem::path& file) override { return Note("+", file); }
    bool Remove(const std::filesystem::path& file) override { return Note("-", file); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* window = qobject_cast<SkinnedWindow*>(watched);
        if (window == nullptr || event->type() != QEvent::Show) {
            return false;
        }
        if (log.empty() && IsMarkedAsRunning() &&
            std::filesystem::exists(folder.Native("TAVMOORBuild"))) {
            log += "ready ";
        }
        log += window->objectName().toStdString() + " ";
        if (window->objectName() == QLatin1String("Form5")) {
            QTimer::singleShot(0, window, &QWidget::close);
        } else if (auto* main = qobject_cast<Form1*>(window)) {
            QTimer::singleShot(0, main, [this, main] {
                act_(*main);
                main->close();
            });
        }
        return false;
    }

    test::TemporaryFolder folder;
    std::string log;
    std::string boxes;
    std::function<void()> onBox = [] {};

private:
    bool Note(const char* what, const std::filesystem::path& file) {
        log += what + file.filename().string() + " ";
        return true;
    }

    std::function<void(Form1&)> act_;
    ScopedService<MessageBoxResponder> boxSlot_{*this};
    ScopedService<SessionFonts> fontSlot_{*this};
};

TEST_F(ProgramRun, GoesFromTheSplashToTheEndOfTheMainWindow) {
    WriteSettings("Compressfolder=Z:\\old\r\nRecent=Z:\\last.tavp\r\nAutoplay Check=0");
    folder.Write("data/tavmoor/running-1", "a run that crashed");
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    document->Fontovi[0] = folder.Write("a.ttf", "x");
    const std::string copy = WriteRecoveryCopy(*document);
    EXPECT_EQ(Run([this](Form1& main) {
                  main.Serve(MenuAction::About);
                  log += "end ";
              }),
              EXIT_SUCCESS);
    EXPECT_EQ(log, "ready Form5 Form1 box +a.ttf frmAbout end -a.ttf ");
    EXPECT_NE(boxes.find(copy), std::string::npos);
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_EQ(qobject_cast<const SkinnedWindow*>(window), nullptr) << "not unloaded";
    }
    EXPECT_EQ(folder.Read("program/tavmoor.ini"),
              "[Settings]\r\nPreview=0\r\nSplashscreen=1\r\nCompressfolder=" + BuildFolder() +
                  "\r\nPreview Created=False\r\nRecent=Z:\\last.tavp\r\nAutoplay Check=0\r\n"
                  "LastPictureFolder=\r\nLastSoundFolder=\r\nShowWelcomeScren=False\r\n");
    EXPECT_FALSE(IsMarkedAsRunning());
}

TEST_F(ProgramRun, BeginsWithTheMainWindowWhenThereIsNoSplash) {
    WriteRecoveryCopy(*std::make_unique<ProjectDocument>(NewProjectDocument()));
    Run();
    EXPECT_EQ(log, "ready Form1 ") << "no run crashed that left the copy";
}

TEST_F(ProgramRun, TellsThatItCannotStart) {
    EXPECT_EQ(RunProgram(static_cast<ProgramApplication&>(*qApp), &Crashing), EXIT_FAILURE);
    EXPECT_EQ(log, "box ");
    EXPECT_NE(boxes.find("no program folder"), std::string::npos);
    EXPECT_FALSE(IsMarkedAsRunning());
}

using ErrorBoundaryDeathTest = ProgramRun;

TEST_F(ErrorBoundaryDeathTest, KeepsTheWorkTellsOnceAndEnds) {
    onBox = [] {
        QObject object; // a timer that goes on while the box is open
        QTimer::singleShot(0, &object, [] { throw std::out_of_range("again"); });
        QCoreApplication::processEvents();
    };
    const auto crash = [this] {
        Run([](Form1& main) {
            auto& panel = main.ShowPanel(PanelName::Frame3);
            panel.findChild<QLineEdit*>(QStringLiteral("Text1"))->insert(QStringLiteral("work"));
            QTimer::singleShot(0, &main, [] { Crashing(); });
            QCoreApplication::processEvents();
        });
    };
    EXPECT_EXIT(crash(), testing::ExitedWithCode(EXIT_FAILURE), "");
    const auto copy = NewestRecoveryCopy(std::filesystem::file_time_type::min());
    ASSERT_TRUE(copy);
    EXPECT_EQ(ReadProfileValue(*copy, "Osnovni podaci", "Tasknaslov"), "work");
    EXPECT_EQ(folder.Read("boxes"),
              std::string(RuntimeError(ErrorNumber::PathNotFound, "no program folder").what()) +
                  "\n\nYour project was kept in " + *copy + "\nThe next start offers it.;");
    onBox = [] {};
    Run();
    EXPECT_EQ(log, "ready Form1 box ");

    std::filesystem::rename(folder.Native("data/tavmoor/recovery"), folder.Native("kept"));
    folder.Write("data/tavmoor/recovery", "in the way");
    EXPECT_EXIT(crash(), testing::ExitedWithCode(EXIT_FAILURE), "");
    EXPECT_NE(folder.Read("boxes").find("\n\nYour project could not be kept: "), std::string::npos);
}

} // namespace tavmoor
