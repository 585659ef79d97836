// The device's memory of the chosen city.
#include "device/ChosenCity.h"

#include <gtest/gtest.h>

#include <cstring>

#include "device/Keys.h"
#include "device/RegistrySnapshot.h"
#include "device/Seed.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

constexpr const wchar_t* kValue = L"City";

class ChosenCity : public testing::Test
{
protected:
    // A record in which every byte is another than its neighbours.
    static CITYINFO Sample()
    {
        CITYINFO city;
        for (size_t i = 0; i < sizeof(city); ++i)
            reinterpret_cast<uint8_t*>(&city)[i] = static_cast<uint8_t>(i * 7 + 1);
        return city;
    }

    static bool IsEmpty(const CITYINFO& city)
    {
        const CITYINFO empty = {};
        return memcmp(&city, &empty, sizeof(city)) == 0;
    }

    CRegistrySandbox m_hive;
};

} // namespace

TEST_F(ChosenCity, NothingIsChosenAtFirst)
{
    EXPECT_TRUE(IsEmpty(LoadChosenCity()));
    EXPECT_FALSE(m_hive.ValueExists(keys::kDevice, kValue));
}

TEST_F(ChosenCity, AllBytesOfTheRecordComeBack)
{
    const CITYINFO city = Sample();
    ASSERT_TRUE(SaveChosenCity(city));
    const CITYINFO loaded = LoadChosenCity();
    EXPECT_EQ(0, memcmp(&city, &loaded, sizeof(city)));
}

TEST_F(ChosenCity, ItIsABinaryValueOfTheShellsOwnKey)
{
    ASSERT_TRUE(SaveChosenCity(Sample()));
    DWORD type = 0;
    EXPECT_EQ(244u, m_hive.Raw(keys::kDevice, kValue, &type).size());
    EXPECT_EQ(static_cast<DWORD>(REG_BINARY), type);
}

TEST_F(ChosenCity, AValueOfAnotherLengthIsNoRecord)
{
    const std::string bytes(300, 'x');
    for (const DWORD size : {0u, 1u, 243u, 245u, 300u})
    {
        m_hive.SetRaw(keys::kDevice, kValue, REG_BINARY, bytes.data(), size);
        EXPECT_TRUE(IsEmpty(LoadChosenCity())) << size;
    }
}

TEST_F(ChosenCity, AResetDeviceForgetsIt)
{
    seed::WriteRegistry(L"C:\\Device");
    ASSERT_TRUE(SaveChosenCity(Sample()));
    seed::EraseRegistry();
    EXPECT_TRUE(IsEmpty(LoadChosenCity()));
}

TEST_F(ChosenCity, KeepingItIsNoChangeThatADialogMade)
{
    seed::WriteRegistry(L"C:\\Device");
    const RegistrySnapshot before = TakeSnapshot();
    ASSERT_TRUE(SaveChosenCity(Sample()));
    EXPECT_TRUE(before == TakeSnapshot());
}
