#include "core/document/project_fields.h"

#include "core/files/profile_file.h"
#include "support/full_project.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace tavmoor {

namespace {

std::string UpperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

} // namespace

TEST(ProjectFields, EveryKeyOfTheFilesIsFoundInAnyCase) {
    const auto full = test::MakeFullProject();
    for (const ProfileFile file(full->projectText + full->configurationText);
         const auto& [section, key, value] : file.Entries()) {
        if (key == "Boja pozadine  komandi") {
            continue; // written for others, and no field of its own
        }
        const auto place = FindField(UpperCase(std::string(section)), UpperCase(std::string(key)));
        ASSERT_TRUE(place) << key;
        EXPECT_EQ(KeyOf(*place), key);
        EXPECT_EQ(place->block->section, section);
    }
}

TEST(ProjectFields, OtherKeysAreNot) {
    const std::pair<const char*, std::vector<const char*>> sections[] = {
        {"Napredni sabloni",
         {"DugmeX(101)", "DugmeX(00)", "DugmeX(07)", "DugmeX(-1)", "DugmeX()", "DugmeX(1",
          "DugmeX1)", "DugmeX7", "DugmeX", "DugmeExists(1)", "DugmeX(99999999999999999999)", "(1)",
          ")", "TekstUnderline(4)"}},
        {"Dodatne komande", {"addname101", "addname01", "addname"}},
        {"Izvrsne komande", {"Fajl0", "Fajl7", "Boja pozadine  komandi"}},
        {"ObjTekst", {"TekstBoxX(100)"}},
        {"Video", {"VideoFajl0", "VideoFajl26"}},
        {"Fontovi", {"Font21", "Font"}},
        {"Osnovna podesavanja", {"Font", "Podesi velicinu", ""}},
        {"", {"Font"}}};
    for (const auto& [section, keys] : sections) {
        for (const char* key : keys) {
            EXPECT_FALSE(FindField(section, key)) << section << " " << key;
        }
    }
}

TEST(ProjectFields, PackageFilesComeInOrderAndOnce) {
    const auto document = std::make_unique<ProjectDocument>();
    ProjectDocument& d = *document;
    d.OsnovnaPodesavanja.PozadinskaSlika = "2";
    d.OsnovnaPodesavanja.backscreenslika = d.Video[2].VideoFajl = "9";
    d.OsnovniPodaci.Logoslika = "3";
    d.OsnovniPodaci.Ikona = "4";
    d.Zvuk.Fajl = "5";
    d.Zvuk.SignalFajl = "6";
    d.Uvod.Slika = "7";
    d.Izlaz.Slika = "8";
    d.Video[1].VideoFajl = "10";
    d.NapredniSabloni.Dugme[3].DugmePictureFile = "11";
    d.NapredniSabloni.Dugme[99].DugmePictureFile = "11b";
    d.Fontovi[0] = "12";
    d.NapredniSabloni.Dugme[100].DugmePictureFile = "the canvas never fills this slot";
    d.Fontovi[2] = d.Video[4].VideoFajl = "behind the gap";
    const std::vector<std::string> files{"2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "11b"};
    EXPECT_EQ(PackageFilesOf(d, 2, FontPackageOrder - 1), files);
    EXPECT_EQ(PackageFilesOf(d, FontPackageOrder, FontPackageOrder),
              std::vector<std::string>{"12"});
}

} // namespace tavmoor
