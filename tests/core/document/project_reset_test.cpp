#include "core/document/project_reset.h"

#include "support/field_check.h"

namespace tavmoor {

TEST(ProjectReset, GivesNewProjectValuesAndKeepsTheRest) {
    test::FieldsBeforeAndAfter fields;
    ProjectDocument& d = fields.Document();
    d.ObjTekst[100].TekstBoxCaption = d.Video[0].VideoFajl = "outside of the files";
    d.Working.ProjectPath = d.Working.Recent = "Z:\\p.tavp";
    d.Working.listafajlova = {"Z:\\a"};
    d.Working.TemplateName = "Nexus";
    ResetProjectSettings(d);
    ResetObjects(d);
    fields.Expect(
        "Osnovna podesavanja/(Podesi(Velicinu|Sirinu|Visinu)|CeoEkran|BojaEkrana|backscreenslika|"
        "Backscrpredpos|backscreenpicpozicija|Pozicija[XY])|"
        "Izvrsne komande/(Boja pozadine komandi|Add shadow|Boja senke)|"
        "Dodatne komande/([A-Za-z]+100|AddID\\d+)|Menu titles/.*|Uvod/(ClickThrough|Bojateksta)|"
        "Izlaz/(ClickThroughExit|Bojateksta)|Fontovi/.*|Precice/.*|"
        "Napredni sabloni/(MainAutorunTekst(Top|Left)|SlikaLogo[XY]|GlavniOpis.*|WindowMaximized)|"
        "ObjTekst/(back|Logo)picOdnos[xy]",
        "[Osnovna podesavanja]|Boja prozora=-2147483643|[Izvrsne komande]|Boja slova=-2147483630|"
        "Boja pozadine=16777215|Font=Arial|Velicina=9|[Zvuk]|Ponovi=1|Pauza=1|Komanda=Sound on/off|"
        "[Uvod]|Opcija=1|Bojaprozora=8421504|Vreme=5|[Izlaz]|Opcija=1|Bojaprozora=-2147483630|"
        "Vreme=5|[Poruke]|Komanda1=-1|Komanda2=-1|[Expiration]|Dugme1Komanda=-1|Dugme2Komanda=-1|"
        "[Napredni sabloni]|DugmeBorderVisible(0)=True|DugmeBorderVisible(7)=True|"
        "DugmeBorderVisible(10)=True|DugmeBorderVisible(100)=True");
    EXPECT_EQ(d.ObjTekst[100].TekstBoxCaption + d.Video[0].VideoFajl, "");
    EXPECT_FALSE(d.NapredniSabloni.Dugme[7].DugmeExists);
    EXPECT_EQ(d.Working.ProjectPath, "");
    EXPECT_EQ(d.Working.TemplateName, "");
    EXPECT_EQ(d.Working.Recent, "Z:\\p.tavp");
    EXPECT_TRUE(d.Working.listafajlova.empty());
}

TEST(ProjectReset, OfTheObjectsClearsTheCanvasAlone) {
    test::FieldsBeforeAndAfter fields;
    ResetObjects(fields.Document());
    fields.Expect("(?!Napredni|ObjTekst|Izvrsne).*|"
                  "Izvrsne komande/(?!(Exit|Sound)desc).*|"
                  "Napredni sabloni/(Poravnanje.*|MainAutorun.*|SlikaLogo.|GlavniOpis.*|Window.*)|"
                  "ObjTekst/(back|Logo)picOdnos[xy]",
                  "[Napredni sabloni]|DugmeBorderVisible(0)=True|DugmeBorderVisible(7)=True|"
                  "DugmeBorderVisible(10)=True|DugmeBorderVisible(100)=True");
    EXPECT_FALSE(fields.Document().NapredniSabloni.Dugme[7].DugmeExists);
}

} // namespace tavmoor
