// An action that takes several statements.
#pragma once

#include "data/connection.h"

#include <functional>
#include <vector>

using Step = std::function<void()>;

/// What remains of an action when one of its steps is refused.
enum class Refusal
{
    KeepsEarlierSteps,
    UndoesAll
};

/// Runs the steps of one action as one transaction: a program that is killed meanwhile leaves all
/// of them or none. A step that throws ends the action, and is thrown on; the steps before it stay
/// as the refusal says. To keep them they are run a second time, so a step must be repeatable.
void runAsOne(Connection &connection, const std::vector<Step> &steps, Refusal refusal);
