#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
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

using D = ProjectDocument;

template <auto Member>
constexpr auto Main = At<&D::OsnovniPodaci, Member>;
template <auto Member>
constexpr auto Command = At<&D::IzvrsneKomande, &CommandLook::Komande, Member>;

template <typename Control, typename Field>
concept Binds = requires(FieldBinder& binder, Control& control, Field field) {
    binder.Bind(control, field);
};

static_assert(Binds<QCheckBox, decltype(Command<&FixedCommand::Zatvara>[3])>);
static_assert(!Binds<QCheckBox, decltype(Command<&FixedCommand::Zatvara>)>, "no row is named");
static_assert(!Binds<QCheckBox, decltype(Main<&MainTexts::Tasknaslov>)>, "a text is no flag");
static_assert(!Binds<ColorBox, decltype(Main<&MainTexts::Opisprovidan>)>, "a flag is no color");

class BoundFields : public testing::Test {
protected:
    explicit BoundFields(Storing storing = Storing::AtOnce) {
        type.addItems({QStringLiteral("Send mail"), QStringLiteral("Open file")});
        repeat.setRange(1, 60);
        binder = std::make_unique<FieldBinder>(window, document, storing);
        binder->Bind(title, Main<&MainTexts::Tasknaslov>);
        binder->BindTextColor(title, Main<&MainTexts::Logotekstboja>);
        binder->BindBold(title, Main<&MainTexts::GlavniOpisBold>);
        binder->Bind(description, Main<&MainTexts::GlavniOpis>);
        binder->Bind(path, At<&D::OsnovnaPodesavanja, &BaseSettings::GlavniDirektorijum>);
        binder->Bind(icon, Main<&MainTexts::Ikona>);
        binder->Bind(transparent, Main<&MainTexts::Opisprovidan>);
        binder->Bind(closes, Command<&FixedCommand::Zatvara>[3]);
        binder->Bind(type, Command<&FixedCommand::Vrsta>[3]);
        binder->Bind(repeat, At<&D::Zvuk, &SoundSpec::Ponovi>);
        binder->Bind(repeated, At<&D::Zvuk, &SoundSpec::Ponovi>);
        binder->BindOption(onDemand, At<&D::Zvuk, &SoundSpec::Akcija>, true);
        binder->BindOption(textOnly, At<&D::Uvod, &ScreenSpec::Opcija>, 3);
        binder->Bind(color, At<&D::IzvrsneKomande, &CommandLook::Bojaslova>);
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
    ValueLabel repeated{"Repeated", &window};
    QWidget otherGroup{&window};
    QRadioButton onDemand{&otherGroup};
    QRadioButton textOnly{&window};
    ColorBox color{"Color", u"", u"", &window};
    std::unique_ptr<FieldBinder> binder;
};

} // namespace

TEST_F(BoundFields, ShowsEveryFormAndStoresOnlyWhatTheUserChanges) {
    document.OsnovniPodaci.Tasknaslov = "\xC4 title";
    document.OsnovniPodaci.Logotekstboja = 0xFF;
    document.OsnovniPodaci.GlavniOpisBold = true;
    document.OsnovniPodaci.GlavniOpis = "one\ntwo";
    document.OsnovniPodaci.Ikona = "Z:\\icons\\a.ico";
    document.OsnovniPodaci.Opisprovidan = true;
    document.IzvrsneKomande.Komande[3].Zatvara = -1;
    document.IzvrsneKomande.Komande[3].Vrsta = "Something else";
    document.IzvrsneKomande.Bojaslova = "255";
    document.Zvuk.Ponovi = 700;
    document.Uvod.Opcija = 3;
    ProjectDocument expected = document;
    binder->Show();
    EXPECT_EQ(title.text(), QStringLiteral("Ä title"));
    EXPECT_TRUE(title.styleSheet().contains(QStringLiteral("{color: #ff0000;}")));
    EXPECT_TRUE(title.font().bold());
    EXPECT_EQ(description.toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(icon.FullText(), QStringLiteral("Z:\\icons\\a.ico"));
    EXPECT_TRUE(transparent.isChecked());
    EXPECT_TRUE(closes.isChecked());
    EXPECT_FALSE(onDemand.isChecked());
    EXPECT_TRUE(textOnly.isChecked());
    EXPECT_EQ(color.Color(), 255);
    EXPECT_EQ(repeat.value(), 60);
    EXPECT_EQ(repeated.FullText(), QStringLiteral("700"));
    // Neither the line breaks, nor the number out of range, nor the unknown type came back.
    EXPECT_EQ(ProjectText(document), ProjectText(expected));

    std::vector<QWidget*> stored;
    QObject::connect(binder.get(), &FieldBinder::Stored,
                     [&](QWidget* control) { stored.push_back(control); });
    QTest::keyClick(&title, Qt::Key_End);
    QTest::keyClicks(&title, QStringLiteral("!"));
    QTest::keyClicks(&description, QStringLiteral("0"));
    transparent.click();
    closes.click();
    type.setCurrentIndex(1);
    repeat.setValue(7);
    onDemand.click();
    const std::vector<QWidget*> changed{&title, &description, &transparent, &closes,
                                        &type,  &repeat,      &onDemand};
    EXPECT_EQ(stored, changed);
    expected.OsnovniPodaci.Tasknaslov = "\xC4 title!";
    expected.OsnovniPodaci.GlavniOpis = "0one\r\ntwo";
    expected.OsnovniPodaci.Opisprovidan = false;
    expected.IzvrsneKomande.Komande[3].Zatvara = 0;
    expected.IzvrsneKomande.Komande[3].Vrsta = "Open file";
    expected.Zvuk.Ponovi = 7;
    expected.Zvuk.Akcija = true;
    EXPECT_EQ(ProjectText(document), ProjectText(expected));
    closes.click();
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Zatvara, 1);
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
    color.SetColor(7);
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "");
    binder->Store();
    EXPECT_EQ(document.OsnovniPodaci.Tasknaslov, "new");
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Zatvara, 1);
    EXPECT_EQ(document.IzvrsneKomande.Komande[3].Vrsta, "Something else");
    EXPECT_EQ(document.IzvrsneKomande.Bojaslova, "7");
}

} // namespace tavmoor
