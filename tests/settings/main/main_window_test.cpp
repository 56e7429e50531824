#include "settings/main/menu_action.h"
#include "settings/pages.h"
#include "support/program_windows.h"

namespace tavmoor {

class MainWindow : public test::ProgramWindows {
protected:
    /// What the tab key reaches, in its order.
    static QWidgetList TabStops(const QWidget& form) {
        QWidgetList stops;
        for (QWidget* next = form.nextInFocusChain(); next != &form;
             next = next->nextInFocusChain()) {
            if (next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0) {
                stops << next;
            }
        }
        return stops;
    }
};

TEST_F(MainWindow, StepsWithoutATemplateOfferTheTemplateWindowAndGoNoFurther) {
    const test::MainWindowPage page(Main());
    test::ScriptedBoxes boxes({BoxAnswer::No});
    page.autorunInfo.Click();
    EXPECT_EQ(boxes.One(),
              "Warning...|Please select template or Visual editor as your project's working "
              "environment.\nDo you want to do it now?");
    EXPECT_TRUE(page.mainSettingsPanel.IsVisible());
    EXPECT_EQ(Main().findChild<QWidget*>(QStringLiteral("Frame3")), nullptr);
}

TEST_F(MainWindow, TheDueAutorunCheckWaitsForTheAnswerAboutRecovery) {
    test::ScriptedBoxes boxes({BoxAnswer::No});
    boxes.meanwhile = [this] {
        Settle(); // the window becomes active
        EXPECT_EQ(Shown(WindowName::Form13), nullptr);
    };
    session.recoveredProject = folder.Write("kept.tavp", "x");
    session.autorunCheckDue = true;
    Main();
    Settle();
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_NE(Shown(WindowName::Form13), nullptr);
}

TEST_F(MainWindow, TheTabKeyGoesFromTheMenusOverTheStepsAndThePanelToTheHelp) {
    auto& form = Main();
    const test::MainWindowPage page(form);
    const test::AutorunInfoPage texts(form);
    const test::SoundPage sound(form);
    EXPECT_EQ(form.focusWidget(), &page.mainSettings.As());
    // Panels are made late, and their last child need not be a tab stop.
    for (const auto& [panel, first] : {std::pair{PanelName::Frame3, texts.taskBarTitle},
                                       std::pair{PanelName::Frame5, sound.browseMusic},
                                       std::pair{PanelName::Frame3, texts.taskBarTitle}}) {
        ShowPanel(panel);
        const QWidgetList stops = TabStops(form);
        EXPECT_EQ(stops.front(), &page.fileMenu.As());
        EXPECT_EQ(stops.back(), &page.help.As());
        EXPECT_EQ(stops.indexOf(&first.As()), stops.indexOf(&page.build.As()) + 1);
    }
}

TEST_F(MainWindow, ItsKeysWorkFromAnyControl) {
    const test::CommandsPage page(ShowPanel(PanelName::Frame4));
    Settle(); // keys go to the active window
    const test::ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::No});
    for (const auto& control : {page.firstTitle, page.firstType}) {
        control.As().setFocus();
        control.Press(Qt::Key_N, Qt::ControlModifier);
    }
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(MainWindow, MenuEntriesAreServedByTheTimer) {
    test::MainWindowPage(Main()).fileMenu.Click();
    ASSERT_NE(Shown(WindowName::menu1), nullptr);
    const test::FileMenuPage menu(*Shown(WindowName::menu1));
    EXPECT_FALSE(menu.programEntries.IsVisible());
    menu.exit.Click();
    EXPECT_EQ(Shown(WindowName::menu1), nullptr);
    EXPECT_EQ(session.menuAction, static_cast<int>(MenuAction::ExitProgram));
}

} // namespace tavmoor
