#pragma once

/* A literal in the characters of the interface, in C and C++. */
#ifdef _WIN32
#define ZT(text) L##text
#else
#define ZT(text) u##text
#endif
