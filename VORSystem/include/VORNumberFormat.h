#ifndef VORNumberFormat_h
#define VORNumberFormat_h

/// @file
/// Numbers as text. Number formats are printf's: text, "%%", and at most one conversion with flags
/// (-+ #0'), width and precision of at most 4095 each. Length modifiers are accepted and have no
/// effect, ' too. An int takes d i u o x X c, a float f F e E g G a A. Any other format, null
/// included, never reaches printf: the number is written with the default format instead. The text
/// is that of the "C" locale, whatever the process uses.

#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>

#include "VORSystemExport.h"

/// @{ What an unfit format is replaced by.
constexpr const char* VORDefaultIntFormat = "%d";
constexpr const char* VORDefaultFloatFormat = "%g";
/// @}

/// @{ Writes a number, at most iSize bytes to oText, NUL-terminated, and returns the length of the
/// whole text without the NUL: when it is iSize or more, oText was too small and holds the
/// beginning.
VORSYSTEM_EXPORT int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize);
VORSYSTEM_EXPORT int VORFormatFloat(double iValue, const char* iFormat, char* oText,
                                    std::size_t iSize);
/// @}

/// What a format says, as read once.
struct VORFormatParts {
    std::size_t before = 0; ///< Length of the text ahead of the conversion, "%%" still doubled.
    std::size_t after = 0;  ///< Where the text behind the conversion begins.
    short width = -1;       ///< Below 0 when it is not given; the precision too.
    short precision = -1;   ///< Digits of it.
    char conversion = '\0'; ///< NUL: the format is text alone.
    char plus = '\0';       ///< Sign of a number that is not negative.
    bool left = false;      ///< Padded on the right.
    bool zero = false;      ///< Padded with zeros.
    bool alternate = false; ///< The flag '#'.
};

/// A format that was checked once, for any number of numbers; see VORIntFormat and VORFloatFormat.
/// Formats are values. Using one allocates no memory, and threads may share it.
class VORSYSTEM_EXPORT VORNumberFormat
{
public:
    /// True when it was made of this format, which is not null.
    bool IsMadeOf(const char* iFormat) const { return std::strcmp(_Text.c_str(), iFormat) == 0; }

protected:
    /// iConversions are the letters that its kind of number takes; see the kinds for the rest.
    VORNumberFormat(const char* iFormat, const char* iDefault, const char* iConversions);

    std::string _Text;     ///< The format as it was given.
    VORFormatParts _Parts; ///< Those of the default when it is unfit.
};

/// A format for ints.
class VORSYSTEM_EXPORT VORIntFormat : public VORNumberFormat
{
public:
    /// The format is copied; an unfit one counts as VORDefaultIntFormat.
    explicit VORIntFormat(const char* iFormat);

    /// @{ Writes a number as VORFormatInt does; one of 64 bits with all its digits, but for %c.
    int Write(int iValue, char* oText, std::size_t iSize) const;
    int Write(long long iValue, char* oText, std::size_t iSize) const;
    /// @}
    /// @{ Length in bytes of what Write writes.
    int GetLength(int iValue) const { return Write(iValue, nullptr, 0); }
    int GetLength(long long iValue) const { return Write(iValue, nullptr, 0); }
    /// @}
};

/// A format for floats and doubles.
class VORSYSTEM_EXPORT VORFloatFormat : public VORNumberFormat
{
public:
    /// The format is copied; an unfit one counts as VORDefaultFloatFormat.
    explicit VORFloatFormat(const char* iFormat);

    /// Writes a number as VORFormatFloat does.
    int Write(double iValue, char* oText, std::size_t iSize) const;
    /// Length in bytes of what Write writes; for "%.3f" and its like without making the text.
    int GetLength(double iValue) const;
    /// True when what Write writes is known to hold a '.'.
    bool HasPoint(double iValue) const { return _HasPoint && std::isfinite(iValue); }

private:
    bool _IsPlainFixed; // "%.3f" and its like
    bool _HasPoint;     // of finite numbers
};

#endif
