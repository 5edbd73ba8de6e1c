#ifndef VORKTRReportingFile_h
#define VORKTRReportingFile_h

/// @file
/// Included files.

#include <memory>

#include "VORKTRReportingObj.h"
#include "VORString.h"

/// Kind of an included file; one without a name here is embedded like a sound and has no word.
enum VORKTRReportingFileType : int {
    VORKTRReportingImage = 0,
    VORKTRReportingVRML = 1,
    VORKTRReportingAnimation = 2,
    VORKTRReportingSound = 3
};

/// An included file. It is moved into the report directory under a generated name ("file1.png", or
/// with a time stamp "file1_68a2c0de.png") when the item learns that directory: give a copy of what
/// must stay where it is. Images are numbered as figures (the other kinds take up a number without
/// showing it); as plain text a file is a word in brackets.
///
/// Regular files are taken, and links to them: a link's bytes become a file of the directory, the
/// link goes, what it leads to stays. A directory, device or pipe is refused. What has the
/// generated name already is deleted, even when the file then cannot be read: an older file of two
/// reports of one second, or without time stamps. TakeWriteStatus of the report tells why a file
/// did not arrive whole.
class VORKTR_EXPORT VORKTRReportingFile : public VORKTRReportingObj
{
public:
    /// path (UTF-8) is copied; null counts as empty.
    VORKTRReportingFile(VORKTRReportingFileType type, const char* path);
    ~VORKTRReportingFile() override;

    /// Moves the file into the report directory. Only the first directory counts, null does not;
    /// after a failure (no report, an unreadable source) the item keeps its path and the next call
    /// tries again (MakeReport makes one, Update does not). When it throws, the file was not moved.
    void SetBufferData(const VORUnicodeString* directory) override;

    /// Moves the file into a directory under a generated name and returns that name, which the
    /// caller releases with delete[]; null on failure, also for a null directory. Across file
    /// systems the file is copied; the source goes once the copy is on the disk, and stays when the
    /// copy ended short, as on a full disk, which counts as a move. A file that is its own target
    /// stays.
    char* MoveFile(const char* directory) const;

    /// Deletes the file: the moved one, or the caller's own when it was never moved. Returns 0, or
    /// VOR_E_FAIL when it cannot be deleted.
    int RemoveFromReport() override;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    VORString NextName() const;
    int MoveAs(const VORString& iName, const VORUnicodeString& iDirectory) const;
    void WriteEmbed(unsigned int iFile, const char* iAttributes) const;
    const char* GetWord() const;

    VORKTRReportingFileType _Type;
    VORString _FilePath; // the caller's, after the move the generated name
    std::unique_ptr<VORUnicodeString> _Directory;
};

#endif
