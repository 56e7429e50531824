#include "support/program_windows.h"

#include "settings/main/settings_window_list.h"
#include "support/user_input.h"

#include <QApplication>
#include <QtTest/QTest>

namespace tavmoor::test {

ProgramWindows::ProgramWindows() {
    session.programFolder = folder.Document("program");
    session.settingsPath = folder.Document("program/tavmoor.ini");
    std::filesystem::create_directories(folder.Native("program"));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Native("data").string()));
    RegisterSettingsWindows(Context());
}

ProgramWindows::~ProgramWindows() {
    windows.UnloadAll();
    windows.Unload(WindowName::Form1);
    Settle();
}

void ProgramWindows::ClickAt(QWidget& control, QPoint place) {
    ASSERT_TRUE(control.isEnabled()) << control.objectName().toStdString();
    ASSERT_TRUE(control.isVisible()) << control.objectName().toStdString();
    QTest::mouseClick(&control, Qt::LeftButton, {}, place);
    Settle();
}

void ProgramWindows::Click(QWidget& control) {
    ClickAt(control, control.rect().center());
}

void ProgramWindows::DoubleClick(QWidget& window, const char* name) {
    auto& control = Find(window, name);
    auto* area = qobject_cast<QAbstractScrollArea*>(&control);
    QTest::mouseDClick(area != nullptr ? area->viewport() : &control, Qt::LeftButton);
    Settle();
}

void ProgramWindows::Type(QWidget& window, const char* name, const QString& text) {
    auto& control = Find(window, name);
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control, Qt::Key_Delete);
    TypeText(control, text);
    Settle();
}

void ProgramWindows::PressKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&control, key, modifiers);
    Settle();
}

bool ProgramWindows::Drop(QWidget& control, const std::filesystem::path& path) {
    const bool taken = DropPath(control, path);
    Settle();
    return taken;
}

void ProgramWindows::Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

SkinnedWindow* ProgramWindows::Shown(WindowName name) const {
    SkinnedWindow* window = windows.Find(name);
    return window != nullptr && window->isVisible() ? window : nullptr;
}

} // namespace tavmoor::test
