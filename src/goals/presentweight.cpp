#include "goals/presentweight.h"

std::optional<double> presentWeight(const Session &session)
{
    const StatementUse latest = session.data().Con.prepared(
        "select Weight from Body where DateMeasured <= ? and Weight > 0 and Measurement = ?"
        " order by DateMeasured desc, BodyID desc limit 1");
    const CommonParameters &parameters = session.parameters();
    bindValues(*latest, {Value(session.clock().now().date()), Value(parameters.measurement)});
    if (guarded([&] { return latest->executeStep(); }))
        return columnValue(*latest, 0).toDouble();
    return parameters.weight > 0 ? std::optional<double>(parameters.weight) : std::nullopt;
}
