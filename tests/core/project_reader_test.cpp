#include "core/project_reader.h"

#include "core/field_writer.h"
#include "core/project_reset.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

class ProjectReaderTest : public testing::Test, protected ProjectReaderListener {
protected:
    /// Reads lines parted by '|' over the document as it stands.
    void Read(std::string text) {
        for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at)) {
            text.replace(at, 1, "\r\n");
        }
        events_.clear();
        ReadProjectFrom(ProfileFile(text), d, folder_.Document(), *this);
    }

    void ShowMessage(std::string_view text, std::string_view title) override {
        events_.push_back(std::string(title) + "/" + std::string(text));
    }
    void IconRead(std::string_view path) override { icon_ = path; }
    void FontRead(std::string_view path) override { fonts_.emplace_back(path); }
    void LetEventsRun() override { events_.emplace_back("events"); }
    void ApplyTemplateCapabilities() override { events_.emplace_back("template"); }
    void ProjectTitleChanged(std::string_view path) override {
        events_.push_back("title " + std::string(path));
    }

    std::unique_ptr<ProjectDocument> document_ =
        std::make_unique<ProjectDocument>(NewProjectDocument());
    ProjectDocument& d = *document_;
    test::TemporaryFolder folder_;
    std::vector<std::string> events_;
    std::vector<std::string> fonts_;
    std::string icon_;
};

} // namespace

TEST_F(ProjectReaderTest, AnEmptyFileLeavesANewProjectButForItsFallbacks) {
    d.Working.ProjectPath = "Z:\\p.tavp";
    Read("");
    EXPECT_EQ(events_, (std::vector<std::string>{"events", "template", "title Z:\\p.tavp"}));
    const auto expected = std::make_unique<ProjectDocument>(NewProjectDocument());
    expected->MenuTitles = {"Main", "Info", "Program", "Additional"};
    expected->IzvrsneKomande.Bojasenke = "14284027";
    expected->OsnovnaPodesavanja.backscreenpicpozicija = "Top left";
    expected->Zvuk.Komanda = "";
    expected->Uvod.Vreme = expected->Izlaz.Vreme = "";
    for (FixedText& text : expected->NapredniSabloni.Tekst) {
        text.TekstBackgroundColor = "0";
    }
    for (ProjectDocument* document : {&d, expected.get()}) { // shows what flags hide
        document->IzvrsneKomande.Addshadow = document->OsnovnaPodesavanja.Backscrpredpos = true;
        for (ButtonObject& button : document->NapredniSabloni.Dugme) {
            button.DugmeExists = true;
        }
        for (TextObject& text : document->ObjTekst) {
            text.TekstBoxVisible = true;
        }
    }
    for (const FieldFile file : {FieldFile::Project, FieldFile::Configuration}) {
        EXPECT_EQ(FieldFileText(d, file), FieldFileText(*expected, file));
    }
}

TEST_F(ProjectReaderTest, ValuesThatDoNotConvertLeaveTheField) {
    d.OsnovnaPodesavanja.PodesiSirinu = 7;
    d.NapredniSabloni.SlikaLogoX = 8;
    d.NapredniSabloni.SlikaLogoY = 9;
    d.Video[1].Volume = 3;
    Read("[Osnovna podesavanja]|Boja prozora=red|PodesiSirinu=40000|[Zvuk]|Ponovi=x|Pauza=0|"
         "[Napredni sabloni]|SlikaLogoX=?|[Video]|VideoFajl1=a|Volume1=loud|videoTop1=12.5");
    EXPECT_EQ(d.OsnovnaPodesavanja.BojaProzora, -2147483643);
    EXPECT_EQ(d.OsnovnaPodesavanja.PodesiSirinu, 7);
    EXPECT_EQ(d.Zvuk.Ponovi, 1);
    EXPECT_EQ(d.Zvuk.Pauza, 1);
    EXPECT_EQ(d.NapredniSabloni.SlikaLogoX, 8);
    EXPECT_EQ(d.NapredniSabloni.SlikaLogoY, 0); // a missing one falls back
    EXPECT_EQ(d.Video[1].Volume, 3);
    EXPECT_EQ(d.Video[1].videoTop, 12);
    EXPECT_EQ(d.Video[1].videoLeft, 300);
}

