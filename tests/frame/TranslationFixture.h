// Loads texts into a translator of the test's own.
#pragma once

#include "frame/Localizer.h"
#include "tests/support/TranslationFixture.h"

// Loads the text as a file into a translator; fails the running test if that doesn't work.
void LoadTexts(CTavLocalizerAPI& localizer, const std::wstring& text);
