#include "support/program_windows.h"

#include "settings/main/main_window.h"

namespace tavmoor {

class MainWindow : public test::ProgramWindows {
protected:
    /// The object names of what the tab key reaches, in its order.
    static QStringList TabStops(QWidget& window) {
        QStringList names;
        for (QWidget* next = window.nextInFocusChain(); next != &window;
             next = next->nextInFocusChain()) {
            if (next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0) {
                names << next->objectName();
            }
        }
        return names;
    }
};

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

TEST_F(MainWindow, TheDueAutorunCheckWaitsForTheAnswerAboutRecovery) {
    class Answerer final : public MessageBoxResponder {
    public:
        explicit Answerer(std::function<void()> look) : look_(std::move(look)) {}
        BoxAnswer Answer(const MessageBoxRequest& /*request*/) override {
            look_();
            return BoxAnswer::No;
        }

    private:
        std::function<void()> look_;
        ScopedService<MessageBoxResponder> slot_{*this};
    };
    int asked = 0;
    const Answerer answerer([&] {
        ++asked;
        Settle(); // the window becomes active
        EXPECT_EQ(Shown(WindowName::Form13), nullptr);
    });
    session.recoveredProject = folder.Write("kept.tavp", "x");
    session.autorunCheckDue = true;
    Main();
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_NE(Shown(WindowName::Form13), nullptr);
}

TEST_F(MainWindow, TheTabKeyGoesFromTheMenusOverTheStepsAndThePanelToTheHelp) {
    auto& form = static_cast<Form1&>(Main());
    EXPECT_EQ(form.focusWidget(), &Find(form, "Command7"));
    // Panels are made late, and their last child need not be a tab stop.
    for (const auto& [panel, first] :
         {std::pair{PanelName::Frame3, "Text1"}, std::pair{PanelName::Frame5, "Command14"},
          std::pair{PanelName::Frame3, "Text1"}}) {
        form.ShowPanel(panel);
        const QStringList stops = TabStops(form);
        EXPECT_EQ(stops.front(), QStringLiteral("Label24"));
        EXPECT_EQ(stops.back(), QStringLiteral("Command9"));
        EXPECT_EQ(stops.indexOf(QLatin1String(first)),
                  stops.indexOf(QLatin1String("Command6")) + 1);
    }
}

TEST_F(MainWindow, ItsKeysWorkFromAnyControl) {
    auto& form = static_cast<Form1&>(Main());
    form.ShowPanel(PanelName::Frame4);
    Settle(); // keys go to the active window
    test::ScriptedBoxes boxes({BoxAnswer::No, BoxAnswer::No});
    for (const char* control : {"Text24", "Combo6"}) {
        Find(form, control).setFocus();
        PressKey(Find(form, control), Qt::Key_N, Qt::ControlModifier);
    }
    EXPECT_EQ(boxes.shown.size(), 2U);
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
