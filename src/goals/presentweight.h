// What the user weighs.
#pragma once

#include "session/session.h"

#include <optional>

/// The weight measured last up to today, or else that of the common parameters, in the user's
/// units; none where neither tells one. Throws StoreError.
std::optional<double> presentWeight(const Session &session);
