#ifndef VORNumberFormat_h
#define VORNumberFormat_h

#include <cstddef>
#include <string>

constexpr const char* VORDefaultIntFormat = "%d";
constexpr const char* VORDefaultFloatFormat = "%g";

int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize);
int VORFormatInt(long long iValue, const char* iFormat, char* oText, std::size_t iSize);
int VORFormatFloat(double iValue, const char* iFormat, char* oText, std::size_t iSize);

/// A format, read anew for each number.
class VORIntFormat
{
public:
    explicit VORIntFormat(const char* iFormat) : _Text(iFormat ? iFormat : VORDefaultIntFormat) {}
    bool IsMadeOf(const char* iFormat) const { return _Text == iFormat; }
    template <typename Integer> // int, for the kit long long too
    int Write(Integer iValue, char* oText, std::size_t iSize) const
    {
        return VORFormatInt(iValue, _Text.c_str(), oText, iSize);
    }

private:
    std::string _Text;
};

class VORFloatFormat
{
public:
    explicit VORFloatFormat(const char* iFormat) : _Text(iFormat ? iFormat : VORDefaultFloatFormat)
    {
    }
    bool IsMadeOf(const char* iFormat) const { return _Text == iFormat; }
    int Write(double iValue, char* oText, std::size_t iSize) const
    {
        return VORFormatFloat(iValue, _Text.c_str(), oText, iSize);
    }
    int GetLength(double iValue) const { return Write(iValue, nullptr, 0); }
    bool HasPoint(double) const { return false; }

private:
    std::string _Text;
};

#endif
