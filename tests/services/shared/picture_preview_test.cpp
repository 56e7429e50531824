#include "services/shared/picture_preview_window.h"

#include "support/recording_shell.h"
#include "support/service_windows.h"

#include <QCheckBox>
#include <QImage>

namespace tavmoor {

class PicturePreview : public test::ServiceWindows {
protected:
    PicturePreview() { session.settings.previewPictures = true; }

    std::string WritePicture(const std::string& name, QSize size) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::green);
        EXPECT_TRUE(image.save(QString::fromStdString(folder.Native(name).string()), "PNG"));
        return folder.Document(name);
    }
    void Preview(const std::string& path) {
        ShowPreview(Context(), path, MainGeometry);
        Settle();
    }
    static constexpr QRect MainGeometry{10, 20, 930, 600};
};

TEST(PreviewSize, OnlyTheLongerSideIsBound) {
    EXPECT_EQ(FitPreview({4455, 3855}), QSize(4455, 3855));
    EXPECT_EQ(FitPreview({9000, 3000}), QSize(4455, 1485));
    EXPECT_EQ(FitPreview({3000, 9000}), QSize(1285, 3855));
    EXPECT_EQ(FitPreview({9000, 9000}), QSize(3855, 3855));
    EXPECT_EQ(FitPreview({4000, 4000}), QSize(3855, 3855));
    EXPECT_EQ(FitPreview({4500, 4400}), QSize(4455, 4356)) << "higher than its bound";
    EXPECT_EQ(FitPreview({3000, 3000}, CanvasPreviewHeight), QSize(2655, 2655));
}

TEST_F(PicturePreview, StandsAtTheLowerRightCornerOfTheMainWindow) {
    Preview(WritePicture("wide.png", {600, 200}));
    SkinnedWindow* form = Shown(WindowName::Form2);
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // 250 twips are 16 2/3 pixels.
    EXPECT_EQ(form->geometry().right(), MainGeometry.right() - 17);
    EXPECT_EQ(form->geometry().bottom(), MainGeometry.bottom() - 17);
    const QWidget& image = Find(*form, "Image1");
    EXPECT_EQ(image.size(), QSize(297, 99));
    const int left = image.mapTo(form, QPoint()).x();
    EXPECT_NEAR(left, (form->width() - image.width()) / 2.0, 1);
}

TEST_F(PicturePreview, ClosingStoresWhetherThereAreFurtherOnes) {
    const std::string path = WritePicture("a.png", {10, 10});
    Preview(path);
    PressKey(*Shown(WindowName::Form2), Qt::Key_Escape);
    EXPECT_EQ(Shown(WindowName::Form2), nullptr);
    EXPECT_TRUE(session.settings.previewPictures);

    Preview(path);
    Find<QCheckBox>(*Shown(WindowName::Form2), "Check1").setChecked(true);
    Click(*Shown(WindowName::Form2), "Command1");
    EXPECT_FALSE(session.settings.previewPictures);
    Preview(path);
    EXPECT_EQ(Shown(WindowName::Form2), nullptr);
}

TEST_F(PicturePreview, APictureThatDoesNotLoadClosesItAndTellsAWayAround) {
    test::RecordingShell shell;
    Preview("");
    EXPECT_EQ(Shown(WindowName::Form2), nullptr);
    Preview(WritePicture("a.png", {10, 10}));
    ASSERT_NE(Shown(WindowName::Form2), nullptr);
    test::ScriptedBoxes boxes({BoxAnswer::Yes});
    Preview(folder.Write("text.jpg", "no picture"));
    EXPECT_EQ(boxes.shown.at(0).title, QStringLiteral("Warning"));
    EXPECT_EQ(Shown(WindowName::Form2), nullptr);
    EXPECT_EQ(shell.calls,
              std::vector{"document " + session.programFolder + "\\jpeg_compability.htm"});
}

} // namespace tavmoor
