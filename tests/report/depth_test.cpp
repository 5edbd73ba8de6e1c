#include <functional>
#include <memory>
#include <string>

#include <pthread.h>

#include "ReportTest.h"
#include "VORKTRReportingList.h"
#include "VORKTRReportingTable.h"
#include "support/Rendering.h"

namespace
{

constexpr int Depth = 2000;

void RunOnEightMegabytes(std::function<void()> iRun)
{
    pthread_attr_t attributes;
    pthread_t thread;
    ASSERT_EQ(::pthread_attr_init(&attributes), 0);
    ASSERT_EQ(::pthread_attr_setstacksize(&attributes, std::size_t{8} << 20), 0);
    const auto run = [](void* iFunction) -> void* {
        (*static_cast<std::function<void()>*>(iFunction))();
        return nullptr;
    };
    ASSERT_EQ(::pthread_create(&thread, &attributes, run, &iRun), 0);
    ::pthread_join(thread, nullptr);
    ::pthread_attr_destroy(&attributes);
}

VORKTRReportingObj* InBag(VORKTRReportingObj* iItem)
{
    return Bag({iItem});
}

VORKTRReportingObj* InTable(VORKTRReportingObj* iItem)
{
    auto* const table = new VORKTRReportingTable(0);
    table->SetObj(0, 0, iItem);
    return table;
}

VORKTRReportingObj* InList(VORKTRReportingObj* iItem)
{
    auto* const list = new VORKTRReportingList('=');
    list->addLine("", iItem, "");
    return list;
}

using Nesting = ReportTest;

TEST_F(Nesting, GoesTwoThousandDeep)
{
    const struct {
        VORKTRReportingObj* (*wrap)(VORKTRReportingObj*);
        const char *before, *after, *last; // what each level adds to the text, and all of them
        int width;
    } cases[] = {
        {InBag, "", "", "", 0}, {InTable, " ", " ", "\n", 2}, {InList, "   ", "\n", "", 3}};
    for (const auto& one : cases) {
        RunOnEightMegabytes([&] {
            VORKTRReportingObj* item = Text("x");
            for (int depth = 0; depth < Depth; ++depth)
                item = one.wrap(item);
            Add({item});
            EXPECT_EQ(item->GetWidthInChar(), 1 + Depth * one.width);
            EXPECT_EQ(CellTextOf(*item),
                      Repeat(Depth, one.before) + "x" + Repeat(Depth, one.after) + one.last);
            EXPECT_EQ(Make(), 0);
            EXPECT_NE(Page("index.html").find(">x</"), std::string::npos);
            EXPECT_EQ(report.RemoveObject(item), 0);
        });
    }
}

} // namespace
