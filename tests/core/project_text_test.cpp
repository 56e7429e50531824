#include "core/field_writer.h"
#include "core/profile_file.h"
#include "core/project_reader.h"
#include "core/project_reset.h"
#include "core/project_writer.h"
#include "support/full_project.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavmoor {

namespace {

using D = ProjectDocument;

/// Lines parted by '|' as they stand in a file.
std::string Lines(std::string_view text) {
    std::string lines;
    for (const char character : text) {
        lines += character == '|' ? std::string("\r\n") : std::string(1, character);
    }
    return lines + "\r\n";
}

class FullProjectTest : public testing::Test {
protected:
    test::TemporaryFolder folder_;
    std::unique_ptr<test::FullProject> full_ =
        test::MakeFullProject(folder_.Write("button.png", "picture"), "button.png");
};

/// Fails with the first line that differs, where a comparison of the whole texts shows too much.
void ExpectSameLines(const std::string& actual, const std::string& expected) {
    const auto [a, b] =
        std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    if (a != actual.end() || b != expected.end()) {
        const auto line = [](const std::string& text, std::string::const_iterator at) {
            const auto start = text.rfind('\n', static_cast<std::size_t>(at - text.begin())) + 1;
            return text.substr(start, text.find('\n', start) - start);
        };
        ADD_FAILURE() << "is:     " << line(actual, a) << "\nwanted: " << line(expected, b);
    }
}

} // namespace

TEST_F(FullProjectTest, IsWrittenKeyByKey) {
    ExpectSameLines(ProjectText(full_->document), full_->projectText);
    ExpectSameLines(FieldFileText(full_->document, FieldFile::Configuration),
                    full_->configurationText);
}

TEST_F(FullProjectTest, ComesBackFromItsFile) {
    const std::string path = folder_.Document("full.tavp");
    WriteProject(full_->document, path);
    ASSERT_EQ(folder_.Read("full.tavp"), full_->projectText);
    const auto document = std::make_unique<D>(NewProjectDocument());
    document->Working.Recent = path;
    ProjectReaderListener* none = nullptr;
    struct Silent final : ProjectReaderListener {
    } silent;
    none = &silent;
    ReadProject(*document, "Z:\\app", *none);
    EXPECT_EQ(ProjectText(*document).find("DugmeX"), std::string::npos) << "no canvas stored yet";
    MakeButtonsLive(*document, ButtonRowsIn(ProfileFile::Load(path)));
    ExpectSameLines(ProjectText(*document), full_->projectText);
    EXPECT_EQ(document->Working.FixedCommandCount, 6);
}

TEST_F(FullProjectTest, ComesBackFromItsRuntimeConfiguration) {
    const auto document = std::make_unique<D>();
    ReadRuntimeConfiguration(ProfileFile(full_->configurationText), *document);
    ExpectSameLines(FieldFileText(*document, FieldFile::Configuration), full_->configurationText);
    EXPECT_EQ(document->NapredniSabloni.Dugme[7].DugmePictureFile, "button.png");
    EXPECT_FALSE(document->NapredniSabloni.Dugme[1].DugmeExists);
}

TEST(ProjectText, HoldsAllSectionsInOrderEvenWhenEmpty) {
    const auto document = std::make_unique<D>();
    std::string sections;
    const std::string text = ProjectText(*document);
    for (const ProfileFile file(text); const auto& entry : file.Entries()) {
        EXPECT_FALSE(entry.key.empty());
    }
    for (std::size_t at = text.find('['); at != std::string::npos; at = text.find("\n[", at)) {
        at += text[at] == '\n' ? 1 : 0;
        sections += text.substr(at, text.find(']', at) - at + 1);
    }
    EXPECT_EQ(sections,
              "[Osnovna podesavanja][Osnovni podaci][Izvrsne komande][Opis komandi]"
              "[Dodatne komande][Menu titles][Zvuk][Uvod][Izlaz][Fontovi][Efekti][Poruke]"
              "[Expiration][Precice][Napredni sabloni][ObjTekst][Video]");
}

