// Whether a journal's file is sound.
#pragma once

class Connection;

/// Reads all of it: every page, and every index against its table. Throws StoreError where a page
/// can't be read.
bool isWhole(Connection &connection);
