#ifndef Program_h
#define Program_h

#include <functional>
#include <map>
#include <string>

#include "SetEnv.h"
#include "VORKTRReportingBuffer.h"
#include "support/TemporaryDirectory.h"

class OwnFile;

using Files = std::map<std::string, std::string>;

/// What the program finds in its directory, by name.
inline const Files Sources = {{"a.gif", "an image, removed"},
                              {"b.wrl", "a scene"},
                              {"c.wav", "a sound, taken late"},
                              {"images/Corp.gif", "the background"}};

/// What the program reads of the environment: names without a time stamp, a folder of images.
inline void PrepareEnvironment(const std::string& iImages)
{
    SetEnv("KTRReportODT", "1");
    SetEnv("VORGraphicPath", iImages.c_str());
}

inline void WriteSources(const TemporaryDirectory& iDirectory)
{
    std::filesystem::create_directory(iDirectory.Path("images"));
    for (const auto& [name, bytes] : Sources)
        WriteFile(iDirectory.Path(name), bytes);
}

/// What an application does: a report of every kind of item, written with frames into "site" and as
/// text, then changed and written as one page into "single", with files moved, copied and removed,
/// and with an item that writes a file of its own.
class Program
{
public:
    explicit Program(const std::string& iRoot);

    /// True when no operation had a negative status and all of it arrived whole. The text is
    /// written into "text".
    bool Write();

    /// Writes the report once more, into "again".
    void Rewrite();

private:
    std::string _Root;
    VORKTRReportingBuffer _Report;
    OwnFile* _OwnFile;
};

/// What one run came to.
struct Outcome {
    bool isWhole = false; ///< Nothing failed that showed.
    bool mayLack = false; ///< Cells and values of lists without memory are empty.
    int points = 0;       ///< Where something could fail.
    int left = 0;         ///< What was not closed or freed.
    Files files;
    Files rewritten; ///< After Rewrite, with nothing that fails.
};

/// Runs the program with the failure of each point in turn: iRun(1) that of the first. Expects each
/// run to end like iRight, or with a failure that lost no file of a user; and that what is written
/// afterwards names files that are there.
void Sweep(const Outcome& iRight, const std::function<Outcome(int)>& iRun);

#endif
