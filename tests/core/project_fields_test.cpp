#include "core/project_fields.h"

#include "core/profile_file.h"
#include "support/full_project.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace tavmoor {

namespace {

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return upper;
}

} // namespace

TEST(ProjectFields, EveryKeyOfTheFilesIsFound) {
    const auto full = test::MakeFullProject("Z:\\button.png", "button.png");
    for (const std::string& text : {full->projectText, full->configurationText}) {
        const ProfileFile file(text);
        for (const ProfileFile::Entry& entry : file.Entries()) {
            const auto place = FindField(UpperCase(entry.section), UpperCase(entry.key));
            if (entry.key == "Boja pozadine  komandi") {
                EXPECT_FALSE(place) << "written for others, and no field of its own";
                continue;
            }
            ASSERT_TRUE(place) << entry.key;
            std::string key;
            AppendKey(key, place->field->key, place->block->keyForm, place->row);
            EXPECT_EQ(key, entry.key);
            EXPECT_EQ(place->block->section, entry.section);
        }
    }
}

TEST(ProjectFields, OtherKeysAreNot) {
    const std::pair<const char*, const char*> keys[] = {
        {"Napredni sabloni", "DugmeX(101)"},   {"Napredni sabloni", "DugmeX(00)"},
        {"Napredni sabloni", "DugmeX(07)"},    {"Napredni sabloni", "DugmeX(-1)"},
        {"Napredni sabloni", "DugmeX()"},      {"Napredni sabloni", "DugmeX(1"},
        {"Napredni sabloni", "DugmeX1)"},      {"Napredni sabloni", "DugmeX7"},
        {"Napredni sabloni", "DugmeX"},        {"Napredni sabloni", "DugmeExists(1)"},
        {"Napredni sabloni", "DugmeX(99999999999999999999)"},
        {"Napredni sabloni", "(1)"},           {"Napredni sabloni", ")"},
        {"Napredni sabloni", "TekstUnderline(4)"},
        {"ObjTekst", "TekstBoxX(100)"},        {"Dodatne komande", "addname101"},
        {"Dodatne komande", "addname01"},      {"Dodatne komande", "addname"},
        {"Izvrsne komande", "Fajl0"},          {"Izvrsne komande", "Fajl7"},
        {"Video", "VideoFajl0"},               {"Video", "VideoFajl26"},
        {"Fontovi", "Font21"},                 {"Precice", "Ime51"},
        {"Osnovna podesavanja", "Font"},       {"Osnovna podesavanja", "Podesi velicinu"},
        {"", "Font"},                          {"Uvod", ""},
    };
    for (const auto& [section, key] : keys) {
        EXPECT_FALSE(FindField(section, key)) << section << " " << key;
    }
}

TEST(ProjectFields, PackageFilesComeInOrderAndOnce) {
    const auto document = std::make_unique<ProjectDocument>();
    ProjectDocument& d = *document;
    d.OsnovnaPodesavanja.PozadinskaSlika = "2";
    d.OsnovnaPodesavanja.backscreenslika = "9";
    d.OsnovniPodaci.Logoslika = "3";
    d.OsnovniPodaci.Ikona = "4";
    d.Zvuk.Fajl = "5";
    d.Zvuk.SignalFajl = "6";
    d.Uvod.Slika = "7";
    d.Izlaz.Slika = "8";
    d.Video[1].VideoFajl = "10";
    d.Video[2].VideoFajl = "9";
    d.Video[4].VideoFajl = "behind the gap";
    d.NapredniSabloni.Dugme[3].DugmePictureFile = "11";
    d.NapredniSabloni.Dugme[99].DugmePictureFile = "11b";
    d.NapredniSabloni.Dugme[100].DugmePictureFile = "never";
    d.Fontovi[0] = "12";
    d.Fontovi[2] = "behind the gap";
    const std::vector<std::string> files{"2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "11b"};
    EXPECT_EQ(PackageFilesOf(d, 2, FontPackageOrder - 1), files);
    EXPECT_EQ(PackageFilesOf(d, FontPackageOrder, FontPackageOrder), std::vector<std::string>{"12"});
}

} // namespace tavmoor
