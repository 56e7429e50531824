#include "core/session/program_settings.h"

#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/profile_file.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"

#include <array>

namespace tavmoor {

namespace {

constexpr std::string_view Section = "Settings";

enum class SettingForm {
    OnlyOneIsTrue,    ///< "1" or "0"; true only for "1"
    OnlyZeroIsFalse,  ///< "1" or "0"; false only for "0"
    OneOrEmptyIsTrue, ///< "1" or "0"; true for "1" and for ""
    OnlyTrueIsTrue,   ///< "True" or "False"
    Text,
    TextUnlessEmpty, ///< no line when empty
    WrittenOnly,
};

struct Setting {
    std::string_view key;
    SettingForm form;
    bool ProgramSettings::*flag = nullptr;
    std::string ProgramSettings::*text = nullptr;
};

using S = ProgramSettings;

// In the order of the file's lines.
constexpr std::array<Setting, 9> Settings{{
    {"Preview", SettingForm::OnlyOneIsTrue, &S::previewPictures},
    {"Splashscreen", SettingForm::OnlyZeroIsFalse, &S::programSplash},
    {"Compressfolder", SettingForm::WrittenOnly, nullptr, &S::buildFolder},
    {"Preview Created", SettingForm::OnlyTrueIsTrue, &S::testAfterBuild},
    {"Recent", SettingForm::TextUnlessEmpty, nullptr, &S::recentProject},
    {"Autoplay Check", SettingForm::OneOrEmptyIsTrue, &S::autoplayCheck},
    {"LastPictureFolder", SettingForm::Text, nullptr, &S::lastPictureFolder},
    {"LastSoundFolder", SettingForm::Text, nullptr, &S::lastSoundFolder},
    {"ShowWelcomeScren", SettingForm::OnlyTrueIsTrue, &S::welcomeWindow},
}};

void ReadSetting(ProgramSettings& settings, const Setting& setting, std::string_view value) {
    switch (setting.form) {
    case SettingForm::OnlyOneIsTrue:
        settings.*setting.flag = value == "1";
        return;
    case SettingForm::OnlyZeroIsFalse:
        settings.*setting.flag = value != "0";
        return;
    case SettingForm::OneOrEmptyIsTrue:
        settings.*setting.flag = value.empty() || value == "1";
        return;
    case SettingForm::OnlyTrueIsTrue:
        settings.*setting.flag = value == "True";
        return;
    case SettingForm::Text:
    case SettingForm::TextUnlessEmpty:
        settings.*setting.text = value;
        return;
    case SettingForm::WrittenOnly:
        return;
    }
}

void AppendSetting(std::string& text, const ProgramSettings& settings, const Setting& setting) {
    std::string_view value;
    if (setting.text != nullptr) {
        value = settings.*setting.text;
        if (value.empty() && setting.form == SettingForm::TextUnlessEmpty) {
            return;
        }
    } else if (setting.form == SettingForm::OnlyTrueIsTrue) {
        value = settings.*setting.flag ? "True" : "False";
    } else {
        value = settings.*setting.flag ? "1" : "0";
    }
    text.append(setting.key).append("=").append(value).append("\r\n");
}

} // namespace

ProgramSettings ReadProgramSettings(std::string_view path) {
    const ProfileFile file = ProfileFile::Load(path);
    ProgramSettings settings;
    for (const Setting& setting : Settings) {
        ReadSetting(settings, setting, file.Value(Section, setting.key));
    }
    return settings;
}

void WriteProgramSettings(const ProgramSettings& settings, std::string_view path) {
    std::string text = "[" + std::string(Section) + "]\r\n";
    for (const Setting& setting : Settings) {
        AppendSetting(text, settings, setting);
    }
    const std::filesystem::path folder = NativePath(FolderOf(path));
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw FileError(error, path);
    }
    WriteWholeFile(path, text);
}

void DeleteProgramSettingsFile(std::string_view path) {
    DeleteFileIgnoringErrors(path);
}

} // namespace tavmoor
