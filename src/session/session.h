// What every window reads, for the life of the program.
#pragma once

#include "data/deData.h"
#include "data/undohistory.h"
#include "session/clock.h"
#include "session/localetext.h"

#include <QObject>

#include <algorithm>
#include <vector>

/// The facts about the user that the system computes with.
struct CommonParameters
{
    qint16 weight = 0;        ///< whole kilograms or pounds, after the unit system
    QString measurement;      ///< "M" metric, "I" imperial
    double metabolicRate = 0; ///< background calories per hour

    // Not opposites of each other: of a code that is neither, the common parameters make imperial
    // and the windows of body measurements metric.
    bool isMetric() const { return measurement == QLatin1String("M"); }
    bool isImperial() const { return measurement == QLatin1String("I"); }
    bool operator==(const CommonParameters &) const = default;
};

/// The parameters in the current row of command Common; the weight is rounded half to even.
/// Throws OverflowError for a weight beyond 16 bits and a rate beyond the decimal's range.
CommonParameters commonParametersOf(const Recordset &common);

/// What was done to records, told to whoever shows them.
struct StoredChange
{
    enum class Kind
    {
        Added,
        Changed,
        Removed
    };

    std::vector<const schema::Table *> tables;
    Kind kind;

    bool touches(const schema::Table &table) const
    {
        return std::find(tables.begin(), tables.end(), &table) != tables.end();
    }
};

/// Made by start-up and handed to each window by reference; there are no globals.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Takes today and the present hour and minute from the clock.
    Session(deData &data, const Clock &clock, const QLocale &locale);

    deData &data() const { return m_data; }
    const Clock &clock() const { return m_clock; }
    UndoHistory &history() { return m_history; }
    const LocaleText &text() const { return m_text; }

    /// The day shown; new journal rows are stored on it.
    QDate currentDate() const { return m_currentDate; }
    void setCurrentDate(QDate date);

    /// Proposed for the next entry; hour and minute only.
    QTime currentTime() const { return m_currentTime; }
    void setCurrentTime(QTime time);

    const CommonParameters &parameters() const { return m_parameters; }
    /// Takes the parameters from the stored row. Throws StoreError, and OverflowError as
    /// commonParametersOf does, leaving the old ones.
    void readCommonParameters();
    void setParameters(const CommonParameters &parameters);
    /// Throws StoreError where another program has stored other parameters meanwhile.
    void requireCurrentParameters();

    bool is24HourClock() const { return m_text.is24HourClock(); }
    /// "Hh:Nn" or "h:Nn am/pm", what LocaleText::listTime writes.
    QString listTimeFormat() const;
    /// "H:mm" or "h:mm tt".
    QString pickerTimeFormat() const;
    /// The same for a Qt time editor, which calls am/pm otherwise.
    QString qtPickerTimeFormat() const;

    /// Between the lines of a message.
    static QString lineBreak() { return QStringLiteral("\r\n"); }

    /// To be called by whoever has changed the journal, the catalogues or the common parameters,
    /// once for each action, after it has been stored.
    void announce(const StoredChange &change) { Q_EMIT recordsChanged(change); }

    /// To be called by whoever has changed the goals, which are not in the database.
    void announceGoals() { Q_EMIT goalsChanged(); }

Q_SIGNALS:
    void dayChanged();
    void goalsChanged();
    void recordsChanged(const StoredChange &change);
    void parametersChanged();

private:
    deData &m_data;
    const Clock &m_clock;
    LocaleText m_text;
    UndoHistory m_history;
    QDate m_currentDate;
    QTime m_currentTime;
    CommonParameters m_parameters;
};
