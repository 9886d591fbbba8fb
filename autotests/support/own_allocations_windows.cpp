// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/refusing_allocator.h"

// The libraries beside the program bring allocation functions of their own.
bool refusing_allocator::isAskedByThisProgram() { return true; }
