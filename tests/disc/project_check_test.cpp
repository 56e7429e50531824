#include "disc/project_check.h"

#include "core/document/project_reader.h"
#include "core/text/code_page.h"
#include "support/build_project.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

using Kind = FindingKind;

/// Keys with their section, "Uvod/Poruka", and their values.
using Values = std::vector<std::pair<std::string, std::string>>;
using Found = std::vector<std::pair<Kind, std::string>>;

class ProjectCheckTest : public testing::Test {
protected:
    /// Kinds and subjects of what is found in a good project with other values; of a key that
    /// stands twice in a file the first counts.
    [[nodiscard]] Found FindingsWith(Values values) const {
        const Values good{{"Osnovna podesavanja/Glavni direktorijum", folder_.Document("disc")},
                          {"Osnovna podesavanja/Sablon", "%template\\Blue.tavt"},
                          {"Osnovna podesavanja/Pozadinska slika", "%art\\back.bmp"},
                          {"Osnovni podaci/exename", "start.exe"},
                          {"Napredni sabloni/DugmePictureFile(2)", "%art\\back.bmp"}};
        values.insert(values.end(), good.begin(), good.end());
        std::string text;
        for (const auto& [place, value] : values) {
            const std::size_t slash = place.find('/');
            text += "[" + place.substr(0, slash) + "]\r\n";
            text += place.substr(slash + 1) + "=" + value + "\r\n";
        }
        const ProfileFile file(text);
        const auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
        class Silent final : public ProjectReaderListener {
        } silent;
        ReadProjectFrom(file, *document, folder_.Document(), silent);
        MakeButtonsLive(*document, ButtonRowsIn(file));
        Found found;
        for (const Finding& finding : CheckProject(*document, file, folder_.Document())) {
            found.emplace_back(finding.kind, finding.subject);
            EXPECT_TRUE(finding.text.ends_with(".")) << finding.text;
        }
        return found;
    }

    test::BuildProject project_;
    const test::TemporaryFolder& folder_ = project_.folder;
};

} // namespace

TEST_F(ProjectCheckTest, FindsEachKindOfFault) {
    const std::string disc = "Osnovna podesavanja/Glavni direktorijum";
    const std::string descriptor = "Osnovna podesavanja/Sablon";
    const std::string name = "Osnovni podaci/exename";
    const std::string logo = "Osnovni podaci/Logoslika";
    const std::string button = "Napredni sabloni/DugmePictureFile(7)";
    const std::string gone = folder_.Document("template") + "\\gone";
    const std::string bare = folder_.Write("bare/Bare.tavt", "[Template]\r\nName=Bare\r\n");
    const std::string empty = folder_.Write("art/empty.gif", "");
    const std::string foreign = folder_.Document("art") + "\\caf\xE9.gif";
    std::ofstream(NativePath(foreign)) << "x";
    const std::string twin = folder_.Write("other/BACK.bmp", "another");
    const std::string own = folder_.Write("other/Tavmoor.cfg", "x");
    const std::pair<Values, Found> cases[] = {
        {{}, {}},
        {{{disc, ""}}, {{Kind::FolderMissing, ""}}},
        {{{disc, twin}}, {{Kind::FolderMissing, twin}}},
        {{{descriptor, ""}}, {{Kind::NoTemplate, ""}}},
        {{{descriptor, gone}}, {{Kind::DescriptorMissing, gone}}},
        {{{descriptor, bare}},
         {{Kind::RuntimeMissing, folder_.Document("bare") + "\\template.tavexe"}}},
        {{{name, "my app.exe"}}, {{Kind::NameInvalid, "my app"}}},
        {{{name, ""}}, {{Kind::NameInvalid, ""}}},
        {{{logo, gone}}, {{Kind::FileMissing, gone}}},
        {{{logo, folder_.Document("art")}}, {{Kind::FileMissing, folder_.Document("art")}}},
        {{{"Fontovi/Font0", gone}}, {{Kind::FileMissing, gone}}},
        {{{button, gone}}, {{Kind::FileMissing, gone}}},
        {{{logo, empty}}, {{Kind::FileEmpty, empty}}},
        {{{button, empty}}, {{Kind::FileEmpty, empty}}},
        {{{logo, foreign}}, {{Kind::NameNotScramblable, foreign}}},
        {{{logo, twin}}, {{Kind::SameName, twin}}},
        {{{logo, own}}, {{Kind::SameName, own}}},
        {{{"Uvod/Poruka", std::string(1023, 'x')}}, {}},
        {{{"Uvod/Poruka", std::string(1024, 'x')}}, {{Kind::ValueTooLong, "[Uvod] Poruka"}}},
        {{{disc, gone}, {logo, gone}}, {{Kind::FolderMissing, gone}, {Kind::FileMissing, gone}}},
    };
    for (const auto& [values, findings] : cases) {
        EXPECT_EQ(FindingsWith(values), findings);
    }
}

TEST_F(ProjectCheckTest, CountsTheFilesThatABuildWouldPack) {
    project_.AddFilms(18);
    Values films;
    for (std::size_t i = 1; i <= 17; ++i) {
        films.emplace_back("Video/VideoFajl" + std::to_string(i),
                           project_.document->Video[i].VideoFajl);
    }
    films.emplace_back("Fontovi/Font0", folder_.Write("serif.ttf", "font"));
    EXPECT_EQ(FindingsWith(films), Found{});
    films.emplace_back("Video/VideoFajl18", project_.document->Video[18].VideoFajl);
    EXPECT_EQ(FindingsWith(films), (Found{{Kind::TooManyFiles, folder_.Document("serif.ttf")}}));
}

TEST_F(ProjectCheckTest, FindsBytesThatTheCodePageDoesNotKnow) {
    const int number = SystemCodePage().Number();
    SetSystemCodePage(1252);
    EXPECT_EQ(FindingsWith({{"Uvod/Poruka", "caf\xE9 \x80"}}), Found{});
    EXPECT_EQ(FindingsWith({{"Uvod/Poruka", "a\x81"}}),
              (Found{{Kind::UndefinedCharacter, "[Uvod] Poruka"}}));
    SetSystemCodePage(number);
}

} // namespace tavmoor
