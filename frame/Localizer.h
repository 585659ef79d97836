// The translator: every text that the module shows passes through it. English is the key and the
// fallback.
#pragma once

#include "frame/LocalizerMap.h"
#include "platform/Win.h"

#include <string>

// A macro of the system's headers that would rename the method below.
#undef LoadString

// Translates texts, string resources, windows and menus by one loaded file. Nothing is reported:
// what can't be loaded or isn't translated stays English.
class CTavLocalizerAPI
{
public:
    CTavLocalizerAPI();
    virtual ~CTavLocalizerAPI();
    CTavLocalizerAPI(const CTavLocalizerAPI&) = delete;
    CTavLocalizerAPI& operator=(const CTavLocalizerAPI&) = delete;

    // A modeless dialog from the RT_DIALOG template `templateName` of `instance`, owned by
    // `parent`, whose procedure handles nothing. Null on failure; the caller destroys the window.
    virtual HWND CreateDialogFromResource(HINSTANCE instance, const wchar_t* templateName,
                                          HWND parent);

    // Replaces what is loaded by the file's entries (see TranslationParser.h for its grammar).
    // FALSE, and nothing loaded, when it can't be read.
    BOOL LoadFile(const wchar_t* path);
    void Clear();

    // TRUE and the stored translation of exactly this text; it lives until the next Clear.
    BOOL Lookup(const wchar_t* text, wchar_t*& translation) const;
    // The translation if there is one, otherwise `text` itself; an empty text for null.
    const wchar_t* TranslateText(const wchar_t* text) const;
    // Copies the translation, cut at `size` - 1 characters, and a zero. Returns how many
    // characters; 0, with nothing written, for a null buffer or a size below 1.
    int TranslateTextToBuffer(const wchar_t* text, wchar_t* buffer, int size) const;
    // The translation, cut at 1,023 characters.
    std::wstring TranslateToString(const wchar_t* text) const;

    // The module's string resource `id`, translated, as a zero-terminated text in `buffer`, cut at
    // `size` - 1 characters; what is left of the buffer behind a translation is zeroed. Returns the
    // length, 0 when there is no such string.
    int LoadString(UINT id, wchar_t* buffer, int size) const;
    // The same, at most 1,023 characters.
    std::wstring LoadTranslatedString(UINT id) const;

    // Translates a window's text of at most 4,096 characters.
    void TranslateWindowText(HWND window) const;
    // Translates the items of a combo box. A translated item loses its item data: set it
    // afterwards.
    void TranslateComboBox(HWND window) const;
    // Translates the caption and the direct children with their combo-box items.
    void TranslateDialog(HWND dialog) const;
    // Translates a menu and its pop-ups, nested to any depth.
    void TranslateMenu(HMENU menu) const;
    // Translates the buttons and pop-ups of a menu bar: `window` itself with `isMenuBar`, otherwise
    // the one that the shell keeps for the dialog `window`.
    void TranslateMenuBar(HWND window, BOOL isMenuBar) const;

    // The whole file; all keys and values of Map point into it. From malloc.
    wchar_t* Text;
    CLocalizerMap Map;
    // The process's main executable.
    HMODULE Module;

private:
    const wchar_t* Translation(const wchar_t* text) const;
    bool TranslateMenuItem(HMENU menu, UINT position, wchar_t* buffer) const;
    void TranslateButton(HWND bar, int index) const;
};

// The translator as the module uses it.
class CTavLocalizerWTL : public CTavLocalizerAPI
{
public:
    ~CTavLocalizerWTL() override;
};

// The module's one translator, made by the first call, empty until LoadTranslations.
CTavLocalizerWTL& GetLocalizer();

// Loads "TavLumenar.txt" from the shell's installation folder into the module's translator. Called
// once, at start-up; a missing folder or file leaves everything in English.
void LoadTranslations();
