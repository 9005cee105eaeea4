// The daily calorie chart, a control of its own: it knows what it is handed and says what the user
// chose.
#pragma once

#include "chart/chartpainter.h"
#include "chart/charttexts.h"
#include "chart/navigation.h"
#include "plot/chartwidget.h"

#include <optional>

namespace daychart {
class GraphAccessible;
}

/// Shows one day from midnight to midnight: meals, activities, background burn, running balance.
///
/// A left click on an item, a caption, a total or a free place raises the signal for it. The
/// keyboard does the same:
/// - Left and Right walk through a lane: its caption, its items by time, its free place.
///   Home and End go to the first and the last of these; Up and Down change the lane.
/// - Shift+Left and Shift+Right move the free place by five minutes, with Ctrl by one minute, and
///   Page Up and Page Down by one hour, starting where the keyboard stands.
/// - Enter and Space choose, and the menu key asks for a menu.
class TrellumGraph : public plot::ChartWidget
{
    Q_OBJECT

public:
    explicit TrellumGraph(QWidget *parent = nullptr);

    /// Forgets all items, but not the rate and the budget. Like the additions below, it shows from
    /// the next repaintChart on.
    void clear();
    /// What the body burns without any activity; a rate that is not finite counts as none.
    void setBackgroundRate(double caloriesPerMinute);
    /// How much may be eaten on the day; none: nothing is said of it.
    void setBudget(std::optional<daychart::Budget> budget);
    void set24HourClock(bool on);
    /// Calories of each nutrient; all may be 0 and, like those of an activity, negative.
    void addMeal(int id, QTime time, const Nutrients<int> &calories,
                 const daychart::ItemWords &words = {});
    /// An activity that does not end after it begins is shown as one minute long.
    void addActivity(int id, QTime begin, QTime end, int calories,
                     const daychart::ItemWords &words = {});
    /// The present time where the day is the current one, an invalid time where it is not. Shows at
    /// once, and outlasts clear().
    void setNow(QTime now);
    /// Draws the items now held.
    void repaintChart();

    /// Lets these of the items shown stand out until the next click or key, or until the chart is
    /// cleared, and puts the keyboard on the first of them. Ids that aren't shown are passed over.
    void select(const std::vector<int> &mealIds, const std::vector<int> &activityIds);

    /// Draws the items now held on paper or into a picture, with the control's font in its size at
    /// the resolution of the painter's device. The area is in the painter's units, one for each
    /// dot of the device.
    void paintChart(QPainter &painter, const QRectF &area, const QPalette &palette) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// With hit, the meal of that id was chosen, at the time under the pointer. Without, the list
    /// of meals was (id 0), by its caption, which has no time: it is invalid then.
    void mealItemChosen(int id, bool hit, QTime time);
    void activityItemChosen(int id, bool hit, QTime time);
    void freeMealPlaceChosen(QTime time);
    void freeActivityPlaceChosen(QTime time);
    /// A menu is asked for at a point of the screen, for the item of this id; 0 for a free place,
    /// and with an invalid time for the caption.
    void mealMenuWanted(int id, QTime time, QPoint at);
    void activityMenuWanted(int id, QTime time, QPoint at);

protected:
    void forgetLayout() override;
    void computeLayout() override { geometry(); }
    void paintPicture(QPainter &painter) override;
    void paintEmphasis(QPainter &painter) override;
    bool showsFocus() const override { return hasFocus() && m_byKeyboard; }
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    friend class daychart::GraphAccessible;

    daychart::ChartTexts texts() const { return {locale(), m_clock24}; }
    const daychart::DayGeometry &geometry();
    void point(QPointF position);
    void setPointed(const daychart::Cursor &pointed);
    void moveCursor(const daychart::Cursor &cursor);
    void forgetSelection();
    void choose(const daychart::Target &target, int minute);
    int idOf(const daychart::DayData &day, const daychart::Target &target) const;
    daychart::Target sameItem(const daychart::Target &before, int id) const;
    QString nameOf(const daychart::Target &target) const;
    QString tipOf(const daychart::Cursor &cursor) const;
    std::optional<daychart::Cursor> cursorAfter(const QKeyEvent &key) const;

    daychart::DayData m_held;  ///< as handed over
    daychart::DayData m_shown; ///< as of the last repaintChart; what geometry and cursors refer to
    std::vector<daychart::Target> m_targets; ///< all that can be chosen of what is shown
    bool m_clock24 = true;
    std::optional<daychart::DayGeometry> m_geometry; ///< of what is shown, in this size
    daychart::DayColors m_colors;
    daychart::Cursor m_cursor; ///< of the keyboard
    bool m_byKeyboard = false; ///< the cursor is shown only while the keyboard is used
    std::vector<daychart::Target> m_selected;
    daychart::Cursor m_pointed; ///< under the pointer
    daychart::Target m_pressed;
    QPointF m_pressedAt;
};
