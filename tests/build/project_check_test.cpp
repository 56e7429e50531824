#include "build/project_check.h"

#include "core/code_page.h"
#include "core/project_reader.h"
#include "support/build_project.h"

#include <gtest/gtest.h>

#include <map>

namespace tavmoor {

namespace {

using Kind = FindingKind;

class ProjectCheckTest : public testing::Test {
protected:
    /// The lines of a project in which nothing is wrong, changed: a key that stands there already
    /// takes the value, another one is added to its section.
    std::vector<Finding>
    FindingsWith(const std::vector<std::pair<std::string, std::string>>& changes) {
        std::map<std::string, std::map<std::string, std::string>> sections = good_;
        for (const auto& [place, value] : changes) {
            const std::size_t slash = place.find('/');
            sections[place.substr(0, slash)][place.substr(slash + 1)] = value;
        }
        std::string text;
        for (const auto& [section, keys] : sections) {
            text += "[" + section + "]\r\n";
            for (const auto& [key, value] : keys) {
                text += key + "=" + value + "\r\n";
            }
        }
        const ProfileFile file(text);
        const auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
        class Silent final : public ProjectReaderListener {
        } silent;
        ReadProjectFrom(file, *document, project_.folder.Document(), silent);
        MakeButtonsLive(*document, ButtonRowsIn(file));
        return CheckProject(*document, file, project_.folder.Document());
    }

    test::BuildProject project_;
    std::map<std::string, std::map<std::string, std::string>> good_{
        {"Osnovna podesavanja",
         {{"Glavni direktorijum", project_.folder.Document("disc")},
          {"Sablon", "%template\\Blue.tavt"},
          {"Pozadinska slika", "%art\\back.bmp"}}},
        {"Osnovni podaci",
         {{"exename", "start.exe"}, {"Ikona", project_.document->OsnovniPodaci.Ikona}}},
        {"Napredni sabloni", {{"DugmePictureFile(2)", "%art\\back.bmp"}}}};
};

} // namespace

TEST_F(ProjectCheckTest, FindsEachKindOfFault) {
    EXPECT_EQ(FindingsWith({}).size(), 0U);
    const test::TemporaryFolder& folder = project_.folder;
    const std::string disc = "Osnovna podesavanja/Glavni direktorijum";
    const std::string descriptor = "Osnovna podesavanja/Sablon";
    const std::string name = "Osnovni podaci/exename";
    const std::string logo = "Osnovni podaci/Logoslika";
    const std::string gone = folder.Document("gone.tavt");
    const std::string bare = folder.Write("bare/Bare.tavt", "[Template]\r\nName=Bare\r\n");
    const std::string empty = folder.Write("art/empty.gif", "");
    const std::string foreign = folder.Document("art") + "\\caf\xE9.gif";
    std::ofstream(NativePath(foreign)) << "x";
    const std::string twin = folder.Write("other/BACK.bmp", "another");
    const std::string own = folder.Write("other/Tavmoor.cfg", "x");
    struct Case {
        std::vector<std::pair<std::string, std::string>> changes;
        std::vector<std::pair<Kind, std::string>> findings;
    };
    const std::string bareRuntime = folder.Document("bare") + "\\template.tavexe";
    const Case cases[] = {
        {{{disc, ""}}, {{Kind::FolderMissing, ""}}},
        {{{disc, twin}}, {{Kind::FolderMissing, twin}}},
        {{{descriptor, ""}}, {{Kind::NoTemplate, ""}}},
        {{{descriptor, folder.Document("template") + "\\gone.tavt"}},
         {{Kind::DescriptorMissing, folder.Document("template") + "\\gone.tavt"}}},
        {{{descriptor, bare}}, {{Kind::RuntimeMissing, bareRuntime}}},
        {{{name, "my app.exe"}}, {{Kind::NameInvalid, "my app"}}},
        {{{name, ""}, {"Osnovni podaci/Tasknaslov", "My app"}}, {{Kind::NameInvalid, "My app"}}},
        {{{name, ""}}, {{Kind::NameInvalid, ""}}},
        {{{logo, gone}}, {{Kind::FileMissing, gone}}},
        {{{logo, folder.Document("art")}}, {{Kind::FileMissing, folder.Document("art")}}},
        {{{"Fontovi/Font0", gone}}, {{Kind::FileMissing, gone}}},
        {{{"Napredni sabloni/DugmePictureFile(7)", gone}}, {{Kind::FileMissing, gone}}},
        {{{logo, empty}}, {{Kind::FileEmpty, empty}}},
        {{{"Napredni sabloni/DugmePictureFile(7)", empty}}, {{Kind::FileEmpty, empty}}},
        {{{logo, foreign}}, {{Kind::NameNotScramblable, foreign}}},
        {{{logo, twin}}, {{Kind::SameName, twin}}},
        {{{logo, own}}, {{Kind::SameName, own}}},
        {{{"Uvod/Poruka", std::string(1023, 'x')}}, {}},
        {{{"Uvod/Poruka", std::string(1024, 'x')}}, {{Kind::ValueTooLong, "[Uvod] Poruka"}}},
        {{{disc, ""}, {logo, gone}}, {{Kind::FolderMissing, ""}, {Kind::FileMissing, gone}}},
    };
    for (const Case& wanted : cases) {
        std::vector<std::pair<Kind, std::string>> found;
        for (const Finding& finding : FindingsWith(wanted.changes)) {
            found.emplace_back(finding.kind, finding.subject);
            EXPECT_TRUE(finding.text.ends_with(".")) << finding.text;
        }
        EXPECT_EQ(found, wanted.findings);
    }
}

TEST_F(ProjectCheckTest, CountsTheFilesThatABuildWouldPack) {
    project_.AddFilms(18);
    std::vector<std::pair<std::string, std::string>> films;
    for (std::size_t i = 1; i <= 17; ++i) {
        films.emplace_back("Video/VideoFajl" + std::to_string(i),
                           project_.document->Video[i].VideoFajl);
    }
    EXPECT_EQ(FindingsWith(films).size(), 0U);
    films.emplace_back("Video/VideoFajl18", project_.document->Video[18].VideoFajl);
    const auto findings = FindingsWith(films);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().kind, Kind::TooManyFiles);
    EXPECT_EQ(findings.front().subject, project_.document->Video[18].VideoFajl);
}

TEST_F(ProjectCheckTest, FindsBytesThatTheCodePageDoesNotKnow) {
    const int number = SystemCodePage().Number();
    SetSystemCodePage(1252);
    const auto fine = FindingsWith({{"Uvod/Poruka", "caf\xE9 \x80"}});
    const auto findings = FindingsWith({{"Uvod/Poruka", "a\x81"}});
    SetSystemCodePage(number);
    EXPECT_EQ(fine.size(), 0U);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().kind, Kind::UndefinedCharacter);
    EXPECT_EQ(findings.front().text,
              "[Uvod] Poruka has a character that code page 1252 does not know.");
}

} // namespace tavmoor
