#pragma once

#include <string_view>

class QTextDocument;

namespace tavmoor {

struct RichText;

/// Fills a document for a text view; what was in it before goes.
void FillDocument(const RichText& text, QTextDocument& document);

/// Shows a file of rich text, such as a template's description. The document is emptied first.
/// @return false for a file that is missing, too long (16 MB) or no rich text: the document stays
///         empty
bool ReadRichTextFile(std::string_view documentPath, QTextDocument& document);

} // namespace tavmoor
