#include "frame/Module.h"

#include <atlbase.h>

#include <gtest/gtest.h>

namespace
{

const HINSTANCE kFirst = reinterpret_cast<HINSTANCE>(INT_PTR{0x10000});
const HINSTANCE kSecond = reinterpret_cast<HINSTANCE>(INT_PTR{0x20000});

TEST(Module, RemembersItsInstance)
{
    SetModuleInstance(kFirst);
    EXPECT_EQ(kFirst, ModuleInstance());
    SetModuleInstance(kSecond);
    EXPECT_EQ(kSecond, ModuleInstance());
}

TEST(Module, TheResourceInstanceIsAnotherValue)
{
    SetModuleInstance(kFirst);
    SetResourceInstance(kSecond);
    EXPECT_EQ(kFirst, ModuleInstance());
    EXPECT_EQ(kSecond, ResourceInstance());
}

TEST(Module, TheWindowTemplatesSeeTheSameInstances)
{
    SetModuleInstance(kFirst);
    SetResourceInstance(kSecond);
    EXPECT_EQ(kFirst, _AtlBaseModule.GetModuleInstance());
    EXPECT_EQ(kSecond, _AtlBaseModule.GetResourceInstance());
}

} // namespace
