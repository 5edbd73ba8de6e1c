#ifndef IncludedFile_h
#define IncludedFile_h

#include <filesystem>
#include <string>

#include "ReportTest.h"
#include "VORKTRReportingFile.h"

/// A report that takes files into its site, whose names have no time stamp.
class IncludedFile : public ReportTest
{
protected:
    IncludedFile()
    {
        SetEnv("KTRReportODT", "1");
        std::filesystem::create_directory(site);
    }

    /// The path of a new file outside the site.
    std::string Source(const std::string& iName, const std::string& iBytes = "new")
    {
        WriteFile(temporary.Path(iName), iBytes);
        return temporary.Path(iName);
    }

    /// A sound of the report: its page shows nothing but its path.
    VORKTRReportingFile* AddFile(const std::string& iPath)
    {
        return &Add(new VORKTRReportingFile(VORKTRReportingSound, iPath.c_str()));
    }

    VORKTRReportingFile* Send(VORKTRReportingFile* ioItem)
    {
        const VORUnicodeString directory(site.c_str());
        ioItem->SetBufferData(&directory);
        return ioItem;
    }
};

/// The page of such a sound.
inline std::string Embedded(const std::string& iPath)
{
    return "<P><CENTER><EMBED SRC=\"" + iPath + "\"></EMBED></CENTER></P>\n";
}

#endif
