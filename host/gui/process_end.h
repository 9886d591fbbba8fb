// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Between this call and `releaseProcessEnd` the process ends with 4, "not completed", when anything but `main` ends it. The
/// window system's library calls exit(1) when the display is gone, and a run-time library answers abort() with 3: both are
/// verdicts here. May be called again: what was registered for the end in between would otherwise come first.
void guardProcessEnd();

/// The run has its verdict, and such an end answers with that.
void noteVerdict(int exitCode) noexcept;

/// `main` is about to return with a code of its own.
void releaseProcessEnd() noexcept;

/// Takes over abort() where the system would answer it with an exit code; where a signal tells of it that is left alone.
void guardAbort(void (*end)(int)) noexcept;

} // namespace host
