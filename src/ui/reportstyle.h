// The look of lists in report view.
#pragma once

class QTreeView;

/// Leaves room between the columns: a number at the right of its column would else touch the text
/// at the left of the next.
void setReportStyle(QTreeView &list);
