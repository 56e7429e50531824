#pragma once

#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/files/profile_file.h"
#include "menu/menu_layout.h"

#include <algorithm>
#include <string>

namespace tavmoor::test {

/// The project of a runtime configuration; lines are parted by LF here.
inline ProjectDocument DocumentOf(const std::string& configuration) {
    ProjectDocument document = NewProjectDocument();
    ReadRuntimeConfiguration(ProfileFile(configuration), document);
    return document;
}

/// Its menu.
inline MenuModel ModelOf(const std::string& configuration,
                         DesignedIn place = DesignedIn::Settings) {
    return MakeMenuModel(DocumentOf(configuration), place);
}

/// A menu with so many commands before the exit, as the configuration would give it.
inline MenuModel ModelWithCommands(int count) {
    std::string configuration = "[Osnovni podaci]\nGlavninaslov=Disc of the year\nLogotekst=Extra\n"
                                "GlavniOpisnaslov=Welcome\nGlavniOpis=All that is on it.\n"
                                "[Dodatne komande]\n";
    for (int i = 0; i < count; ++i) {
        const std::string caption =
            i % 5 == 3 ? "A caption that is far too long for the button it has to stand on" : "Go";
        configuration += "addname" + std::to_string(i) + "=" + caption + "\n";
    }
    return ModelOf(configuration);
}

/// Letters of one width; lines break anywhere.
class GridMeter final : public TextMeter {
public:
    explicit GridMeter(int dpi = 96) : dpi_(dpi) {}

    [[nodiscard]] Extent Measure(const std::string& text, const MenuFont& font,
                                 int mostWidth) const override {
        const int letter = std::max(LineHeight(font) / 2, 1);
        const int fitting = std::max(mostWidth / letter, 1);
        const int length = static_cast<int>(text.size());
        const int lines = std::max((length + fitting - 1) / fitting, 1);
        return {std::min(length, fitting) * letter, lines * LineHeight(font)};
    }
    [[nodiscard]] int LineHeight(const MenuFont& font) const override {
        return font.points * dpi_ / 60;
    }

private:
    int dpi_;
};

} // namespace tavmoor::test
