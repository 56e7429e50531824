#include "support/program_windows.h"

#include "settings/menu_action.h"

namespace tavmoor {

class MainWindow : public test::ProgramWindows {};

TEST_F(MainWindow, StepsWithoutATemplateOfferTheTemplateWindowAndGoNoFurther) {
    auto& form = Main();
    test::ScriptedBoxes boxes({BoxAnswer::No});
    Click(form, "Command3");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Warning..."));
    EXPECT_EQ(boxes.shown[0].text,
              QStringLiteral("Please select template or Visual editor as your project's working "
                             "environment.\nDo you want to do it now?"));
    EXPECT_TRUE(Find(form, "Frame2").isVisible());
    EXPECT_EQ(form.findChild<QWidget*>(QStringLiteral("Frame3")), nullptr);
}

TEST_F(MainWindow, MenuEntriesAreServedByTheTimer) {
    auto& form = Main();
    Click(form, "Label24");
    SkinnedWindow* menu = Shown(WindowName::menu1);
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(Find(*menu, "Frame2").isVisible());
    Click(*menu, "Entry5");
    EXPECT_EQ(Shown(WindowName::menu1), nullptr);
    EXPECT_EQ(session.menuAction, static_cast<int>(MenuAction::ExitProgram));
}

} // namespace tavmoor