TEST(ProjectText, LinesDependOnFlags) {
    struct Case {
        void (*change)(D&);
        const char* lines; ///< stand together
        const char* never = "\n\n";
        bool alsoInConfiguration = true;
    };
    const Case cases[] = {
        {[](D& d) { d.OsnovnaPodesavanja.PodesiSirinu = d.OsnovnaPodesavanja.PodesiVisinu = 5; },
         "Podesi velicinu=Ne|PodesiSirinu=0|PodesiVisinu=0|CeoEkran=Ne", "PodesiVelicinu="},
        {[](D& d) {
             BaseSettings& b = d.OsnovnaPodesavanja;
             b.Backscrpredpos = true;
             b.backscreenpicpozicija = "Top right";
             b.PozicijaX = b.PozicijaY = 5;
         },
         "Backscrpredpos=Da|backscreenpicpozicija=Top right|PozicijaX=0|PozicijaY=0"},
        {[](D& d) { d.IzvrsneKomande.Izlaz = "   "; }, "[Izvrsne komande]|Izlaz=#Empty#",
         "\nIzlaz= ", false},
        {[](D& d) { d.IzvrsneKomande.Bojasenke = "1"; },
         "Velicina=10|Add shadow=0|Boja senke=14284027", "Boja senke=1\r"},
        {[](D& d) { d.DodatneKomande[3] = {.addname = " ", .addtarget = "x"}; },
         "[Dodatne komande]|[Menu titles]"},
        // The record of the counter's slot is written, though another slot was looked at.
        {[](D& d) {
             d.DodatneKomande[0].addname = "a";
             d.DodatneKomande[1].addtarget = "hole";
             d.DodatneKomande[2].addname = "c";
         },
         "AddID0=0|addname1=|adddesctitle1=|adddescription1=|addtarget1=hole", "=c\r", false},
        {[](D&) {}, "[Menu titles]|titleMain=Main|Titleinfo=Info|titleprog=Program|"
                    "Titleaddit=Additional|[Zvuk]"},
        {[](D& d) { d.Zvuk.SignalFajl = "Z:\\a.wav"; }, "Signal=0|[Uvod]", "SignalFajl"},
        {[](D& d) { d.Uvod.Opcija = d.Izlaz.Opcija = 0; }, "Slika=|Bojaprozora=0", "Opcija"},
        {[](D& d) { d.Fontovi[0] = "Z:\\a.ttf", d.Fontovi[2] = "Z:\\c.ttf"; },
         "[Fontovi]|Font0=Z:\\a.ttf|[Efekti]", "c.ttf", false},
        {[](D& d) { d.Precice.Precice[0].Ime = "x"; }, "[Precice]|[Napredni sabloni]", "Ime0"},
        {[](D& d) {
             d.Precice.Enabled = true;
             d.Precice.Precice[1].Ime = "x";
         },
         "[Precice]|Enabled=True|[Napredni sabloni]", "Ime1"},
        {[](D&) {}, "[Expiration]|Enabled=False|Godina="},
        {[](D& d) {
             d.NapredniSabloni.Dugme[0].DugmeX = 5;
             d.ObjTekst[100].TekstBoxVisible = true;
             d.Video[0].VideoFajl = d.Video[2].VideoFajl = "Z:\\a.avi";
         },
         "Poravnanje(3)=0|WindowMaximized=False|[ObjTekst]|[Video]", "(0)=5", false},
        {[](D& d) { d.OsnovniPodaci.Velicina = "8.25"; }, "Velicina=8|Stil="},
        {[](D& d) { d.OsnovniPodaci.Vertekst = "a\nb"; }, "Vertekst=a\nb|Vertfont=", "Chr$", false},
    };
    for (const Case& wanted : cases) {
        const auto document = std::make_unique<D>();
        wanted.change(*document);
        for (const FieldFile file : {FieldFile::Project, FieldFile::Configuration}) {
            const std::string text = FieldFileText(*document, file);
            if (file == FieldFile::Project || wanted.alsoInConfiguration) {
                EXPECT_NE(text.find(Lines(wanted.lines)), std::string::npos) << wanted.lines;
                EXPECT_EQ(text.find(wanted.never), std::string::npos) << wanted.never;
            }
        }
    }
}

TEST(RuntimeConfiguration, ABlankExitCaptionHangsOnTheTemplate) {
    const auto document = std::make_unique<D>();
    const auto exitLine = [&document] {
        const std::string text = FieldFileText(*document, FieldFile::Configuration);
        const std::size_t start = text.find("\nIzlaz=") + 1;
        return text.substr(start, text.find('\r', start) - start);
    };
    document->IzvrsneKomande.Izlaz = "   ";
    document->Working.TemplateName = "Harbor";
    EXPECT_EQ(exitLine(), "Izlaz=Exit");
    document->Working.TemplateName = "Advanced Visual Editor";
    EXPECT_EQ(exitLine(), "Izlaz=Exit");
    document->Working.TemplateName = "ADVANCED VISUAL EDITOR";
    EXPECT_EQ(exitLine(), "Izlaz=#Empty#");
    document->IzvrsneKomande.Izlaz = " a\r\n";
    EXPECT_EQ(exitLine(), "Izlaz= aChr$(13)Chr$(10)");
}

} // namespace tavmoor
