#include "menu/palette.h"

#include "looks/looks.h"
#include "runtime/menu_fixture.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

std::uint32_t System(int number) {
    return number == 5 ? 0x00FEFDFC : 0x00030201;
}

Palette PaletteOf(const std::string& configuration, const Look& look, bool picture = false) {
    return MakePalette(test::ModelOf(configuration, look.designedIn), look, System, picture);
}

const Argb Navy = 0xFF102040;
const std::string NavyWindow = "[Osnovna podesavanja]\nBoja prozora=4202512\n"; // 0x402010

} // namespace

TEST(Palette, TurnsProjectColorsAround) {
    EXPECT_EQ(SolidColor(0x00332211, System), 0xFF112233U);
    EXPECT_EQ(SolidColor(static_cast<ColorValue>(0x80000005), System), 0xFFFCFDFEU);
    EXPECT_EQ(Blend(0x80FFFFFF, 0xFF000000), 0xFF808080U);
    EXPECT_EQ(Blend(0x00FFFFFF, 0xFF123456), 0xFF123456U);
    EXPECT_NEAR(Contrast(0xFFFFFFFF, 0xFF000000), 21.0, 0.01);
}

TEST(Palette, KeepsTheLooksTasteUntilColorsAreChosen) {
    const Palette own = NexusLook().colors;
    const Palette untouched = PaletteOf("", NexusLook());
    EXPECT_EQ(untouched.back, own.back);
    EXPECT_EQ(untouched.title, own.title);
    EXPECT_EQ(untouched.panel, own.panel);
    EXPECT_EQ(untouched.buttons[0].face, own.buttons[0].face);
    EXPECT_EQ(untouched.buttons[0].text, own.buttons[0].text);

    const Palette chosen =
        PaletteOf(NavyWindow + "[Osnovni podaci]\nGlnaslovBoja=255\nOpis providan=1\n"
                               "[Izvrsne komande]\nBoja slova=65280\nBoja pozadine komandi=0\n"
                               "Add shadow=1\nBoja senke=16711680\n",
                  NexusLook());
    EXPECT_EQ(chosen.back, Navy);
    EXPECT_EQ(chosen.backBottom, Navy);
    EXPECT_EQ(chosen.title, 0xFFFF0000U);
    EXPECT_EQ(chosen.panel >> 24U, 0U);
    EXPECT_EQ(chosen.buttons[0].face, 0xFF000000U);
    EXPECT_EQ(chosen.buttons[2].text, 0xFF00FF00U);
    EXPECT_NE(chosen.buttons[1].face, chosen.buttons[0].face);
    EXPECT_EQ(chosen.buttonShadow, 0xFF0000FFU);
    EXPECT_EQ(PaletteOf("[Izvrsne komande]\nBoja pozadine=255\n", NexusLook()).panel, 0xFFFF0000U);
}

TEST(Palette, NeverLeavesUnchosenTextsUnreadable) {
    for (const auto& look : {NexusLook(), HarborLook(), MarqueeLook()}) {
        for (const char* color : {"0", "16777215", "8421504", "255", "4202512", "-2147483640"}) {
            const Palette palette =
                PaletteOf(std::string("[Osnovna podesavanja]\nBoja prozora=") + color +
                              "\n[Izvrsne komande]\nBoja pozadine komandi=" + color + "\n",
                          look);
            EXPECT_GE(Contrast(palette.title, Blend(palette.header, palette.back)), 3.0) << color;
            EXPECT_GE(Contrast(palette.description, Blend(palette.panel, palette.back)), 3.0);
            for (const ButtonColors& button : palette.buttons) {
                EXPECT_GE(Contrast(button.text, Blend(button.face, palette.back)), 3.0) << color;
            }
        }
    }
}

TEST(Palette, MakesFacesSolidOverAPicture) {
    EXPECT_GE(PaletteOf("", NexusLook(), true).buttons[0].face >> 24U, 0xC0U);
    // Where a band shades the picture, the faces stay as they are.
    EXPECT_EQ(PaletteOf("", MarqueeLook(), true).buttons[0].face,
              MarqueeLook().colors.buttons[0].face);
}

TEST(Palette, TakesTheCanvasColorsAsTheyAre) {
    const Palette palette = PaletteOf("[Napredni sabloni]\nTekstBackgroundStyle(3)=1\n"
                                      "TekstBackgroundColor(3)=16777215\n",
                                      EditorLook());
    EXPECT_EQ(palette.back, 0xFFFCFDFEU);
    EXPECT_EQ(palette.title, 0xFF000000U);
    EXPECT_EQ(palette.panel, 0xFFFFFFFFU);
    // On the canvas the style says whether there is a back colour, not the settings' flag.
    EXPECT_EQ(PaletteOf("[Osnovni podaci]\nOpis providan=0\n", EditorLook()).panel >> 24U, 0U);
}

} // namespace tavmoor
