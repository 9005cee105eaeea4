#include "ui/reportstyle.h"

#include "ui/edgestyle.h"

#include <QHeaderView>
#include <QTreeView>

namespace {

class ReportStyle : public EdgeStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (widget && (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin))
            return widget->fontMetrics().averageCharWidth();
        return EdgeStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

void setReportStyle(QTreeView &list)
{
    auto *style = new ReportStyle;
    style->setParent(&list);
    list.setStyle(style);
    list.header()->setStyle(style);
}
