#include "core/document/project_reader.h"

#include "core/document/project_reset.h"
#include "support/field_check.h"
#include "support/temporary_folder.h"

#include <regex>

namespace tavmoor {

namespace {

class ProjectReaderTest : public testing::Test, protected ProjectReaderListener {
protected:
    void Read(const std::string& lines) {
        events_.clear();
        ReadProjectFrom(ProfileFile(test::Lines(lines)), d, folder_.Document(), *this);
    }
    void Expect(const std::string& lines) { test::ExpectFields(d, lines); }

    void ShowMessage(std::string_view text, std::string_view title) override {
        events_.push_back(std::string(title) + "/" + std::string(text));
    }
    void FontRead(std::string_view path) override { fonts_.emplace_back(path); }
    void LetEventsRun() override { events_.emplace_back("events"); }
    void ApplyTemplateCapabilities() override { events_.emplace_back("template"); }
    void ProjectTitleChanged(std::string_view path) override {
        events_.push_back("title " + std::string(path));
    }

    test::TemporaryFolder folder_;
    std::unique_ptr<ProjectDocument> document_ =
        std::make_unique<ProjectDocument>(NewProjectDocument());
    ProjectDocument& d = *document_;
    std::vector<std::string> events_;
    std::vector<std::string> fonts_;
};

} // namespace

TEST_F(ProjectReaderTest, AnEmptyFileClearsKeepsOrFallsBack) {
    test::FieldsBeforeAndAfter fields;
    fields.Document().Working.ProjectPath = "Z:\\p.tavp";
    ReadProjectFrom(ProfileFile(""), fields.Document(), "Z:\\app", *this);
    EXPECT_EQ(events_, (std::vector<std::string>{"events", "template", "title Z:\\p.tavp"}));
    fields.Expect(
        "Osnovna podesavanja/(Boja prozora|Podesi(Sirinu|Visinu)|BojaEkrana|backscreenslika)|"
        "Osnovni podaci/(Glavni.*(Font|Vel|Boja)|Glnaslov.*|Logotekstboja|Vertfontboja)|"
        "Izvrsne komande/(Zatvara.|Boja (slova|pozadine|pozadine komandi)|Font|Velicina)|"
        "Dodatne komande/(?!addname).*|Zvuk/(Ponovi|Pauza)|"
        "(Uvod|Izlaz)/(Bojateksta|Opcija|Bojaprozora|Visina|Sirina)|Fontovi/.*|"
        "Efekti/e(splash|main|exit)(enter|leave)|Poruke/.*|Expiration/.*|Precice/.*|"
        "ObjTekst/(back|Logo)pic.*|"
        "ObjTekst/(?!TekstBox(Visible|Transparent|Font[BUI])).*|Video/.*",
        "[Osnovna podesavanja]|backscreenpicpozicija=Top left|[Izvrsne komande]|Izlaz=#Empty#|"
        "Boja senke=14284027|[Menu titles]|TitleMain=Main|Titleinfo=Info|Titleprog=Program|"
        "Titleaddit=Additional|[Napredni sabloni]|TekstBackgroundColor(0)=0|"
        "TekstBackgroundColor(1)=0|TekstBackgroundColor(2)=0|TekstBackgroundColor(3)=0|"
        "DugmeBorderVisible(0)=True|DugmeBorderVisible(7)=True|DugmeBorderVisible(10)=True|"
        "DugmeBorderVisible(100)=True");
}

TEST_F(ProjectReaderTest, ValuesThatSayNothingLeaveTheField) {
    d.OsnovnaPodesavanja.PodesiSirinu = d.NapredniSabloni.SlikaLogoX = d.Efekti.emainenter = 7;
    d.NapredniSabloni.SlikaLogoY = 9;
    d.Video[1].Volume = 3;
    d.Expiration.Enabled = d.Precice.Enabled = true;
    d.Poruke.Naslov = d.OsnovniPodaci.GlavninaslovFont = "kept";
    Read("[Osnovna podesavanja]|Boja prozora=red|PodesiSirinu=40000|[Zvuk]|Ponovi=x|Pauza=0|"
         "[Napredni sabloni]|SlikaLogoX=?|[Video]|VideoFajl1=a|Volume1=loud|videoTop1=12.5|"
         "[Expiration]|Enabled=False|[Precice]|Enabled=False|[Efekti]|emainenter=0|esplashenter=3|"
         "eexitenter=-1|[Poruke]|Naslov=|Komanda1=|[ObjTekst]|TekstBoxVisible(0)=True|"
         "TekstBoxFontSize(0)=8.5|TekstBoxX(99)=4|TekstBoxVisible(100)=True");
    Expect("[Osnovna podesavanja]|Boja prozora=-2147483643|PodesiSirinu=7|[Zvuk]|Ponovi=1|Pauza=1|"
           "[Napredni sabloni]|SlikaLogoX=7|SlikaLogoY=0|[Video]|Volume1=3|videoTop1=12|"
           "videoLeft1=300|[Expiration]|Enabled=True|[Precice]|Enabled=True|[Efekti]|emainenter=7|"
           "esplashenter=3|eexitenter=0|[Poruke]|Naslov=kept|Komanda1=-1|[Osnovni podaci]|"
           "GlavninaslovFont=kept|[ObjTekst]|TekstBoxFontSize(0)=8|TekstBoxVisible(99)=False");
    EXPECT_FALSE(d.ObjTekst[100].TekstBoxVisible);
}

TEST_F(ProjectReaderTest, FlagsAreTrueForTheirOwnFormAlone) {
    Read("[Osnovna podesavanja]|PodesiVelicinu=da|CeoEkran=True|Backscrpredpos=Da|"
         "[Osnovni podaci]|GlavniOpisBold=1|GlavniOpisItalic=True|Opis providan=True|"
         "[Izvrsne komande]|Add shadow=1|[Zvuk]|Akcija=yes|Signal=01|"
         "[Uvod]|Prikazi=1|ClickThrough=1.0|Opcija=4|[Izlaz]|Prikazi=-1|ClickThroughExit=2|"
         "[Napredni sabloni]|DugmeBorderVisible(0)=false|DugmeBorderVisible(1)=False|"
         "TekstBackgroundStyle(0)=2|TekstBackgroundStyle(1)=1");
    Expect("[Osnovna podesavanja]|PodesiVelicinu=Ne|CeoEkran=Ne|Backscrpredpos=Da|"
           "[Osnovni podaci]|GlavniOpisBold=False|GlavniOpisItalic=True|Opis providan=0|"
           "[Izvrsne komande]|Add shadow=1|[Zvuk]|Akcija=1|Signal=0|"
           "[Uvod]|Prikazi=1|ClickThrough=1|Opcija=0|[Izlaz]|Prikazi=0|ClickThroughExit=0|Opcija=1|"
           "[Napredni sabloni]|DugmeBorderVisible(0)=True|DugmeBorderVisible(1)=False|"
           "DugmeBorderVisible(2)=True|TekstBackgroundStyle(0)=0|TekstBackgroundStyle(1)=1");
    Read("[Zvuk]|Akcija=0");
    Expect("[Zvuk]|Akcija=0");
}

TEST_F(ProjectReaderTest, TextsAreDecodedEvenWhereTheyAreWrittenPlain) {
    Read("[Osnovni podaci]|Vertekst=aChr$(13)b|Vertfont=aChr$(13)b|[Izvrsne komande]|"
         "Izlaz=aChr$(38)b|Boja pozadine  komandi=1|Velicina=8.5|Opis2=t|Vrsta2=Send mail|Opis3=t|"
         "[Uvod]|Fontvelicina=8.5|[Menu titles]|TITLEMAIN=Chr$(38)");
    EXPECT_EQ(d.OsnovniPodaci.Vertekst, "a\rb");
    EXPECT_EQ(d.OsnovniPodaci.Vertfont, "aChr$(13)b");
    EXPECT_EQ(d.IzvrsneKomande.Izlaz, "a&b");
    EXPECT_EQ(d.IzvrsneKomande.Bojapozadinekomandi, "") << "the key with two blanks is not read";
    EXPECT_EQ(d.IzvrsneKomande.Velicina, "8");
    EXPECT_EQ(d.Uvod.Fontvelicina, "8.5");
    EXPECT_EQ(d.MenuTitles.TitleMain, "&");
    EXPECT_EQ(d.Working.FixedCommandCount, 1);
    Read("[Izvrsne komande]|Izlaz=#Empty#|[Osnovni podaci]|Logotekst=" + std::string(1024, 'x'));
    EXPECT_EQ(d.IzvrsneKomande.Izlaz, "  ");
    EXPECT_EQ(d.OsnovniPodaci.Logotekst, std::string(1023, 'x'));
}

TEST_F(ProjectReaderTest, TablesMayHaveHolesAndListsNeverShrink) {
    d.DodatneKomande[3].addname = d.DodatneKomande[3].addtarget = "old";
    d.Fontovi[4] = d.Precice.Precice[1].Ime = "old";
    Read("[Dodatne komande]|addname2=#Empty#|addtarget2=two|addname4=#empty#|AddID4=-7|"
         "addname100=last|addname101=beyond|addtarget3=three|addclose4=Chr$(38)|"
         "[Precice]|Ime0=a|Ime2=c|[Video]|VideoFajl0=z|VideoFajl1=a|VideoFajl3=c|"
         "[Fontovi]|Font0=f0|Font1=f1|Font3=f3");
    Expect("[Dodatne komande]|addtarget2=two|addname3=|addtarget3=old|addname4=#empty#|AddID4=-7|"
           "addclose4=Chr$(38)|addname100=last|[Precice]|Ime0=a|Ime1=old|Ime2=|"
           "[Video]|VideoFajl1=a|videoTop1=200|Volume1=20|VideoFajl3=|[Fontovi]|Font1=f1|Font3=|"
           "Font4=old");
    EXPECT_EQ(d.DodatneKomande[2].addname, "  ");
    EXPECT_EQ(d.Video[0].VideoFajl, "");
    EXPECT_EQ(fonts_, (std::vector<std::string>{"f0", "f1"}));
    std::string text = "[Fontovi]";
    for (int i = 0; i < 30; ++i) {
        text += "|Font" + std::to_string(i) + "=g" + std::to_string(i);
    }
    Read(text);
    EXPECT_EQ(d.Fontovi[20], "g20");
    Read("[Fontovi]|Font1=h1|Font2=h2|Font4=h4"); // the first alone may be missing
    Expect("[Fontovi]|Font0=g0|Font1=h1|Font2=h2|Font4=g4");
}

TEST_F(ProjectReaderTest, TemplatesAreBoundWithoutAWord) {
    const std::string descriptor = folder_.Write("Blue/Blue.tavt", "[Template]\r\nName=Blue\r\n");
    Read("[Osnovna podesavanja]|Sablon=%Blue\\Blue.tavt");
    EXPECT_EQ(d.OsnovnaPodesavanja.Sablon, descriptor);
    EXPECT_EQ(d.Working.TemplateName, "Blue");
    EXPECT_EQ(d.Working.TemplateRuntimePath, folder_.Document("Blue") + "\\template.tavexe");
    Read("[Osnovna podesavanja]|Sablon=%Gone\\Gone.tavt");
    EXPECT_EQ(d.Working.TemplateName, "");
    EXPECT_EQ(d.Working.TemplateRuntimePath, folder_.Document() + "\\Gone\\template.tavexe");
    EXPECT_EQ(events_.size(), 3U);
}

TEST_F(ProjectReaderTest, OnlySixKeysKnowTheProgramsFolder) {
    const std::string others = "[Osnovna podesavanja]|Glavni direktorijum=%a|backscreenslika=%a|"
                               "[Osnovni podaci]|Ikona=%a|[Zvuk]|SignalFajl=%a|[Uvod]|Slika=%a|"
                               "[Izvrsne komande]|Fajl1=%a";
    const std::string knowing = "|[Osnovna podesavanja]|Pozadinska slika=@|[Osnovni podaci]|"
                                "Logoslika=@|[Zvuk]|Fajl=@|[Video]|VideoFajl1=@";
    const std::regex value("@");
    Read(others + std::regex_replace(knowing, value, "%a"));
    Expect(others + std::regex_replace(knowing, value, folder_.Document() + "\\a"));
}

TEST_F(ProjectReaderTest, AButtonPictureThatIsMissingOrEmptyIsToldAndCleared) {
    folder_.Write("here.png", "x");
    folder_.Write("empty.png", "");
    Read("[Napredni "
         "sabloni]|DugmePictureFile(0)=%here.png|DugmePictureFile(5)=%empty.png|DugmePictureFile(6)"
         "=%empty.png|"
         "DugmePictureFile(100)=C:\\gone\\b.png");
    Expect("[Napredni "
           "sabloni]|DugmePictureFile(5)=|DugmePictureFile(6)=|DugmePictureFile(100)=|"
           "DugmePictureFile(0)=" +
           folder_.Document("here.png"));
    ASSERT_EQ(events_.size(), 6U);
    EXPECT_EQ(events_[0], "Warning.../The file " + folder_.Document("empty.png") +
                              " used in this project could not be found!");
    EXPECT_EQ(events_[1], events_[0]);
    EXPECT_EQ(events_[2],
              "Warning.../The file C:\\gone\\b.png used in this project could not be found!");
}

} // namespace tavmoor
