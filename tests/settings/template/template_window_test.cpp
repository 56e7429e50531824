#include "settings/template/template_window.h"

#include "settings/template/template_capabilities.h"
#include "support/plain_window.h"
#include "support/program_windows.h"

#include <QImage>
#include <QListWidget>
#include <QRadioButton>
#include <QTextEdit>

namespace tavmoor {

class TemplateWindow : public test::ProgramWindows {
protected:
    TemplateWindow() {
        AddTemplate("one/Plain.tavt", "Plain");
        AddTemplate("a/b/c/Deep.tavt", "Deep");
        AddTemplate("two/Second.tavt", "Plain");
        AddTemplate("Advanced visual editor/Advanced visual editor.Atavt", "ADVANCED VISUAL EDITOR",
                    "[Additional settings]\r\nEnable=1\r\n");
        Main();
    }

    void AddTemplate(const std::string& file, const std::string& name,
                     const std::string& more = "") {
        const std::string path = "program/Templates/" + file;
        folder.Write(path, "[Template]\r\nName=" + name + "\r\n" + more);
        const std::filesystem::path place = folder.Native(path).parent_path();
        folder.Write("program/Templates/" + file.substr(0, file.rfind('/')) + "/opis.rtf",
                     "{\\rtf1 About " + name + "}");
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::blue);
        EXPECT_TRUE(image.save(QString::fromStdString((place / "template.jpg").string()), "PNG"));
    }

    SkinnedWindow& OpenWindow() {
        Click(Main(), "Command11");
        return *Shown(WindowName::Form7);
    }
    static int RowOf(SkinnedWindow& form, const char* name) {
        const auto items =
            Find<QListWidget>(form, "List1").findItems(QString::fromLatin1(name), Qt::MatchExactly);
        return Find<QListWidget>(form, "List1").row(items.at(0));
    }
    static void ClickRow(SkinnedWindow& form, int row) {
        auto& list = Find<QListWidget>(form, "List1");
        ClickAt(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }
    static QString Description(SkinnedWindow& form) {
        return Find<QTextEdit>(form, "rt1").toPlainText().trimmed();
    }
};

TEST_F(TemplateWindow, ATemplateIsChosenByAClickAndOk) {
    auto& form = OpenWindow();
    EXPECT_EQ(Find<QListWidget>(form, "List1").count(), 3);
    EXPECT_TRUE(Find<QRadioButton>(form, "Option1").isChecked());
    EXPECT_FALSE(Find(form, "List1").isEnabled());
    EXPECT_EQ(Description(form), QStringLiteral("About ADVANCED VISUAL EDITOR"));

    Click(form, "Option2");
    test::ScriptedBoxes boxes;
    Click(form, "Command1");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Nothing selected..."));
    EXPECT_EQ(boxes.shown[0].text,
              QStringLiteral("Please select template or Advanced Visual Editor"));

    ClickRow(form, RowOf(form, "Deep"));
    EXPECT_EQ(Description(form), QStringLiteral("About Deep"));
    Click(form, "Command1");
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(Document().Working.TemplateName, "Deep");
    EXPECT_TRUE(SamePath(Document().OsnovnaPodesavanja.Sablon,
                         folder.Document("program/Templates/a/b/c/Deep.tavt")));
    EXPECT_EQ(Document().OsnovniPodaci.Glavninaslov, "New project...");
}

TEST_F(TemplateWindow, TheProjectsTemplateIsSelectedInAnyCaseAndEnterTakesIt) {
    std::string path = folder.Document("program/TEMPLATES/A/b/C/dEEP.tavt");
    Document().OsnovnaPodesavanja.Sablon = path;
    auto& form = OpenWindow();
    auto& list = Find<QListWidget>(form, "List1");
    EXPECT_EQ(list.currentRow(), RowOf(form, "Deep"));
    EXPECT_EQ(Find<QListWidget>(form, "List3").currentRow(), list.currentRow());
    EXPECT_TRUE(list.isEnabled());
    list.setFocus();
    PressKey(list, Qt::Key_Return);
    EXPECT_EQ(Document().Working.TemplateName, "Deep");
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
}

TEST_F(TemplateWindow, CancelAndChromeChangeNothingAndBringTheMainWindowBack) {
    Document().OsnovnaPodesavanja.Sablon = "C:\\gone\\gone.tavt";
    auto* form = &OpenWindow();
    EXPECT_TRUE(Find<QRadioButton>(*form, "Option1").isChecked()) << "the folder is gone";
    Click(*form, "Command2");
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);

    form = &OpenWindow();
    auto& chrome = Find(*form, "Image113");
    ClickAt(chrome, {chrome.width() / 6, 5});
    EXPECT_EQ(Shown(WindowName::Form7), form);
    ClickAt(chrome, {chrome.width() / 2, 5});
    EXPECT_TRUE(form->isMinimized());
    form->Present();
    ClickAt(chrome, {chrome.width() * 5 / 6, 5});
    EXPECT_EQ(Shown(WindowName::Form7), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(Document().OsnovnaPodesavanja.Sablon, "C:\\gone\\gone.tavt");
}

TEST_F(TemplateWindow, ThePictureGrowsAndShrinksToItsTwoSmallPlaces) {
    auto& form = OpenWindow();
    auto& picture = Find(form, "Picture1");
    const QRect small(432, 56, 297, 161);
    EXPECT_EQ(picture.geometry(), small);
    Click(picture);
    EXPECT_EQ(picture.geometry(), QRect(0, 29, 400, 300));
    Click(picture);
    EXPECT_EQ(picture.geometry(), small);
    ClickAt(form, {5, form.height() - 5});
    EXPECT_EQ(picture.geometry(), small) << "only a full picture shrinks";
    Click(picture);
    ClickAt(form, {5, form.height() - 5});
    EXPECT_EQ(picture.geometry(), QRect(432, 64, 297, 121));
}

TEST_F(TemplateWindow, ATemplateWithoutPictureAndTextLeavesTheirPlacesEmpty) {
    folder.Write("program/Templates/bare/Bare.tavt", "[Template]\r\nName=Bare\r\n");
    auto& form = OpenWindow();
    Click(form, "Option2");
    ClickRow(form, RowOf(form, "Bare"));
    EXPECT_EQ(Description(form), QString());
    auto& picture = Find(form, "Picture1");
    const QRect small = picture.geometry();
    Click(picture);
    EXPECT_EQ(picture.geometry(), small);
}

TEST_F(TemplateWindow, TheChoiceOpensOrClosesTheWindowsOfTheVisualEditor) {
    test::PlainWindow::Register(Context(), WindowName::Form16);
    test::PlainWindow::Register(Context(), WindowName::Form17);
    Click(OpenWindow(), "Command1");
    EXPECT_EQ(Document().OsnovnaPodesavanja.Sablon,
              session.programFolder +
                  "\\Templates\\Advanced visual editor\\Advanced visual editor.Atavt");
    SkinnedWindow* panel = Shown(WindowName::Form17);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->pos().y(), Main().pos().y());
    EXPECT_EQ(panel->height(), Main().height());
    windows.Load(WindowName::Form16);

    auto& form = OpenWindow();
    Click(form, "Option2");
    ClickRow(form, 0);
    Click(form, "Command1");
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
