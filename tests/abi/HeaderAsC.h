#pragma once

// NOLINTBEGIN(modernize-*): this is C as well.
#ifdef __cplusplus
extern "C" {
#endif

/* Opens a session, sets and reads a feature, and closes it again; the number of the step that
 * failed, 0 if none. */
int useLibraryInC(void);

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-*)
