#include "settings/pages.h"
#include "settings/template/template_capabilities.h"
#include "settings/template/template_window.h"
#include "support/picture_file.h"
#include "support/plain_window.h"
#include "support/program_windows.h"

#include <QListWidget>

namespace tavmoor {

class TemplateWindow : public test::ProgramWindows {
protected:
    TemplateWindow() {
        AddTemplate("one", "Plain.tavt", "Plain");
        AddTemplate("a/b/c", "Deep.tavt", "Deep");
        AddTemplate("two", "Second.tavt", "Plain");
        AddTemplate("Advanced visual editor", "Advanced visual editor.Atavt",
                    "ADVANCED VISUAL EDITOR", "[Additional settings]\r\nEnable=1\r\n");
    }

    void AddTemplate(const std::string& place, const std::string& file, const std::string& name,
                     const std::string& more = "") {
        const std::string in = "program/Templates/" + place + "/";
        folder.Write(in + file, "[Template]\r\nName=" + name + "\r\n" + more);
        folder.Write(in + "opis.rtf", "{\\rtf1 About " + name + "}");
        test::WritePicture(folder, in + "template.jpg", Qt::blue, {400, 300});
    }

    test::TemplatePage Open() {
        test::MainWindowPage(Main()).chooseTemplate.Click();
        return test::TemplatePage(*Shown(WindowName::Form7));
    }
    static int RowOf(const test::TemplatePage& page, const char* name) {
        const auto& list = page.names.As<QListWidget>();
        return list.row(list.findItems(QString::fromLatin1(name), Qt::MatchExactly).at(0));
    }
    static void ClickRow(const test::TemplatePage& page, int row) {
        const auto& list = page.names.As<QListWidget>();
        test::Control::ClickAt(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }
    /// Presses the chrome in one of its thirds.
    static void ClickChrome(const test::TemplatePage& page, int third) {
        page.chrome.ClickAt({page.chrome.As().width() * (2 * third + 1) / 6, 5});
    }

    BaseSettings& base = session.document.OsnovnaPodesavanja;
};

TEST_F(TemplateWindow, ATemplateIsChosenByAClickAndOk) {
    const test::TemplatePage page = Open();
    EXPECT_EQ(page.names.As<QListWidget>().count(), 3);
    EXPECT_TRUE(page.editor.IsTicked());
    EXPECT_FALSE(page.names.IsEnabled());
    EXPECT_EQ(page.description.Text(), "About ADVANCED VISUAL EDITOR");

    page.simple.Click();
    test::ScriptedBoxes boxes;
    page.ok.Click();
    EXPECT_EQ(boxes.One(), "Nothing selected...|Please select template or Advanced Visual Editor");

    ClickRow(page, RowOf(page, "Deep"));
    EXPECT_EQ(page.description.Text(), "About Deep");
    page.ok.Click();
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
    EXPECT_NE(Shown(WindowName::Form1), nullptr);
    EXPECT_EQ(Document().Working.TemplateName, "Deep");
    EXPECT_TRUE(SamePath(base.Sablon, folder.Document("program/Templates/a/b/c/Deep.tavt")));
    EXPECT_EQ(Document().OsnovniPodaci.Glavninaslov, "New project...");
}

TEST_F(TemplateWindow, TheProjectsTemplateIsSelectedInAnyCaseAndEnterTakesIt) {
    base.Sablon = folder.Document("program/TEMPLATES/A/b/C/dEEP.tavt");
    const test::TemplatePage page = Open();
    auto& list = page.names.As<QListWidget>();
    EXPECT_EQ(list.currentRow(), RowOf(page, "Deep"));
    EXPECT_EQ(page.paths.As<QListWidget>().currentRow(), list.currentRow());
    EXPECT_TRUE(list.isEnabled());
    list.setFocus();
    page.names.Press(Qt::Key_Return);
    EXPECT_EQ(Document().Working.TemplateName, "Deep");
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
}

TEST_F(TemplateWindow, CancelAndChromeChangeNothingAndBringTheMainWindowBack) {
    base.Sablon = "C:\\gone\\gone.tavt";
    {
        const test::TemplatePage page = Open();
        EXPECT_TRUE(page.editor.IsTicked()) << "the folder is gone";
        page.cancel.Click();
        EXPECT_EQ(Shown(WindowName::Form7), nullptr);
    }
    const test::TemplatePage page = Open();
    SkinnedWindow* form = Shown(WindowName::Form7);
    ClickChrome(page, 0);
    EXPECT_EQ(Shown(WindowName::Form7), form);
    EXPECT_FALSE(form->isMinimized());
    ClickChrome(page, 1);
    EXPECT_TRUE(form->isMinimized());
    form->Present();
    ClickChrome(page, 2);
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
    EXPECT_NE(Shown(WindowName::Form1), nullptr);
    EXPECT_EQ(base.Sablon, "C:\\gone\\gone.tavt");
}

TEST_F(TemplateWindow, ThePictureGrowsAndShrinksToItsTwoSmallPlaces) {
    const test::TemplatePage page = Open();
    SkinnedWindow& form = *Shown(WindowName::Form7);
    const QRect small(432, 56, 297, 161);
    const auto afterClick = [&](bool besideIt = false) {
        besideIt ? ClickAt(form, {5, form.height() - 5}) : page.picture.Click();
        return page.picture.As().geometry();
    };
    EXPECT_EQ(page.picture.As().geometry(), small);
    EXPECT_EQ(afterClick(), QRect(0, 29, 400, 300));
    EXPECT_EQ(afterClick(), small);
    EXPECT_EQ(afterClick(true), small) << "only a full picture shrinks";
    afterClick();
    EXPECT_EQ(afterClick(true), QRect(432, 64, 297, 121));
}

TEST_F(TemplateWindow, ATemplateWithoutPictureAndTextLeavesTheirPlacesEmpty) {
    folder.Write("program/Templates/bare/Bare.tavt", "[Template]\r\nName=Bare\r\n");
    const test::TemplatePage page = Open();
    page.simple.Click();
    ClickRow(page, RowOf(page, "Bare"));
    EXPECT_EQ(page.description.Text(), "");
    const QRect small = page.picture.As().geometry();
    page.picture.Click();
    EXPECT_EQ(page.picture.As().geometry(), small);
}

TEST_F(TemplateWindow, TheChoiceOpensOrClosesTheWindowsOfTheVisualEditor) {
    test::PlainWindow::Register(Context(), WindowName::Form16);
    test::PlainWindow::Register(Context(), WindowName::Form17);
    Open().ok.Click();
    EXPECT_EQ(base.Sablon, session.programFolder +
                               "\\Templates\\Advanced visual editor\\Advanced visual editor.Atavt");
    const SkinnedWindow* panel = Shown(WindowName::Form17);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->pos().y(), Main().pos().y());
    EXPECT_EQ(panel->height(), Main().height());
    windows.Load(WindowName::Form16);

    const test::TemplatePage page = Open();
    page.simple.Click();
    ClickRow(page, 0);
    page.ok.Click();
    EXPECT_EQ(windows.Find(WindowName::Form17), nullptr);
    EXPECT_EQ(windows.Find(WindowName::Form16), nullptr);
}

TEST(DesignPanelPlace, StandsBesideTheMainWindowOrBothMoveToTheMiddle) {
    EXPECT_EQ(PlaceDesignPanel(1000, 13000, 4000, 28800), (PanelPlacing{1000, 14042}));
    EXPECT_EQ(PlaceDesignPanel(0, 13957, 4000, 17998), (PanelPlacing{0, 13998}))
        << "13998.871 is cut, and just fits";
    // Together they measure 13039 + 4000.
    EXPECT_EQ(PlaceDesignPanel(9000, 13000, 4000, 20000), (PanelPlacing{1480, 14523}));
    EXPECT_EQ(PlaceDesignPanel(9000, 13000, 4000, 15000), (PanelPlacing{0, 13039}));
}

} // namespace tavmoor
