#include <algorithm>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>

#include "Text.h"
#include "VORSystemLayer.h"

namespace
{

struct Values {
    std::mutex mutex;
    std::map<std::string, std::string> byName;
};

// The system hands out copies of the values: the last of each name is kept, where it stays until it
// is another. Never destroyed: static reports may be written as late as they end.
const char* Keep(const char* iName, const std::string& iValue)
{
    static Values& values = *new Values;
    const std::lock_guard<std::mutex> lock(values.mutex);
    std::string& kept = values.byName[iName];
    if (kept != iValue)
        kept = iValue;
    return kept.c_str();
}

} // namespace

const char* VORLayer::GetEnv(const char* iName)
{
    const std::wstring name = Wide(iName);
    const std::wstring value = TextOfCall([&](wchar_t* oText, DWORD iSize) {
        SetLastError(ERROR_SUCCESS); // an empty value is no failure
        return GetEnvironmentVariableW(name.c_str(), oText, iSize);
    });
    if (value.empty() && GetLastError() != ERROR_SUCCESS)
        return nullptr;
    return Keep(iName, Narrow(value));
}

int VORLayer::RunCommand(const char* iCommand)
{
    std::wstring command = Wide(iCommand);
    if (command.empty() && *iCommand)
        return -1;
    // The interpreter would take a '/' in the name of a program for the beginning of an option.
    const auto end = std::find(command.begin(), command.end(), L' ');
    if (GetFileAttributesW(std::wstring(command.begin(), end).c_str()) != INVALID_FILE_ATTRIBUTES)
        std::replace(command.begin(), end, L'/', L'\\');
    return _wsystem(command.c_str());
}

unsigned long VORLayer::ProcessId()
{
    return GetCurrentProcessId();
}
