#include "services/fields/field_pickers.h"
#include "settings/screens/screen_panel_description.h"

namespace tavmoor {

namespace {

// Pixels of the largest screen that runtimes count with.
constexpr int MostHeight = 768;
constexpr int MostWidth = 1024;

template <ScreenSpec ProjectDocument::*Screen>
constexpr ScreenFields FieldsOf{
    .shown = At<Screen, &ScreenSpec::Prikazi>,
    .clickThrough = At<Screen, &ScreenSpec::ClickThrough>,
    .text = At<Screen, &ScreenSpec::Tekst>,
    .font = At<Screen, &ScreenSpec::Font>,
    .fontSize = At<Screen, &ScreenSpec::Fontvelicina>,
    .bold = At<Screen, &ScreenSpec::Bold>,
    .italic = At<Screen, &ScreenSpec::Italic>,
    .underline = At<Screen, &ScreenSpec::Underline>,
    .textColor = At<Screen, &ScreenSpec::Bojateksta>,
    .picture = At<Screen, &ScreenSpec::Slika>,
    .option = At<Screen, &ScreenSpec::Opcija>,
    .backColor = At<Screen, &ScreenSpec::Bojaprozora>,
    .time = At<Screen, &ScreenSpec::Vreme>,
    .height = At<Screen, &ScreenSpec::Visina>,
    .width = At<Screen, &ScreenSpec::Sirina>,
    .textPosition = At<Screen, &ScreenSpec::Polozajteksta>,
    .picturePosition = At<Screen, &ScreenSpec::Polozajslike>,
};

} // namespace

const ScreenPanelDescription SplashScreenPanel{
    .frame = "Frame9",
    .heading = u"Splash screen settings",
    .fields = FieldsOf<&ProjectDocument::Uvod>,
    .show = {"Check1", u"&Display splash screen"},
    .click = {"Check18", u"E&nable user to click on splash screen to skip it"},
    .text = {"Text6", u"Insert splash screen text"},
    .textColor = "Text6Color",
    .fontButton = "Command20",
    .fontName = "Label61",
    .fontSize = "Label60",
    .bold = {"Check2", u"Bo&ld"},
    .italic = {"Check3", u"It&alic"},
    .underline = {"Check8", u"&Underline"},
    .picture = {.label = "Label38",
                .meaning = u"Splash screen picture",
                .browse = "Command18",
                .remove = "Command54",
                .browseTooltip = u"Choose splash screen background picture",
                .removeTooltip = u"Remove picture",
                .title = "Choose splash screen picture...",
                .filter = ScreenPictureFilter},
    .options = {{{"Option3", u"Picture and text"},
                 {"Option4", u"Picture only"},
                 {"Option5", u"Text only"}}},
    .color = {"Frame11", u"&Window background color"},
    .colorButton = "Command19",
    .colorTooltip = u"Set window color",
    .time = {"Text7", u"Display splash screen for"},
    .timeUnit = "Label47",
    .dimensions = {"Label41",
                   u"Change splash screen dimensions (pixels) - If template supports it"},
    .height = {{"VScroll1", u"Height"}, "Label42", MostHeight},
    .width = {{"HScroll3", u"Width"}, "Label57", MostWidth},
    .textPosition = {"Combo9", u"Text position"},
    .picturePosition = {"Combo10", u"Picture position"}};

const ScreenPanelDescription ExitScreenPanel{
    .frame = "Frame12",
    .heading = u"Exit window settings",
    .fields = FieldsOf<&ProjectDocument::Izlaz>,
    .show = {"Check4", u"&Display exit window"},
    .click = {"Check17", u"E&nable user to click on exit screen to close it"},
    .text = {"Text8", u"Insert splash screen text"},
    .textColor = "Text8Color",
    .fontButton = "Command22",
    .fontName = "Label58",
    .fontSize = "Label59",
    .bold = {"Check5", u"Bo&ld"},
    .italic = {"Check6", u"It&alic"},
    .underline = {"Check7", u"&Underline"},
    .picture = {.label = "Label51",
                .meaning = u"Exit screen picture",
                .browse = "Command23",
                .remove = "Command53",
                .browseTooltip = u"Choose exit window picture",
                .removeTooltip = u"Remove picture",
                .title = "Choose exit screen picture...",
                .filter = ScreenPictureFilter},
    .options = {{{"Option6", u"Picture and text"},
                 {"Option7", u"Picture only"},
                 {"Option8", u"Text only"}}},
    .color = {"Label53", u"Exit &window background color"},
    .colorButton = "Command24",
    .colorTooltip = u"Set exit window background color",
    .time = {"Text9", u"Display exit window for"},
    .timeUnit = "Label55",
    .dimensions = {"Label56", u"Change exit window dimensions (pixels) - If template supports it"},
    .height = {{"VScroll2", u"Height"}, "Label94", MostHeight},
    .width = {{"HScroll4", u"Width"}, "Label92", MostWidth},
    .textPosition = {"Combo7", u"Text position"},
    .picturePosition = {"Combo8", u"Picture position"}};

} // namespace tavmoor
