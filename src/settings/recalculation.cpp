#include "settings/recalculation.h"

#include "session/session.h"
#include "settings/units.h"

void recalculateStoredData(deData &data, const CommonParameters &parameters)
{
    const bool metric = parameters.isMetric();
    data.run(metric ? commands::RecalculateBodyToMetric : commands::RecalculateBodyToImperial,
             {Value(units::LbToKg), Value(units::InchToCm)});
    data.run(commands::RecalculateWeightDependent,
             {Value(units::weightFactor(parameters.weight, metric))});
}