TEST_F(ProjectReaderTest, FlagsAreTrueForTheirOwnFormAlone) {
    Read("[Osnovna podesavanja]|PodesiVelicinu=da|CeoEkran=True|Backscrpredpos=Da|"
         "[Osnovni podaci]|GlavniOpisBold=1|GlavniOpisItalic=True|Opis providan=True|"
         "[Izvrsne komande]|Add shadow=1|[Zvuk]|Akcija=yes|Signal=01|"
         "[Uvod]|Prikazi=1|ClickThrough=1.0|Opcija=4|[Izlaz]|Prikazi=-1|ClickThroughExit=2|"
         "[Napredni sabloni]|DugmeBorderVisible(0)=false|DugmeBorderVisible(1)=False|"
         "TekstBackgroundStyle(0)=2|TekstBackgroundStyle(1)=1");
    EXPECT_FALSE(d.OsnovnaPodesavanja.PodesiVelicinu);
    EXPECT_FALSE(d.OsnovnaPodesavanja.CeoEkran);
    EXPECT_TRUE(d.OsnovnaPodesavanja.Backscrpredpos);
    EXPECT_FALSE(d.OsnovniPodaci.GlavniOpisBold);
    EXPECT_TRUE(d.OsnovniPodaci.GlavniOpisItalic);
    EXPECT_FALSE(d.OsnovniPodaci.Opisprovidan);
    EXPECT_TRUE(d.IzvrsneKomande.Addshadow);
    EXPECT_TRUE(d.Zvuk.Akcija);
    EXPECT_FALSE(d.Zvuk.Signal);
    EXPECT_TRUE(d.Uvod.Prikazi);
    EXPECT_TRUE(d.Uvod.ClickThrough);
    EXPECT_EQ(d.Uvod.Opcija, 0);
    EXPECT_FALSE(d.Izlaz.Prikazi);
    EXPECT_FALSE(d.Izlaz.ClickThrough);
    EXPECT_TRUE(d.NapredniSabloni.Dugme[0].DugmeBorderVisible);
    EXPECT_FALSE(d.NapredniSabloni.Dugme[1].DugmeBorderVisible);
    EXPECT_EQ(d.NapredniSabloni.Tekst[0].TekstBackgroundStyle, 0);
    EXPECT_EQ(d.NapredniSabloni.Tekst[1].TekstBackgroundStyle, 1);
}

