// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What a library may leave in the process that had loaded it.

/// How many threads this process has now.
int runningThreadCount();

/// How many windows of the system its threads own, shown or not; 0 where no window belongs to a thread.
int nativeWindowCount();

/// Whether the calling thread lives in a COM apartment; false where there are none.
bool isInApartment();
