#include "core/document/field_writer.h"
#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "support/field_check.h"
#include "support/full_project.h"
#include "support/temporary_folder.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;

/// Tells the first line that differs, where a comparison of the whole texts shows too much.
void ExpectSameLines(const std::string& actual, const std::string& expected) {
    const auto ends = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const auto common = static_cast<std::size_t>(ends.first - actual.begin());
    const std::size_t start = common == 0 ? 0 : actual.rfind('\n', common - 1) + 1;
    EXPECT_TRUE(actual == expected)
        << "is:     " << actual.substr(start, 80) << "\nwanted: " << expected.substr(start, 80);
}

class FullProjectTest : public testing::Test {
protected:
    test::TemporaryFolder folder_;
    std::unique_ptr<test::FullProject> full_ = test::MakeFullProject(folder_.Document());
    std::unique_ptr<D> read_ = std::make_unique<D>(NewProjectDocument());
};

} // namespace

TEST_F(FullProjectTest, IsWrittenKeyByKey) {
    ExpectSameLines(ProjectText(full_->document), full_->projectText);
    ExpectSameLines(FieldFileText(full_->document, FieldFile::Configuration),
                    full_->configurationText);
}

TEST_F(FullProjectTest, ComesBackFromItsFile) {
    struct final : ProjectReaderListener {
    } silent;
    folder_.Write("button.png", "picture");
    const std::string path = read_->Working.Recent = folder_.Document("full.tavp");
    WriteProject(full_->document, path);
    ASSERT_EQ(folder_.Read("full.tavp"), full_->projectText);
    ReadProject(*read_, "Z:\\app", silent);
    EXPECT_EQ(ProjectText(*read_).find("Dugme"), full_->projectText.find("Dugme1=Yes"))
        << "a button lives only once the canvas was stored";
    MakeButtonsLive(*read_, ButtonRowsIn(ProfileFile::Load(path)));
    ExpectSameLines(ProjectText(*read_), full_->projectText);
    EXPECT_EQ(read_->Working.FixedCommandCount, 6);
}

TEST_F(FullProjectTest, ComesBackFromItsRuntimeConfiguration) {
    ReadRuntimeConfiguration(ProfileFile(full_->configurationText), *read_);
    ExpectSameLines(FieldFileText(*read_, FieldFile::Configuration), full_->configurationText);
    EXPECT_FALSE(read_->NapredniSabloni.Dugme[1].DugmeExists);
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
        {[](D& d) { d.OsnovniPodaci.Velicina = "8.25"; }, "Velicina=8|Stil="},
        {[](D& d) { d.OsnovniPodaci.Vertekst = "a\nb"; }, "Vertekst=a\nb|Vertfont=", "Chr$", false},
        {[](D& d) { d.IzvrsneKomande.Izlaz = "   "; }, "komande]|Izlaz=#Empty#", "Izlaz= ", false},
        {[](D& d) { d.IzvrsneKomande.Bojasenke = "1"; },
         "Velicina=10|Add shadow=0|Boja senke=14284027", "Boja senke=1\r"},
        {[](D& d) { d.DodatneKomande[3].addname = " "; }, "[Dodatne komande]|[Menu titles]"},
        // The slot of the counter is written, though another slot was looked at.
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
        {[](D& d) { d.Fontovi[0] = d.Fontovi[2] = "a"; }, "[Fontovi]|Font0=a|[Efekti]", "Font2",
         false},
        {[](D&) {}, "[Expiration]|Enabled=False|Godina="},
        {[](D& d) { d.Precice.Precice[0].Ime = "x"; }, "[Precice]|[Napredni sabloni]", "Ime0"},
        {[](D& d) { d.Precice.Enabled = !(d.Precice.Precice[1].Ime = "x").empty(); },
         "[Precice]|Enabled=True|[Napredni sabloni]", "Ime1"},
        {[](D& d) {
             d.NapredniSabloni.Dugme[0].DugmeX = 5;
             d.ObjTekst[100].TekstBoxVisible = true;
             d.Video[0].VideoFajl = d.Video[2].VideoFajl = "Z:\\a.avi";
         },
         "Poravnanje(3)=0|WindowMaximized=False|[ObjTekst]|[Video]", "(0)=5", false},
    };
    for (const Case& wanted : cases) {
        const auto document = std::make_unique<D>();
        wanted.change(*document);
        for (const FieldFile file : {FieldFile::Project, FieldFile::Configuration}) {
            if (file == FieldFile::Project || wanted.alsoInConfiguration) {
                const std::string text = FieldFileText(*document, file);
                EXPECT_NE(text.find(test::Lines(wanted.lines)), std::string::npos) << wanted.lines;
                EXPECT_EQ(text.find(wanted.never), std::string::npos) << wanted.never;
            }
        }
    }
}

TEST(RuntimeConfiguration, ABlankExitCaptionHangsOnTheTemplate) {
    const auto document = std::make_unique<D>();
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"   ", "Harbor", "Izlaz=Exit"},
        {"", "Advanced Visual Editor", "Izlaz=Exit"},
        {"   ", "ADVANCED VISUAL EDITOR", "Izlaz=#Empty#"},
        {" a\r\n", "ADVANCED VISUAL EDITOR", "Izlaz= aChr$(13)Chr$(10)"},
    };
    for (const auto& [caption, name, line] : cases) {
        document->IzvrsneKomande.Izlaz = caption;
        document->Working.TemplateName = name;
        const std::string text = FieldFileText(*document, FieldFile::Configuration);
        EXPECT_NE(text.find("komande]\r\n" + test::Lines(line)), std::string::npos) << line;
    }
}

} // namespace tavmoor
