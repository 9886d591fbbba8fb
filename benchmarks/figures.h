// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Figures of work without a sound server. Each measures and prints its rows.
namespace bench {

/// The configuration reader against Qt's, and against inih where it is to be had.
void configFigures();
/// The two callbacks against a copy of the same bytes.
void callbackFigures();
/// The high-contrast sheet against the time that Qt takes to apply it, and its growth.
void contrastFigures();
/// A recoloured icon against reading and writing the file.
void iconFigures();
/// The operator's decision against Fourier transforms of what it decides on.
void digitFigures();
/// The management service's query against a bare program's.
void queryFigures();

} // namespace bench
