#pragma once

#include <QString>

namespace torvane {

/// A caption with the "&" of a mnemonic put in: before the first letter that starts a word and isn't taken,
/// else before any letter that isn't. Adds the letter, in lower case, to `taken`. A caption that has a
/// mnemonic keeps it; one without a free letter comes back as it is.
QString withMnemonic(const QString& caption, QString& taken);

/// The mnemonic of a caption in lower case, or a null character.
QChar mnemonicOf(const QString& caption);

} // namespace torvane
