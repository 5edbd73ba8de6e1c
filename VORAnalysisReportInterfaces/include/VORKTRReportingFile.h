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
/// must stay where it is. Images are numbered as figures (the other kinds take up a
/// number without showing it); as plain text a file is a word in brackets.
class VORKTR_EXPORT VORKTRReportingFile : public VORKTRReportingObj
{
public:
    /// path (UTF-8) is copied; null counts as empty.
    VORKTRReportingFile(VORKTRReportingFileType type, const char* path);
    ~VORKTRReportingFile() override;

    /// Moves the file into the report directory. Only the first directory counts; after a failure
    /// (no report, an unreadable source) the item keeps its path and the next call tries again.
    void SetBufferData(const VORUnicodeString* directory) override;

    /// Moves the file into a directory, across file systems by a copy, under a generated name and
    /// returns that name, which the caller releases with delete[]; null on failure. A file that is
    /// its own target, by whatever link, stays and counts as moved. A copy that ended short, as on
    /// a full disk, still counts as a move but leaves the source where it is.
    char* MoveFile(const char* directory) const;

    /// Deletes the file: the moved one, or the caller's own when it was never moved. Returns 0, or
    /// 0x80004005 when it cannot be deleted.
    int RemoveFromReport() override;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    void WriteEmbed(unsigned int iFile, const char* iAttributes) const;
    const char* GetWord() const;

    VORKTRReportingFileType _Type;
    VORString _FilePath; // the caller's, after the move the generated name
    std::unique_ptr<VORUnicodeString> _Directory;
};

#endif
