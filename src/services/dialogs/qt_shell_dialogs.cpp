#include "core/files/document_path.h"
#include "services/dialogs/qt_dialogs.h"
#include "services/dialogs/run_dialog.h"
#include "services/pictures/picture_loader.h"
#include "services/values/native_path_text.h"

#include <QDialogButtonBox>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>

// What only common_dialog_shell.cpp asks for.

namespace tavmoor {

bool QtDialogs::Printer(const PrinterRequest& request) {
    QPrinter printer;
    QPrintDialog dialog(&printer, request.owner);
    dialog.setObjectName(QStringLiteral("PrintDialog"));
    return RunDialog(dialog, request.title) == QDialog::Accepted;
}

void QtDialogs::About(const AboutRequest& request) {
    constexpr int iconSize = 48;
    QDialog dialog(request.owner);
    dialog.setObjectName(QStringLiteral("AboutDialog"));
    auto* icon = new QLabel;
    icon->setPixmap(request.icon.pixmap(iconSize));
    icon->setVisible(!request.icon.isNull());
    auto* text = new QLabel(request.text);
    text->setTextFormat(Qt::PlainText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    auto* layout = new QGridLayout(&dialog);
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(text, 0, 1);
    layout->addWidget(buttons, 1, 0, 1, 2);
    RunDialog(dialog, request.title);
}

QIcon QtDialogs::FileIcon(const QString& path, int size) {
    const QFileInfo file(path);
    if (!file.isFile()) {
        return {};
    }
    const auto documentPath = FindDocumentPath(NativePathOf(path));
    const QImage picture = documentPath ? LoadPicture(*documentPath, size).image : QImage();
    return picture.isNull() ? QFileIconProvider().icon(file) : QIcon(QPixmap::fromImage(picture));
}

bool QtDialogs::Shell(const ShellRequest& request) {
    return tavmoor::ShowShellDialog(request);
}

} // namespace tavmoor
