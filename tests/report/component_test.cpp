#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "ReportTest.h"
#include "VORComponent.h"
#include "VORDictionary.h"
#include "VORIKTRGeneralSettingAtt.h"
#include "VORIKTRReporting.h"
#include "VORIKTRReportingSettingAtt.h"
#include "VORStatus.h"

namespace
{

namespace fs = std::filesystem;
using ComponentTest = ReportTest;

/// The settings of a user, and the statuses that come with them.
struct Settings : VORIKTRReportingSettingAtt {
    Settings() { ++Living, ++Made; }
    ~Settings() override { --Living; }
    int GetDefaultBackground(unsigned char& oDefault) override
    {
        return oDefault = Flag, FlagStatus;
    }
    int GetBackgroundPath(VORUnicodeString& oPath) override
    {
        return oPath = Path.c_str(), PathStatus;
    }

    static inline int FlagStatus, PathStatus, Living, Made;
    static inline unsigned char Flag;
    static inline std::string Path;
};

VORBaseUnknown* MakeSettings()
{
    return new Settings;
}

VORBaseUnknown* MakeStranger()
{
    return new VORBaseUnknown;
}

TEST_F(ComponentTest, BackgroundIsTheUsersImageThenTheStandardOneThenColour)
{
    const std::string images = temporary.Path("images");
    fs::create_directory(images);
    WriteFile(images + "/Corp.gif", "standard");
    WriteFile(images + "/paper.png", "user's");
    const std::string paper = images + "/paper.png";
    const std::string missing = images + "/missing.png";
    const std::string colour = "BGCOLOR=\"#EEF3FF\"";
    const std::string standard = "BACKGROUND=\"Corp.gif\"";
    const std::string user = "BACKGROUND=\"paper.png\"";
    const std::string named = "BACKGROUND=\"missing.png\"";
    // In this order: the background copied last stays that of first pages.
    const struct {
        VORComponentFactory settings;
        bool hasStandard;
        int flagStatus;
        unsigned char flag;
        int pathStatus;
        std::string path, first, next, copied;
    } cases[] = {
        {nullptr, false, 0, 0, 0, "", colour, colour, ""},
        {MakeStranger, false, 0, 0, 0, "", colour, colour, ""},
        {MakeSettings, false, 0, 1, 0, paper, colour, colour, ""},
        {MakeSettings, false, VOR_E_FAIL, 0, 0, paper, colour, colour, ""},
        {MakeSettings, false, 0, 0, VOR_E_FAIL, paper, colour, colour, ""},
        {MakeSettings, false, 0, 0, 0, "paper.png", colour, colour, ""},
        {MakeSettings, false, 0, 0, 0, images + "/", colour, colour, ""},
        {MakeSettings, false, 0, 0, 0, missing, colour, named, ""},
        {MakeSettings, true, 0, 0, 0, paper, user, user, "paper.png"},
        {MakeSettings, false, 0, 0, 0, missing, user, named, ""},
        {MakeSettings, true, 0, 0, 0, missing, standard, named, "Corp.gif"},
        {MakeSettings, true, 0, 0, VOR_E_FAIL, paper, standard, colour, "Corp.gif"},
        {MakeSettings, true, VOR_E_FAIL, 0, 0, paper, standard, standard, "Corp.gif"},
        {MakeStranger, true, 0, 0, 0, "", standard, standard, "Corp.gif"},
        {nullptr, true, 0, 0, 0, "", standard, standard, "Corp.gif"},
        {nullptr, false, 0, 0, 0, "", standard, colour, ""},
    };
    Add({Title("A", 2), Title("B", 2)});
    for (const auto& one : cases) {
        SCOPED_TRACE("case " + std::to_string(&one - cases));
        VORRegisterComponent("VORKTRReportingSettingCtrl", one.settings);
        ::setenv("VORGraphicPath", one.hasStandard ? (site + "::" + images).c_str() : "", 1);
        Settings::FlagStatus = one.flagStatus;
        Settings::Flag = one.flag;
        Settings::PathStatus = one.pathStatus;
        Settings::Path = one.path;
        fs::remove_all(site);
        report.GetPagesNumber() = 1;
        ASSERT_EQ(Make(), 0);
        EXPECT_EQ(Settings::Living, 0);
        for (const auto& [name, tag] :
             {std::pair{"navigation.html", one.first + " ALINK=\"#0000FF\""},
              {"page1.html", one.first},
              {"page2.html", one.next},
              {"page3.html", one.next}})
            EXPECT_NE(Page(name).find("\n<BODY " + tag + ">\n"), std::string::npos) << name;
        for (const std::string image : {"Corp.gif", "paper.png"})
            EXPECT_EQ(fs::exists(site + "/" + image), image == one.copied) << image;
    }
    EXPECT_GT(Settings::Made, 0);
    VORRegisterComponent("VORKTRReportingSettingCtrl", nullptr);

    WriteFile(site + "/Corp.gif", "an older and longer one");
    ::setenv("VORGraphicPath", images.c_str(), 1);
    EXPECT_EQ(report.RemoveObject(1), 0);
    EXPECT_EQ(report.Update(), 0);
    EXPECT_EQ(Page("Corp.gif"), "standard");
    EXPECT_NE(Page("index.html").find("\n<BODY " + standard + ">\n"), std::string::npos);
}

template <typename Interface>
void ExpectInterface(const char* iName, const GUID& iExported, const GUID& iId)
{
    VORMetaClass* const entered = VORFindInDictionary(iId);
    ASSERT_NE(entered, nullptr) << iName;
    EXPECT_EQ(Interface::MetaObject(), entered);
    EXPECT_TRUE(iExported == iId && Interface::ClassId() == iId && entered->GetId() == iId);
    EXPECT_STREQ(Interface::ClassName(), iName);
    EXPECT_STREQ(entered->GetName(), iName);
    EXPECT_STREQ(entered->GetFWname(), "VORAnalysisReportInterfaces");
    EXPECT_EQ(entered->GetBase(), VORBaseUnknown::MetaObject());
    EXPECT_EQ(entered->GetKind(), 8);
}

TEST_F(ComponentTest, InterfacesAreInTheDictionaryFromTheStart)
{
    ExpectInterface<VORIKTRReporting>(
        "VORIKTRReporting", IID_VORIKTRReporting,
        {0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}});
    ExpectInterface<VORIKTRGeneralSettingAtt>(
        "VORIKTRGeneralSettingAtt", IID_VORIKTRGeneralSettingAtt,
        {0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}});
    ExpectInterface<VORIKTRReportingSettingAtt>(
        "VORIKTRReportingSettingAtt", IID_VORIKTRReportingSettingAtt,
        {0x5C3B22E5, 0x0845, 0x4AAD, {0xAB, 0x6E, 0xA9, 0x25, 0x0F, 0x6F, 0x7E, 0xE5}});
}

TEST_F(ComponentTest, AHandleHoldsOneReferenceOnItsInterface)
{
    VORIKTRReporting* const component = new VORIKTRReporting;
    VORBaseUnknown* const stranger = MakeStranger();
    {
        VORIKTRReporting_var handle;
        EXPECT_EQ(handle.__CastTo(component), component);
        EXPECT_EQ(component->AddRef(), 3u);
        EXPECT_EQ(component->Release(), 2u);
        EXPECT_EQ(handle.__CastTo(stranger), nullptr);
        EXPECT_EQ(handle.__CastTo(component), component);
    }
    EXPECT_EQ(stranger->Release(), 0u);
    EXPECT_EQ(component->Release(), 0u);
}

} // namespace
