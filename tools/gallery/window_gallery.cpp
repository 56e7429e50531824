#include "core/document/project_reader.h"
#include "core/files/document_path.h"
#include "services/dialogs/message_box.h"
#include "services/look/theme.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "settings/main/main_menu.h"
#include "settings/main/main_window.h"
#include "settings/main/settings_window_list.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QtTest/QTest>

#include <cstdlib>
#include <iostream>

// Takes a picture of every panel, window and menu of the program with an example project open; run
// by tools/screenshots.

namespace tavmoor {

namespace {

constexpr int SettlingTime = 150; // milliseconds

class Gallery {
public:
    Gallery(const std::string& programFolder, QDir target) : target_(std::move(target)) {
        session_.programFolder = programFolder;
        session_.settings.previewPictures = true;
        RegisterSettingsWindows({session_, windows_});
    }

    void OpenProject(const std::string& path) {
        class Silent final : public ProjectReaderListener {
        } listener;
        session_.document.Working.Recent = path;
        session_.document.Working.ProjectPath = path;
        ReadProject(session_.document, session_.programFolder, listener);
        session_.document.OsnovnaPodesavanja.GlavniDirektorijum =
            session_.programFolder + "\\Examples";
        session_.recovery.Rest(session_.document); // nothing of it is kept for the user
    }

    void TakeAll() {
        auto& main = static_cast<Form1&>(windows_.Open(WindowName::Form1));
        constexpr std::pair<PanelName, const char*> Panels[] = {
            {PanelName::Frame2, "Frame2"}, {PanelName::Frame3, "Frame3"},
            {PanelName::Frame4, "Frame4"}, {PanelName::Frame5, "Frame5"},
            {PanelName::Frame9, "Frame9"}, {PanelName::Frame12, "Frame12"}};
        for (const auto& [panel, name] : Panels) {
            main.ShowPanel(panel);
            Take(main, QString::fromLatin1(name));
        }
        constexpr std::pair<WindowName, const char*> Windows[] = {
            {WindowName::Form3, "Form3"},       {WindowName::Form4, "Form4"},
            {WindowName::Form5, "Form5"},       {WindowName::Form7, "Form7"},
            {WindowName::Form8, "Form8"},       {WindowName::Form13, "Form13"},
            {WindowName::frmAbout, "frmAbout"}, {WindowName::menu2, "menu2"},
            {WindowName::PicPrev, "PicPrev"}};
        for (const auto& [window, name] : Windows) {
            Take(windows_.Open(window), QString::fromLatin1(name));
            windows_.Unload(window);
        }
        TakeMenus();
        TakePreview(main);
        TakeMessageBox(main);
    }

private:
    void Take(QWidget& window, const QString& name) {
        QTest::qWait(SettlingTime);
        const QString path = target_.filePath(name + QStringLiteral(".png"));
        if (!window.grab().save(path)) {
            qFatal("cannot write %s", qPrintable(path));
        }
        std::cout << path.toStdString() << '\n';
    }

    void TakeMenus() {
        for (const auto& [side, name] : {std::pair{MenuSide::File, "menu1-File"},
                                         std::pair{MenuSide::Program, "menu1-Program"}}) {
            auto& menu = static_cast<menu1&>(windows_.Load(WindowName::menu1));
            menu.ShowSide(side);
            menu.Present();
            Take(menu, QString::fromLatin1(name));
            windows_.Unload(WindowName::menu1);
        }
    }

    void TakePreview(Form1& main) {
        main.ShowPicturePreview(session_.programFolder + "\\Templates\\Nexus\\template.jpg");
        Take(*windows_.Find(WindowName::Form2), QStringLiteral("Form2"));
        windows_.Unload(WindowName::Form2);
    }

    void TakeMessageBox(Form1& main) {
        QTimer::singleShot(SettlingTime, [this] {
            QWidget* box = QApplication::activeModalWidget();
            Take(*box, QStringLiteral("MessageBox"));
            box->close();
        });
        AskYesNo(&main, QStringLiteral("CD-ROM files folder must be selected! Do you want to do "
                                       "it now?"));
    }

    QDir target_;
    ProgramSession session_;
    WindowRegistry windows_;
};

} // namespace

} // namespace tavmoor

/// Arguments: the program folder, the project, the folder for the pictures; all native.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 4) {
        std::cerr << "usage: window_gallery PROGRAM_FOLDER PROJECT PICTURE_FOLDER\n";
        return EXIT_FAILURE;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(QStringLiteral("Tavmoor"));
    tavmoor::theme::Apply(application);
    tavmoor::Gallery gallery(tavmoor::DocumentPath(std::filesystem::absolute(argv[1])),
                             QDir(QString::fromLocal8Bit(argv[3])));
    gallery.OpenProject(tavmoor::DocumentPath(std::filesystem::absolute(argv[2])));
    gallery.TakeAll();
    return EXIT_SUCCESS;
}
