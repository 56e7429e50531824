#pragma once

#include "services/windows/skinned_window.h"

#include <functional>

namespace tavmoor::test {

/// Stands in for a window that a test only wants to see opened, and says when it is loaded.
class PlainWindow final : public SkinnedWindow {
public:
    PlainWindow(ProgramContext context, WindowName name, std::function<void()> loaded = {})
        : SkinnedWindow(context, {.name = name}), loaded_(std::move(loaded)) {}

    static void Register(ProgramContext context, WindowName name,
                         const std::function<void()>& loaded = {}) {
        context.windows.Register(
            name, [context, name, loaded] { return new PlainWindow(context, name, loaded); });
    }

protected:
    void OnLoad() override {
        if (loaded_) {
            loaded_();
        }
    }

private:
    std::function<void()> loaded_;
};

} // namespace tavmoor::test
