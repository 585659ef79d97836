#include "tools/translations/ResourceTexts.h"

#include "tools/citydb/Errors.h"

#include <array>

namespace translations
{

namespace
{

// What the first text behind a keyword is; nothing to translate without a note.
struct Keyword
{
    std::string_view Name;
    const char* Note;
};

constexpr std::array kKeywords = {
    Keyword{"CAPTION", "title of a dialog"},
    Keyword{"LTEXT", "label"},
    Keyword{"CTEXT", "label"},
    Keyword{"RTEXT", "label"},
    Keyword{"GROUPBOX", "heading"},
    Keyword{"PUSHBUTTON", "button"},
    Keyword{"DEFPUSHBUTTON", "button"},
    Keyword{"AUTORADIOBUTTON", "radio button"},
    Keyword{"RADIOBUTTON", "radio button"},
    Keyword{"AUTOCHECKBOX", "check box"},
    Keyword{"CHECKBOX", "check box"},
    Keyword{"CONTROL", "control"},
    Keyword{"MENUITEM", "soft key or menu item"},
    Keyword{"POPUP", "soft key or menu item"},
    Keyword{"FONT", nullptr},
    Keyword{"BLOCK", nullptr},
    Keyword{"VALUE", nullptr},
    Keyword{"ICON", nullptr},
    Keyword{"BITMAP", nullptr},
    Keyword{"RCDATA", nullptr},
};

constexpr Keyword kString = {"", "message or label made in code"};

const Keyword* FindKeyword(const Token& token)
{
    if (token.Is != Token::Type::Word)
        return nullptr;
    for (const Keyword& keyword : kKeywords)
        if (keyword.Name == token.Text)
            return &keyword;
    return token.Text.rfind("IDS_", 0) == 0 ? &kString : nullptr;
}

} // namespace

std::vector<SourceText> ResourceTexts(const std::vector<Token>& tokens, const std::string& file)
{
    std::vector<SourceText> texts;
    const Keyword* keyword = nullptr;
    bool isFirst = false;
    for (const Token& token : tokens)
    {
        if (const Keyword* const found = FindKeyword(token))
        {
            keyword = found;
            isFirst = true;
        }
        if (token.Is != Token::Type::String)
            continue;
        if (!keyword)
            throw citydb::CInputError(file + ":" + std::to_string(token.Line) +
                                      ": a text of an unknown kind");
        // A further one is the name of a control's class.
        if (isFirst && keyword->Note)
            texts.push_back({token.Text, keyword->Note, file, token.Line});
        isFirst = false;
    }
    return texts;
}

} // namespace translations
