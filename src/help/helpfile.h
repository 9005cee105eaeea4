// Corvana.hlp.
#pragma once

#include <QString>

/// Registers the pages and pictures of the help file under :/help, for as long as the program
/// runs. What is wrong otherwise, in words for the user; empty where nothing is.
QString openHelpFile(const QString &path);
