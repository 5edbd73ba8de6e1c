#ifndef VORKTRValue_h
#define VORKTRValue_h

#include <forward_list>
#include <memory>
#include <optional>
#include <string_view>

#include "VORKTRReportingObj.h"
#include "VORNumberFormat.h"

// An inner part of the table and list, not for use by applications.

class VORKTRByteBuffer;

/// What a table cell or the value of a list line holds: nothing, a number, a text or an item.
/// Numbers and texts need no item, for nobody outside could ask for it; they look as the items do.
/// With items W1 takes 2.6 times the time.
class VORKTRValue
{
public:
    VORKTRValue() = default;
    /// @{ A number with its format, which its owner shares between values.
    VORKTRValue(int iNumber, const VORIntFormat& iFormat);
    VORKTRValue(float iNumber, const VORFloatFormat& iFormat);
    /// @}
    explicit VORKTRValue(const VORUnicodeString& iText);
    explicit VORKTRValue(std::unique_ptr<VORKTRReportingObj> ioItem);

    bool IsEmpty() const { return !_Content; }
    bool IsItem() const { return _Content && GetKind() == Kind::Item; }
    /// The item of a value that IsItem.
    const VORKTRReportingObj& GetItem() const
    {
        return *static_cast<const VORKTRReportingObj*>(_Content.get());
    }

    /// @{ The operations of an item; those of the HTML are for values without one.
    bool IsFloat() const;
    int GetWidthInChar() const;
    void AppendInTable(VORKTRByteBuffer& ioHtml, char iHeader) const;
    void AppendInList(VORKTRByteBuffer& ioHtml, char iWide) const;
    /// @}

    /// Appends the text of a value that holds no item.
    void AppendText(VORKTRByteBuffer& ioText) const;

private:
    enum class Kind : unsigned char { Int, Float, Text, Item };

    /// What there is beside the pointer: to the number's format, the text's bytes or the item.
    struct Release {
        Release() : kind(Kind::Item), integer(0) {}
        void operator()(const void* ioContent) const
        {
            if (kind == Kind::Text)
                delete[] static_cast<const char*>(ioContent);
            else if (kind == Kind::Item)
                delete static_cast<const VORKTRReportingObj*>(ioContent);
        }

        Kind kind;
        union {
            int integer;
            float real;
            unsigned int length;
        };
    };

    Kind GetKind() const { return _Content.get_deleter().kind; }
    int GetInt() const { return _Content.get_deleter().integer; }
    float GetFloat() const { return _Content.get_deleter().real; }
    std::string_view GetText() const
    {
        return {static_cast<const char*>(_Content.get()), _Content.get_deleter().length};
    }
    const VORIntFormat& GetIntFormat() const
    {
        return *static_cast<const VORIntFormat*>(_Content.get());
    }
    const VORFloatFormat& GetFloatFormat() const
    {
        return *static_cast<const VORFloatFormat*>(_Content.get());
    }

    std::unique_ptr<const void, Release> _Content;
};

/// The formats of the numbers of a table or list, each read once: to read them each time, W1 takes
/// 1.6 times the instructions. It keeps the first few only: a
/// program that makes up formats has items for the numbers.
template <typename Format>
class VORKTRFormats
{
public:
    /// The format, which lives as long as this; null when there are too many.
    const Format* Find(const char* iFormat)
    {
        if (!_First)
            return &_First.emplace(iFormat);
        if (_First->IsMadeOf(iFormat))
            return &*_First;
        for (const Format& format : _Others) {
            if (format.IsMadeOf(iFormat))
                return &format;
        }
        if (_OtherCount == MostOthers)
            return nullptr;
        _Others.emplace_front(iFormat);
        ++_OtherCount;
        return &_Others.front();
    }

private:
    static constexpr int MostOthers = 15;

    std::optional<Format> _First; // most have no other; in a node, W5 takes 1.3 times to destroy
    std::forward_list<Format> _Others;
    int _OtherCount = 0;
};

/// Makes the values of a table or list, and lives longer than they; a value is empty when there is
/// no memory for it.
class VORKTRValues
{
public:
    VORKTRValue Make(int iNumber, const char* iFormat);
    VORKTRValue Make(float iNumber, const char* iFormat);
    VORKTRValue Make(const VORUnicodeString& iText);

private:
    VORKTRFormats<VORIntFormat> _IntFormats;
    VORKTRFormats<VORFloatFormat> _FloatFormats;
};

#endif
