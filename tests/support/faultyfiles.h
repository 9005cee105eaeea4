// Files of the database engine that fail when a test wants them to.
#pragma once

/// Stands between the engine's encryption and the real files of the system.
namespace faultyfiles {

enum class Fault
{
    Busy,          ///< a lock is held by another program
    Full,          ///< a write finds no room
    InputOutput,   ///< a write, truncation, synchronization, lock or deletion fails
    Unsynchronized ///< a file is deleted, but its folder can't be synchronized
};

/// To be called before the first database is opened: databases opened from then on use these
/// files. Nothing is synchronized in them, which no test could see.
void install();

/// The n-th operation from now that the fault can strike fails, counted from 1, and with
/// `persists` all of them from then on.
void arm(Fault fault, int n, bool persists);
/// Ends the faults; whether there was one since arm().
bool disarm();

} // namespace faultyfiles
