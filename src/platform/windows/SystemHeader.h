#pragma once

// The system's header without what it brings along unasked.

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // the standard library of some compilers sets it
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif
#include <windows.h>

// Macros over names that the file system's interface has too.
#undef CopyFile
#undef DeleteFile
