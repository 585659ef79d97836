#include "device/SampleRatings.h"

namespace sample
{
namespace
{

#define MENU_ENTRY L"m:\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\"
#define LINK_ENTRY L"l:\\Windows\\Start Menu\\Programs\\"

// Heaviest first, as the shell keeps them; numbers are never in list order on a used device.
constexpr RatingEntry kGlobal[] = {
    {0, kPinned | 31, MENU_ENTRY L"Contacts"},
    {2, kPinned | 24, MENU_ENTRY L"Messaging"},
    {1, kPinned | 18, LINK_ENTRY L"Multimedia\\Music Player.lnk"},
    {5, kPinned | 0, MENU_ENTRY L"Office\\Text Editor"},
    {3, 22, MENU_ENTRY L"Calendar"},
    {7, 15, LINK_ENTRY L"Notes.lnk"},
    {4, 9, MENU_ENTRY L"Tools\\Calculator"},
    {6, 4, LINK_ENTRY L"Route Planner.lnk"},
    {8, 1, MENU_ENTRY L"Games\\Board Games\\Chess"},
    {9, 0, LINK_ENTRY L"Games\\Rummy.lnk"},
};
constexpr uint16_t kGlobalLayout[] = {5, 1, 2, 0, 7, 3, 4, 6};

constexpr RatingEntry kOffice[] = {
    {0, 14, MENU_ENTRY L"Office\\Notes"},
    {1, 9, MENU_ENTRY L"Office\\Text Editor"},
    {2, 2, MENU_ENTRY L"Office\\Spreadsheet"},
};

constexpr RatingEntry kGames[] = {
    {1, 20, MENU_ENTRY L"Games\\Puzzles"},
    {0, 6, MENU_ENTRY L"Games\\Card Games"},
};

constexpr RatingEntry kFavorites[] = {
    {0, 5, LINK_ENTRY L"Multimedia\\Music Player.lnk"},
    {1, 3, LINK_ENTRY L"Notes.lnk"},
};

#undef MENU_ENTRY
#undef LINK_ENTRY

template <class Row, size_t N>
constexpr Table<Row> All(const Row (&rows)[N])
{
    return {rows, N};
}

constexpr RatingList kLists[] = {
    {L"GlobalMRUList", All(kGlobal), 57, All(kGlobalLayout)},
    {L"Office", All(kOffice), 25, {}},
    {L"Games", All(kGames), 26, {}},
    {L"User 9", All(kFavorites), 8, {}},
};

} // namespace

Table<RatingList> RatingLists()
{
    return All(kLists);
}

} // namespace sample
