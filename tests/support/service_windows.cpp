#include "support/service_windows.h"

#include "services/shared/service_window_list.h"

namespace tavmoor::test {

ServiceWindows::ServiceWindows() {
    session.programFolder = folder.Document("program");
    session.settingsPath = folder.Document("program/tavmoor.ini");
    std::filesystem::create_directories(folder.Native("program"));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Native("data").string()));
    RegisterServiceWindows(Context());
}

ServiceWindows::~ServiceWindows() {
    windows.UnloadAll();
    Settle();
}

SkinnedWindow* ServiceWindows::Shown(WindowName name) const {
    auto* window = static_cast<SkinnedWindow*>(windows.Find(name));
    return window != nullptr && window->isVisible() ? window : nullptr;
}

} // namespace tavmoor::test
