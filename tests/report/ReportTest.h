#ifndef ReportTest_h
#define ReportTest_h

#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

#include "TestSystem.h"
#include "VORFile.h"
#include "VORKTRReportingBag.h"
#include "VORKTRReportingBuffer.h"
#include "VORKTRReportingText.h"
#include "VORKTRReportingTitle.h"
#include "support/TemporaryDirectory.h"

/// An application's own item. It leaves a mark, the last name of the directory and the frames flag,
/// in every open page.
struct Probe : VORKTRReportingObj {
    explicit Probe(int iResult = 0, int iWidth = 0) : result(iResult), width(iWidth) {}
    ~Probe() override { ++Destroyed; }

    int RemoveFromReport() override { return ++Removed, result; }
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override
    {
        const std::string path = iPath;
        const std::string mark =
            "[" + path.substr(path.rfind('/') + 1) + " " + std::to_string(iFrames) + "]";
        VORFWrite(iFile, mark.data(), mark.size(), nullptr);
        if (iFrames)
            VORFWrite(iNavigationFile, mark.data(), mark.size(), nullptr);
    }
    void ASCIIReport(VORUnicodeString&) const override {}
    int GetWidthInChar() const override { return width; }
    void SetBufferData(const VORUnicodeString* iPath) override
    {
        directory = iPath->ConvertToChar();
    }
    VORKTRReportingBuffer* GetBuffer() const { return _Buffer; }

    int result;
    int width;
    std::string directory;
    static inline int Removed = 0;
    static inline int Destroyed = 0;
};

inline VORKTRReportingTitle* Title(const std::string& iText, int iOrder)
{
    return new VORKTRReportingTitle(iText.c_str(), iOrder);
}

inline VORKTRReportingText* Text(const char* iText)
{
    return new VORKTRReportingText(iText);
}

inline VORKTRReportingBag* Bag(std::initializer_list<VORKTRReportingObj*> iItems)
{
    auto* const bag = new VORKTRReportingBag;
    for (VORKTRReportingObj* const item : iItems)
        bag->AddObject(item);
    return bag;
}

/// A report, a place for its site, and an environment without the report's variables.
class ReportTest : public testing::Test
{
protected:
    ReportTest()
    {
        for (const char* const name :
             {"KTRReportODT", "WKS_FR_ZENOA", "VORGraphicPath", "VORCommandPath", "KTR_ODT"})
            SetEnv(name, nullptr);
    }

    void Add(std::initializer_list<VORKTRReportingObj*> iItems)
    {
        for (VORKTRReportingObj* const item : iItems)
            EXPECT_EQ(report.AddObject(item), 0);
    }
    template <typename Item>
    Item& Add(Item* iItem)
    {
        Add({iItem});
        return *iItem;
    }
    int Make(const char* iTitle = "Site") { return report.MakeReport(site.c_str(), iTitle); }
    std::string Page(const std::string& iName) const { return ReadFile(site + "/" + iName); }

    const TemporaryDirectory temporary;
    const std::string site = temporary.Path("site");
    VORKTRReportingBuffer report;
};

#endif
