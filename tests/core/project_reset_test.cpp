#include "core/project_reset.h"

#include "support/field_check.h"
#include "support/full_project.h"

#include <regex>

namespace tavmoor {

TEST(ProjectReset, GivesNewProjectValuesAndKeepsTheRest) {
    const std::regex kept(
        "Osnovna podesavanja/(Podesi(Velicinu|Sirinu|Visinu)|CeoEkran|BojaEkrana|backscreenslika|"
        "Backscrpredpos|backscreenpicpozicija|Pozicija[XY])|"
        "Izvrsne komande/(Boja pozadine komandi|Add shadow|Boja senke)|"
        "Dodatne komande/([A-Za-z]+100|AddID\\d+)|Menu titles/.*|Uvod/(ClickThrough|Bojateksta)|"
        "Izlaz/(ClickThroughExit|Bojateksta)|Fontovi/.*|Precice/.*|"
        "Napredni sabloni/(MainAutorunTekst(Top|Left)|SlikaLogo[XY]|GlavniOpis.*|WindowMaximized)|"
        "ObjTekst/(back|Logo)picOdnos[xy]");
    const ProfileFile newValues(test::Lines(
        "[Osnovna podesavanja]|Boja prozora=-2147483643|[Izvrsne komande]|Boja slova=-2147483630|"
        "Boja pozadine=16777215|Font=Arial|Velicina=9|[Zvuk]|Ponovi=1|Pauza=1|Komanda=Sound on/off|"
        "[Uvod]|Opcija=1|Bojaprozora=8421504|Vreme=5|[Izlaz]|Opcija=1|Bojaprozora=-2147483630|"
        "Vreme=5|[Poruke]|Komanda1=-1|Komanda2=-1|[Expiration]|Dugme1Komanda=-1|Dugme2Komanda=-1|"
        "[Napredni sabloni]|DugmeBorderVisible(0)=True|DugmeBorderVisible(7)=True|"
        "DugmeBorderVisible(10)=True|DugmeBorderVisible(100)=True"));
    const auto full = test::MakeFullProject();
    const auto before = std::make_unique<ProjectDocument>(full->document);
    const auto blank = std::make_unique<ProjectDocument>();
    ProjectDocument& d = full->document;
    d.ObjTekst[100].TekstBoxCaption = d.Video[0].VideoFajl = "outside of the files";
    d.Working.ProjectPath = d.Working.Recent = "Z:\\p.tavp";
    d.Working.listafajlova = {"Z:\\a"};
    ResetProjectSettings(d);
    ResetObjects(d);
    for (const ProfileFile file(full->projectText + full->configurationText);
         const auto& [section, key, value] : file.Entries()) {
        if (key == "Boja pozadine  komandi") {
            continue; // a second line of another field
        }
        const FieldPlace place = FindField(section, key).value();
        const std::string name = std::string(section) + "/" + std::string(key);
        const std::string_view newValue = newValues.Value(section, key);
        const std::string cleared =
            newValue.empty() ? FieldText(*blank, place) : std::string(newValue);
        EXPECT_EQ(FieldText(d, place),
                  std::regex_match(name, kept) ? FieldText(*before, place) : cleared)
            << name;
    }
    EXPECT_EQ(d.ObjTekst[100].TekstBoxCaption + d.Video[0].VideoFajl, "");
    EXPECT_FALSE(d.NapredniSabloni.Dugme[7].DugmeExists);
    EXPECT_EQ(d.Working.ProjectPath, "");
    EXPECT_EQ(d.Working.Recent, "Z:\\p.tavp");
    EXPECT_TRUE(d.Working.listafajlova.empty());
}

TEST(ProjectReset, OfTheObjectsClearsTheCanvasAlone) {
    const auto full = test::MakeFullProject();
    ResetObjects(full->document);
    test::ExpectFields(
        full->document,
        "[Napredni sabloni]|AutorunWidth=0|MainAutorunTekstTop=9005|DugmeX(7)=0|"
        "DugmePictureFile(100)=|DugmeBorderVisible(7)=True|TekstUnderline(2)=False|"
        "TekstBackgroundColor(2)=|Poravnanje(3)=3|[ObjTekst]|TekstBoxVisible(42)=False|"
        "[Izvrsne komande]|Exitdesctitle=|Sounddescription=|Izlaz=Leave & go|"
        "[Video]|VideoFajl1=Z:\\v\\1");
    EXPECT_FALSE(full->document.NapredniSabloni.Dugme[7].DugmeExists);
}

} // namespace tavmoor
