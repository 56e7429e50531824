#pragma once

namespace tavmoor {

/// The code page of a font's character set, as metafiles and rich text name it.
/// @param fallback given for sets without a code page of one byte to the character
int CodePageOfCharacterSet(int characterSet, int fallback);

} // namespace tavmoor
