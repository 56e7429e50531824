#include "menu/menu_model.h"

#include "core/text/code_page.h"
#include "looks/looks.h"
#include "runtime/menu_fixture.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavmoor {

namespace {

std::vector<std::string> Captions(const MenuModel& model) {
    std::vector<std::string> captions;
    for (const MenuCommand& command : model.commands) {
        captions.push_back(command.caption);
    }
    return captions;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(MenuModel, HasTheCommandsInUseAndTheExitLast) {
    const MenuModel model = test::ModelOf("[Izvrsne komande]\nIzlaz=#Empty#\n"
                                          "Opis1=Setup\nVrsta1=Run program\nZatvara1=1\n"
                                          "Opis2=No kind\nFajl2=a.txt\n"
                                          "Vrsta3=Open file\nFajl3=b.txt\n"
                                          "Opis6=Site\nVrsta6=Visit web page\n"
                                          "[Dodatne komande]\n"
                                          "addname0=One\naddtype0=send MAIL \naddclose0=Da\n"
                                          "addname1= \naddname2=#Empty#\naddname100=Last\n");
    EXPECT_EQ(Captions(model), (Texts{"Setup", "Site", "One", "  ", "Last", "  "}));
    EXPECT_EQ(model.commands[0].kind, CommandKind::RunProgram);
    EXPECT_EQ(model.commands[1].group, MenuGroup::Info);
    EXPECT_EQ(model.commands[2].kind, CommandKind::SendMail);
    EXPECT_EQ(model.commands[2].group, MenuGroup::Additional);
    EXPECT_EQ(model.commands.back().kind, CommandKind::Exit);
    EXPECT_EQ(Captions(test::ModelOf("[Izvrsne komande]\n")), Texts{"Exit"});
}

TEST(MenuModel, HasAButtonForItsSound) {
    const std::string sound = "[Izvrsne komande]\nSounddesctitle=Music\nSounddescription=On or "
                              "off.\n[Dodatne komande]\naddname0=a\naddname1=b\n"
                              "addStopBackgroundMusic1=1\n[Zvuk]\nFajl=a.mid\nKomanda=";
    const MenuModel model = test::ModelOf(sound + "Tune\n");
    EXPECT_EQ(Captions(model), (Texts{"a", "b", "Tune", "Exit"}));
    EXPECT_EQ(model.commands[2].kind, CommandKind::Sound);
    EXPECT_EQ(model.commands[2].group, MenuGroup::Program);
    EXPECT_EQ(model.DescriptionOf(2).title, "Music");
    EXPECT_EQ(model.DescriptionOf(2).text, "On or off.");
    EXPECT_FALSE(model.commands[0].stopsSound);
    EXPECT_TRUE(model.commands[1].stopsSound);
    EXPECT_EQ(Captions(test::ModelOf(sound + "\n"))[2], "Sound on/off");
    EXPECT_EQ(Captions(test::ModelOf("[Zvuk]\nKomanda=Tune\n")), Texts{"Exit"});
}

TEST(MenuModel, TakesEveryFormOfYesForClosing) {
    for (const char* yes : {"1", "-1", "True", "true", "Da", " 1 "}) {
        const auto model =
            test::ModelOf(std::string("[Dodatne komande]\naddname0=a\naddclose0=") + yes);
        EXPECT_TRUE(model.commands[0].closes) << yes;
    }
    for (const char* no : {"", "0", "False", "Ne", "x"}) {
        const auto model =
            test::ModelOf(std::string("[Dodatne komande]\naddname0=a\naddclose0=") + no);
        EXPECT_FALSE(model.commands[0].closes) << no;
    }
}

TEST(MenuModel, GathersGroupsWithoutMixingTheirOrder) {
    MenuModel model = test::ModelOf("[Izvrsne komande]\n"
                                    "Opis1=web\nVrsta1=Visit web page\nOpis2=b\nVrsta2=Open file\n"
                                    "Opis3=mail\nVrsta3=Send mail\nOpis4=a\nVrsta4=Run program\n"
                                    "[Dodatne komande]\naddname0=x\n");
    GatherGroups(model);
    EXPECT_EQ(Captions(model), (Texts{"b", "a", "web", "mail", "x", "Exit"}));
}

TEST(MenuModel, TellsTheCommandsDescriptionAndElseTheMainOne) {
    const MenuModel model =
        test::ModelOf("[Osnovni podaci]\nGlavniOpisnaslov=Main\nGlavniOpis=1Chr$(13)Chr$(10)2\n"
                      "[Izvrsne komande]\nExitdescription=Bye\nOpis1=a\nVrsta1=Open file\n"
                      "Opis2=b\nVrsta2=Open file\n[Opis komandi]\nC2=Title alone\n");
    EXPECT_EQ(model.DescriptionOf(std::nullopt).text, "1\n2");
    EXPECT_EQ(model.DescriptionOf(0).title, "Main");
    EXPECT_EQ(model.DescriptionOf(1).title, "Title alone");
    EXPECT_EQ(model.DescriptionOf(1).text, "");
    EXPECT_EQ(model.DescriptionOf(2).text, "Bye");
    EXPECT_FALSE(test::ModelOf("[Izvrsne komande]\nOpis1=a\nVrsta1=Open file\n").HasDescriptions());
}

TEST(MenuModel, TurnsTextsIntoUtf8) {
    SetSystemCodePage(1250);
    const MenuModel model = test::ModelOf("[Osnovni podaci]\nTasknaslov=\xC8"
                                          "a\xE8"
                                          "ak\n"
                                          "Glavninaslov=Dva\n");
    EXPECT_EQ(model.windowTitle, "Čačak");
    EXPECT_EQ(test::ModelOf("[Osnovni podaci]\nGlavninaslov=Dva\n").windowTitle, "Dva");
    SetSystemCodePage(1252);
}

TEST(MenuModel, SizesTheWindowByCanvasSettingsOrPicture) {
    const std::string settings = "[Osnovna podesavanja]\nPodesiVelicinu=Da\nPodesiSirinu=700\n"
                                 "PodesiVisinu=-5\n";
    const std::string canvas = "[Napredni sabloni]\nAutorunWidth=9600\nAutorunHeight=7200\n";
    const auto size = [](const std::string& text, const Look& look, Extent picture) {
        return ChooseSize(test::ModelOf(text, look.designedIn), look, picture);
    };
    const WantedSize designed = size(settings + canvas, EditorLook(), {900, 600});
    EXPECT_EQ(designed.size, (Extent{640, 480}));
    EXPECT_TRUE(designed.outer);
    // A simple template does not care for what the canvas has left in the project.
    const Extent own = NexusLook().size;
    EXPECT_EQ(size(settings + canvas, NexusLook(), {}).size, (Extent{700, own.height}));
    EXPECT_EQ(size(canvas, NexusLook(), {}).size, own);
    const WantedSize picture = size("", NexusLook(), {900, 600});
    EXPECT_EQ(picture.size, (Extent{900, 600}));
    EXPECT_TRUE(picture.keepRatio);
    EXPECT_EQ(size("", NexusLook(), {64, 64}).size, own);
    EXPECT_EQ(size("", HarborLook(), {900, 600}).size, HarborLook().size);
}

TEST(MenuModel, UsesTheLooksFontsUntilOneIsChosen) {
    const MenuFonts own = NexusLook().fonts;
    // Writers fill sizes in even where no font was chosen.
    const MenuFonts untouched =
        ChooseFonts(test::ModelOf("[Osnovni podaci]\nGlnaslovVel=10\nVelicina=10\n"
                                  "[Izvrsne komande]\nFont=Arial\nVelicina=9\n"),
                    NexusLook());
    EXPECT_EQ(untouched.title, own.title);
    EXPECT_EQ(untouched.logo, own.logo);
    EXPECT_EQ(untouched.button, own.button);
    const MenuFonts chosen = ChooseFonts(
        test::ModelOf("[Osnovni podaci]\nGlavninaslovFont=Georgia\nGlnaslovVel=28\n"
                      "Font=Verdana\nVelicina=\nStil=Italic\nEfekti=StrikeThru, Underline\n"
                      "[Izvrsne komande]\nFont=Arial\nVelicina=12\n"),
        NexusLook());
    EXPECT_EQ(chosen.title, (MenuFont{"Georgia", 28}));
    EXPECT_EQ(chosen.logo, (MenuFont{"Verdana", own.logo.points, false, true, true, true}));
    EXPECT_EQ(chosen.button, (MenuFont{"Arial", 12}));
}

} // namespace tavmoor
