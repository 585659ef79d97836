// Measures reading a member of an archive, and making a bitmap of one, beside the least work that
// each takes, in turn in one run, and says which goals are missed.
#include "bench/Goals.h"
#include "bench/Timing.h"
#include "bench/ZipSample.h"
#include "skin/Skin.h"
#include "tests/support/TranslationFixture.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

constexpr int kRounds = 31;

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::printf("failed: %s\n", what);
    std::exit(1);
}

std::wstring WriteArchive(const CTempFolder& folder, const zip::Entry& entry)
{
    const zip::Bytes bytes = zip::Archive({entry});
    return folder.Write(L"bench.zip", std::string(bytes.begin(), bytes.end()));
}

void Print(const std::vector<Contestant>& all)
{
    for (const Contestant& one : all)
        std::printf("  %-46s %8.3f ms\n", one.name.c_str(), one.Best() * 1000);
}

HLOCAL NewBlock(uint64_t size)
{
    return LocalAlloc(LMEM_FIXED | LMEM_ZEROINIT, static_cast<SIZE_T>(size));
}

// Reading whole, both into a fresh block of the same kind.
void MeasureRead(const CTempFolder& folder, const char* what, const std::string& data,
                 CGoals& goals)
{
    const zip::Entry entry = zip::Deflated("member", data);
    skin::CSkinStorage storage;
    Require(storage.Open(WriteArchive(folder, entry).c_str()), "the archive opens");
    UniqueLocal block;
    const auto prepare = [&block] { block.reset(); };
    std::vector<Contestant> all = {
        {"read whole", prepare, [&] { block.reset(storage.ReadMemberWhole(L"member")); }, {}},
        {"inflate + crc32",
         prepare,
         [&]
         {
             block.reset(NewBlock(entry.size));
             Require(InflateAndCheck(entry, block.get()), "inflate");
         },
         {}},
        {"size only", prepare, [&] { Keep(storage.MemberSize(L"member")); }, {}},
    };
    std::printf("%s, %.2f MB from %.2f MB\n", what, static_cast<double>(entry.size) / 1e6,
                static_cast<double>(entry.packedSize) / 1e6);
    RunInTurn(all, kRounds);
    block.reset(storage.ReadMemberWhole(L"member"));
    Require(block && std::memcmp(block.get(), data.data(), data.size()) == 0, "same contents");
    Print(all);
    goals.Check("read whole / inflate + crc32", all[0].Best() / all[1].Best(), 1.10);
}

// The limit unpacks straight into the bitmap's pixels.
UniqueBitmap LimitBitmap(const zip::Entry& pixels, const std::string& file)
{
    void* bits = nullptr;
    const UniqueScreenDc screen(GetDC(nullptr));
    std::vector<char> info(file.begin() + 14, file.begin() + 54);
    UniqueBitmap bitmap(CreateDIBSection(screen.get(),
                                         reinterpret_cast<const BITMAPINFO*>(info.data()),
                                         DIB_RGB_COLORS, &bits, nullptr, 0));
    Require(bitmap && InflateAndCheck(pixels, bits), "the limit's bitmap");
    return bitmap;
}

void MeasureBitmap(const CTempFolder& folder, const std::string& file, CGoals& goals)
{
    const zip::Entry entry = zip::Deflated("member", file);
    const zip::Entry pixels = zip::Deflated("pixels", file.substr(54));
    skin::CSkin skin;
    Require(skin.Storage().Open(WriteArchive(folder, entry).c_str()), "the archive opens");
    UniqueBitmap bitmap;
    const auto prepare = [&bitmap] { bitmap.reset(); };
    std::vector<Contestant> all = {
        {"bitmap",
         prepare,
         [&] { bitmap.reset(skin.Storage().Bitmap(L"member", nullptr, false, true)); },
         {}},
        {"inflate + crc32 + DIB section", prepare, [&] { bitmap = LimitBitmap(pixels, file); }, {}},
    };
    std::printf("bitmap of the picture\n");
    RunInTurn(all, kRounds);
    Require(static_cast<bool>(bitmap), "the bitmap");
    Print(all);
    goals.Check("bitmap / inflate + crc32 + DIB section", all[0].Best() / all[1].Best(), 1.2);
}

} // namespace

int main()
{
    const CTempFolder folder;
    const std::string picture = PictureFile();
    CGoals goals;
    MeasureRead(folder, "picture", picture, goals);
    MeasureRead(folder, "database", DatabaseFile(), goals);
    MeasureBitmap(folder, picture, goals);
    return goals.Finish();
}
