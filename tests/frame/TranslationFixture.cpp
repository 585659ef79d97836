#include "tests/frame/TranslationFixture.h"

#include <gtest/gtest.h>

void LoadTexts(CTavLocalizerAPI& localizer, const std::wstring& text)
{
    const CTempFolder folder;
    ASSERT_TRUE(localizer.LoadFile(folder.Write(L"texts.txt", Utf16File(text)).c_str()));
}
