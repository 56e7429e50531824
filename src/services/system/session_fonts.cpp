#include "services/system/session_fonts.h"

#include "core/files/document_path.h"
#include "services/system/service_slot.h"
#include "services/system/session_fonts_platform.h"
#include "services/values/native_path_text.h"

#include <QFontDatabase>

#include <map>

namespace tavmoor {

namespace {

/// The program's own windows know a font only when Qt was told of it too.
class ProgramFonts final : public SessionFonts {
public:
    bool Add(const std::filesystem::path& file) override {
        const bool inSystem = PlatformAddFont(file);
        const int id = QFontDatabase::addApplicationFont(NativePathText(file));
        if (id >= 0) {
            ids_.emplace(file, id);
        }
        return inSystem && id >= 0;
    }

    bool Remove(const std::filesystem::path& file) override {
        const bool inSystem = PlatformRemoveFont(file);
        const auto added = ids_.find(file);
        if (added == ids_.end()) {
            return false;
        }
        const bool inProgram = QFontDatabase::removeApplicationFont(added->second);
        ids_.erase(added);
        return inSystem && inProgram;
    }

private:
    std::multimap<std::filesystem::path, int> ids_;
};

SessionFonts& SystemSessionFonts() {
    if (auto* replacement = ServiceSlot<SessionFonts>::Replacement()) {
        return *replacement;
    }
    static ProgramFonts fonts;
    return fonts;
}

void ForEachFont(std::span<const std::string> paths,
                 bool (SessionFonts::*action)(const std::filesystem::path&)) {
    for (const std::string& path : paths) {
        if (path.empty()) {
            return;
        }
        if (const auto native = FindNativePath(path)) {
            (SystemSessionFonts().*action)(*native);
        }
    }
}

} // namespace

void AddSessionFontsIgnoringErrors(std::span<const std::string> paths) {
    ForEachFont(paths, &SessionFonts::Add);
}

void RemoveSessionFontsIgnoringErrors(std::span<const std::string> paths) {
    ForEachFont(paths, &SessionFonts::Remove);
}

} // namespace tavmoor
