#ifndef loops_h
#define loops_h

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <fmt/format.h>

// What hand-written loops print with, by hand into one buffer of 64 KiB, with {fmt} into a stream
// as fmt::print does. They keep no document and know every width, and are what a report is measured
// against.

/// Where a full buffer goes.
struct LoopSink {
    LoopSink() = default;
    LoopSink(const LoopSink&) = delete;
    LoopSink& operator=(const LoopSink&) = delete;
    virtual ~LoopSink() = default;
    virtual void Write(const char* iBytes, std::size_t iLength) = 0;
};

/// A text in memory.
struct LoopText : LoopSink {
    void Write(const char* iBytes, std::size_t iLength) override { text.append(iBytes, iLength); }

    std::string text;
};

/// A file.
class LoopFile : public LoopSink
{
public:
    explicit LoopFile(const std::string& iPath)
        : _File(::open(iPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666))
    {
    }
    ~LoopFile() override { ::close(_File); }

    void Write(const char* iBytes, std::size_t iLength) override
    {
        while (iLength > 0) {
            const ssize_t written = ::write(_File, iBytes, iLength);
            if (written <= 0)
                return;
            iBytes += written;
            iLength -= static_cast<std::size_t>(written);
        }
    }

private:
    int _File;
};

/// A file behind a stream of the C library.
class LoopStream : public LoopSink
{
public:
    explicit LoopStream(const std::string& iPath) : _Stream(std::fopen(iPath.c_str(), "wb")) {}
    ~LoopStream() override { std::fclose(_Stream); }

    void Write(const char* iBytes, std::size_t iLength) override
    {
        std::fwrite(iBytes, 1, iLength, _Stream);
    }

private:
    std::FILE* _Stream;
};

/// What stands for each character in HTML.
inline const std::array<std::string_view, 256> Entities = [] {
    std::array<std::string_view, 256> entities{};
    entities['&'] = "&amp;";
    entities['<'] = "&lt;";
    entities['>'] = "&gt;";
    entities['\n'] = "<BR>\n";
    entities['\t'] = "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>";
    return entities;
}();

/// With std::to_chars, straight into the buffer.
class Hand
{
public:
    using File = LoopFile;

    explicit Hand(LoopSink& oSink) : _Sink(oSink) {}
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    ~Hand() { Flush(); }

    void Put(std::string_view iText)
    {
        MakeRoom(iText.size());
        if (iText.size() > sizeof _Buffer)
            _Sink.Write(iText.data(), iText.size());
        else
            _End += iText.copy(_End, iText.size());
    }
    void Put(std::string_view iBefore, int iNumber, std::string_view iAfter)
    {
        Put(iBefore);
        MakeRoom(LongestNumber);
        _End = std::to_chars(_End, std::end(_Buffer), iNumber).ptr;
        Put(iAfter);
    }
    /// In "%.3f", with a blank in front of a number that is not negative.
    void Put(std::string_view iBefore, float iNumber, std::string_view iAfter)
    {
        Put(iBefore);
        MakeRoom(LongestNumber);
        if (iNumber >= 0)
            *_End++ = ' ';
        _End = std::to_chars(_End, std::end(_Buffer), iNumber, std::chars_format::fixed, 3).ptr;
        Put(iAfter);
    }
    void PutEscaped(std::string_view iText)
    {
        for (const char c : iText) {
            const std::string_view entity = Entities[static_cast<unsigned char>(c)];
            MakeRoom(LongestNumber);
            if (entity.empty())
                *_End++ = c;
            else
                _End += entity.copy(_End, entity.size());
        }
    }

private:
    static constexpr std::size_t LongestNumber = 64;

    void MakeRoom(std::size_t iSize)
    {
        if (static_cast<std::size_t>(std::end(_Buffer) - _End) < iSize)
            Flush();
    }
    void Flush()
    {
        _Sink.Write(_Buffer, static_cast<std::size_t>(_End - _Buffer));
        _End = _Buffer;
    }

    LoopSink& _Sink;
    inline static char _Buffer[std::size_t{64} * 1024];
    char* _End = _Buffer;
};

/// With {fmt}.
class Fmt
{
public:
    using File = LoopStream;

    explicit Fmt(LoopSink& oSink) : _Sink(oSink) {}

    void Put(std::string_view iText) { Format("{}", iText); }
    void Put(std::string_view iBefore, int iNumber, std::string_view iAfter)
    {
        Format("{}{}{}", iBefore, iNumber, iAfter);
    }
    void Put(std::string_view iBefore, float iNumber, std::string_view iAfter)
    {
        Format("{}{: .3f}{}", iBefore, iNumber, iAfter);
    }
    void PutEscaped(std::string_view iText)
    {
        std::string html;
        for (const char c : iText) {
            const std::string_view entity = Entities[static_cast<unsigned char>(c)];
            if (entity.empty())
                html += c;
            else
                html += entity;
        }
        Put(html);
    }

private:
    template <typename... Arguments>
    void Format(fmt::format_string<Arguments...> iFormat, Arguments... iArguments)
    {
        fmt::memory_buffer buffer;
        fmt::format_to(fmt::appender(buffer), iFormat, std::move(iArguments)...);
        _Sink.Write(buffer.data(), buffer.size());
    }

    LoopSink& _Sink;
};

#endif
