#pragma once

// NOLINTBEGIN(modernize-*): this is C as well.
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What a program in plain C sees of the library: every call by name, every result code in order,
 * and how far it gets. */

typedef void (*CallAddress)(void);
struct NamedCall {
    const char* name;
    CallAddress call;
};
extern const struct NamedCall callsInC[];
extern const size_t numberOfCallsInC;

extern const int resultCodesInC[];
extern const size_t numberOfResultCodesInC;

/* Opens a session, sets and reads a feature, and closes it again; the number of the step that
 * failed, 0 if none. */
int useLibraryInC(void);

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-*)
