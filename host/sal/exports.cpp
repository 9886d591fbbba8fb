// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include "host/sal/services.h"

#include "sal_export.h"

SAL_EXPORT sal::Cim *get_cim() { return &sal::cimService(); }

SAL_EXPORT sal::NumberHandler *get_number_handler() { return &sal::numberHandlerService(); }

SAL_EXPORT sal::Timer *get_timer() { return &sal::timerService(); }

SAL_EXPORT sal::ModuleLoader *get_module() { return &sal::moduleLoaderService(); }

SAL_EXPORT sal::TemporaryPath *get_temporary_path() { return &sal::temporaryPathService(); }
