// Saving general progress as a picture file.
#pragma once

#include "progress/progresspages.h"

class Messages;
class QWidget;

namespace progress {

/// Asks for a file and saves the chart in it, as PNG in that size or as PDF. What can't be saved is
/// told and asked for again, with the name kept.
void savePicture(QWidget *parent, Messages &messages, const PageContents &contents,
                 QSize chartSize);

} // namespace progress
