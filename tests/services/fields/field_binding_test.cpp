#include "core/document/project_reset.h"
#include "core/text/code_page.h"
#include "services/controls/color_box.h"
#include "services/controls/path_box.h"
#include "services/controls/value_label.h"
#include "services/fields/field_binding.h"
#include "support/temporary_folder.h"
#include "support/user_input.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>
#include <QtTest/QTest>

namespace tavmoor {

namespace {

constexpr FieldBinding Table[] = {
    {"Title", FieldForm::Text, "Osnovni podaci", "Tasknaslov"},
    {"Title", FieldForm::TextColor, "Osnovni podaci", "Logotekstboja"},
    {"Description", FieldForm::Text, "Osnovni podaci", "GlavniOpis"},
    {"Path", FieldForm::Text, "Osnovna podesavanja", "Glavni direktorijum"},
    {"Icon", FieldForm::Shown, "Osnovni podaci", "Ikona"},
    {"Transparent", FieldForm::Checked, "Osnovni podaci", "Opis providan"},
    {"Closes", FieldForm::Checked, "Izvrsne komande", "Zatvara3"},
    {"Type", FieldForm::Choice, "Izvrsne komande", "Vrsta3"},
    {"Repeat", FieldForm::Number, "Zvuk", "Ponovi"},
    {"TextOnly", FieldForm::Option, "Uvod", "Opcija", 3},
    {"Color", FieldForm::Color, "Izvrsne komande", "Boja slova"},
};

class BoundFields : public testing::Test {
protected:
    explicit BoundFields(Storing storing = Storing::AtOnce) {
        color.setParent(&window);
        type.setObjectName(QStringLiteral("Type"));
        type.addItems({QStringLiteral("Send mail"), QStringLiteral("Open file")});
        transparent.setObjectName(QStringLiteral("Transparent"));
        closes.setObjectName(QStringLiteral("Closes"));
        repeat.setObjectName(QStringLiteral("Repeat"));
        repeat.setRange(1, 60);
        textOnly.setObjectName(QStringLiteral("TextOnly"));
        binder = std::make_unique<FieldBinder>(window, document, Table, storing);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    ProjectDocument document = NewProjectDocument();
    QWidget window;
    TextBox title{"Title", &window};
    MemoBox description{"Description", &window};
    PathBox path{"Path", PathKind::Folder, &window};
    ValueLabel icon{"Icon", &window};
    QCheckBox transparent{&window};
    QCheckBox closes{&window};
    QComboBox type{&window};
    QSlider repeat{&window};
    QRadioButton textOnly{&window};
    ColorBox color{"Color", u"", u"", &window};
    std::unique_ptr<FieldBinder> binder;
};

} // namespace

TEST_F(BoundFields, ShowsEveryFormAndStoresOnlyWhatTheUserChanges) {
    document.OsnovniPodaci.Tasknaslov = "\xC4 title";
    document.OsnovniPodaci.GlavniOpis = "one\ntwo";
    document.OsnovniPodaci.Ikona = "Z:\\icons\\a.ico";
    document.OsnovniPodaci.Opisprovidan = true;
    document.IzvrsneKomande.Komande[3].Vrsta = "Something else";
    document.IzvrsneKomande.Bojaslova = "255";
    document.Zvuk.Ponovi = 700;
    document.Uvod.Opcija = 3;
    const ProjectDocument before = document;
    binder->Show();
    EXPECT_EQ(title.text(), QStringLiteral("Ä title"));
    EXPECT_EQ(description.toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(icon.FullText(), QStringLiteral("Z:\\icons\\a.ico"));
    EXPECT_TRUE(transparent.isChecked());
    EXPECT_TRUE(textOnly.isChecked());
    EXPECT_EQ(color.Color(), 255);
    EXPECT_EQ(repeat.value(), 60);
    // Neither the line breaks, nor the number out of range, nor the unknown type came back.
    EXPECT_EQ(document.OsnovniPodaci.GlavniOpis, "one\ntwo");
    EXPECT_EQ(document.Zvuk.Ponovi, 700);
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Vrsta, "Something else");

    QTest::keyClick(&title, Qt::Key_End);
    QTest::keyClicks(&title, QStringLiteral("!"));
    QTest::keyClicks(&description, QStringLiteral("0"));
    closes.click();
    type.setCurrentIndex(1);
    repeat.setValue(7);
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "\xC4 title!");
    EXPECT_EQ(document.OsnovniPodaci.GlavniOpis, "0one\r\ntwo");
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Zatvara, 1);
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Vrsta, "Open file");
    EXPECT_EQ(document.Zvuk.Ponovi, 7);
}

