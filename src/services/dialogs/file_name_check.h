#pragma once

#include <string_view>

class QWidget;

namespace tavmoor {

/// Refuses a chosen file whose name could not be read on every computer, with a box that tells the
/// characters to use.
/// @return true when the file is refused: the caller stops and leaves its field as it was
bool CheckFileName(QWidget* owner, std::string_view documentPath);

} // namespace tavmoor