TEST_F(ProjectReaderTest, TextsAreDecodedEvenWhereTheyAreWrittenPlain) {
    Read("[Osnovni podaci]|Vertekst=aChr$(13)b|Vertfont=aChr$(13)b|"
         "[Izvrsne komande]|Izlaz=aChr$(38)b|Boja pozadine  komandi=1|Velicina=8.5|"
         "Opis2=t|Vrsta2=Send mail|Opis3=t|[Uvod]|Fontvelicina=8.5|[Menu titles]|TITLEMAIN=Chr$(38)");
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

TEST_F(ProjectReaderTest, AdditionalCommandsMayHaveHoles) {
    d.DodatneKomande[3] = {.addname = "old", .addtarget = "kept"};
    Read("[Dodatne komande]|addname2=#Empty#|addtarget2=two|addname4=#empty#|AddID4=-7|"
         "addname100=last|addname101=beyond|addtarget3=three|addclose4=Chr$(38)");
    EXPECT_EQ(d.DodatneKomande[2].addname, "  ");
    EXPECT_EQ(d.DodatneKomande[2].addtarget, "two");
    EXPECT_EQ(d.DodatneKomande[3].addname, "");
    EXPECT_EQ(d.DodatneKomande[3].addtarget, "kept");
    EXPECT_EQ(d.DodatneKomande[4].addname, "#empty#");
    EXPECT_EQ(d.DodatneKomande[4].AddID, -7);
    EXPECT_EQ(d.DodatneKomande[4].addclose, "Chr$(38)");
    EXPECT_EQ(d.DodatneKomande[100].addname, "last");
}

TEST_F(ProjectReaderTest, ListsEndAtTheirFirstGapAndNeverShrink) {
    d.Fontovi[4] = "old font";
    d.Precice.Precice[1].Ime = "old shortcut";
    std::string text = "[Precice]|Ime0=a|Ime2=c|[Video]|VideoFajl0=z|VideoFajl1=a|VideoFajl3=c|"
                       "[Fontovi]";
    Read(text + "|Font0=f0|Font1=f1|Font3=f3");
    EXPECT_EQ(d.Precice.Precice[0].Ime, "a");
    EXPECT_EQ(d.Precice.Precice[1].Ime, "old shortcut");
    EXPECT_EQ(d.Precice.Precice[2].Ime, "");
    EXPECT_EQ(d.Video[0].VideoFajl, "");
    EXPECT_EQ(d.Video[1].Volume, 20);
    EXPECT_EQ(d.Video[3].VideoFajl, "");
    EXPECT_EQ(fonts_, (std::vector<std::string>{"f0", "f1"}));
    EXPECT_EQ(d.Fontovi[4], "old font");
    for (int i = 0; i < 30; ++i) {
        text += "|Font" + std::to_string(i) + "=g" + std::to_string(i);
    }
    Read(text);
    EXPECT_EQ(d.Fontovi[20], "g20");
}

TEST_F(ProjectReaderTest, FontsBehindAMissingFirstOneAreRead) {
    Read("[Fontovi]|Font1=f1|Font2=f2|Font4=f4");
    EXPECT_EQ(fonts_, (std::vector<std::string>{"f1", "f2"}));
    EXPECT_EQ(d.Fontovi[2], "f2");
}

TEST_F(ProjectReaderTest, SomeValuesAreTakenOnlyWhenTheySaySomething) {
    d.Expiration.Enabled = d.Precice.Enabled = true;
    d.Efekti.emainenter = 5;
    d.Poruke.Naslov = d.OsnovniPodaci.GlavninaslovFont = "kept";
    Read("[Expiration]|Enabled=False|[Precice]|Enabled=False|[Efekti]|emainenter=0|esplashenter=3|"
         "eexitenter=-1|[Poruke]|Naslov=|Komanda1=|[ObjTekst]|TekstBoxVisible(0)=True|"
         "TekstBoxFontSize(0)=8.5|TekstBoxX(99)=4|TekstBoxVisible(100)=True");
    EXPECT_TRUE(d.Expiration.Enabled);
    EXPECT_TRUE(d.Precice.Enabled);
    EXPECT_EQ(d.Efekti.emainenter, 5);
    EXPECT_EQ(d.Efekti.esplashenter, 3);
    EXPECT_EQ(d.Efekti.eexitenter, 0);
    EXPECT_EQ(d.Poruke.Naslov, "kept");
    EXPECT_EQ(d.Poruke.Komanda1, -1);
    EXPECT_EQ(d.OsnovniPodaci.GlavninaslovFont, "kept");
    EXPECT_EQ(d.ObjTekst[0].TekstBoxFontSize, 8);
    EXPECT_FALSE(d.ObjTekst[99].TekstBoxVisible);
    EXPECT_FALSE(d.ObjTekst[100].TekstBoxVisible);
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
    Read("[Osnovna podesavanja]|Pozadinska slika=%a|Glavni direktorijum=%a|backscreenslika=%a|"
         "[Osnovni podaci]|Logoslika=%a|Ikona=%a|[Zvuk]|Fajl=%a|SignalFajl=%a|[Uvod]|Slika=%a|"
         "[Video]|VideoFajl1=%a|[Izvrsne komande]|Fajl1=%a");
    const std::string expanded = folder_.Document() + "\\a";
    EXPECT_EQ(d.OsnovnaPodesavanja.PozadinskaSlika, expanded);
    EXPECT_EQ(d.OsnovniPodaci.Logoslika, expanded);
    EXPECT_EQ(d.Zvuk.Fajl, expanded);
    EXPECT_EQ(d.Video[1].VideoFajl, expanded);
    for (const std::string& path :
         {d.CdFolder(), d.OsnovnaPodesavanja.backscreenslika, d.OsnovniPodaci.Ikona, icon_,
          d.Zvuk.SignalFajl, d.Uvod.Slika, d.IzvrsneKomande.Komande[1].Fajl}) {
        EXPECT_EQ(path, "%a");
    }
}

TEST_F(ProjectReaderTest, AButtonPictureThatIsMissingOrEmptyIsToldAndCleared) {
    folder_.Write("here.png", "x");
    folder_.Write("empty.png", "");
    Read("[Napredni sabloni]|DugmePictureFile(0)=%here.png|DugmePictureFile(5)=%empty.png|"
         "DugmePictureFile(100)=C:\\gone\\b.png");
    const auto& buttons = d.NapredniSabloni.Dugme;
    EXPECT_EQ(buttons[0].DugmePictureFile, folder_.Document("here.png"));
    EXPECT_EQ(buttons[5].DugmePictureFile, "");
    EXPECT_EQ(buttons[100].DugmePictureFile, "");
    ASSERT_EQ(events_.size(), 5U);
    EXPECT_EQ(events_[0], "Warning.../The file " + folder_.Document("empty.png") +
                              " used in this project could not be found!");
    EXPECT_EQ(events_[1],
              "Warning.../The file C:\\gone\\b.png used in this project could not be found!");
    EXPECT_FALSE(buttons[0].DugmeExists);
}

} // namespace tavmoor
