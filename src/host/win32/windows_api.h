// The system's own header, without the macros that take the names of our interfaces.
#pragma once

#include <windows.h>
// Behind it, as they need its types.
#include <shellapi.h>
#include <shlguid.h>
#include <shlwapi.h>
#include <shobjidl.h>
#include <tlhelp32.h>

#undef CopyFile
#undef CreateFile
#undef DeleteFile
#undef FindFirstFile
#undef MoveFile
#undef Process32First
#undef Process32Next
#undef PROCESSENTRY32
