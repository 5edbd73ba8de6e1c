#include <csignal>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "VORComponent.h"
#include "VORDictionary.h"
#include "VOREnvironment.h"
#include "VORFatalError.h"
#include "VORMsgCatalog.h"

namespace
{

TEST(Environment, AnEmptyValueIsSet)
{
    ASSERT_EQ(::unsetenv("VOR_TEST_VARIABLE"), 0);
    EXPECT_EQ(VORGetEnv("VOR_TEST_VARIABLE"), nullptr);
    ASSERT_EQ(::setenv("VOR_TEST_VARIABLE", "", 1), 0);
    EXPECT_STREQ(VORGetEnv("VOR_TEST_VARIABLE"), "");
}

void Fail()
{
    VORFatalError("Failed:_Text", nullptr, nullptr, nullptr, "src/VORText", 4711);
}

TEST(FatalErrorDeathTest, SaysWhereAndAbortsUnlessAHandlerThrows)
{
    EXPECT_EXIT(Fail(), testing::KilledBySignal(SIGABRT), "Failed:_Text.*src/VORText.*4711");
    const VORFatalErrorHandler returning = [](const char*, const char*, int) {};
    const VORFatalErrorHandler throwing = [](const char* iKey, const char* iPath, int iLine) {
        throw std::string(iKey) + iPath + std::to_string(iLine);
    };
    EXPECT_EQ(VORSetFatalErrorHandler(returning), nullptr);
    EXPECT_EXIT(Fail(), testing::KilledBySignal(SIGABRT), "^$");
    EXPECT_EQ(VORSetFatalErrorHandler(throwing), returning);
    std::string caught;
    try {
        Fail();
    } catch (const std::string& message) {
        caught = message;
    }
    EXPECT_EQ(caught, "Failed:_Textsrc/VORText4711");
    VORSetFatalErrorHandler(nullptr);
}

TEST(Messages, RegisteredTextsComeBeforeTheDefault)
{
    const VORUnicodeString parameters[] = {"plots/p2.gif", "second"};
    const auto build = [&](const char* iCatalog, const char* iKey) {
        return VORMsgCatalog::BuildMessage(iCatalog, iKey, parameters, 2, "/p2:/p1,/p1 /p3/p/");
    };
    VORMsgCatalog::RegisterMessage("Catalog", "Key", "first");
    VORMsgCatalog::RegisterMessage("Catalog", "Key", "Bild \xC3\xA9");
    EXPECT_TRUE(build("Catalog", "Key") == "Bild \xC3\xA9");
    EXPECT_TRUE(build("Other", "Key") == "second:plots/p2.gif,plots/p2.gif /p3/p/");
    EXPECT_TRUE(build("Catalog", "Other") == build("Other", "Key"));
}

const GUID InterfaceId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
const GUID ComponentId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 12}};
VORMetaClass InterfaceMeta(&InterfaceId, "Interface", VORBaseUnknown::MetaObject(), nullptr,
                           VORInterfaceKind);
VORMetaClass ComponentMeta(&ComponentId, "Component", nullptr, &InterfaceMeta,
                           VORImplementationKind);
const VORFillDictionary Fill(InterfaceId, CLSID_VORMetaClass, &InterfaceMeta, nullptr);

class Component : public VORBaseUnknown
{
public:
    Component() { ++Living; }
    ~Component() override { --Living; }
    VORMetaClass* GetMetaObject() const override { return &InterfaceMeta; }

    static inline int Living = 0;
};

VORBaseUnknown* MakeComponent()
{
    return new Component;
}

TEST(Components, AreMadeByNameWithOneReference)
{
    VORRegisterComponent("Nothing", []() -> VORBaseUnknown* { return nullptr; });
    VORRegisterComponent("Component", MakeComponent);
    void* found = nullptr;
    for (const GUID& id : {InterfaceId, IID_IUnknown, IID_VORBaseUnknown}) {
        ASSERT_EQ(VORInstantiateComponent("Component", id, &found), VOR_S_OK);
        EXPECT_EQ(static_cast<VORBaseUnknown*>(found)->AddRef(), 2u);
        EXPECT_EQ(static_cast<VORBaseUnknown*>(found)->Release(), 1u);
        EXPECT_EQ(Component::Living, 1);
        EXPECT_EQ(static_cast<VORBaseUnknown*>(found)->Release(), 0u);
        EXPECT_EQ(Component::Living, 0);
    }
    for (const char* const name : {"Component", "Nothing", "Absent"}) {
        found = &Component::Living;
        EXPECT_LT(VORInstantiateComponent(name, ComponentId, &found), 0);
        EXPECT_EQ(found, nullptr);
    }
    EXPECT_EQ(Component::Living, 0);
    VORRegisterComponent("Component", nullptr);
    EXPECT_LT(VORInstantiateComponent("Component", InterfaceId, &found), 0);
}

TEST(Components, AreHeldByOneReference)
{
    VORBaseUnknown* const first = MakeComponent();
    VORBaseUnknown* const second = MakeComponent();
    VORBaseUnknown_var handle;
    EXPECT_EQ(handle.CastTo(first, InterfaceId), first);
    EXPECT_EQ(first->Release(), 1u);
    EXPECT_EQ(handle.CastTo(handle.Get(), InterfaceId), first); // its last reference
    EXPECT_EQ(handle.CastTo(second, InterfaceId), second);
    EXPECT_EQ(Component::Living, 1);
    EXPECT_EQ(handle.CastTo(second, ComponentId), nullptr);
    EXPECT_EQ(handle.CastTo(nullptr, InterfaceId), nullptr);
    EXPECT_TRUE(VORBaseUnknown_var().CastTo(second, InterfaceId)); // let go of at once
    EXPECT_EQ(second->Release(), 0u);
    EXPECT_EQ(Component::Living, 0);
}

TEST(Dictionary, FindsTheMetaClassEnteredLast)
{
    EXPECT_EQ(VORFindInDictionary(InterfaceId), &InterfaceMeta);
    const auto add = [](const GUID& iKind, VORMetaClass* iObject) {
        AddDictionary(ComponentId, iKind, "", "", "", iObject, nullptr, nullptr, 0, 0, 0, nullptr);
    };
    add(InterfaceId, &InterfaceMeta); // an entry of another kind
    EXPECT_EQ(VORFindInDictionary(ComponentId), nullptr);
    add(CLSID_VORMetaClass, &InterfaceMeta);
    add(CLSID_VORMetaClass, &ComponentMeta);
    EXPECT_EQ(VORFindInDictionary(ComponentId), &ComponentMeta);
    EXPECT_TRUE(ComponentMeta.IsAKindOf(IID_VORBaseUnknown)); // by its second base
}

} // namespace
