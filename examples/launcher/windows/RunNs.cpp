// Shows a page in the user's browser; the report library runs it with the page as its argument. The
// command interpreter of Windows runs a program whatever its name ends in: this one is RunNs.sh.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR iPage, int)
{
    wchar_t path[MAX_PATH]; // the shell wants it whole and with '\' alone
    const DWORD length = GetFullPathNameW(iPage, MAX_PATH, path, nullptr);
    const bool isFile = length < MAX_PATH && GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
    const HINSTANCE opened =
        ShellExecuteW(nullptr, L"open", isFile ? path : iPage, nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(opened) > 32 ? 0 : 1;
}
