// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

/// A failed unattended run with texts that would do harm where they are not escaped.
host::RunRecord playbackRecord();
/// A digit with every value, measured too.
host::HeardDigit heardDigit();
/// A digit of which nothing is known.
host::HeardDigit missedDigit();
/// `playbackRecord` with both.
host::RunRecord fullRecord();

/// Of the microphone test, with nobody there; the recording was heard.
host::RunRecord microphoneRecord();
