#pragma once

#include "services/values/native_path_text.h"
#include "support/temporary_folder.h"

#include <QImage>

#include <stdexcept>

namespace tavmoor::test {

/// Writes a picture of one colour, whatever format the name promises.
/// @return its document path
inline std::string WritePicture(const TemporaryFolder& folder, const std::string& name,
                                const QColor& color = Qt::red, QSize size = {16, 16}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    if (!image.save(NativePathText(folder.Native(name)), "BMP")) {
        throw std::runtime_error("no picture " + name);
    }
    return folder.Document(name);
}

} // namespace tavmoor::test
