#include "menu/menu_layout.h"

#include "looks/looks.h"
#include "menu/menu_navigation.h"
#include "runtime/menu_fixture.h"

#include <gtest/gtest.h>

#include <set>

namespace tavmoor {

namespace {

bool Overlap(const Box& a, const Box& b) {
    return !a.Empty() && !b.Empty() && a.x < b.Right() && b.x < a.Right() && a.y < b.Bottom() &&
           b.y < a.Bottom();
}

bool LiesWithin(const Box& inner, const Box& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

/// A menu laid out by one look, kept with all that the layout refers to.
struct Menu {
    Menu(Look menuLook, int commands, Extent client, int dpi = 96)
        : look(std::move(menuLook)), model(Model(look, commands)), fonts(ChooseFonts(model, look)),
          meter(dpi), request{model, look, fonts, meter} {
        request.client = client;
        request.dpi = dpi;
        request.logoPicture = {400, 300};
        request.backgroundPicture = true;
        request.panel = true;
        layout = ArrangeMenu(request);
    }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    static MenuModel Model(const Look& look, int commands) {
        MenuModel model = test::ModelWithCommands(commands);
        if (look.groupTitles) {
            GatherGroups(model);
        }
        return model;
    }

    Look look;
    MenuModel model;
    MenuFonts fonts;
    test::GridMeter meter;
    LayoutRequest request;
    MenuLayout layout;
};

class EveryLook : public testing::TestWithParam<Look (*)()> {};

void ExpectSound(const Menu& menu) {
    const MenuLayout& layout = menu.layout;
    const Box window{0, 0, menu.request.client.width, menu.request.client.height};
    for (const Box& box : {layout.header, layout.title, layout.logoPicture, layout.logoText,
                           layout.picture, layout.list, layout.scrollBar}) {
        EXPECT_TRUE(box.Empty() || LiesWithin(box, window));
    }
    EXPECT_FALSE(Overlap(layout.title, layout.logoText));
    EXPECT_FALSE(Overlap(layout.title, layout.logoPicture));
    EXPECT_FALSE(Overlap(layout.list, layout.header));
    EXPECT_FALSE(Overlap(layout.list, layout.description));
    ASSERT_EQ(layout.buttons.size(), menu.model.commands.size());
    for (std::size_t i = 0; i < layout.buttons.size(); ++i) {
        EXPECT_GT(layout.buttons[i].width, 0);
        EXPECT_FALSE(Overlap(layout.buttons[i], layout.scrollBar)) << i;
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(i < layout.firstFixed && Overlap(layout.buttons[i], layout.buttons[j]));
        }
        const Box& place = i < layout.firstFixed ? layout.list : window;
        const Box shown = layout.ButtonBox(i, layout.ScrollToShow(i, 0));
        EXPECT_TRUE(LiesWithin(shown, place) || shown.height > place.height) << i;
    }
}

} // namespace

TEST_P(EveryLook, KeepsEverythingApartAndReachable) {
    for (const Extent client : {Extent{800, 500}, Extent{640, 480}, Extent{1920, 1000}}) {
        for (const int count : {0, 1, 7, 13, 106}) {
            SCOPED_TRACE(testing::Message() << client.width << ' ' << count);
            ExpectSound(Menu(GetParam()(), count, client));
        }
    }
}

TEST_P(EveryLook, SurvivesTheSmallestWindows) {
    for (const Extent client : {Extent{200, 150}, Extent{120, 30}, Extent{1, 1}, Extent{0, 0}}) {
        const Menu menu(GetParam()(), 9, client);
        for (const Box& button : menu.layout.buttons) {
            EXPECT_GT(button.width, 0);
        }
        EXPECT_GE(menu.layout.description.width, 0);
        EXPECT_GE(menu.layout.description.height, 0);
        EXPECT_GE(menu.layout.list.height, 0);
        const DescriptionBoxes boxes = PlaceDescription(
            menu.request, menu.layout, {"A title of some length", std::string(500, 'x')});
        EXPECT_GE(boxes.text.height, 0);
        EXPECT_GE(boxes.title.height, 0);
    }
}

TEST_P(EveryLook, GrowsWithTheResolution) {
    const Menu small(GetParam()(), 7, {800, 500}, 96);
    const Menu large(GetParam()(), 7, {1600, 1000}, 192);
    ASSERT_EQ(small.layout.buttons.size(), large.layout.buttons.size());
    for (std::size_t i = 0; i < small.layout.buttons.size(); ++i) {
        EXPECT_NEAR(large.layout.buttons[i].x, 2 * small.layout.buttons[i].x, 8);
        EXPECT_NEAR(large.layout.buttons[i].y, 2 * small.layout.buttons[i].y, 16);
    }
    EXPECT_EQ(small.layout.MostScroll() > 0, large.layout.MostScroll() > 0);
}

TEST_P(EveryLook, KeepsDescriptionsInTheirArea) {
    const Menu menu(GetParam()(), 6, {800, 500});
    for (const std::size_t length : {0U, 20U, 300U, 9000U}) {
        const DescriptionBoxes boxes =
            PlaceDescription(menu.request, menu.layout, {"Title", std::string(length, 'x')});
        EXPECT_TRUE(LiesWithin(boxes.title, menu.layout.description)) << length;
        EXPECT_TRUE(boxes.text.Empty() || LiesWithin(boxes.text, menu.layout.description));
        EXPECT_LE(boxes.title.Bottom(), boxes.text.Empty() ? boxes.title.Bottom() : boxes.text.y);
    }
}

TEST_P(EveryLook, LeadsTheKeyboardToEveryButton) {
    for (const int count : {0, 5, 40}) {
        const Menu menu(GetParam()(), count, {800, 500});
        const std::size_t buttons = menu.layout.buttons.size();
        std::set<std::size_t> reached{0};
        for (std::size_t round = 0; round < buttons; ++round) {
            for (const std::size_t from : std::set(reached)) {
                for (const MenuMove move :
                     {MenuMove::Up, MenuMove::Down, MenuMove::Left, MenuMove::Right}) {
                    reached.insert(ButtonAfter(menu.layout, from, move));
                }
            }
        }
        EXPECT_EQ(reached.size(), buttons) << count;
        EXPECT_EQ(ButtonAfter(menu.layout, buttons - 1, MenuMove::Next), 0U);
        EXPECT_EQ(ButtonAfter(menu.layout, 0, MenuMove::Previous), buttons - 1);
        EXPECT_EQ(ButtonAfter(menu.layout, std::nullopt, MenuMove::Down), 0U);
    }
}

INSTANTIATE_TEST_SUITE_P(Looks, EveryLook,
                         testing::Values(NexusLook, HarborLook, MarqueeLook, EditorLook));

TEST(MenuLayout, KeepsTheExitBelowAScrollingColumn) {
    const Menu few(HarborLook(), 3, {800, 500});
    EXPECT_EQ(few.layout.MostScroll(), 0);
    EXPECT_EQ(few.layout.buttons[3].y - few.layout.buttons[2].Bottom(), few.look.buttonGap);
    const Menu many(HarborLook(), 60, {800, 500});
    const MenuLayout& layout = many.layout;
    EXPECT_GT(layout.MostScroll(), 0);
    EXPECT_EQ(layout.firstFixed, 60U);
    const Box exit = layout.ButtonBox(60, layout.MostScroll());
    EXPECT_EQ(exit, layout.ButtonBox(60, 0));
    EXPECT_GE(exit.y, layout.list.Bottom());
    // In a window too low for both, the exit scrolls with the others.
    EXPECT_EQ(Menu(HarborLook(), 60, {400, 220}).layout.firstFixed, 61U);
}

TEST(MenuLayout, KeepsTheSoundBesideTheExit) {
    Menu menu(NexusLook(), 60, {800, 500});
    MenuCommand sound = menu.model.commands.back();
    sound.kind = CommandKind::Sound;
    menu.model.commands.insert(menu.model.commands.end() - 1, sound);
    const MenuLayout layout = ArrangeMenu(menu.request);
    EXPECT_EQ(layout.firstFixed, 60U);
    EXPECT_GE(layout.buttons[60].y, layout.list.Bottom());
    EXPECT_EQ(layout.buttons[61].y - layout.buttons[60].Bottom(), menu.look.buttonGap);
    EXPECT_LE(layout.buttons[61].Bottom(), 500);
    EXPECT_EQ(layout.groups.back().group, MenuGroup::Program);
}

TEST(MenuLayout, HitsOnlyWhatShows) {
    const Menu menu(HarborLook(), 60, {800, 500});
    const MenuLayout& layout = menu.layout;
    const Box first = layout.buttons[0];
    EXPECT_EQ(layout.ButtonAt(first.x + 1, first.y + 1, 0), 0U);
    EXPECT_EQ(layout.ButtonAt(first.x - 1, first.y + 1, 0), std::nullopt);
    // Scrolled so far that a button would lie behind the exit button or the header.
    const int bottom = layout.list.Bottom();
    for (int scroll = 0; scroll < 100; scroll += 7) {
        const auto below = layout.ButtonAt(first.x + 5, bottom + 2, scroll);
        EXPECT_TRUE(!below || *below == 60U) << scroll;
        EXPECT_EQ(layout.ButtonAt(first.x + 5, layout.list.y - 1, scroll), std::nullopt);
    }
}

TEST(MenuLayout, BalancesTheRowsOfAGrid) {
    const auto columns = [](int commands) {
        const Menu menu(MarqueeLook(), commands, {800, 500});
        std::set<int> lefts;
        for (const Box& button : menu.layout.buttons) {
            lefts.insert(button.x);
        }
        return lefts.size();
    };
    EXPECT_EQ(columns(3), 4U);
    EXPECT_EQ(columns(5), 3U); // two rows of three, not four and two
    EXPECT_EQ(columns(6), 4U);
    EXPECT_EQ(columns(0), 1U);
}

TEST(MenuLayout, ScrollsByItsThumb) {
    const Menu menu(NexusLook(), 50, {800, 500});
    const MenuLayout& layout = menu.layout;
    const int most = layout.MostScroll();
    EXPECT_EQ(layout.ScrollThumb(0).y, layout.scrollBar.y);
    EXPECT_EQ(layout.ScrollThumb(most).Bottom(), layout.scrollBar.Bottom());
    EXPECT_EQ(layout.ScrollOfThumb(layout.scrollBar.y - 50), 0);
    EXPECT_EQ(layout.ScrollOfThumb(layout.ScrollThumb(most).y), most);
    EXPECT_EQ(layout.ScrollOfThumb(5000), most);
}

TEST(MenuLayout, PagesThroughALongColumn) {
    const Menu menu(NexusLook(), 50, {800, 500});
    const std::size_t page = ButtonAfter(menu.layout, 0, MenuMove::PageDown);
    EXPECT_GT(page, 2U);
    EXPECT_LT(page, 12U);
    EXPECT_EQ(ButtonAfter(menu.layout, page, MenuMove::PageUp), 0U);
    EXPECT_EQ(ButtonAfter(menu.layout, 49, MenuMove::Down), 50U);
}

TEST(MenuSelection, TellsAboutPointerOrKeyWhicheverCameLast) {
    MenuSelection selection;
    EXPECT_EQ(selection.Told(), std::nullopt);
    selection.PointerAt(2);
    EXPECT_EQ(selection.Told(), 2U);
    EXPECT_EQ(selection.Framed(), std::nullopt);
    selection.FocusByKey(4);
    EXPECT_EQ(selection.Told(), 4U);
    EXPECT_EQ(selection.Framed(), 4U);
    EXPECT_FALSE(selection.PointerAt(2)); // a shaken pointer takes nothing over
    EXPECT_EQ(selection.Told(), 4U);
    EXPECT_TRUE(selection.PointerAt(std::nullopt));
    EXPECT_EQ(selection.Told(), std::nullopt);
    EXPECT_EQ(selection.Focused(), 4U);
}

TEST(MenuSelection, SaysOnceThatItCameToAButton) {
    MenuSelection selection;
    EXPECT_FALSE(selection.TakeArrival());
    selection.PointerAt(2);
    EXPECT_TRUE(selection.TakeArrival());
    EXPECT_FALSE(selection.TakeArrival());
    selection.FocusByKey(2); // the same one
    EXPECT_FALSE(selection.TakeArrival());
    selection.FocusByKey(3);
    EXPECT_TRUE(selection.TakeArrival());
    selection.PointerAt(std::nullopt);
    EXPECT_FALSE(selection.TakeArrival());
    selection.PointerAt(3);
    EXPECT_TRUE(selection.TakeArrival());
}

TEST(MenuSelection, ClicksWhereItWasPressedAlone) {
    MenuSelection selection;
    selection.PointerAt(1);
    selection.Press();
    EXPECT_EQ(selection.StateOf(1), ButtonState::Pressed);
    selection.PointerAt(2);
    EXPECT_EQ(selection.StateOf(2), ButtonState::Normal); // while another one is held
    EXPECT_EQ(selection.Release(), std::nullopt);
    selection.Press();
    EXPECT_EQ(selection.Release(), 2U);
    EXPECT_EQ(selection.Focused(), 2U);
    selection.Press();
    selection.Cancel();
    EXPECT_EQ(selection.Release(), std::nullopt);
}

} // namespace tavmoor
