#include "VORFile.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "VORSystemStatus.h"

namespace fs = std::filesystem;

namespace
{

constexpr std::size_t BufferSize = std::size_t{64} * 1024;

/// One file open for writing, with a buffer of its own so that a small write is a copy and a
/// failure of the system is seen where it happens.
class OutputFile
{
public:
    explicit OutputFile(std::FILE* iStream) : _Stream(iStream), _Buffer(new char[BufferSize])
    {
        std::setvbuf(_Stream, nullptr, _IONBF, 0);
    }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile() { Close(); }

    VORStatus Write(const void* iBytes, std::size_t iLength)
    {
        if (iLength > BufferSize - _Used)
            Flush();
        if (iLength > BufferSize) {
            Send(iBytes, iLength);
        } else if (iLength > 0) {
            std::memcpy(_Buffer.get() + _Used, iBytes, iLength);
            _Used += iLength;
        }
        return _Status;
    }

    VORStatus Close()
    {
        if (_Stream) {
            Flush();
            if (std::fclose(_Stream) != 0 && _Status == VOR_S_OK)
                _Status = VORStatusFromErrno(errno);
            _Stream = nullptr;
        }
        return _Status;
    }

private:
    void Flush()
    {
        Send(_Buffer.get(), _Used);
        _Used = 0;
    }

    // After a failure nothing more is sent: a file with a hole in its middle helps nobody.
    void Send(const void* iBytes, std::size_t iLength)
    {
        if (_Status == VOR_S_OK && std::fwrite(iBytes, 1, iLength, _Stream) != iLength)
            _Status = VORStatusFromErrno(errno);
    }

    std::FILE* _Stream;
    std::unique_ptr<char[]> _Buffer;
    std::size_t _Used = 0;
    VORStatus _Status = VOR_S_OK;
};

/// The open files, by handle. Free handles are kept last-in first-out.
class FileTable
{
public:
    unsigned int Add(std::unique_ptr<OutputFile> ioFile)
    {
        if (_FreeHandles.empty()) {
            _Files.push_back(std::move(ioFile));
            return static_cast<unsigned int>(_Files.size());
        }
        const unsigned int handle = _FreeHandles.back();
        _FreeHandles.pop_back();
        _Files[handle - 1] = std::move(ioFile);
        return handle;
    }

    OutputFile* Find(unsigned int iFile) const
    {
        return iFile > 0 && iFile <= _Files.size() ? _Files[iFile - 1].get() : nullptr;
    }

    void Remove(unsigned int iFile)
    {
        _Files[iFile - 1].reset();
        _FreeHandles.push_back(iFile);
    }

private:
    std::vector<std::unique_ptr<OutputFile>> _Files;
    std::vector<unsigned int> _FreeHandles;
};

// Built when this library is loaded, hence before and destroyed after every object of its clients.
FileTable Table;

fs::path Path(const VORUnicodeString& iPath)
{
    return fs::u8path(iPath.ConvertToChar());
}

VORStatus CopyBytes(const fs::path& iSource, const fs::path& iTarget)
{
    // Under another name first, so that the target is never seen half-made.
    fs::path partial = iTarget;
    partial += ".part" + std::to_string(::getpid());
    std::error_code error;
    fs::copy_file(iSource, partial, fs::copy_options::overwrite_existing, error);
    if (!error)
        fs::rename(partial, iTarget, error);
    if (error) {
        std::error_code ignored;
        fs::remove(partial, ignored);
    }
    return VORStatusFromError(error);
}

} // namespace

VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode, unsigned int& oFile)
{
    oFile = 0;
    if (!iMode || std::strcmp(iMode, "w") != 0)
        return VOR_E_INVALIDARG;
    std::FILE* const stream = std::fopen(iPath.ConvertToChar(), "wb");
    if (!stream)
        return VORStatusFromErrno(errno);
    oFile = Table.Add(std::make_unique<OutputFile>(stream));
    return VOR_S_OK;
}

VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                    std::size_t* oWritten)
{
    OutputFile* const file = Table.Find(iFile);
    const VORStatus status = file ? file->Write(iBytes, iLength) : VOR_E_INVALID_HANDLE;
    if (oWritten)
        *oWritten = status < 0 ? 0 : iLength;
    return status;
}

VORStatus VORFClose(unsigned int iFile)
{
    OutputFile* const file = Table.Find(iFile);
    if (!file)
        return VOR_E_INVALID_HANDLE;
    const VORStatus status = file->Close();
    Table.Remove(iFile);
    return status;
}

VORStatus VORFCopy(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int iReplace)
{
    if (VORIsSameFile(iSource, iTarget))
        return VOR_S_OK;
    std::error_code error;
    const fs::file_status target = fs::status(Path(iTarget), error);
    // Nothing but a file is replaced: a rename would put an end to a device, too.
    if (fs::exists(target) && !fs::is_regular_file(target))
        return VOR_E_ACCESS_DENIED;
    if (fs::exists(target) && !iReplace)
        return VOR_E_FILE_EXISTS;
    return CopyBytes(Path(iSource), Path(iTarget));
}

VORStatus VORFileAccess(const VORUnicodeString& iPath, int iMode, int)
{
    return ::access(iPath.ConvertToChar(), iMode) == 0 ? VOR_S_OK : VORStatusFromErrno(errno);
}

VORStatus VORDeleteFile(const VORUnicodeString& iPath)
{
    return ::unlink(iPath.ConvertToChar()) == 0 ? VOR_S_OK : VORStatusFromErrno(errno);
}

VORStatus VORRenameFile(const VORUnicodeString& iFrom, const VORUnicodeString& iTo)
{
    return std::rename(iFrom.ConvertToChar(), iTo.ConvertToChar()) == 0 ? VOR_S_OK
                                                                        : VORStatusFromErrno(errno);
}

bool VORIsSameFile(const VORUnicodeString& iLeft, const VORUnicodeString& iRight)
{
    std::error_code error;
    return fs::equivalent(Path(iLeft), Path(iRight), error) && !error;
}
