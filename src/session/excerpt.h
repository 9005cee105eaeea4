// The beginning of a text that may be too long to show.
#pragma once

#include <QString>

/// A text of at most so many characters, or else its beginning with an ellipsis behind it. Layout
/// takes time in proportion to a text at least, and nobody reads a million characters in a tooltip.
QString excerptOf(const QString &text, qsizetype most);
