#include "menu/screen_layout.h"

#include "looks/looks.h"
#include "runtime/menu_fixture.h"

#include <gtest/gtest.h>

namespace tavmoor {

namespace {

ScreenModel Splash(const std::string& lines) {
    return MakeScreenModel(test::DocumentOf("[Uvod]\n" + lines).Uvod);
}

/// A screen of the Nexus look, kept with all that its layout refers to.
struct Screen {
    explicit Screen(const std::string& lines, Extent picture = {}, int dpi = 96)
        : model(Splash(lines)), meter(dpi), request{model, look, meter, picture, dpi} {}
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    [[nodiscard]] Extent Size(Extent most = {1920, 1040}) const {
        return ChooseScreenSize(request, most);
    }

    Look look = NexusLook();
    ScreenModel model;
    test::GridMeter meter;
    ScreenRequest request;
};

const std::string Places[] = {"Top left",     "Top right",     "Top center",         "Botton left",
                              "Bottom right", "Bottom center", "Centered on window!"};

} // namespace

TEST(Screen, ShowsWhatItsOptionSays) {
    const std::string both = "Poruka=aChr$(13)Chr$(10)b\nSlika=p.jpg\nPrikazi=1\nClickThrough=1\n";
    for (const char* all : {"Opcija=1\n", "Opcija=7\n", ""}) {
        const ScreenModel model = Splash(both + all);
        EXPECT_EQ(model.text.text, "a\nb") << all;
        EXPECT_EQ(model.picture, "p.jpg") << all;
        EXPECT_TRUE(model.shown && model.clickCloses);
    }
    EXPECT_EQ(Splash(both + "Opcija=2\n").text.text, "");
    EXPECT_EQ(Splash(both + "Opcija=3\n").picture, "");
    const ProjectDocument closing =
        test::DocumentOf("[Izlaz]\nPrikazi=1\nClickThroughExit=1\nTekst=Bye\nFont=Arial\n"
                         "Fontvelicina=14\nItalic=1\nVisina=-3\nSirina=300\n");
    const ScreenModel farewell = MakeScreenModel(closing.Izlaz);
    EXPECT_EQ(farewell.text.text, "Bye");
    EXPECT_TRUE(farewell.clickCloses);
    EXPECT_EQ(farewell.text.font, (MenuFont{"Arial", 14, false, true}));
    EXPECT_EQ(farewell.size, (Extent{300, 0}));
}

TEST(Screen, StaysForOneToSixtySeconds) {
    for (const auto& [text, seconds] : {std::pair{"1", 1},
                                        {"60", 60},
                                        {"7.9", 7},
                                        {" 12 ", 12},
                                        {"61", 5},
                                        {"0", 5},
                                        {"0.5", 5},
                                        {"-1", 5},
                                        {"", 5},
                                        {"soon", 5},
                                        {"1e99", 5}}) {
        EXPECT_EQ(ScreenSeconds(text), seconds) << text;
    }
}

TEST(Screen, TakesItsSizeFromProjectPictureOrLook) {
    const Extent own = NexusLook().screenSize;
    EXPECT_EQ(Screen("Sirina=520\nVisina=200\n", {900, 600}).Size(), (Extent{520, 200}));
    EXPECT_EQ(Screen("Sirina=450\n", {900, 600}).Size(), (Extent{450, 300}));
    EXPECT_EQ(Screen("Visina=450\n", {900, 600}).Size(), (Extent{675, 450}));
    EXPECT_EQ(Screen("", {900, 600}).Size(), (Extent{900, 600}));
    EXPECT_EQ(Screen("").Size(), own);
    EXPECT_EQ(Screen("", {3000, 3000}).Size(), (Extent{own.height, own.height}));
    EXPECT_EQ(Screen("Sirina=520\nVisina=200\n", {}, 192).Size(), (Extent{1040, 400}));
    // A screen of its picture alone is as small as that; with a text it leaves room for it.
    EXPECT_EQ(Screen("", {64, 32}).Size(), (Extent{64, 32}));
    EXPECT_EQ(Screen("Poruka=Hi\n", {64, 32}).Size(), own);
    // What does not fit keeps its ratio.
    EXPECT_EQ(Screen("Sirina=1024\nVisina=768\n", {}, 192).Size({1366, 728}), (Extent{970, 728}));
    for (const Extent odd : {Extent{60'000'000, 1}, Extent{1, 60'000'000}}) {
        for (const char* given : {"", "Sirina=1024\n", "Visina=768\n"}) {
            const Extent size = Screen(given, odd, 192).Size();
            EXPECT_TRUE(size.width >= 8 && size.height >= 8) << given;
            EXPECT_TRUE(size.width <= 1920 && size.height <= 1040) << given;
        }
    }
}

TEST(Screen, PutsPictureAndTextAtTheirPlaces) {
    const auto boxes = [](const std::string& place) {
        const Screen screen("Poruka=Hi\nPolozajslike=" + place + "\nPolozajteksta=" + place + "\n",
                            {100, 50});
        return ArrangeScreen(screen.request, {480, 300});
    };
    int lefts = 0;
    int tops = 0;
    for (const std::string& place : Places) {
        const ScreenLayout layout = boxes(place);
        EXPECT_FALSE(layout.pictureCovers);
        const bool left = place.ends_with("left");
        const bool right = place.ends_with("right");
        const bool top = place.starts_with("Top");
        const bool bottom = place.starts_with("Bott");
        EXPECT_EQ(layout.picture.x, left ? 0 : right ? 380 : 190) << place;
        EXPECT_EQ(layout.picture.y, top ? 0 : bottom ? 250 : 125) << place;
        EXPECT_EQ(layout.align, left    ? TextAlign::Left
                                : right ? TextAlign::Right
                                        : TextAlign::Center);
        EXPECT_EQ(layout.text.y < 100, top) << place;
        EXPECT_EQ(layout.text.Bottom() > 200, bottom) << place;
        lefts += left ? 1 : 0;
        tops += top ? 1 : 0;
    }
    EXPECT_EQ(lefts, 2);
    EXPECT_EQ(tops, 3);
    EXPECT_EQ(boxes("Centered on window").picture, boxes(Places[6]).picture);
    EXPECT_EQ(boxes("anywhere").text, boxes(Places[6]).text);
}

TEST(Screen, FillsItselfWithAPictureThatHasNoPlace) {
    const Screen large("", {400, 300});
    EXPECT_TRUE(ArrangeScreen(large.request, {480, 300}).pictureCovers);
    EXPECT_EQ(ArrangeScreen(large.request, {480, 300}).picture, (Box{0, 0, 480, 300}));
    const Screen small("", {40, 30});
    EXPECT_EQ(ArrangeScreen(small.request, {480, 300}).picture, (Box{220, 135, 40, 30}));
    const Screen tooWide("Polozajslike=Top left\n", {960, 300});
    EXPECT_EQ(ArrangeScreen(tooWide.request, {480, 300}).picture, (Box{0, 0, 480, 150}));
    EXPECT_TRUE(ArrangeScreen(Screen("").request, {480, 300}).picture.Empty());
}

TEST(Screen, MakesItsTextFit) {
    for (const int dpi : {96, 192}) {
        const Screen screen("Font=Arial\nFontvelicina=40\nPoruka=" + std::string(300, 'x') + "\n",
                            {}, dpi);
        const Extent client = screen.Size();
        const ScreenLayout layout = ArrangeScreen(screen.request, client);
        EXPECT_LT(layout.font.points, 40);
        EXPECT_EQ(layout.font.face, "Arial");
        EXPECT_TRUE(layout.text.y >= 0 && layout.text.Bottom() <= client.height);
        const Extent needed =
            screen.meter.Measure(screen.model.text.text, layout.font, layout.text.width);
        EXPECT_LE(needed.height, layout.text.height);
    }
    const Screen brief("Font=Arial\nFontvelicina=40\nPoruka=Hi\n");
    EXPECT_EQ(ArrangeScreen(brief.request, brief.Size()).font.points, 40);
}

TEST(Screen, KeepsChosenColorsAndUnchosenTextReadable) {
    const auto system = [](int) { return 0x00101010U; };
    const auto colors = [&](const std::string& lines) {
        return ChooseScreenColors(Splash(lines), system);
    };
    EXPECT_EQ(colors("Bojaprozora=255\nBojateksta=254\n").text, 0xFFFE0000U);
    EXPECT_EQ(colors("Bojaprozora=-2147483630\nBojateksta=0\n").back, 0xFF101010U);
    EXPECT_EQ(colors("Bojaprozora=-2147483630\nBojateksta=0\n").text, 0xFFFFFFFFU);
    EXPECT_EQ(colors("Bojaprozora=8421504\nBojateksta=0\n").text, 0xFF000000U);
}

} // namespace tavmoor
