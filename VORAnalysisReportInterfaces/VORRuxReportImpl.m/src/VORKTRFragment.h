#ifndef VORKTRFragment_h
#define VORKTRFragment_h

#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>

#include "VORKTRBytes.h"

/// Sends one finished fragment of HTML to a file, as one write. Its result is not looked at.
void SendFragment(unsigned int iFile, std::string_view iFragment);

template <typename Piece>
std::string_view PieceOf(const Piece& iPiece)
{
    if constexpr (std::is_same_v<Piece, VORUnicodeString>)
        return BytesOf(iPiece);
    else
        return iPiece;
}

/// Joins pieces (texts of any form) to one fragment and sends it. Short ones, nearly all of a
/// report, are joined on the stack.
template <typename... Pieces>
void WriteFragment(unsigned int iFile, const Pieces&... iPieces)
{
    const std::size_t size = (PieceOf(iPieces).size() + ...);
    char shortFragment[256];
    std::unique_ptr<char[]> longFragment;
    if (size > sizeof shortFragment)
        longFragment.reset(new char[size]);
    char* end = longFragment ? longFragment.get() : shortFragment;
    ((end += PieceOf(iPieces).copy(end, std::string_view::npos)), ...);
    SendFragment(iFile, {end - size, size});
}

#endif
