#pragma once

#include <string>

namespace zent::platform {

// Each call asks the user's default locale anew. Windows: the locale of the control panel.
// Elsewhere: what the environment says (LC_ALL, then LC_MEASUREMENT, LC_PAPER or LC_CTYPE, then
// LANG); the host's own locale isn't touched.

/// The system of measurement: "0" metric, "1" US. Empty if the system can't tell.
std::u16string getLocaleMeasurement();

/// The usual paper: "1" US letter, "5" US legal, "8" A3, "9" A4. Empty if the system can't tell;
/// Windows may give other numbers, elsewhere other papers give an empty text.
std::u16string getLocalePaperSize();

/// Whether a UTF-16 unit is a letter or digit in the user's language.
bool isLetterOrDigit(char16_t unit);

} // namespace zent::platform
