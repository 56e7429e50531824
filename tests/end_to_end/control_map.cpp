#include "core/files/document_path.h"
#include "services/look/theme.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "settings/main/main_menu.h"
#include "settings/main/main_window.h"
#include "settings/main/settings_window_list.h"

#include <QApplication>
#include <QtTest/QTest>

#include <cstdlib>
#include <filesystem>
#include <iostream>

// Prints where the controls of the windows are, for the test that clicks on them from outside: one
// line for each, "window control left top width height", in logical pixels within the window.

namespace tavmoor {

namespace {

void Print(const char* name, const QWidget& window) {
    QTest::qWait(50);
    std::cout << name << " . 0 0 " << window.width() << ' ' << window.height() << '\n';
    for (const auto* control : window.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty() && control->isVisible()) {
            const QPoint place = control->mapTo(&window, QPoint());
            std::cout << name << ' ' << control->objectName().toStdString() << ' ' << place.x()
                      << ' ' << place.y() << ' ' << control->width() << ' ' << control->height()
                      << '\n';
        }
    }
}

void PrintAll(ProgramContext context) {
    auto& main = static_cast<Form1&>(context.windows.Open(WindowName::Form1));
    for (const auto& [panel, name] :
         {std::pair{PanelName::Frame2, "Frame2"}, std::pair{PanelName::Frame3, "Frame3"},
          std::pair{PanelName::Frame4, "Frame4"}, std::pair{PanelName::Frame5, "Frame5"},
          std::pair{PanelName::Frame9, "Frame9"}, std::pair{PanelName::Frame12, "Frame12"}}) {
        main.ShowPanel(panel);
        Print(name, main);
    }
    for (const auto& [window, name] :
         {std::pair{WindowName::Form4, "Form4"}, std::pair{WindowName::Form7, "Form7"},
          std::pair{WindowName::Form8, "Form8"}}) {
        Print(name, context.windows.Open(window));
        context.windows.Unload(window);
    }
    auto& menu = static_cast<menu1&>(context.windows.Load(WindowName::menu1));
    menu.ShowSide(MenuSide::File);
    menu.Present();
    Print("menu1", menu);
}

} // namespace

} // namespace tavmoor

/// Argument: the program folder, native.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: control_map PROGRAM_FOLDER\n";
        return EXIT_FAILURE;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    tavmoor::theme::Apply(application);
    tavmoor::ProgramSession session;
    tavmoor::WindowRegistry windows;
    session.programFolder = tavmoor::DocumentPath(std::filesystem::absolute(argv[1]));
    // A project that is ready to be built shows the most controls.
    session.document.OsnovnaPodesavanja.GlavniDirektorijum = session.programFolder;
    tavmoor::RegisterSettingsWindows({session, windows});
    tavmoor::PrintAll({session, windows});
    return EXIT_SUCCESS;
}
