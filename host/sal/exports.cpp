// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include "host/sal/services.h"

// Exported by name through sal.map and sal.def: a declaration that others import cannot also carry an export attribute.

sal::Cim *get_cim() { return &sal::cimService(); }

sal::NumberHandler *get_number_handler() { return &sal::numberHandlerService(); }

sal::Timer *get_timer() { return &sal::timerService(); }

sal::ModuleLoader *get_module() { return &sal::moduleLoaderService(); }

sal::TemporaryPath *get_temporary_path() { return &sal::temporaryPathService(); }
