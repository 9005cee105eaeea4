// The days on which something is recorded, in a calendar.
#pragma once

class QCalendarWidget;
class deData;

/// Writes the days with meals or activities bold, in every month that the calendar shows. What
/// can't be read is not marked. The data must outlive the calendar.
void markEntryDays(QCalendarWidget &calendar, deData &data);
