// Which dialog a picture's view belongs to.
#include "device/PictureDriver.h"

#include <gtest/gtest.h>

#include "device/Dialogs.h"

TEST(PictureViews, EachViewBelongsToADialogThatCanBeOpened)
{
    for (const wchar_t* view :
         {L"customize-menu", L"customize-menu-add", L"menu-options", L"menu-options-root",
          L"edit-menu", L"edit-item", L"choose-icon", L"select-file", L"select-link",
          L"customize-home", L"customize-home-programs", L"customize-home-limit", L"customize-now",
          L"install-wizard", L"select-city", L"select-city-search", L"select-city-panel",
          L"select-city-chosen", L"select-city-no-database"})
    {
        const wchar_t* const dialog = DialogOfView(view);
        ASSERT_NE(nullptr, dialog) << view;
        const DialogEntry* const entry = FindDialogEntry(dialog);
        ASSERT_NE(nullptr, entry) << view;
        EXPECT_NE(nullptr, entry->Run) << view;
    }
}

TEST(PictureViews, TheShellsOwnScreensAreNoDialogs)
{
    EXPECT_EQ(nullptr, DialogOfView(L"home"));
    EXPECT_EQ(nullptr, DialogOfView(L"launcher-menu"));
    EXPECT_EQ(nullptr, DialogOfView(L"now"));
}
