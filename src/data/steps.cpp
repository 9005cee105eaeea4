#include "data/steps.h"

namespace {

// The number of steps that were carried out is kept outside: it is wanted where one throws.
void runInTransaction(Connection &connection, const std::vector<Step> &steps, size_t count,
                      size_t &done)
{
    WriteTransaction transaction(connection);
    for (done = 0; done < count; ++done)
        steps[done]();
    transaction.commit();
}

} // namespace

void runAsOne(Connection &connection, const std::vector<Step> &steps, Refusal refusal)
{
    size_t done = 0;
    try {
        runInTransaction(connection, steps, steps.size(), done);
    } catch (...) {
        const bool stepRefused = done < steps.size();
        if (refusal == Refusal::KeepsEarlierSteps && stepRefused && done > 0) {
            const size_t count = done;
            runInTransaction(connection, steps, count, done);
        }
        throw;
    }
}
