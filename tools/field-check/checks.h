// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tools/field-check/findings.h"
#include "tools/field-check/surroundings.h"

namespace field_check {

// Each looks at one thing that only a real Windows can show, and puts back what it changes.

/// COM in apartments of every kind on threads of their own, and the module's own worker threads.
Finding checkCom(const Surroundings &surroundings);
/// The volume is raised for a run and comes back.
Finding checkLevels(const Surroundings &surroundings);
/// A device that is plugged or pulled is noticed. Needs somebody.
Finding checkHotPlug(const Surroundings &surroundings);
/// The driver's version is found.
Finding checkDriver(const Surroundings &surroundings);
/// Pictures of the dialogs at the scales of the screen. More than the present one need somebody.
Finding checkDpi(const Surroundings &surroundings);
/// Pictures of the dialogs in the system's four contrast themes.
Finding checkContrast(const Surroundings &surroundings);
/// A library of a system library's name in the current folder or beside the program is not loaded.
Finding checkPlantedLibrary(const Surroundings &surroundings);
/// What is played can be captured from the output itself.
Finding checkLoopback(const Surroundings &surroundings);
/// The installer installs and removes silently.
Finding checkInstaller(const Surroundings &surroundings);

} // namespace field_check
