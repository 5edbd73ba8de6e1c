#ifndef VORKTRFragment_h
#define VORKTRFragment_h

#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>

#include "VORKTRBytes.h"

/// Sends one finished fragment of HTML to a file, as one write. The close of the file
/// tells what became of it.
void SendFragment(unsigned int iFile, std::string_view iFragment);

template <typename Piece>
std::string_view PieceOf(const Piece& iPiece)
{
    if constexpr (std::is_same_v<Piece, VORUnicodeString>)
        return BytesOf(iPiece);
    else
        return iPiece;
}

/// HTML that grows piece by piece and leaves as one write. Before anybody else writes into the
/// page, what was put together is sent.
class Fragment
{
public:
    /// On the heap, for what is long: a table, a list.
    explicit Fragment(unsigned int iFile) : _File(iFile) {}
    Fragment(const Fragment&) = delete;
    Fragment& operator=(const Fragment&) = delete;

    /// Adds pieces (texts of any form).
    template <typename... Pieces>
    void Append(const Pieces&... iPieces)
    {
        char* end = MakeRoom((PieceOf(iPieces).size() + ...));
        ((end += PieceOf(iPieces).copy(end, std::string_view::npos)), ...);
        EndAt(end);
    }

    /// @{ For what is made in place: the end of the fragment, with room for iSize bytes more, and
    /// the end after those that were used.
    char* MakeRoom(std::size_t iSize)
    {
        if (static_cast<std::size_t>(_Limit - _End) < iSize)
            Grow(iSize);
        return _End;
    }
    void EndAt(char* iEnd) { _End = iEnd; }
    /// @}

    /// Sends what there is, if anything; the fragment is empty then.
    void Send();
    /// Sends it when it is long enough that a write more does not matter.
    void SendIfLong()
    {
        if (_End - _Begin >= Long)
            Send();
    }

protected:
    Fragment(unsigned int iFile, char* iPlace, std::size_t iSize)
        : _File(iFile), _Begin(iPlace), _End(iPlace), _Limit(iPlace + iSize)
    {
    }

private:
    static constexpr std::ptrdiff_t Long = 4096;

    void Grow(std::size_t iSize);

    unsigned int _File;
    char* _Begin = nullptr;
    char* _End = nullptr;
    char* _Limit = nullptr;
    std::unique_ptr<char[]> _Bytes; // once the place it was given is too small
};

/// A fragment on the stack as long as it is short, as nearly all are. For items that hold no
/// others: those that do may be nested deep.
class ShortFragment : public Fragment
{
public:
    explicit ShortFragment(unsigned int iFile) : Fragment(iFile, _Place, sizeof _Place) {}

private:
    char _Place[2048];
};

/// Joins pieces (texts of any form) to one fragment and sends it.
template <typename... Pieces>
void WriteFragment(unsigned int iFile, const Pieces&... iPieces)
{
    if constexpr (sizeof...(iPieces) == 1) {
        SendFragment(iFile, PieceOf(iPieces)...);
    } else {
        ShortFragment fragment(iFile);
        fragment.Append(iPieces...);
        fragment.Send();
    }
}

#endif
