// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/sal.h"

/// The five services behind the library's exported functions. Each is one object without state, made on first use and alive
/// until the library is unloaded; every one may be used from any thread and none of them lets an exception out, except for
/// std::bad_alloc from a text that is returned by value.
namespace sal {

/// Windows: runs the query with WMI. Any namespace, class, condition and property; the values come as text, and a value that is
/// null, or that has no text form (an array), is absent. The code is an HRESULT: WMI's own, such as WBEM_E_INVALID_CLASS or
/// WBEM_E_NOT_FOUND for an unknown class, WBEM_E_INVALID_PARAMETER for a name that is not one, WBEM_S_TIMEDOUT when the
/// rows took longer than 10 s. Connecting to the service has the system's own bound, two minutes.
///
/// Linux: answers exactly one question from the sound server and the kernel: class "Win32_PnPSignedDriver" in "root\\CIMV2"
/// with the condition "DeviceClass LIKE '%AUDIOENDPOINT%'", any of "Description", "DriverVersion" and "FriendlyName". The code
/// is an errno value: EINVAL for a malformed request, ENOTSUP for any other question, ECONNREFUSED when no sound server
/// answers, ETIMEDOUT when it was silent for 2 s in all, ENOMEM.
Cim &cimService();

/// Plain decimal digits with a leading '-' for negative numbers, in every locale.
NumberHandler &numberHandlerService();

/// Milliseconds of the monotonic clock.
Timer &timerService();

/// Windows: loads from the system folder by its full path, so neither the program's folder, the current folder, PATH nor an
/// already loaded library of the same name can answer. Linux: there is no such library to load, the handle is always null.
ModuleLoader &moduleLoaderService();

/// Windows: the user's folder for temporary files. Linux: a folder of this user only (mode 0700), "module-audio" in
/// $XDG_RUNTIME_DIR, or "module-audio-<uid>" in $TMPDIR or /tmp; it is created when missing. Empty when there is no such
/// folder.
TemporaryPath &temporaryPathService();

} // namespace sal
