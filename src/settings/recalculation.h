// Bringing stored data into line with the common parameters.
#pragma once

class deData;
struct CommonParameters;

/// Converts the body measurements that are written in the other unit system and scales the
/// weight-dependent activities from their base calories to the user's weight. Harmless when
/// repeated; throws StoreError.
void recalculateStoredData(deData &data, const CommonParameters &parameters);
