#include "services/windows/window_registry.h"

#include <QAbstractButton>

namespace tavmoor {

void WindowRegistry::Register(WindowName name, Factory factory) {
    factories_[name] = std::move(factory);
}

bool WindowRegistry::Stands(WindowName name) const {
    return factories_.contains(name);
}

ProgramWindow& WindowRegistry::Load(WindowName name) {
    if (ProgramWindow* window = Find(name)) {
        return *window;
    }
    ProgramWindow* window = factories_.at(name)();
    loaded_[name] = window;
    window->Load();
    return *window;
}

ProgramWindow* WindowRegistry::Find(WindowName name) const {
    const auto found = loaded_.find(name);
    if (found == loaded_.end() || !found->second || found->second->IsUnloaded()) {
        return nullptr;
    }
    return found->second;
}

ProgramWindow& WindowRegistry::Open(WindowName name) {
    ProgramWindow& window = Load(name);
    window.Present();
    return window;
}

ProgramWindow& WindowRegistry::OpenFromMain(WindowName name) {
    ProgramWindow& window = Load(name);
    window.SetBringsMainBack(true);
    if (main_ != nullptr) {
        main_->SetVisible(false);
    }
    window.Present();
    return window;
}

void WindowRegistry::Unload(WindowName name) {
    if (ProgramWindow* window = Find(name)) {
        window->Unload();
    }
}

void WindowRegistry::UnloadAll() {
    for (const auto& [name, factory] : factories_) {
        if (ProgramWindow* window = name == WindowName::Form1 ? nullptr : Find(name)) {
            window->SetBringsMainBack(false);
            window->Unload();
        }
    }
}

bool EnableWhenStanding(QAbstractButton& button, const WindowRegistry& windows, WindowName name) {
    const bool stands = windows.Stands(name);
    button.setEnabled(stands);
    if (!stands) {
        const QString why = QStringLiteral("This window is not part of this version yet.");
        const QString tip = button.toolTip();
        button.setToolTip(tip.isEmpty() ? why : tip + QLatin1Char('\n') + why);
    }
    return stands;
}

} // namespace tavmoor
