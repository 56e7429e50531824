#include "core/project_reset.h"

#include "core/field_writer.h"
#include "support/full_project.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

/// What "new project" leaves alone, as the document before held it.
void CopyKeptFields(ProjectDocument& to, const ProjectDocument& from) {
    BaseSettings base = from.OsnovnaPodesavanja;
    base.GlavniDirektorijum = base.Sablon = base.PozadinskaSlika = "";
    base.BojaProzora = -2147483643;
    to.OsnovnaPodesavanja = base;
    to.IzvrsneKomande.Bojapozadinekomandi = from.IzvrsneKomande.Bojapozadinekomandi;
    to.IzvrsneKomande.Addshadow = from.IzvrsneKomande.Addshadow;
    to.IzvrsneKomande.Bojasenke = from.IzvrsneKomande.Bojasenke;
    for (std::size_t i = 0; i < AdditionalCommandRows; ++i) {
        to.DodatneKomande[i].AddID = from.DodatneKomande[i].AddID;
    }
    to.DodatneKomande[100] = from.DodatneKomande[100];
    to.MenuTitles = from.MenuTitles;
    to.Uvod.ClickThrough = from.Uvod.ClickThrough;
    to.Izlaz.ClickThrough = from.Izlaz.ClickThrough;
    to.Uvod.Bojateksta = from.Uvod.Bojateksta;
    to.Izlaz.Bojateksta = from.Izlaz.Bojateksta;
    to.Fontovi = from.Fontovi;
    to.Precice = from.Precice;
    CanvasSpec& canvas = to.NapredniSabloni;
    canvas = from.NapredniSabloni;
    canvas.AutorunWidth = canvas.AutorunHeight = canvas.LogoTekstTop = canvas.LogoTekstLeft = 0;
    canvas.AutorunFixedSize = false;
    canvas.Tekst = {};
    canvas.Dugme = {};
    to.Ratios = from.Ratios;
}

void SetNewProjectValues(ProjectDocument& d) {
    d.IzvrsneKomande.Bojaslova = "-2147483630";
    d.IzvrsneKomande.Bojapozadine = 16777215;
    d.IzvrsneKomande.Font = "Arial";
    d.IzvrsneKomande.Velicina = "9";
    d.Zvuk.Ponovi = d.Zvuk.Pauza = 1;
    d.Zvuk.Komanda = "Sound on/off";
    d.Uvod.Opcija = d.Izlaz.Opcija = 1;
    d.Uvod.Bojaprozora = 8421504;
    d.Izlaz.Bojaprozora = -2147483630;
    d.Uvod.Vreme = d.Izlaz.Vreme = "5";
    d.Poruke.Komanda1 = d.Poruke.Komanda2 = -1;
    d.Expiration.Dugme1Komanda = d.Expiration.Dugme2Komanda = "-1";
    for (ButtonObject& button : d.NapredniSabloni.Dugme) {
        button.DugmeBorderVisible = true;
    }
}

/// Makes rows appear in the files that are not live, so that texts can be compared.
void ShowAllRows(ProjectDocument& document) {
    for (ButtonObject& button : document.NapredniSabloni.Dugme) {
        button.DugmeExists = true;
    }
    for (TextObject& text : document.ObjTekst) {
        text.TekstBoxVisible = true;
    }
    for (VideoObject& video : document.Video) {
        video.VideoFajl += "shown";
    }
    for (CommandEntry& command : document.DodatneKomande) {
        command.addname += "shown";
    }
}

} // namespace

TEST(ProjectReset, GivesNewProjectValuesAndKeepsTheRest) {
    const auto full = test::MakeFullProject("Z:\\button.png", "button.png");
    const auto expected = std::make_unique<ProjectDocument>();
    CopyKeptFields(*expected, full->document);
    SetNewProjectValues(*expected);

    ProjectDocument& d = full->document;
    d.ObjTekst[100].TekstBoxCaption = "behind the stored ones";
    d.Working = {.ProjectPath = "Z:\\p.tavp", .Recent = "Z:\\p.tavp", .listafajlova = {"Z:\\a"}};
    ResetProjectSettings(d);
    ResetObjects(d);
    EXPECT_EQ(d.Working.ProjectPath, "");
    EXPECT_EQ(d.Working.Recent, "Z:\\p.tavp");
    EXPECT_TRUE(d.Working.listafajlova.empty());
    EXPECT_EQ(d.ObjTekst[100].TekstBoxCaption, "");
    EXPECT_EQ(d.DodatneKomande[99].addname, "");
    EXPECT_EQ(d.DodatneKomande[100].addname, "N&100");
    for (const ButtonObject& button : d.NapredniSabloni.Dugme) {
        EXPECT_FALSE(button.DugmeExists);
    }
    ShowAllRows(d);
    ShowAllRows(*expected);
    for (const FieldFile file : {FieldFile::Project, FieldFile::Configuration}) {
        EXPECT_EQ(FieldFileText(d, file), FieldFileText(*expected, file));
    }
}

TEST(ProjectReset, OfTheObjectsClearsTheCanvasAlone) {
    const auto full = test::MakeFullProject("Z:\\button.png", "button.png");
    ProjectDocument& d = full->document;
    ResetObjects(d);
    EXPECT_EQ(d.NapredniSabloni.AutorunWidth, 0);
    EXPECT_EQ(d.NapredniSabloni.MainAutorunTekstTop, 9005);
    EXPECT_EQ(d.NapredniSabloni.Dugme[100].DugmePictureFile, "");
    EXPECT_TRUE(d.NapredniSabloni.Dugme[7].DugmeBorderVisible);
    EXPECT_FALSE(d.NapredniSabloni.Dugme[7].DugmeExists);
    EXPECT_EQ(d.NapredniSabloni.Tekst[2].TekstBackgroundColor, "");
    EXPECT_EQ(d.NapredniSabloni.Tekst[0].Poravnanje, 3);
    EXPECT_FALSE(d.ObjTekst[42].TekstBoxVisible);
    EXPECT_EQ(d.IzvrsneKomande.Exitdesctitle + d.IzvrsneKomande.Sounddescription, "");
    EXPECT_EQ(d.IzvrsneKomande.Izlaz, "Leave & go");
    EXPECT_EQ(d.Video[1].VideoFajl, "Z:\\films\\film1.avi");
}

} // namespace tavmoor