TEST_F(BoundFields, RefusesWhatTheCodePageCannotHoldAndSaysWhy) {
    binder->Show();
    QTest::keyClicks(&title, QStringLiteral("ok"));
    QApplication::clipboard()->setText(QStringLiteral("日本"));
    title.paste();
    EXPECT_EQ(title.text(), QStringLiteral("ok"));
    EXPECT_TRUE(title.property("refused").toBool());
    EXPECT_TRUE(title.toolTip().startsWith(QStringLiteral("\"日\" cannot be used")));
    QTest::keyClicks(&title, QStringLiteral("!"));
    EXPECT_FALSE(title.property("refused").toBool());
    EXPECT_EQ(title.toolTip(), QString());

    test::TypeText(description, QStringLiteral("ж"));
    description.paste();
    EXPECT_EQ(description.toPlainText(), QString());
    EXPECT_TRUE(description.property("refused").toBool());
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "ok!");
    EXPECT_EQ(document.OsnovniPodaci.GlavniOpis, "");

    QTest::keyClicks(&description, QStringLiteral("a"));
    EXPECT_FALSE(description.property("refused").toBool());
    QInputMethodEvent composing(QStringLiteral("ri"), {});
    QApplication::sendEvent(&description, &composing);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("日"));
    QApplication::sendEvent(&description, &composed);
    EXPECT_EQ(description.toPlainText(), QStringLiteral("a"));
    EXPECT_TRUE(description.property("refused").toBool()) << "the end of the composition";
}

#ifndef _WIN32
TEST_F(BoundFields, NativePathsAreTakenOverInDocumentForm) {
    const test::TemporaryFolder folder;
    binder->Show();
    path.setFocus();
    QTest::keyClicks(&path, QString::fromStdString(folder.Native().string()));
    EXPECT_EQ(document.CdFolder(), folder.Document()) << "the field need not be left first";
    title.setFocus();
    EXPECT_EQ(path.text().toStdString(), folder.Document());

    QTest::keyClick(&path, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&path, QStringLiteral("D:\\disc"));
    QTest::keyClick(&path, Qt::Key_Return);
    EXPECT_EQ(document.CdFolder(), "D:\\disc") << "a document path stays as it is";

    path.setFocus();
    QTest::keyClick(&path, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&path, QStringLiteral("/a\\"));
    title.setFocus();
    EXPECT_EQ(document.CdFolder(), "Z:\\a") << "a path that the document cannot say";
    EXPECT_TRUE(path.property("refused").toBool());
    EXPECT_TRUE(path.toolTip().startsWith(QStringLiteral("\"/a\\\" cannot be used")));
}

TEST_F(BoundFields, DroppedPathsAreTakenWhenTheyAreOfTheKind) {
    const test::TemporaryFolder folder;
    folder.Write("file", "x");
    std::filesystem::create_directories(folder.Native("no\\name"));
    binder->Show();
    EXPECT_TRUE(test::DropPath(path, folder.Native()));
    EXPECT_EQ(document.CdFolder(), folder.Document());

    const auto drop = [&](const std::string& native) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(native))});
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({1, 1}, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&path, &enter);
        QDropEvent event({1, 1}, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&path, &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "after a move the source deletes its file";
    };
    EXPECT_FALSE(test::DropPath(path, folder.Native("file"))) << "a file is no folder";
    drop(folder.Native("no\\name").string());
    EXPECT_TRUE(path.property("refused").toBool());
    EXPECT_EQ(document.CdFolder(), folder.Document());
    path.clear();
    drop(folder.Native().string() + '/');
    EXPECT_EQ(path.text().toStdString(), folder.Document());
    EXPECT_FALSE(path.property("refused").toBool());
}

TEST_F(BoundFields, PastedPathsReplaceTheTextAtOnce) {
    binder->Show();
    const auto pasted = [&](const auto& paste) {
        path.setText(QStringLiteral("D:\\old"));
        paste();
        return document.CdFolder();
    };
    const auto byKeys = [&] { QTest::keyClick(&path, Qt::Key_V, Qt::ControlModifier); };
    const auto byMenu = [&] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, path.mapToGlobal(QPoint()));
        QApplication::sendEvent(&path, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->setActiveAction(menu->actions().at(5));
        QTest::keyClick(menu, Qt::Key_Return);
    };
    QClipboard& clipboard = *QApplication::clipboard();
    clipboard.setText(QStringLiteral("/home/ana/disc\n"));
    EXPECT_EQ(pasted(byKeys), "Z:\\home\\ana\\disc");
    clipboard.setText(QStringLiteral("file:///home/ana/my%20disc"));
    EXPECT_EQ(pasted(byMenu), "Z:\\home\\ana\\my disc");
    auto* files = new QMimeData;
    files->setUrls({QUrl(QStringLiteral("http://example.org/")),
                    QUrl::fromLocalFile(QStringLiteral("/home/ana/a#b/")),
                    QUrl::fromLocalFile(QStringLiteral("/home"))});
    clipboard.setMimeData(files);
    EXPECT_EQ(pasted(byKeys), "Z:\\home\\ana\\a#b");
    clipboard.setText(QStringLiteral("er"));
    EXPECT_EQ(pasted(byMenu), "D:\\older") << "a text that is no path goes where the cursor is";
}
#endif

class ConfirmedBinding : public BoundFields {
protected:
    ConfirmedBinding() : BoundFields(Storing::OnConfirm) {}
};

TEST_F(ConfirmedBinding, StoresNothingBeforeTheConfirmCommand) {
    document.IzvrsneKomande.Komande[3].Vrsta = "Something else";
    binder->Show();
    QTest::keyClicks(&title, QStringLiteral("new"));
    closes.click();
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "");
    binder->Store();
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "new");
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Zatvara, 1);
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Vrsta, "Something else");
}

} // namespace tavmoor
