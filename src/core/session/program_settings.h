#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// The settings of the program itself, kept for the whole run and stored in `tavmoor.ini`.
struct ProgramSettings {
    bool previewPictures = false;
    bool programSplash = true;
    std::string buildFolder; ///< written at every exit, never read back
    bool testAfterBuild = false;
    std::string recentProject; ///< full path; "" leaves no line
    bool autoplayCheck = true; ///< check the system's autorun status at every start
    std::string lastPictureFolder;
    std::string lastSoundFolder;
    bool welcomeWindow = false;
};

/// Reads the settings; a file or key that is missing gives the value of a fresh ProgramSettings.
ProgramSettings ReadProgramSettings(std::string_view path);

/// Writes all lines afresh. The folder of the path is made when it is missing.
/// @throws RuntimeError when the file cannot be written
void WriteProgramSettings(const ProgramSettings& settings, std::string_view path);

/// Deletes the file; that none is there is no failure.
void DeleteProgramSettingsFile(std::string_view path);

} // namespace tavmoor
