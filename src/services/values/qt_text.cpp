#include "services/values/qt_text.h"

#include "core/text/code_page.h"

namespace tavmoor {

QString ToQString(std::string_view codePageText) {
    return QString::fromStdString(SystemCodePage().ToUtf8(codePageText));
}

std::string FromQString(QStringView text) {
    return SystemCodePage().FromUtf8(text.toUtf8().toStdString()).bytes;
}

bool FitsCodePage(QStringView text) {
    return SystemCodePage().FromUtf8(text.toUtf8().toStdString()).unplaced.empty();
}

QString CodePageObjection(QStringView text) {
    const auto unplaced = SystemCodePage().FromUtf8(text.toUtf8().toStdString()).unplaced;
    if (unplaced.empty()) {
        return {};
    }
    const char32_t character = unplaced.front().character;
    return QStringLiteral("\"%1\" cannot be used: a disc's texts are stored in code page %2, which "
                          "has no such character.")
        .arg(QString::fromUcs4(&character, 1))
        .arg(SystemCodePage().Number());
}

} // namespace tavmoor
