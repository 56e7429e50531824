#pragma once

#include "core/document/project_reset.h"
#include "support/pe_image.h"
#include "support/temporary_folder.h"

#include <memory>

namespace tavmoor::test {

/// The bytes of a program whose version block names this company.
inline std::string ProgramOf(std::u16string_view company) {
    return MakePeImage(VersionResourceOf(company)).bytes;
}

/// The names in a folder in order, with a blank between them.
inline std::string Listing(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    std::string listing;
    for (const std::string& name : names) {
        listing += (listing.empty() ? "" : " ") + name;
    }
    return listing;
}

/// A small project and all that a build of it needs, in a folder of its own: "disc", "work", the
/// template with its program, a background and an icon.
struct BuildProject {
    TemporaryFolder folder;
    std::unique_ptr<ProjectDocument> document =
        std::make_unique<ProjectDocument>(NewProjectDocument());
    std::string runtime = ProgramOf(u"Orlenta");

    BuildProject() {
        std::filesystem::create_directories(folder.Native("disc"));
        std::filesystem::create_directories(folder.Native("work"));
        std::filesystem::permissions(folder.Native("work"), std::filesystem::perms::owner_all);
        folder.Write("template/template.tavexe", runtime);
        document->OsnovnaPodesavanja.Sablon = folder.Write("template/Blue.tavt", "[Template]");
        document->OsnovnaPodesavanja.GlavniDirektorijum = folder.Document("disc");
        document->OsnovnaPodesavanja.PozadinskaSlika = folder.Write("art/back.bmp", "background");
        document->OsnovniPodaci.Ikona = folder.Write("art/blue.ico", "icon");
        document->OsnovniPodaci.Tasknaslov = "Holiday";
    }

    /// Gives the project this many films, which all go into the package.
    void AddFilms(std::size_t count) const {
        for (std::size_t i = 1; i <= count; ++i) {
            document->Video[i].VideoFajl = folder.Write(std::to_string(i) + ".avi", "film");
        }
    }
};

} // namespace tavmoor::test
